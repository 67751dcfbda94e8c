"""The check of tables and links in Markdown files."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

import check_markdown

TABLE = "| a | b |\n| --- | --- |\n"


class Markdown(unittest.TestCase):
    def check(self, text):
        with tempfile.TemporaryDirectory() as folder:
            page = Path(folder, "docs/page.md")
            page.parent.mkdir()
            page.write_text(text, encoding="utf-8")
            Path(folder, "docs/a b.txt").write_text("")
            Path(folder, "other.md").write_text("Title `x|y`\n===\n## The *same*: [twice](a.md)\n## The same: twice\n"
                                                "```\n# no heading\n```\n<a id=\"by-hand\"></a>\n")
            return [line.removeprefix("docs/page.md:") for line in check_markdown.findings(page, folder)]

    def test_a_row_has_the_cells_of_its_header(self):
        cases = [
            (TABLE + "| 1 | 2 |\n", []),
            ("a | b\n:-- | --:\n1 | 2\n", []),
            (TABLE + "| 1 | `x\\|y` |\n", []),
            (TABLE + "| 1 | `x|y` |\n", ["3: row of 3 cells in a table of 2"]),
            (TABLE + "| 1 |\n| 1 | 2 |\n|  | 2 | |\n", ["3: row of 1 cells in a table of 2",
                                                       "5: row of 3 cells in a table of 2"]),
            ("| a | b | c |\n| --- | --- |\n", ["1: row of 3 cells in a table of 2"]),
            (TABLE + "| 1 | 2 |\n\n| 3 | 4 |\n| 5 | 6 |\n", ["5: row outside a table"]),
            (TABLE + "| 1 | 2 |\nText joined to it.\n", ["4: row of 1 cells in a table of 2"]),
            (TABLE + "# Heading\nText | with a pipe.\n", []),
            ("| a |\n|---|\n| 1 |\n" + "\n" + TABLE + "| 1 | 2 |\n", []),
            ("```\n" + TABLE + "| 1 |\n```\n\n" + TABLE + "| 1 |\n", ["9: row of 1 cells in a table of 2"]),
            ("````\n```\n" + TABLE + "| 1 |\n````\n", []),
        ]
        for text, expected in cases:
            with self.subTest(text):
                self.assertEqual(self.check(text), expected)

    def test_a_link_leads_to_a_file_and_an_anchor_of_the_tree(self):
        cases = [
            ("[a](../other.md) [b](<a b.txt>) [c](a%20b.txt 'title') [d](../docs) [e](https://x.org/y#z)", []),
            ("# Here, and_there\n[a](#here-and_there)", []),
            ("[a](../other.md#title-xy) [b](../other.md#the-same-twice-1) [c](../other.md#by-hand)", []),
            ("[a](../other.md#no-heading)", ["1: ../other.md#no-heading: no such anchor"]),
            ("[a](../other.md#the-same-twice-2)", ["1: ../other.md#the-same-twice-2: no such anchor"]),
            ("[a](#here)", ["1: #here: no such anchor"]),
            ("Text\n\n[two\nlines](gone.md)", ["4: gone.md: no such file"]),
            ("[![image](gone.png)](../other.md)", ["1: gone.png: no such file"]),
            ("[a][b]\n\n[b]: gone.md", ["3: gone.md: no such file"]),
            ('<img alt="x" src="gone.png">', ["1: gone.png: no such file"]),
            ("[a](/etc/hosts) [b](file:///etc/hosts) [c](C:\\x)", [
                "1: /etc/hosts: absolute path", "1: C:\\x: absolute path", "1: file:///etc/hosts: absolute path"]),
            ("[a](../../gone.md)", ["1: ../../gone.md: outside the tree"]),
            ("`[a](gone.md)` and ``[`](gone.md)``\n\n~~~\n[a](gone.md)\n~~~\n", []),
            ("An open ` and [a](gone.md)\n\nanother ` here", ["1: gone.md: no such file"]),
        ]
        for text, expected in cases:
            with self.subTest(text):
                self.assertEqual(self.check(text), expected)


if __name__ == "__main__":
    unittest.main()
