#!/usr/bin/env python3
"""Counts the instructions of one call of each routine and prints them as a Markdown table.

    cmake --preset bench && cmake --build --preset bench
    bench/count.py build/bench/bench/polyprops_routines [--routine POLY_GETDPN ...] [--sizes 10 100 1000]

Counted are the library and the C library that it calls. The last column holds the cost of the host's services, for the
largest size: other hosts have other services. The counts do not depend on the machine's speed; the same build gives the
same table. Areas that the C library clears with one repeating instruction count once per byte there, so that a matrix of
NC × NC adds 8 NC².
"""

import argparse
import os
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from typing import NamedTuple


class CountError(Exception):
    """A call that could not be counted."""


class Counts(NamedTuple):
    """Instructions of one call: the library with the C library, and the services of the host."""
    library: int
    services: int


def services_cost(profile, library, program):
    """Cost of the calls out of a library into the program, callees included, by a profile of callgrind."""
    names, here, there, cost = {}, None, None, 0
    lines = iter(profile.splitlines())
    for line in lines:
        if match := re.match(r"(c?ob)=(\(\d+\))(?: (.*))?$", line):
            kind, number, name = match.groups()
            name = names.setdefault(number, name)
            here, there = (name, there) if kind == "ob" else (here, name)
        elif line.startswith("calls="):
            inclusive = int(next(lines).split()[1])
            if library in here and there and there.endswith(program):
                cost += inclusive
            there = None
    return cost


def count(program, routine, components):
    """The counts of one call of a routine."""
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "callgrind.out"
        command = ["valgrind", "--tool=callgrind", "--collect-atstart=no", f"--toggle-collect={routine}",
                   f"--callgrind-out-file={file}", str(program), routine, str(components)]
        done = subprocess.run(command, capture_output=True, text=True, check=False, env=os.environ | {"LD_BIND_NOW": "1"})
        if done.returncode != 0:
            raise CountError(f"{' '.join(command)}: exit code {done.returncode}\n{done.stderr}")
        profile = file.read_text(encoding="utf-8")
    total = re.search(r"^(?:totals|summary): (\d+)", profile, re.MULTILINE)
    if total is None or int(total[1]) == 0:
        raise CountError(f"{routine}: nothing was counted; is it exported by the library that {program} loads?")
    services = services_cost(profile, "libpolyprops", program.name)
    return Counts(int(total[1]) - services, services)


def row(routine, counts):
    """One line of the table: counts, the growth from each size to the next, services at the largest size."""
    numbers = [f"{size.library:,}".replace(",", " ") for size in counts]
    growth = [f"{later.library / earlier.library:.1f}" for earlier, later in zip(counts, counts[1:])]
    services = f"{counts[-1].services:,}".replace(",", " ")
    return "| " + " | ".join([f"`{routine}`", *numbers, *growth, services]) + " |"


def main(arguments=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", type=Path, help="the built polyprops_routines")
    parser.add_argument("--routine", action="append", help="count only this one; may be given again")
    parser.add_argument("--sizes", type=int, nargs="+", default=[10, 100, 1000], help="numbers of components")
    parser.add_argument("--jobs", type=int, default=2, help="calls counted at the same time")
    options = parser.parse_args(arguments)
    listed = subprocess.run([str(options.program)], capture_output=True, text=True, check=True).stdout.split()
    routines = options.routine or listed
    sizes = options.sizes
    titles = ["routine", *(f"NC = {size}" for size in sizes), *(f"{a} → {b}" for a, b in zip(sizes, sizes[1:])),
              "host's services"]
    print("| " + " | ".join(titles) + " |")
    print("| --- |" + " ---: |" * (len(titles) - 1))
    with ThreadPoolExecutor(options.jobs) as pool:
        counted = [[pool.submit(count, options.program, routine, size) for size in sizes] for routine in routines]
        for routine, futures in zip(routines, counted):
            print(row(routine, [future.result() for future in futures]), flush=True)
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except (CountError, OSError, subprocess.CalledProcessError) as error:
        sys.exit(f"count.py: {error}")
