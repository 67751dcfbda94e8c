"""Calls the routines of libpolyprops from a process that is, or has loaded, a host.

The library leaves the host's records and services undefined, so a host has to be loaded first, with its symbols
global:

    ctypes.CDLL("libmyhost.so", mode=ctypes.RTLD_GLOBAL)
    routines = polyprops.load("libpolyprops.so")
    weight = ctypes.c_double()
    routines.POLY_GETMWN(1, 1, 7, weight)      # selector, one component, its index

Integers and reals stand for themselves where a routine reads them. What it writes is a ctypes object or a writable
buffer of 8-byte items, such as an array.array or a numpy array in column-major order.
"""

import ctypes
import json
from pathlib import Path
from types import SimpleNamespace

#: Family, purpose, formula, arguments and notes of each routine, by name.
SIGNATURES = json.loads((Path(__file__).parent / "signatures.json").read_text(encoding="utf-8"))

_SCALARS = {"int": (int, ctypes.c_int64), "real": ((int, float), ctypes.c_double)}


def _address(routine, argument, value):
    """The address of a value, which it keeps alive. TypeError names routine, argument and what it takes."""
    if value is None and argument["direction"] == "unused":
        return None
    python_types, scalar = _SCALARS.get(argument["type"], ((), None))
    if argument["direction"] == "in" and isinstance(value, python_types):
        return ctypes.byref(scalar(value))
    if isinstance(value, (ctypes.Array, ctypes.c_int64, ctypes.c_double)):
        return ctypes.byref(value)
    try:
        view = memoryview(value)
        if view.itemsize == 8:
            return ctypes.byref((ctypes.c_char * view.nbytes).from_buffer(view))
    except TypeError:
        pass
    raise TypeError(f"{routine}: {argument['name']} ({argument['type']}, {argument['direction']}) takes a writable "
                    f"buffer of 8-byte items, not {value!r}")


def _routine(function, name):
    arguments = SIGNATURES[name]["arguments"]
    function.restype = None

    def call(*values):
        if len(values) != len(arguments):
            raise TypeError(f"{name} takes {len(arguments)} arguments, not {len(values)}")
        function(*(_address(name, argument, value) for argument, value in zip(arguments, values)))

    call.__name__ = name
    call.__doc__ = f"{SIGNATURES[name]['purpose']}\n\nArguments: {', '.join(a['name'] for a in arguments)}"
    return call


def load(path):
    """The routines of the library at a path, as attributes. OSError without a host that defines its symbols."""
    library = ctypes.CDLL(str(path))
    return SimpleNamespace(**{name: _routine(getattr(library, name), name) for name in SIGNATURES})
