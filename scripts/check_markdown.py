#!/usr/bin/env python3
"""Checks the tables and links of Markdown files.

    scripts/check_markdown.py FILE…

Each row of a table has as many cells as its header. A link leads to a file of the tree, by a relative path, and to an
anchor that exists. Every finding names file and line; with one the exit status is 1.
"""

import argparse
import re
import sys
from pathlib import Path
from urllib.parse import unquote

ROOT = Path(__file__).resolve().parent.parent
FENCE = re.compile(r"\s*(?:>\s*)*(`{3,}|~{3,})")
CODE_SPAN = re.compile(r"(?<![`\\])(`+)(?!`)((?:(?!\n[ \t]*\n).)+?)(?<!`)\1(?!`)", re.DOTALL)
DELIMITER = re.compile(r"\s*\|?\s*:?-+:?\s*(?:\|\s*:?-+:?\s*)*\|?\s*$")
OTHER_BLOCK = re.compile(r"\s{0,3}(?:#{1,6}\s|>|[-*+]\s|\d+[.)]\s|(?:`{3,}|~{3,}))")
HEADING = re.compile(r"\s{0,3}#{1,6}\s+(.*?)(?:\s+#+)?\s*$")
UNDERLINE = re.compile(r"\s{0,3}(?:=+|-+)\s*$")
LINK = re.compile(r"\]\(\s*(?:<([^>\n]*)>|([^)\s]*))[^)]*\)"
                  r"|^ {0,3}\[[^\]\n]+\]:\s*(\S+)"
                  r"|<(?:a|img)\b[^>]*?\b(?:href|src)\s*=\s*[\"']([^\"']*)", re.MULTILINE)
TARGET_TAG = re.compile(r"<[a-z]+\b[^>]*?\b(?:id|name)\s*=\s*[\"']([^\"']+)")
SCHEME = re.compile(r"[A-Za-z][A-Za-z0-9+.-]*:")


def without_fences(text):
    """The text with the lines of fenced code blocks empty."""
    lines, fence = [], None
    for line in text.split("\n"):
        mark = FENCE.match(line)
        if fence:
            closes = mark and mark[1].startswith(fence) and not line[mark.end():].strip()
            fence = None if closes else fence
            line = ""
        elif mark:
            fence, line = mark[1], ""
        lines.append(line)
    return "\n".join(lines)


def without_code_spans(text):
    return CODE_SPAN.sub(lambda match: re.sub(r"[^\n]", " ", match[0]), text)


def cell_count(row):
    """Cells of a row; a bare pipe ends a cell even inside a code span."""
    row = re.sub(r"\\.", "  ", row.strip())
    return row.removeprefix("|").removesuffix("|").count("|") + 1


def table_findings(text):
    """Line and message of each row that does not fit its table."""
    lines = without_fences(text).split("\n")
    expected, outside = None, False
    for number, (line, following) in enumerate(zip(lines, lines[1:] + [""]), 1):
        if not line.strip() or OTHER_BLOCK.match(line):
            expected, outside = None, False
            continue
        if not expected and "|" in line and "|" in following and DELIMITER.match(following):
            expected = cell_count(following)
        if expected and cell_count(line) != expected:
            yield number, f"row of {cell_count(line)} cells in a table of {expected}"
        elif not expected and not outside and line.lstrip().startswith("|"):
            outside = True
            yield number, "row outside a table"


def anchors(text):
    """Anchors of the headings and of HTML elements with a name."""
    lines = without_fences(text).split("\n")
    found, counts = set(TARGET_TAG.findall(without_code_spans("\n".join(lines)))), {}
    for line, following in zip(lines, lines[1:] + [""]):
        heading = HEADING.match(line)
        title = heading[1] if heading else line if line.strip() and UNDERLINE.match(following) else None
        if title is None:
            continue
        title = re.sub(r"!?\[([^\]]*)\]\([^)]*\)", r"\1", title).strip().lower()
        slug = re.sub(r"[^\w\- ]", "", title).replace(" ", "-")
        number = counts.get(slug, 0)
        counts[slug] = number + 1
        found.add(f"{slug}-{number}" if number else slug)
    return found


def link_fault(path, target, root):
    """The message about a link of a file, or None."""
    if re.match(r"/|[A-Za-z]:[\\/]|file:", target):
        return f"{target}: absolute path"
    if SCHEME.match(target):
        return None
    name, _, anchor = target.partition("#")
    file = (path.parent / unquote(name)).resolve() if name else path
    if not file.is_relative_to(root):
        return f"{target}: outside the tree"
    if not file.exists():
        return f"{target}: no such file"
    if anchor and file.suffix == ".md" and unquote(anchor) not in anchors(file.read_text(encoding="utf-8")):
        return f"{target}: no such anchor"
    return None


def link_findings(path, text, root):
    code = without_code_spans(without_fences(text))
    for match in LINK.finditer(code):
        target = next((group for group in match.groups() if group is not None), "")
        if fault := link_fault(path, target, root):
            yield code.count("\n", 0, match.start()) + 1, fault


def findings(path, root=ROOT):
    """Findings in a file, in the order of its lines."""
    path, root = Path(path).resolve(), Path(root).resolve()
    text = path.read_text(encoding="utf-8")
    found = sorted([*table_findings(text), *link_findings(path, text, root)])
    return [f"{path.relative_to(root)}:{number}: {message}" for number, message in found]


def main(arguments=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("files", nargs="+", type=Path, metavar="FILE")
    found = [line for file in parser.parse_args(arguments).files for line in findings(file)]
    for line in found:
        print(line, file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
