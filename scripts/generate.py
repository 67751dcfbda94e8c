#!/usr/bin/env python3
"""Makes every file that follows from the table of the exported routines.

    scripts/generate.py            write the files
    scripts/generate.py --check    compare only; lists stale files and exits with 1
"""

import argparse
import sys
from itertools import zip_longest
from pathlib import Path

from exports import c_header, fortran, python_signatures, reference, table

ROOT = Path(__file__).resolve().parent.parent
TABLE = Path("src/exports/routines.toml")
PRODUCTS = {
    "include/polyprops/polyprops.h": c_header.header,
    "src/exports/polyprops.map": c_header.export_map,
    "docs/routines.md": reference.page,
    "bindings/fortran/polyprops.f90": fortran.module,
    "bindings/python/polyprops/signatures.json": python_signatures.signatures,
}


def stale_files(root, routines):
    """Paths and right contents of the files that are missing or differ."""
    for name, make in PRODUCTS.items():
        path, content = root / name, make(routines)
        if not path.is_file() or path.read_text(encoding="utf-8") != content:
            yield path, content


def first_difference(path, content):
    """The first line of a stale file that is wrong."""
    seen = path.read_text(encoding="utf-8").splitlines() if path.is_file() else []
    lines = enumerate(zip_longest(seen, content.splitlines()), 1)
    return next((number for number, (old, new) in lines if old != new), 1)


def main(arguments=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="write nothing; exit with 1 when a file is stale")
    parser.add_argument("--root", type=Path, default=ROOT, help="top of the source tree")
    options = parser.parse_args(arguments)
    try:
        routines = table.read(options.root / TABLE)
    except table.TableError as error:
        print(error, file=sys.stderr)
        return 1
    stale = list(stale_files(options.root, routines))
    for path, content in stale:
        name = path.relative_to(options.root)
        if options.check:
            print(f"{name}:{first_difference(path, content)}: does not follow from {TABLE}; run scripts/generate.py", file=sys.stderr)
            continue
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(content, encoding="utf-8")
        print(f"wrote {name}")
    return 1 if options.check and stale else 0


if __name__ == "__main__":
    sys.exit(main())
