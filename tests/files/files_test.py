"""Where the program writes, and what it does with little room: files_test.py POLYPROPS"""

import os
import resource
import signal
import stat
import subprocess
import sys
import tempfile
import threading
import unittest
from pathlib import Path

PROGRAM = sys.argv[1]

CASE = """
[components]
A-R = { class = "segment", molecular_weight = 100 }
P = { class = "polymer", molecular_weight = 100 }
[polymers]
segments = [{ id = "A-R", type = "repeat" }]
polymers = ["P"]
attributes = [{ component = "P", names = ["ZMOM", "SMOM", "SFLOW"] }]
[streams.S]
flows = { P = 12 }
attributes.P = { ZMOM = 1, SMOM = 300, SFLOW = [12] }
[distributions.D]
points = 100
longest_chain = 100000
segment_weight = 100
sites = [{ tau = 0.001, amount = 1 }]
"""
SET = ["--set", "streams.S.flows.P=1:6:6"]


class Files(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)
        self.write("case.toml", CASE)
        self.run_program("run", "case.toml", "--export-gpc", "curve.csv")

    def run_program(self, *arguments, status=0, **options):
        options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE} | options
        outcome = subprocess.run([PROGRAM, *arguments], cwd=self.folder, text=True, timeout=60, check=False, **options)
        self.assertIn(outcome.returncode, range(256) if status is None else [status], f"{arguments}: {outcome.stderr}")
        return outcome

    def write(self, name, text):
        (self.folder / name).write_text(text, encoding="utf-8")

    def text(self, name):
        return (self.folder / name).read_text(encoding="utf-8")

    def names(self, name=""):
        return sorted(path.name for path in (self.folder / name).iterdir())

    def test_inputs_and_directories_are_never_overwritten(self):
        os.link(self.folder / "curve.csv", self.folder / "second_name")
        (self.folder / "linked").symlink_to("case.toml")
        (self.folder / "set").mkdir()
        (self.folder / "set/case.D.csv").symlink_to("../curve.csv")
        (self.folder / "set/case.fit.json").symlink_to("../curve.csv")
        self.write("case.csv", self.text("curve.csv"))
        (self.folder / "t.partial").symlink_to("case.toml")
        (self.folder / "u.partial").symlink_to("case.csv")
        os.link(self.folder / "case.toml", self.folder / "v.partial")
        (self.folder / "w.partial").symlink_to("/dev/full")
        (self.folder / "loop").symlink_to("loop")
        before = {name: self.text(name) for name in ("case.toml", "curve.csv", "case.csv")}
        gpc, fit = ("--gpc", "curve.csv"), ("fit", "case.toml", "--sites", "1")
        refused = [
            (("run", "case.toml", "--export-gpc", "case.toml"), "is the input file case.toml"),
            (("run", "case.toml", "--export-gpc", "linked"), "is the input file case.toml"),
            (("run", "case.toml", *gpc, "--export-gpc", "second_name"), "is the input file curve.csv"),
            (("run", "case.toml", "--export-gpc", "set"), "set is a directory; expected a file"),
            (("run", "case.toml", "--gpc", "case.csv", "--out", "."), "./case.csv is the input file case.csv"),
            (("run", "case.toml", *gpc, "--out", "set"), "set/case.D.csv is the input file curve.csv"),
            (("run", "case.toml", "--out", "case.toml"), "case.toml is a file; expected a directory"),
            (("run", "case.toml", "--out", "new", "--export-gpc", "new/case.D.csv"), "is another output as well"),
            ((*fit, *gpc, "--out", "set"), "set/case.fit.json is the input file curve.csv"),
            (("sweep", "case.toml", *SET, "--out", "case.toml"), "is the input file case.toml"),
            (("sweep", "case.toml", *SET, "--out", "set"), "set is a directory; expected a file"),
            (("sweep", "case.toml", *SET, "--out", "t"), "the journal: t.partial is the input file case.toml"),
            (("sweep", "case.toml", *SET, "--out", "u"), "the journal: u.partial is no regular file"),
            (("sweep", "case.toml", *SET, "--out", "v"), "the journal: v.partial is the input file case.toml"),
            (("sweep", "case.toml", *SET, "--out", "w"), "the journal: w.partial is no regular file"),
            (("sweep", "case.toml", *SET, "--out", ""), "--out is empty; expected the name of a file"),
            (("run", "case.toml", "--out", ""), "--out is empty; expected the name of a directory"),
            (("run", "case.toml", "--export-gpc", "loop/curve"), "loop/curve: Too many levels of symbolic links"),
            (("run", "case.toml", "--format", "\x1b[31m"), "\\u001B[31m"),
        ] + [
            ((*fit, *gpc, "--segment-weight", weight), f'"{weight}"; expected a finite number greater than 0')
            for weight in ("0", "-1", "nan", "inf", "x", "1e-400")
        ] + [
            (("fit", "case.toml", *gpc, "--sites", sites),
             f'"{sites}"; expected a number of sites or a range such as 1:8, 20 at most')
            for sites in ("x", "0", "21", "3:2", "1;2", "1:x", "1:2x", "1:99999999999999999999", "1:21")
        ]
        names = self.names()
        for arguments, reason in refused:
            with self.subTest(arguments):
                outcome = self.run_program(*arguments, status=2)
                self.assertIn(reason, outcome.stderr)
                self.assertEqual(outcome.stdout, "")
                self.assertEqual({name: self.text(name) for name in before}, before)
                self.assertEqual(self.names(), names)

    def test_names_of_inputs_are_read_or_refused(self):
        (self.folder / "loop").symlink_to("loop")
        self.write("one_byte", "=")
        for name, reason in (("", ": cannot be read: its name is empty"), ("one_byte", "one_byte:1:1: "),
                             ("loop", "loop: cannot be read: Too many levels of symbolic links")):
            self.assertIn(reason, self.run_program("run", name, status=1).stderr)

    def test_links_are_followed_and_modes_kept(self):
        curve = self.text("curve.csv")
        (self.folder / "out").mkdir(mode=0o750)
        links = {"link": "target", "hanging": "made", "out/case.json": "../json", "linked_out": "out"}
        for link, target in links.items():
            (self.folder / link).symlink_to(target)
        for name in ("target", "out/case.csv"):
            self.write(name, "before")
            (self.folder / name).chmod(0o604)
        for name in ("link", "hanging"):
            self.run_program("run", "case.toml", "--export-gpc", name, "--out", "linked_out")
            self.assertEqual(self.text(name), curve)
        self.assertEqual(self.text("made"), curve)
        self.assertIn('"streams"', self.text("json"))
        for name, mode in (("target", 0o604), ("out/case.csv", 0o604), ("out", 0o750)):
            self.assertEqual(stat.S_IMODE((self.folder / name).stat().st_mode), mode, name)
        self.assertNotEqual(self.text("out/case.csv"), "before")
        for link in links:
            self.assertTrue((self.folder / link).is_symlink(), link)

    def test_pipes_and_devices_receive_the_content(self):
        curve = self.text("curve.csv")
        os.mkfifo(self.folder / "pipe")
        received = []
        reader = threading.Thread(target=lambda: received.append(self.text("pipe")))
        reader.start()
        self.run_program("run", "case.toml", "--export-gpc", "pipe")
        reader.join()
        self.assertEqual(received, [curve])
        self.assertTrue((self.folder / "pipe").is_fifo())
        with (self.folder / "both").open("w", encoding="utf-8") as both:
            self.run_program("run", "case.toml", "--export-gpc", "/dev/stdout", stdout=both)
        self.assertEqual(self.text("both"), curve + self.run_program("run", "case.toml").stdout)
        table = self.run_program("sweep", "case.toml", *SET, "--out", "/dev/stdout").stdout
        self.run_program("sweep", "case.toml", *SET, "--out", "table.csv")
        self.assertEqual(table, self.text("table.csv"))
        self.assertFalse(Path("/dev/stdout.partial").exists())
        self.assertIn("No space left", self.run_program("run", "case.toml", "--export-gpc", "/dev/full", status=1).stderr)

    def test_other_files_of_the_directory_stay_and_old_curves_are_named(self):
        written = ["case.D.csv", "case.E.csv", "case.csv", "case.html", "case.json", "case.rpt", "case.sum"]
        for directory, others in (("flat", []), ("deep", ["notes"])):
            with self.subTest(directory):
                (self.folder / directory).mkdir()
                for name in others:
                    (self.folder / directory / name).mkdir()
                    self.write(f"{directory}/{name}/n.txt", "mine")
                self.write(f"{directory}/case.notes.csv", "mine")
                (self.folder / directory / "hanging").symlink_to("nowhere")
                self.write("case.toml", CASE)
                self.assertEqual(self.run_program("run", "case.toml", "--out", directory).stderr, "")
                self.write("case.toml", CASE.replace("distributions.D", "distributions.E"))
                self.assertEqual(self.run_program("run", "case.toml", "--out", directory).stderr,
                                 f"polyprops: {directory}/case.D.csv is not of this run, but of an earlier one or of "
                                 "another case\n")
                self.assertEqual(self.text(f"{directory}/case.notes.csv"), "mine")
                self.assertEqual(self.names(directory), sorted(written + others + ["case.notes.csv", "hanging"]))

    def test_runs_at_the_same_time_lose_nothing(self):
        names = [f"c{number}" for number in range(8)]
        for name in names:
            self.write(f"{name}.toml", CASE)
        running = [subprocess.Popen([PROGRAM, "run", f"{name}.toml", "--out", "out"], cwd=self.folder,
                                    stdout=subprocess.DEVNULL) for name in names]
        self.assertEqual([process.wait() for process in running], [0] * len(names))
        endings = ("D.csv", "csv", "html", "json", "rpt", "sum")
        self.assertEqual(self.names("out"), sorted(f"{name}.{ending}" for name in names for ending in endings))
        self.assertEqual([name for name in self.names() if name.startswith(".")], [])

    def test_a_failed_write_shows_in_the_status(self):
        commands = [("--help",), ("--version",), ("run", "--help"), ("selfcheck",), ("run", "case.toml"),
                    ("check", "case.toml"), ("fit", "case.toml", "--gpc", "curve.csv", "--sites", "1"),
                    ("convert", "case.toml", "--stream", "S", "--from", "apparent", "--to", "true")]
        reading, writing = os.pipe()
        os.close(reading)
        with open("/dev/full", "w", encoding="utf-8") as full, os.fdopen(writing, "w") as closed_pipe:
            for out in (full, closed_pipe):
                for arguments in commands:
                    with self.subTest(arguments, out=out):
                        self.assertIn("standard output cannot be written",
                                      self.run_program(*arguments, stdout=out, status=1).stderr)

    def test_closed_descriptors_put_no_message_into_a_file(self):
        warned = CASE.replace("points = 100\n", "points = 4\n")

        def close_all():
            for number in range(3):
                os.close(number)

        for text in (CASE, warned):
            self.write("case.toml", text)
            self.run_program("run", "case.toml", "--out", "expected")
            for arguments in (("run", "case.toml", "--out", "out"), ("sweep", "case.toml", *SET, "--out", "table.csv")):
                subprocess.run([PROGRAM, *arguments], cwd=self.folder, preexec_fn=close_all, check=True)
            self.assertEqual(self.text("case.toml"), text)
            for name in self.names("expected"):
                self.assertEqual(self.text(f"out/{name}"), self.text(f"expected/{name}"), name)
            self.assertEqual(len(self.text("table.csv").splitlines()), 7)

    def limited(self, resource_name, most, *arguments, **options):
        limit = lambda: resource.setrlimit(resource_name, (most, most))
        return self.run_program(*arguments, preexec_fn=limit, **options)

    @unittest.skipIf("POLYPROPS_SANITIZED" in os.environ, "sanitizers open files of their own")
    def test_few_descriptors_mean_fewer_processes_or_a_message(self):
        self.run_program("sweep", "case.toml", *SET, "--out", "expected.csv")
        complete = 0
        for most in range(4, 14):
            outcome = self.limited(resource.RLIMIT_NOFILE, most, "sweep", "case.toml", *SET, "--out", "s.csv",
                                   "--processes", "6", status=None)
            if outcome.returncode != 0:
                self.assertEqual(outcome.returncode, 1, f"{most} descriptors")
                self.assertIn("Too many open files", outcome.stderr)
            else:
                self.assertEqual(self.text("s.csv"), self.text("expected.csv"))
                complete += 1
        self.assertGreater(complete, 4)

    def test_a_small_stack_and_a_file_size_limit_are_errors(self):
        command = ("run", "case.toml", "--out", "out")
        self.assertIn("the stack is limited to 128 KiB; expected at least 1024 KiB",
                      self.limited(resource.RLIMIT_STACK, 128 * 1024, *command, status=1).stderr)
        self.assertIn("File too large", self.limited(resource.RLIMIT_FSIZE, 4096, *command, status=1).stderr)
        self.assertEqual(self.names(), ["case.toml", "curve.csv"])

    def test_a_terminal_shows_the_progress_of_a_sweep(self):
        reading, writing = os.openpty()
        self.run_program("sweep", "case.toml", *SET, "--out", "s.csv", stderr=writing)
        shown = os.read(reading, 4096).decode()
        for number in (reading, writing):
            os.close(number)
        self.assertIn("\r1 of 6 cases", shown)
        self.assertTrue(shown.endswith("\r6 of 6 cases\r\n"), shown)

    def test_an_interruption_ends_a_sweep_with_the_rows_that_it_has(self):
        partial = self.folder / "s.csv.partial"
        for number in (signal.SIGINT, signal.SIGHUP):
            process = subprocess.Popen([PROGRAM, "sweep", "case.toml", "--set", "streams.S.flows.P=1:9:100000", "--out",
                                        "s.csv"], cwd=self.folder, stderr=subprocess.PIPE, text=True)
            while not partial.exists() or len(partial.read_text().splitlines()) < 2:  # a head and a row
                self.assertIsNone(process.poll())
            process.send_signal(number)
            errors = process.communicate()[1]
            kept = len(partial.read_text().splitlines()) - 1
            self.assertEqual(errors, f"polyprops: interrupted after {kept} of 100000 cases; the same command goes on "
                                     "from there (s.csv.partial)\n")
            self.assertEqual(process.returncode, 130)
            self.assertFalse((self.folder / "s.csv").exists())
            partial.unlink()


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])
