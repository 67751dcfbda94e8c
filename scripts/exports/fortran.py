"""The Fortran module: one bind(c) interface per routine."""

from .table import FAMILIES, OPEN_EXTENTS, by_family, names_of

WIDTH = 110
TYPES = {"int": "integer(c_int64_t)", "real": "real(c_double)", "word": "type(*)", "context": "type(*)"}
READ_ONLY, WRITTEN = "in", "inout"  # never intent(out): what a routine leaves untouched must keep its value

HEAD = """\
! The exported routines of libpolyprops. Made by scripts/generate.py from src/exports/routines.toml.
!
! Arrays whose extent the routine does not say are assumed-size. Results are intent(inout), since elements that a
! routine leaves untouched keep their values. docs/routines.md tells what each routine computes.
module polyprops
    implicit none

    interface
"""


def extent(text, routine):
    """The extent as a Fortran bound; open ones and those that the routine itself computes become `*`."""
    computed = any(routine.argument(name).dir == "out" for name in names_of(text))
    return "*" if text in OPEN_EXTENTS or computed else text.lower()


def declaration(argument, routine):
    bounds = ", ".join(extent(e, routine) for e in argument.extents)
    if argument.type in ("word", "context"):
        bounds = "*"  # the only bound that type(*) may have
    return (f"{TYPES[argument.type]}, intent({READ_ONLY if argument.is_read_only else WRITTEN}) :: {argument.name.lower()}"
            + (f"({bounds})" if bounds else ""))


def opening(routine):
    """The subroutine statement, continued between arguments where it is too long."""
    lines, line = [], f"        subroutine {routine.name.lower()}("
    for argument, ending in zip(routine.arguments, [", "] * (len(routine.arguments) - 1) + [") &"]):
        word = argument.name.lower() + ending
        if len(line) + len(word) + 1 > WIDTH:
            lines, line = [*lines, line + "&"], " " * 16
        line += word
    return [*lines, line, f'                bind(c, name="{routine.name}")']


def interface(routine):
    scalars_first = sorted(routine.arguments, key=lambda a: bool(a.shape))  # bounds must be declared before use
    used = sorted({TYPES[a.type].split("(")[1].rstrip(")") for a in routine.arguments} - {"*"})
    return [f"        ! {routine.purpose}", *opening(routine),
            f"            use, intrinsic :: iso_c_binding, only: {', '.join(used)}",
            *(f"            {declaration(a, routine)}" for a in scalars_first),
            f"        end subroutine {routine.name.lower()}", ""]


def module(routines):
    lines = []
    for family, members in by_family(routines):
        lines += [f"        ! ---- {FAMILIES[family].lower()}", ""]
        for routine in members:
            lines += interface(routine)
    return HEAD + "\n".join(lines) + "    end interface\nend module polyprops\n"
