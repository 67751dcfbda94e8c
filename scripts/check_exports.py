#!/usr/bin/env python3
"""Checks that a built libpolyprops.so defines the routines of the table, and needs nothing but its host, libc and libm.

    scripts/check_exports.py build/release/src/libpolyprops.so
    scripts/check_exports.py build/release/app/libpolyprops-case.so --case-header include/polyprops/case.h

It must not be able to end its host. With the header of the case layer the file defines its functions too; it contains its
host, and may need the run-time libraries of C++.
"""

import argparse
import re
import subprocess
import sys
from pathlib import Path

from exports import table

ROOT = Path(__file__).resolve().parent.parent
SYSTEM_LIBRARIES = r"libc\.so\.6|libm\.so\.6|ld-linux.*\.so\.\d+"
RUN_TIME_LIBRARIES = r"libstdc\+\+\.so\.6|libgcc_s\.so\.1"
# Weak references that the compiler's start files and its static run-time library leave in a shared object.
START_FILES = {"__gmon_start__", "__cxa_finalize", "__cxa_pure_virtual", "_ITM_deregisterTMCloneTable",
               "_ITM_registerTMCloneTable"}
# What a library must not do to its host: end it, or write beyond a buffer.
REFUSED = {"abort", "exit", "_exit", "quick_exit", "raise", "__assert_fail", "sprintf", "vsprintf", "strcpy",
           "strcat"}


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def dynamic_symbols(built, which):
    """Pairs of name and version ("" when it has none)."""
    lines = run("nm", "-D", which, str(built)).splitlines()
    symbols = (line.split()[-1] for line in lines if line.strip())
    return [(name, version.lstrip("@")) for name, _, version in (s.partition("@") for s in symbols)]


def needed_libraries(built):
    return re.findall(r"\(NEEDED\).*\[(.*)\]", run("readelf", "-d", "--wide", str(built)))


def host_names(header):
    """The records and services that a host header declares."""
    code = re.sub(r"/\*.*?\*/", "", Path(header).read_text(encoding="utf-8"), flags=re.DOTALL)
    return set(re.findall(r"\b([A-Z]{2}_[A-Z0-9_]+)\s*[(\[]", code))


def case_names(header):
    """The functions that the header of the case layer declares."""
    code = re.sub(r"//.*", "", Path(header).read_text(encoding="utf-8"))
    return set(re.findall(r"\b(polyprops_\w+)\s*\(", code))


def export_faults(built, names):
    defined = {name for name, _ in dynamic_symbols(built, "--defined-only")}
    for name in sorted(names - defined):
        yield f"{built}: {name} is declared but is not exported"
    for name in sorted(defined - names):
        yield f"{built}: {name} is exported but is not declared"


def import_faults(built, host, versions, refused):
    for name, version in dynamic_symbols(built, "--undefined-only"):
        if name in refused:
            yield f"{built}: needs {name}, which a library must not call"
        from_system = version.startswith(versions) or (not version and name in START_FILES)
        if name not in host and not from_system:
            shown = f"{name}@{version}" if version else name
            yield f"{built}: needs {shown}, which neither its host nor an allowed library defines"


def library_faults(built, allowed):
    for library in needed_libraries(built):
        if not re.fullmatch(allowed, library):
            yield f"{built}: needs the library {library}, which is not allowed"


def main(arguments=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("built", type=Path, metavar="BUILT.so")
    parser.add_argument("--table", type=Path, default=ROOT / "src/exports/routines.toml")
    parser.add_argument("--host-header", type=Path, default=ROOT / "include/polyprops/host.h")
    parser.add_argument("--case-header", type=Path)
    parser.add_argument("--range-checks", action="store_true", help="a debug build, whose range checks end the process")
    options = parser.parse_args(arguments)
    host, versions, libraries, refused = set(), ("GLIBC_",), SYSTEM_LIBRARIES, set()
    try:
        names = {routine.name for routine in table.read(options.table)}
        if options.case_header:
            names |= case_names(options.case_header)
            versions += ("GLIBCXX_", "CXXABI_", "GCC_")
            libraries += "|" + RUN_TIME_LIBRARIES
        else:
            host, refused = host_names(options.host_header), set() if options.range_checks else REFUSED
        faults = [*export_faults(options.built, names), *import_faults(options.built, host, versions, refused),
                  *library_faults(options.built, libraries)]
    except (OSError, table.TableError) as error:
        faults = [str(error)]
    except subprocess.CalledProcessError as error:
        faults = [f"{options.built}: {error.cmd[0]}: {error.stderr.strip()}"]
    print("\n".join(faults) or f"{options.built}: {len(names)} names, nothing else", file=sys.stderr if faults else None)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
