"""The reference page of the exported routines."""

from .table import FAMILIES, by_family

HEAD = """\
<!-- Made by scripts/generate.py from src/exports/routines.toml; do not edit. -->
# Exported routines

Every argument is an address. Integers are 64-bit, reals are doubles; arrays and component indices count from 1,
matrices are column-major with the leading dimension first. Shapes are given in terms of other arguments; `component`
means by component index 1..NC, `segment` by position in the host's segment list, `*` as far as the routine's rule
reaches. An argument marked `work` is undefined afterwards; an `unused` one is never read and may be null.

No routine reports an error unless it says so: values that cannot be used fall back as its notes tell. A parameter or a
molecular weight without further words is the pure-component parameter of the host.

Values that are not numbers raise no floating-point exception, neither in attributes, parameters and catalyst values nor in
arguments; counts below 1 count nothing. A host may trap division by zero, invalid operations and overflow.

Threads. The library keeps nothing between calls and has no locks. Routines may run in several threads at the same time,
except `POLY_POLSEM`, `POLY_CATSCALESEM`, `POLY_CSDPLOT` and `POLY_WRTPOLSUM`, which write to the host: while one of these
runs, no other routine may run. The host must see to it that

- calls that run at the same time have outputs and work arrays of their own;
- its services that find blocks, classify components and find attributes can be called by several threads;
- nothing changes its records or its store, moves a block or selects another stream while a routine runs.

"""


def cell(text):
    return text.replace("|", "\\|")


def anchor(title):
    return title.lower().replace(" ", "-")


def index(groups):
    lines = []
    for family, members in groups:
        lines += [f"- [{FAMILIES[family]}](#{anchor(FAMILIES[family])}): "
                  + ", ".join(f"[`{r.name}`](#{r.name.lower()})" for r in members)]
    return [*lines, ""]


def argument_table(routine):
    rows = [(f"`{a.name}`", a.type, a.dir, f"`{a.shape}`" if a.shape else "scalar", cell(a.means), a.unit)
            for a in routine.arguments]
    return ["| argument | type | direction | shape | meaning | unit |", "|---|---|---|---|---|---|",
            *("| " + " | ".join(row).rstrip() + " |" for row in rows), ""]


def section(routine):
    return [f"### {routine.name}", "", routine.purpose, "", "```text", *routine.formula.splitlines(), "```", "",
            *argument_table(routine), *(f"- {note}" for note in routine.notes), ""]


def page(routines):
    groups = by_family(routines)
    lines = index(groups)
    for family, members in groups:
        lines += [f"## {FAMILIES[family]}", ""]
        for routine in members:
            lines += section(routine)
    return HEAD + "\n".join(lines).rstrip() + "\n"
