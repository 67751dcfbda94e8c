"""Reads and checks the table of the exported routines.

Every fault of a table is reported, as `file: routine: key: what was seen; what was expected`.
"""

import keyword
import re
import tomllib
from dataclasses import dataclass
from pathlib import Path

FAMILIES = {
    "chain": "Chain averages",
    "basis": "Composition bases",
    "mixture": "Mixture properties",
    "interaction": "Binary interaction parameters",
    "input": "Input semantics",
    "distribution": "Chain-length distributions",
    "report": "Reports",
}
TYPES = ("int", "real", "word", "context")
DIRECTIONS = ("in", "out", "inout", "work", "unused")
OPEN_EXTENTS = ("component", "segment", "*")  # extents that no argument gives; only a last one may be open

ROUTINE_KEYS = {"name": str, "family": str, "purpose": str, "formula": str, "arguments": list, "notes": list}
ARGUMENT_KEYS = {"name": str, "type": str, "dir": str, "shape": str, "means": str}
NAME = re.compile(r"[A-Z][A-Z0-9]*")
FACTOR = re.compile(r"[A-Z][A-Z0-9]*|[0-9]+")


class TableError(Exception):
    """A table with faults; `faults` lists them all."""

    def __init__(self, faults):
        super().__init__("\n".join(faults))
        self.faults = faults


@dataclass(frozen=True)
class Argument:
    name: str
    type: str
    dir: str
    shape: str
    means: str
    unit: str = ""

    @property
    def extents(self):
        """The extents of an array, leading dimension first; empty for a scalar."""
        return [extent.strip() for extent in self.shape.split(",")] if self.shape else []

    @property
    def is_read_only(self):
        return self.dir in ("in", "unused")


@dataclass(frozen=True)
class Routine:
    name: str
    family: str
    purpose: str
    formula: str
    arguments: tuple
    notes: tuple

    def argument(self, name):
        return next((a for a in self.arguments if a.name == name), None)


def names_of(extent):
    """The arguments that an extent speaks of: LD and N in `LD*N`."""
    return [f for f in FACTOR.findall(extent) if NAME.fullmatch(f)] if extent not in OPEN_EXTENTS else []


class _Checker:
    def __init__(self, path):
        self.path, self.faults = path, []

    def fault(self, where, key, seen, expected):
        self.faults.append(f"{self.path}: {where}: {key}: {seen}; expected {expected}")

    def keys(self, where, row, required, optional=()):
        """Whether all required keys stand in the row with their types."""
        before = len(self.faults)
        for key, kind in required.items():
            if key not in row:
                self.fault(where, key, "missing", _kind_name(kind))
            elif not isinstance(row[key], kind):
                self.fault(where, key, repr(row[key]), _kind_name(kind))
        for key in row.keys() - required.keys() - set(optional):
            self.fault(where, key, "unknown key", "one of " + ", ".join([*required, *optional]))
        return len(self.faults) == before

    def one_of(self, where, key, value, allowed):
        if value not in allowed:
            self.fault(where, key, repr(value), "one of " + ", ".join(allowed))

    def routine(self, where, row):
        if not self.keys(where, row, ROUTINE_KEYS):
            return None
        if not re.fullmatch(r"POLY_[A-Z0-9]+", row["name"]):
            self.fault(where, "name", repr(row["name"]), "POLY_ and upper-case letters or digits")
        self.one_of(where, "family", row["family"], FAMILIES)
        for key in ("purpose", "formula"):
            if not row[key].strip():
                self.fault(where, key, "empty", "a text")
        for note in row["notes"]:
            if not isinstance(note, str) or not note.strip():
                self.fault(where, "notes", repr(note), "texts")
        if "*/" in repr(row):
            self.fault(where, "texts", "'*/'", "texts that can stand in a C comment")
        arguments = [self.argument(f"{where}, argument {k}", a) for k, a in enumerate(row["arguments"], 1)]
        if not arguments:
            self.fault(where, "arguments", "none", "at least one")
        if None in arguments:
            return None
        self.shapes(where, arguments)
        return Routine(row["name"], row["family"], row["purpose"], row["formula"].strip(), tuple(arguments),
                       tuple(row["notes"]))

    def argument(self, where, row):
        if not isinstance(row, dict):
            self.fault(where, "argument", repr(row), "a table of name, type, dir, shape, means")
            return None
        if not self.keys(where, row, ARGUMENT_KEYS, optional=("unit",)):
            return None
        argument = Argument(**row)
        where = f"{where} ({argument.name})"
        if not NAME.fullmatch(argument.name) or keyword.iskeyword(argument.name.lower()):
            self.fault(where, "name", repr(argument.name), "upper-case letters and digits, no keyword")
        self.one_of(where, "type", argument.type, TYPES)
        self.one_of(where, "dir", argument.dir, DIRECTIONS)
        self.direction_of_name(where, argument)
        if argument.type == "real" and argument.dir != "unused" and not argument.unit:
            self.fault(where, "unit", "missing", 'the unit of a real, "1" for a ratio or a count')
        if not isinstance(argument.unit, str):
            self.fault(where, "unit", repr(argument.unit), "a text")
        return argument

    def direction_of_name(self, where, argument):
        if argument.name.startswith("UNUSED") != (argument.dir == "unused"):
            self.fault(where, "dir", f"{argument.dir!r} for {argument.name}", '"unused" for UNUSED1, UNUSED2 … alone')
        if argument.type == "context" and not argument.is_read_only:
            self.fault(where, "dir", repr(argument.dir), '"in" for a context')

    def shapes(self, where, arguments):
        by_name = {}
        for argument in arguments:
            if argument.name in by_name:
                self.fault(where, "arguments", f"{argument.name} stands twice", "each name once")
            by_name[argument.name] = argument
        for argument in arguments:
            for position, extent in enumerate(argument.extents, 1):
                last = position == len(argument.extents)
                self.extent(f"{where}, {argument.name}", extent, by_name, last)

    def extent(self, where, extent, by_name, last):
        if extent in OPEN_EXTENTS:
            if not last:
                self.fault(where, "shape", repr(extent), "an open extent only as the last one")
            return
        if not re.fullmatch(rf"({FACTOR.pattern})(\s*[-+*]\s*({FACTOR.pattern}))*", extent):
            self.fault(where, "shape", repr(extent), "integer arguments, numbers, + - *, or " + ", ".join(OPEN_EXTENTS))
            return
        for name in names_of(extent):
            given = by_name.get(name)
            if given is None or given.type != "int" or given.shape or given.dir in ("work", "unused"):
                self.fault(where, "shape", repr(extent), f"{name} to be an integer scalar of the same routine")


def _kind_name(kind):
    return {str: "a text", list: "a list"}[kind]


def parse(text, path):
    """The routines of a table's text. Raises TableError with every fault."""
    check = _Checker(path)
    try:
        rows = tomllib.loads(text).get("routine", [])
    except tomllib.TOMLDecodeError as error:
        raise TableError([f"{path}: not TOML: {error}"]) from error
    routines, seen = [], set()
    for number, row in enumerate(rows, 1):
        where = row.get("name", f"routine {number}")
        if where in seen:
            check.fault(where, "name", "stands twice", "each routine once")
        seen.add(where)
        routines.append(check.routine(where, row))
    if not rows:
        check.fault("table", "routine", "none", "at least one [[routine]]")
    if check.faults:
        raise TableError(check.faults)
    return routines


def read(path):
    return parse(Path(path).read_text(encoding="utf-8"), path)


def by_family(routines):
    """Pairs of family key and its routines, families in their own order, routines in the table's."""
    groups = [(family, [r for r in routines if r.family == family]) for family in FAMILIES]
    return [(family, members) for family, members in groups if members]
