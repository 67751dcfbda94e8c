"""The includes of the source tree follow the folder table of docs/architecture.md, without cycles."""

import re
import tempfile
import unittest
from graphlib import CycleError, TopologicalSorter
from pathlib import Path, PurePosixPath

ROOT = Path(__file__).resolve().parents[2]
PAGE = "docs/architecture.md"
SOURCE_FOLDERS = ["include", "src", "minihost", "app", "cli"]
INCLUDE_PATHS = ["", "src", "include"]
SUFFIXES = {".h", ".hpp", ".c", ".cpp"}
PUBLIC = "include/polyprops"
COMMENT_OR_STRING = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"\n]+)"|<([^>\n]+)>)', re.MULTILINE)


def includes(text):
    """Line, name and whether the name is quoted, of each include outside comments."""
    def blank(match):
        comment = match.group().startswith("/")
        return re.sub(r"[^\n]", " ", match.group()) if comment else match.group()

    code = COMMENT_OR_STRING.sub(blank, text)
    for match in INCLUDE.finditer(code):
        yield code.count("\n", 0, match.start()) + 1, match.group(1) or match.group(2), match.group(1) is not None


def cycle(graph):
    """A closed path, with its first node at the end once more."""
    try:
        TopologicalSorter(graph).prepare()
    except CycleError as error:
        return error.args[1][::-1]
    return []


class Table:
    """Rows of the folder table: the folders that each folder may use, and the line of each row."""

    def __init__(self, text, findings):
        self.lines, self.allowed = {}, {}
        uses = {}
        for number, (folders, names) in self.rows(text):
            for folder in folders:
                if folder in self.lines:
                    findings.append(f"{PAGE}:{number}: second row of {folder}")
                self.lines[folder], uses[folder] = number, names
        if not self.lines:
            findings.append(f"{PAGE}:1: no table with the columns folder, holds and may use")
        for folder, names in uses.items():
            found = {name: self.named(name, folder) for name in names}
            findings += [f"{PAGE}:{self.lines[folder]}: {folder} may use {name}, which has no row"
                         for name in names if not found[name]]
            self.allowed[folder] = sorted(set().union(*found.values()) - {folder})

    @staticmethod
    def rows(text):
        inside = False
        for number, line in enumerate(text.splitlines(), 1):
            cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
            if cells == ["folder", "holds", "may use"]:
                inside = True
            elif inside and not line.startswith("|"):
                return
            elif inside and not set(line) <= set("|-: "):
                yield number, [re.findall(r"`([^`]+?)/?`", cell) for cell in (cells[0], cells[-1])]

    def named(self, name, user):
        """Rows that a name stands for: a public header, a folder with all below it, or a neighbour by its last part."""
        if name.endswith(".h"):
            return {PUBLIC} & set(self.lines)
        rows = [{row for row in self.lines if f"{row}/".startswith(f"{full}/")}
                for full in (name, str(PurePosixPath(user).parent / name))]
        return rows[0] or rows[1]

    def row_of(self, path):
        """The nearest folder at or above a file that has a row."""
        return next((str(folder) for folder in PurePosixPath(path).parents if str(folder) in self.lines), None)


def sources(root):
    for folder in SOURCE_FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in SUFFIXES and path.is_file():
                yield path.relative_to(root).as_posix()


def resolved(root, user, name, quoted):
    """The file of the tree that an include names, if there is one."""
    folders = ([str(PurePosixPath(user).parent)] if quoted else []) + INCLUDE_PATHS
    for folder in folders:
        path = (root / folder / name).resolve()
        if path.is_file() and path.is_relative_to(root):
            return path.relative_to(root).as_posix()
    return None


def module(path):
    """A header and the source file of the same name are one module."""
    return str(PurePosixPath(path).with_suffix(""))


def check(root):
    """Findings, each with file and line."""
    root, findings = Path(root).resolve(), []
    table = Table((root / PAGE).read_text(encoding="utf-8"), findings)
    findings += [f"{PAGE}:{number}: there is no folder {folder}" for folder, number in table.lines.items()
                 if not (root / folder).is_dir()]
    if closed := cycle(table.allowed):
        findings.append(f"{PAGE}:{table.lines[closed[0]]}: folders use each other: {' -> '.join(closed)}")
    places, without_row = {}, set()
    for user in sources(root):
        row, folder = table.row_of(user), PurePosixPath(user).parent
        if row is None and folder not in without_row:
            without_row.add(folder)
            findings.append(f"{user}:1: {folder} has no row in {PAGE}")
        for number, name, quoted in includes((root / user).read_text(encoding="utf-8")):
            place = f"{user}:{number}"
            used = resolved(root, user, name, quoted)
            if used is None:
                if quoted:
                    findings.append(f"{place}: no file {name} in the tree")
                continue
            used_row = table.row_of(used)
            if row and used_row not in (row, PUBLIC, *table.allowed[row]):
                findings.append(f"{place}: {row} may not use {used_row or used}")
            if module(user) != module(used) or user == used:
                places.setdefault(module(user), {}).setdefault(module(used), place)
    if closed := cycle(places):
        steps = [f"{used} at {places[user][used]}" for user, used in zip(closed, closed[1:])]
        findings.append(f"{places[closed[0]][closed[1]]}: include cycle: {closed[0]} includes {', '.join(steps)}")
    return findings


class Tree(unittest.TestCase):
    def test_includes_follow_the_folder_table(self):
        self.assertEqual(check(ROOT), [])


class Checker(unittest.TestCase):
    SOUND = {
        PAGE: "# Page\n\n| folder | holds | may use |\n| --- | --- | --- |\n"
              "| `include/polyprops/` | headers | – |\n"
              "| `src/low/` | | `host.h` |\n"
              "| `src/high/` | | `low` |\n"
              "| `app/one`, `app/two` | | `src/low`, public headers |\n"
              "| `cli/` | | `app` |\n\nAfter the table.\n",
        "include/polyprops/host.h": "#include <stddef.h>\n",
        "src/low/a.h": "#include <polyprops/host.h>\n",
        "src/low/a.cpp": '#include "a.h"\n',
        "src/low/b.h": '// /* no comment begins here\n#include "low/a.h"\n',
        "src/high/part/c.cpp": '/*\n#include "cli/main.h"\n*/\n#include "low/b.h"\n#include "polyprops/host.h"\n',
        "app/one/d.h": "#include <vector>\n",
        "app/two/e.h": "",
        "cli/main.h": '#include "app/one/d.h"\n#include "app/two/e.h"\n',
    }

    def findings(self, changes):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in (self.SOUND | changes).items():
                path = Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return check(folder)

    def test_finds_each_planted_fault_and_no_other(self):
        def row(sound, planted):
            self.assertIn(sound, self.SOUND[PAGE])
            return {PAGE: self.SOUND[PAGE].replace(sound, planted)}

        cases = [
            ({}, []),
            ({"app/one/d.h": '\n#include "high/x.h"\n', "src/high/x.h": ""},
             ["app/one/d.h:2: app/one may not use src/high"]),
            ({"src/low/a.h": "#include <app/one/d.h>\n"}, ["src/low/a.h:1: src/low may not use app/one"]),
            # A neighbour in the same row, and a use against the direction of the table.
            ({"app/one/d.h": '  #  include "../two/e.h"\n'}, ["app/one/d.h:1: app/one may not use app/two"]),
            ({"src/low/a.cpp": '#include "high/x.h"\n', "src/high/x.h": ""},
             ["src/low/a.cpp:1: src/low may not use src/high"]),
            ({"include/polyprops/host.h": '#include "low/b.h"\n'},
             ["include/polyprops/host.h:1: include/polyprops may not use src/low",
              "include/polyprops/host.h:1: include cycle: include/polyprops/host includes src/low/b at "
              "include/polyprops/host.h:1, src/low/a at src/low/b.h:2, include/polyprops/host at src/low/a.h:1"]),
            ({"cli/main.h": '#include "low/gone.h"\n'}, ["cli/main.h:1: no file low/gone.h in the tree"]),
            ({"app/three/f.cpp": "", "app/three/g.cpp": ""},
             [f"app/three/f.cpp:1: app/three has no row in {PAGE}"]),
            ({"cli/x.cpp": '#include "src/odd.h"\n', "src/odd.h": ""},
             [f"src/odd.h:1: src has no row in {PAGE}", "cli/x.cpp:1: cli may not use src/odd.h"]),
            (row("`src/high/` |", "`src/high/`, `src/gone` |"), [f"{PAGE}:7: there is no folder src/gone"]),
            (row("| `low` |", "| `low`, `lower` |"), [f"{PAGE}:7: src/high may use lower, which has no row"]),
            (row("`cli/` |", "`cli/`, `app/one` |"), [f"{PAGE}:9: second row of app/one"]),
            (row("| `host.h` |", "| `app/one` |"),
             [f"{PAGE}:6: folders use each other: src/low -> app/one -> src/low"]),
            # Headers, modules, and a header by itself.
            ({"src/low/a.h": '#include "b.h"\n'},
             ["src/low/b.h:2: include cycle: src/low/b includes src/low/a at src/low/b.h:2, "
              "src/low/b at src/low/a.h:1"]),
            ({"src/low/a.cpp": '#include "a.h"\n#include "low/b.h"\n'},
             ["src/low/b.h:2: include cycle: src/low/b includes src/low/a at src/low/b.h:2, "
              "src/low/b at src/low/a.cpp:2"]),
            ({"app/two/e.h": '#include "e.h"\n'},
             ["app/two/e.h:1: include cycle: app/two/e includes app/two/e at app/two/e.h:1"]),
        ]
        for changes, expected in cases:
            with self.subTest(changes):
                self.assertCountEqual(self.findings(changes), expected)

    def test_does_not_pass_without_a_table(self):
        missing = f"{PAGE}:1: no table with the columns folder, holds and may use"
        self.assertIn(missing, self.findings({PAGE: "# Page\n"}))


if __name__ == "__main__":
    unittest.main()
