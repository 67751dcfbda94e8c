"""The signatures that the Python package calls by, as data."""

import json


def argument(a):
    return {"name": a.name, "type": a.type, "direction": a.dir, "shape": a.shape, "means": a.means, "unit": a.unit}


def entry(routine):
    return {"family": routine.family, "purpose": routine.purpose, "formula": routine.formula,
            "arguments": [argument(a) for a in routine.arguments], "notes": list(routine.notes)}


def signatures(routines):
    lines = (f"{json.dumps(r.name)}: {json.dumps(entry(r), ensure_ascii=False)}" for r in routines)
    return "{\n" + ",\n".join(lines) + "\n}\n"
