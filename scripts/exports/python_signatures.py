"""The signatures that the Python package calls by."""

HEAD = '''\
"""The exported routines of libpolyprops. Made by scripts/generate.py from src/exports/routines.toml."""

from typing import NamedTuple


class Argument(NamedTuple):
    """One argument: type is int, real, word or context; direction is in, out, inout, work or unused.

    shape is "" for a scalar, else the extents, column-major, in terms of other arguments, `component`, `segment`
    (open extents by component index and by segment position) or `*` (unknown).
    """

    name: str
    type: str
    direction: str
    shape: str
    means: str
    unit: str


class Signature(NamedTuple):
    """One routine, its arguments in calling order."""

    family: str
    purpose: str
    formula: str
    arguments: tuple[Argument, ...]
    notes: tuple[str, ...]


SIGNATURES = {
'''


def entry(routine):
    arguments = [f"            Argument({', '.join(map(repr, (a.name, a.type, a.dir, a.shape, a.means, a.unit)))}),"
                 for a in routine.arguments]
    notes = [f"            {note!r}," for note in routine.notes]
    return [f"    {routine.name!r}: Signature(", f"        {routine.family!r},", f"        {routine.purpose!r},",
            f"        {routine.formula!r},", "        (", *arguments, "        ),", "        (", *notes, "        ),",
            "    ),"]


def signatures(routines):
    return HEAD + "\n".join(line for r in routines for line in entry(r)) + "\n}\n"
