"""The Python package calls the built library: python_test.py HOST.so LIBRARY.so PACKAGE_FOLDER"""

import ctypes
import sys
import unittest
from array import array

host_file, library_file, package_folder = sys.argv[1:4]
sys.path.insert(0, package_folder)
import polyprops  # noqa: E402

ctypes.CDLL(host_file, mode=ctypes.RTLD_GLOBAL)
routines = polyprops.load(library_file)


class Python(unittest.TestCase):
    def test_calls_by_address(self):
        grid, weights = array("d", [-1.0] * 5), array("d", [-1.0] * 2)
        routines.POLY_CSDINI(5, 1, grid, 1e5, weights, array("d", [1.0] * 5), array("d", [1.0] * 5))
        self.assertEqual(list(grid), [10, 100, 1000, 10000, 100000])
        self.assertEqual(list(weights), [0, 0])

    def test_scalar_results_go_to_ctypes_objects(self):
        value, derivative = ctypes.c_double(-1), ctypes.c_double(-1)
        routines.POLY_TBPARA(300.0, 1.0, 2.0, 3.0, 4.0, 5.0, 300, 3, value, derivative)
        self.assertEqual((value.value, derivative.value), (1 + 2 + 4 + 5, (4 - 2 + 3 + 2 * 5) / 300))

    def test_refuses_what_has_no_address(self):
        for arguments, message in [((1.5, 1, None, None), "POLY_SETH2O takes 3 arguments, not 4"),
                                   ((1.5, array("q", [1]), ctypes.c_int64()), r"POLY_SETH2O: N \(int, in\).*1.5"),
                                   ((1, array("i", [1]), ctypes.c_int64()), r"POLY_SETH2O: IDX.*8-byte items"),
                                   ((1, array("q", [1]), 0), r"POLY_SETH2O: JW \(int, out\)")]:
            with self.subTest(message), self.assertRaisesRegex(TypeError, message):
                routines.POLY_SETH2O(*arguments)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
