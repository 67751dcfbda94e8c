"""Every call that changes files, and a sample of those that allocate, fails or meets a signal in `run --out` and `sweep`.

    failing_calls_test.py POLYPROPS FAILING_CALLS.so

Readers then find the old set of files or the new one; a sweep that is started again makes the same table; nothing
temporary is left once the command has run again.
"""

import errno
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor
from contextlib import contextmanager
from pathlib import Path

from files_test import CASE

PROGRAM, FAILING_CALLS = sys.argv[1:3]
SAMPLE = 40
INTERRUPTED = 130


def contents(folder):
    return {path.relative_to(folder).as_posix(): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def temporary(folder):
    return [str(path) for path in folder.rglob(".polyprops.*")]


def program(arguments, folder, failure=None, count=None):
    """The outcome, with the call (which, at, how) failing."""
    environment = dict(os.environ)
    if failure:
        which, at, how = failure
        environment |= {"LD_PRELOAD": FAILING_CALLS, "FAIL_WHICH": which, "FAIL_AT": str(at), "FAIL_HOW": str(how)}
    if count:
        environment["FAIL_COUNT"] = str(count)
    return subprocess.run([PROGRAM, *arguments], cwd=folder, env=environment, capture_output=True, text=True, timeout=60,
                          check=False)


@contextmanager
def copied(template):
    with tempfile.TemporaryDirectory() as scratch:
        yield Path(shutil.copytree(template, Path(scratch, "work")))


def failures(arguments, template):
    """All calls of files, a sample of those of memory: which, at, and how as an error or a negative signal."""
    for which, hows in (("files", (errno.ENOSPC, -signal.SIGKILL, -signal.SIGTERM)),
                        ("memory", (errno.ENOMEM, -signal.SIGKILL))):
        with copied(template) as folder, tempfile.NamedTemporaryFile() as count:
            program(arguments, folder, (which, 0, hows[0]), count.name)
            calls = int(count.read())
        for at in range(1, calls + 1, 1 if which == "files" else max(1, calls // SAMPLE)):
            yield from ((which, at, how) for how in hows)


class FailingCalls(unittest.TestCase):
    def check_all(self, arguments, template, check):
        """Runs `check(folder, outcome)` on a copy of the template after each failure."""
        def one(failure):
            with copied(template) as folder:
                outcome = program(arguments, folder, failure)
                status, how = outcome.returncode, failure[2]
                is_expected = (status == 0 or status == 1 and outcome.stderr.strip() or status < 0 and status == how
                               or status == INTERRUPTED and how == -signal.SIGTERM)
                self.assertTrue(is_expected, f"{failure}: status {status}, {outcome.stderr}")
                if how == -signal.SIGTERM:
                    self.assertEqual(temporary(folder), [], failure)
                check(folder, outcome, failure)

        all_failures = list(failures(arguments, template))
        self.assertGreater(len(all_failures), 2 * SAMPLE)
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            for _ in pool.map(one, all_failures):
                pass

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.template = Path(scratch.name, "template")
        self.template.mkdir()

    def write_case(self, second_moment):
        text = CASE.partition("[distributions")[0].replace("SMOM = 300", f"SMOM = {second_moment}")
        (self.template / "case.toml").write_text(text, encoding="utf-8")

    def files_of_run(self):
        """Those of a run into an empty directory."""
        with tempfile.TemporaryDirectory() as scratch:
            self.assertEqual(program(["run", "case.toml", "--out", scratch], self.template).returncode, 0)
            return contents(Path(scratch))

    def check_sets(self, old, out, is_expected):
        new = self.files_of_run()
        others = {"notes.txt": b"mine"} if old else {}
        arguments = ["run", "case.toml", "--out", out]

        def check(folder, outcome, failure):
            found = {name: text for name, text in contents(folder / out).items()
                     if name != "case.toml" and not name.startswith(".polyprops.")}
            self.assertTrue(is_expected(found, old | others, new | others), f"{failure}: {sorted(found)}")
            if outcome.returncode == 0:
                self.assertEqual(found, new | others, failure)
            if temporary(folder):
                self.assertEqual(program(arguments, folder).returncode, 0)
                self.assertEqual(temporary(folder), [], failure)

        for name, text in (old | others).items():
            (self.template / out).mkdir(exist_ok=True)
            (self.template / out / name).write_bytes(text)
        self.check_all(arguments, self.template, check)

    def old_set(self):
        self.write_case(second_moment=200)
        old = self.files_of_run()
        self.write_case(second_moment=300)
        return old

    def test_a_new_directory_holds_all_files_or_is_not_there(self):
        self.write_case(second_moment=300)
        self.check_sets({}, "made/out", lambda found, old, new: found in ({}, new))

    def test_a_directory_holds_the_old_set_or_the_new_one(self):
        self.check_sets(self.old_set(), "out", lambda found, old, new: found in (old, new))

    def test_the_working_directory_holds_whole_files(self):
        def is_expected(found, old, new):
            return found.keys() == new.keys() and all(text in (old[name], new[name]) for name, text in found.items())
        self.check_sets(self.old_set(), ".", is_expected)

    def test_a_sweep_makes_the_same_table_when_it_runs_again(self):
        self.write_case(second_moment=300)
        arguments = ["sweep", "case.toml", "--set", "streams.S.flows.P=1:4:4", "--out", "s.csv", "--processes", "2"]
        with copied(self.template) as folder:
            self.assertEqual(program(arguments, folder).returncode, 0)
            expected = contents(folder)

        def check(folder, outcome, failure):
            if outcome.returncode != 0 or temporary(folder):
                again = program(arguments, folder)
                self.assertEqual(again.returncode, 0, f"{failure}: {again.stderr}")
            self.assertEqual(contents(folder), expected, failure)
            self.assertEqual(temporary(folder), [], failure)

        self.check_all(arguments, self.template, check)

    def test_little_address_space_ends_with_a_message(self):
        self.write_case(second_moment=300)
        started = 0
        for mebibytes in range(120, 180, 2):
            limited = ["bash", "-c", f'ulimit -v {mebibytes * 1024}; exec "$0" "$@"', PROGRAM, "run", "case.toml"]
            outcome = subprocess.run(limited, cwd=self.template, capture_output=True, text=True, check=False)
            started += outcome.returncode in (0, 1)
            # Below the space of the word store the system starts no process.
            if started:
                self.assertIn(outcome.returncode, (0, 1), f"{mebibytes} MiB: {outcome.stderr}")
        self.assertEqual(outcome.returncode, 0)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
