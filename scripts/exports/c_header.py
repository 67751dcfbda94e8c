"""The C and C++ header, and the linker's export map."""

import textwrap

from .table import FAMILIES, by_family

C_TYPES = {"int": "int64_t", "real": "double", "word": "void", "context": "void"}
WIDTH = 110

HEADER = """\
// clang-format off
// The exported routines of libpolyprops. Made by scripts/generate.py from src/exports/routines.toml.
//
// Every argument is an address. Integers are 64-bit, reals are doubles; arrays and component indices count
// from 1, matrices are column-major with the leading dimension first. Argument lines read
//   NAME(shape)  direction  meaning [unit]
// with the shapes "component" (by component index 1..NC), "segment" (by position in the host's segment list)
// and "*" (as far as the routine's rule reaches). Work arguments are undefined afterwards; unused ones are
// never read and may be null. No routine reports an error unless its notes say so: values that cannot be used
// fall back as the notes describe. A parameter or a molecular weight without further words is the
// pure-component parameter of the host.
//
// The loading process defines the names of polyprops/host.h.
#pragma once

#include <stdint.h>

#if defined(__GNUC__)
#define POLYPROPS_API __attribute__((visibility("default")))
#else
#define POLYPROPS_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

"""

FOOTER = """\
#ifdef __cplusplus
}
#endif
"""


def parameter(argument):
    constant = "const " if argument.is_read_only else ""
    return f"{constant}{C_TYPES[argument.type]}* {argument.name.lower()}"


def wrapped(text, first, rest):
    return textwrap.wrap(text, WIDTH, initial_indent=first, subsequent_indent=rest, break_on_hyphens=False)


def argument_lines(routine):
    labels = [a.name + (f"({a.shape})" if a.shape else "") for a in routine.arguments]
    width = max(map(len, labels))
    lines = []
    for label, a in zip(labels, routine.arguments):
        unit = f" [{a.unit}]" if a.unit else ""
        first = f"//   {label:<{width}}  {a.dir:<6}  "
        lines += wrapped(a.means + unit, first, "//" + " " * (len(first) - 2))
    return lines


def doc_comment(routine):
    purpose = wrapped(routine.purpose, "// ", "// ")
    formula = [line for part in routine.formula.splitlines() for line in wrapped(part, "//   ", "//     ")]
    notes = [line for note in routine.notes for line in wrapped(note, "// - ", "//   ")]
    return [*purpose, "//", *formula, "//", *argument_lines(routine), *(["//"] if notes else []), *notes]


def declaration(routine):
    opening = f"POLYPROPS_API void {routine.name}("
    text = opening + ", ".join(map(parameter, routine.arguments)) + ");"
    unbroken = text.replace(", ", "\n").replace(" ", "\0").replace("\n", ", ")  # only commas may end a line
    return [line.replace("\0", " ") for line in wrapped(unbroken, "", " " * len(opening))]


def header(routines):
    lines = []
    for family, members in by_family(routines):
        lines += [f"// ---- {FAMILIES[family].lower()} ----", ""]
        for routine in members:
            lines += [*doc_comment(routine), *declaration(routine), ""]
    return HEADER + "\n".join(lines) + "\n" + FOOTER


def export_map(routines):
    names = "".join(f"        {name};\n" for name in sorted(r.name for r in routines))
    return ("/* Made by scripts/generate.py from src/exports/routines.toml; do not edit. */\n"
            "{\n    global:\n" + names + "    local:\n        *;\n};\n")
