#!/usr/bin/env python3
"""Counts the instructions of one call of each routine and prints them as a Markdown table.

    cmake --preset bench && cmake --build --preset bench
    bench/count.py build/bench/bench/polyprops_bench [--routine POLY_GETDPN ...] [--sizes 10 100 1000]

The counts are those of valgrind's callgrind and contain the services of the bench's own host and the C library. They
do not depend on the machine's speed; the same build gives the same table. Large areas that the C library clears with
one repeating instruction count once per byte, so that a matrix of NC × NC adds 8 NC².
"""

import argparse
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path


class CountError(Exception):
    """A call that could not be counted."""


def instructions(program, routine, components):
    """Instructions of one call of a routine, everything that it calls included."""
    with tempfile.TemporaryDirectory() as folder:
        profile = Path(folder) / "callgrind.out"
        command = ["valgrind", "--tool=callgrind", "--collect-atstart=no", f"--toggle-collect={routine}",
                   f"--callgrind-out-file={profile}", str(program), routine, str(components)]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        if done.returncode != 0:
            raise CountError(f"{' '.join(command)}: exit code {done.returncode}\n{done.stderr}")
        total = re.search(r"^(?:totals|summary): (\d+)", profile.read_text(encoding="utf-8"), re.MULTILINE)
    if total is None or int(total[1]) == 0:
        raise CountError(f"{routine}: nothing was counted; is it exported by the library that {program} loads?")
    return int(total[1])


def row(routine, counts):
    """One line of the table: counts, then the growth from each size to the next."""
    growth = [f"{later / earlier:.1f}" for earlier, later in zip(counts, counts[1:])]
    return "| " + " | ".join([f"`{routine}`", *(f"{count:,}".replace(",", " ") for count in counts), *growth]) + " |"


def main(arguments=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", type=Path, help="the built polyprops_bench")
    parser.add_argument("--routine", action="append", help="count only this one; may be given again")
    parser.add_argument("--sizes", type=int, nargs="+", default=[10, 100, 1000], help="numbers of components")
    parser.add_argument("--jobs", type=int, default=2, help="calls counted at the same time")
    options = parser.parse_args(arguments)
    listed = subprocess.run([str(options.program)], capture_output=True, text=True, check=True).stdout.split()
    routines = options.routine or listed
    sizes = options.sizes
    titles = ["routine", *(f"NC = {size}" for size in sizes), *(f"{a} → {b}" for a, b in zip(sizes, sizes[1:]))]
    print("| " + " | ".join(titles) + " |")
    print("| --- |" + " ---: |" * (len(titles) - 1))
    with ThreadPoolExecutor(options.jobs) as pool:
        counts = [[pool.submit(instructions, options.program, routine, size) for size in sizes] for routine in routines]
        for routine, futures in zip(routines, counts):
            print(row(routine, [future.result() for future in futures]), flush=True)
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except (CountError, OSError, subprocess.CalledProcessError) as error:
        sys.exit(f"count.py: {error}")
