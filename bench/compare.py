#!/usr/bin/env python3
"""Compares routines with plain loops and with numpy doing the same arithmetic; prints a Markdown table.

    cmake --preset bench && cmake --build --preset bench
    bench/compare.py build/bench/bench/polyprops_comparison

Times are those of the fastest of ten runs on this machine. Instructions are callgrind's, C library included; they do not
depend on the machine's speed. numpy is timed only: it takes its results from the same numbers, array by array.
"""

import argparse
import re
import subprocess
import sys
import tempfile
import timeit
from pathlib import Path

import numpy as np

SITES, POSITIONS, TEMPERATURE = 5, 6, 341.7
LOOPS = {"POLY_CSDCAL": "bench::loop_csdcal*", "POLY_TBKIJ3": "bench::loop_tbkij3*", "POLY_TBKIJ4": "bench::loop_tbkij4*",
         "POLY_KIJ5": "bench::loop_kij5*", "POLY_DKIJ5": "bench::loop_dkij5*"}


def run(*command):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    if done.returncode != 0:
        sys.exit(f"compare.py: {' '.join(command)}: exit code {done.returncode}\n{done.stderr}")
    return done.stdout


def instructions(program, case, size, function):
    """Instructions of one call. The program calls each way twice to compare results, then times ten calls of the library."""
    with tempfile.TemporaryDirectory() as folder:
        profile = Path(folder) / "callgrind.out"
        run("valgrind", "--tool=callgrind", "--collect-atstart=no", f"--toggle-collect={function}",
            f"--callgrind-out-file={profile}", program, case, str(size), "library", "1")
        total = re.search(r"^(?:totals|summary): (\d+)", profile.read_text(encoding="utf-8"), re.MULTILINE)
    return int(total[1]) // (12 if function == case else 2)


def accumulate(size):
    """One increment of five site types, as POLY_CSDCAL adds it."""
    lengths = np.floor(10.0 ** (np.arange(1, size + 1) * 6 / size))
    tau, beta = np.array([[1e-4, 3e-4, 1e-3, 3e-3, 1e-2], [0, 1e-5, 0, 1e-4, 0]])[:, :, None]
    amounts = np.array([1.0, 2, 3, 2, 1])[:, None]
    columns, s, added = np.zeros((SITES, size)), tau + beta, amounts.sum()

    def call():
        g = np.exp(np.clip(-s * lengths, -250, 80.59)) * lengths * s * (0.5 * lengths * beta * s + tau)
        columns[:] = (g * amounts + columns * added) / (2 * added)
        return columns.sum(axis=0)
    return call


def parameters(case, size):
    """All pairs at once, as the matrix routines fill them."""
    pair = np.arange(size * size)
    u = (pair % 97 / 97).reshape(size, size)
    reference = np.where(pair % 12 != 0, 298.15, 300.0).reshape(size, size)
    p1, p2, p3, p4, p5 = 0.1 + u, -0.2 * u, np.full_like(u, 0.03), 0.01 * u, np.full_like(u, -0.002)

    def value():
        x = TEMPERATURE / reference
        return (p5 * x + p4) * x + (np.log(x) * p3 + p1 + p2 / x)

    def derivative():
        x = TEMPERATURE / reference
        return (p4 - p2 / (x * x) + p3 / x + 2 * p5 * x) / reference

    def slope():
        x = TEMPERATURE / reference
        return -p2 / x + p3 + p4 * x + 2 * p5 * (x * x)
    return {"POLY_TBKIJ4": lambda: (value(), derivative()), "POLY_DKIJ5": slope}.get(case, value)


def numpy_nanoseconds(case, size, calls):
    call = accumulate(size) if case == "POLY_CSDCAL" else parameters(case, size)
    return 1e9 * min(timeit.repeat(call, number=calls, repeat=10)) / calls


def row(program, case, size):
    calls = max(10, 200_000 // (size * SITES if case == "POLY_CSDCAL" else size * size))
    library, loop = (float(run(program, case, str(size), way, str(calls))) for way in ("library", "loop"))
    times = [library, loop, numpy_nanoseconds(case, size, calls)]
    counts = [instructions(program, case, size, function) for function in (case, LOOPS[case])]
    cells = [f"`{case}`", str(size), *(f"{time / 1000:.1f}" for time in times),
             *(f"{count:,}".replace(",", " ") for count in counts)]
    return "| " + " | ".join(cells) + " |"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", help="the built polyprops_comparison")
    program = parser.parse_args().program
    print("| routine | size | library, µs | loop, µs | numpy, µs | library, instructions | loop, instructions |")
    print("| --- |" + " ---: |" * 6)
    for line in run(program).splitlines():
        case, size = line.split()
        print(row(program, case, int(size)), flush=True)


if __name__ == "__main__":
    main()
