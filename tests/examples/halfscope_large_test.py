"""halfscope_large_test.py halfscope: large tables in little memory and time, and what a person sees meanwhile."""

import os
import pty
import resource
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

PROGRAM = sys.argv[1]
MEGABYTE = 1 << 20


def large_table(megabytes):
    rows = "".join(f"{i * 37 % 1000 / 8},{i},{i * i % 99991 / 1000:.3f},{(i * 7919 % 65537) * 1e-9:.4e}\n" for i in range(40000))
    return "a,b,c,d\n" + rows * (megabytes * MEGABYTE // len(rows))


class Large(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="zthalf-large-")
        cls.path = str(Path(cls.folder.name) / "large.csv")
        Path(cls.path).write_text(large_table(24))
        cls.size = Path(cls.path).stat().st_size

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def run_limited(self, bytes_at_most):
        return subprocess.run(
            [PROGRAM, self.path], text=True, timeout=120, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False,
            preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (bytes_at_most, bytes_at_most)),
        )

    def test_memory_and_time(self):
        process = subprocess.Popen([PROGRAM, self.path], stdout=subprocess.DEVNULL)
        _, status, used = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        self.assertEqual(process.returncode, 0)
        self.assertLess(used.ru_maxrss * 1024, 2.5 * self.size + 16 * MEGABYTE)
        # Processor time on a busy machine; without other work it is several times as fast.
        self.assertGreater(self.size / (used.ru_utime + used.ru_stime) / 1e6, 15)

    def test_says_how_much_memory_it_needs(self):
        """Whatever it is that memory does not suffice for: the text, the numbers, or what is made of them."""
        outcomes = set()
        for megabytes in range(40, 140, 5):
            with self.subTest(megabytes=megabytes):
                result = self.run_limited(megabytes * MEGABYTE)
                outcomes.add(result.returncode)
                if result.returncode == 0:
                    self.assertIn("4 numeric columns", result.stdout)
                    continue
                self.assertEqual((result.returncode, result.stdout), (1, ""), result.stderr)
                message = f"halfscope: not enough memory for {self.path}: about "
                self.assertRegex(result.stderr, "^" + message + r"[1-9]\d+ MB needed( \(pthread_create .*\))?\n$")
        self.assertEqual(outcomes, {0, 1})

    def on_terminal(self, pause):
        """What standard error shows as a terminal while a table comes through a pipe, with a pause before its end."""
        ours, theirs = pty.openpty()
        process = subprocess.Popen([PROGRAM, "-"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=theirs)
        os.close(theirs)
        process.stdin.write(b"a\n" + b"1\n" * 100000)
        process.stdin.flush()
        time.sleep(pause)
        process.stdin.write(b"2\n" * 100000)
        out = process.communicate()[0]
        self.assertEqual(process.returncode, 0)
        self.assertIn(b"200,000 rows", out)
        screen = b""
        try:
            while block := os.read(ours, 4096):
                screen += block
        except OSError:  # the end of a terminal
            pass
        os.close(ours)
        return screen.decode()

    def test_progress_on_a_terminal(self):
        screen = self.on_terminal(1.3)
        self.assertIn("\rhalfscope: reading standard input, 0 MB", screen)
        self.assertNotIn("\n", screen)
        self.assertEqual(screen.split("\r")[-1], "")  # nothing is left of it
        self.assertEqual(screen.split("\r")[-2].strip(), "")

    def test_no_progress_without_a_terminal_or_in_short_work(self):
        result = subprocess.run([PROGRAM, self.path], text=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=True)
        self.assertEqual(result.stderr, "")


unittest.main(argv=[sys.argv[0]])
