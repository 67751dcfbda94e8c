"""The table of the exported routines, what is made from it, and the check of the built file."""

import contextlib
import io
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts"))

import check_exports
import generate
from exports import fortran, table

ROW = """
[[routine]]
name = "POLY_PACK"
family = "basis"
purpose = "Packs listed values."
formula = "V(i) = X(IDX(i))"
arguments = [
  { name = "UNUSED1", type = "int", dir = "unused", shape = "", means = "never read" },
  { name = "X", type = "real", dir = "in", shape = "component", means = "values", unit = "1" },
  { name = "N", type = "int", dir = "in", shape = "", means = "number of entries" },
  { name = "IDX", type = "int", dir = "in", shape = "N", means = "component indices" },
  { name = "NOUT", type = "int", dir = "out", shape = "", means = "number of values" },
  { name = "V", type = "real", dir = "out", shape = "NOUT", means = "packed values", unit = "1" },
  { name = "SCM", type = "real", dir = "work", shape = "2*N,*", means = "work space", unit = "1" },
  { name = "W", type = "word", dir = "out", shape = "N", means = "values of either kind" },
  { name = "CTX", type = "context", dir = "in", shape = "", means = "passed through" },
]
notes = ["N < 1: nothing is written."]
"""


def capture(function, *arguments):
    """Exit status and everything that was printed."""
    text = io.StringIO()
    with contextlib.redirect_stdout(text), contextlib.redirect_stderr(text):
        status = function(*arguments)
    return status, text.getvalue()


class Table(unittest.TestCase):
    def test_all_faults_name_file_routine_key_seen_and_expected(self):
        cases = [
            ('name = "POLY_PACK"', 'name = "poly_pack"', "t.toml: poly_pack: name: 'poly_pack'; expected POLY_"),
            ('family = "basis"', 'family = "bases"', "POLY_PACK: family: 'bases'; expected one of chain, basis"),
            ('purpose = "Packs listed values."', "", "POLY_PACK: purpose: missing; expected a text"),
            ("formula = ", "formla = 1\nformula = ", "POLY_PACK: formla: unknown key; expected one of name"),
            ('notes = ["N', 'notes = ["", "N', "POLY_PACK: notes: ''; expected texts"),
            ("N < 1:", "N < 1 */:", "POLY_PACK: texts: '*/'; expected"),
            ('type = "word"', 'type = "byte"', "argument 8 (W): type: 'byte'; expected one of int, real"),
            ('dir = "unused"', 'dir = "none"', "argument 1 (UNUSED1): dir: 'none'; expected one of in, out, inout, "
             "work, unused\nt.toml: POLY_PACK, argument 1 (UNUSED1): dir: 'none' for UNUSED1; expected"),
            ('"packed values", unit = "1"', '"packed values"', "argument 6 (V): unit: missing; expected the unit"),
            ('shape = "2*N,*"', 'shape = "*,N"', "SCM: shape: '*'; expected an open extent only as the last one"),
            ('shape = "2*N,*"', 'shape = "LD,*"', "SCM: shape: 'LD'; expected LD to be an integer scalar"),
            ('shape = "2*N,*"', 'shape = "2N,*"', "SCM: shape: '2N'; expected integer arguments"),
            ('name = "V"', 'name = "X"', "POLY_PACK: arguments: X stands twice; expected each name once"),
            ('name = "V"', 'name = "IS"', "argument 6 (IS): name: 'IS'; expected upper-case letters"),
            (ROW, ROW + ROW, "POLY_PACK: name: stands twice; expected each routine once"),
            (ROW, "", "table: routine: none; expected at least one"),
            ("arguments = [", "arguments = ", "t.toml: not TOML:"),
        ]
        for sound, broken, expected in cases:
            with self.subTest(expected):
                with self.assertRaises(table.TableError) as caught:
                    table.parse(ROW.replace(sound, broken), "t.toml")
                self.assertIn(expected, str(caught.exception))


class Products(unittest.TestCase):
    def test_fortran_bounds_never_rest_on_a_result(self):
        module = fortran.module(table.parse(ROW, "t.toml"))
        for declaration in ["intent(in) :: idx(n)", "intent(inout) :: v(*)", "intent(inout) :: scm(2*n, *)",
                            "intent(in) :: x(*)", "type(*), intent(in) :: ctx(*)"]:
            self.assertIn(declaration, module)

    def test_check_lists_the_stale_files_and_writes_nothing(self):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            (root / "src/exports").mkdir(parents=True)
            (root / "src/exports/routines.toml").write_text(ROW)
            self.assertEqual(capture(generate.main, ["--root", folder])[0], 0)
            self.assertEqual(capture(generate.main, ["--root", folder, "--check"]), (0, ""))
            stale = root / "src/exports/polyprops.map"
            sound = stale.read_text()
            stale.write_text(sound + "stale")
            status, text = capture(generate.main, ["--root", folder, "--check"])
            self.assertEqual((status, stale.read_text()), (1, sound + "stale"))
            line = sound.count("\n") + 1
            self.assertIn(f"src/exports/polyprops.map:{line}: does not follow", text)
            self.assertNotIn("polyprops.h", text)


@unittest.skipUnless(shutil.which("gcc"), "needs gcc")
class BuiltFile(unittest.TestCase):
    HOST = "/* ST_OTHER( */ extern long ST_WORDS[]; long CC_INDEX(const long* list);"
    SOUND = HOST + "void POLY_PACK(long* p) { *p = ST_WORDS[0] + CC_INDEX(p); }"

    def check(self, code, *flags, case=None):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            (root / "a.c").write_text(code)
            (root / "host.h").write_text(self.HOST)
            (root / "t.toml").write_text(ROW)
            (root / "case.h").write_text(case or "")
            subprocess.run(["gcc", "-shared", "-fPIC", "-o", root / "a.so", root / "a.c", *flags], check=True)
            return capture(check_exports.main, [str(root / "a.so"), "--table", str(root / "t.toml"), "--host-header",
                                                str(root / "host.h"),
                                                *(["--case-header", str(root / "case.h")] if case else [])])

    def check_all(self, cases, case=None):
        for code, flags, expected in cases:
            with self.subTest(expected):
                status, text = self.check(code, *flags, case=case)
                self.assertEqual(status, 1 if expected else 0, text)
                self.assertIn(expected, text)

    def test_accepts_the_table_and_nothing_else(self):
        self.check_all([
            (self.SOUND, (), ""),
            (self.SOUND + "void helper(void) {}", (), "helper is exported but is not declared"),
            (self.SOUND.replace("POLY_PACK", "POLY_PAK"), (), "POLY_PACK is declared but is not exported"),
            (self.SOUND + "void ST_OTHER(void); static void f(void) { ST_OTHER(); } void* g = f;", (),
             "needs ST_OTHER, which neither"),
            (self.SOUND + "void abort(void); static void f(void) { abort(); } void* const g = f;",
             (), "needs abort, which a library must not call"),
            (self.SOUND, ("-Wl,--no-as-needed", "-lgcc_s"), "needs the library libgcc_s.so.1"),
        ])

    def test_a_case_layer_adds_its_functions_and_contains_its_host(self):
        header = "int polyprops_add(int a);  // unlike polyprops_gone(a)\nconst char*\n    polyprops_name (void);"
        routine = "void POLY_PACK(long* p) {}"
        add = "int polyprops_add(int a) { return a; }"
        functions = add + "const char* polyprops_name(void) { return 0; }"
        unwinding = "int _Unwind_Backtrace(void*, void*); int polyprops_add(int a) { return _Unwind_Backtrace(0, 0) + a; }"
        self.check_all([
            (routine + functions, (), ""),
            (routine + functions.replace(add, unwinding), ("-lgcc_s",), ""),
            (routine + add, (), "polyprops_name is declared but is not exported"),
            (self.SOUND + functions, (), "needs ST_WORDS, which neither"),
            (routine + functions, ("-Wl,--no-as-needed", "-latomic"), "needs the library libatomic.so.1"),
        ], case=header)


if __name__ == "__main__":
    unittest.main()
