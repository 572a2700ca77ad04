"""demo_test.py project-folder halfscope: what ./demo says and does before and while it builds.

It runs in a copy of the few files that it reads, with a cmake and a ccache of our own first in PATH: they write down
how they were called, and a build of theirs takes no time.
"""

import os
import pty
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROJECT, PROGRAM = Path(sys.argv[1]), sys.argv[2]

CMAKE = """#!/bin/sh
echo "through ${CMAKE_CXX_COMPILER_LAUNCHER:-nothing}: $@" >>"$CALLS"
case $1 in
  --build)
    [ -z "$FAIL_AT" ] || { echo "[1/2] Building a"; echo "a.cpp:1: error: no"; exit 1; }
    for i in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20; do echo "[$i/20] Building $i"; done
    mkdir -p "$2" && printf '#!/bin/sh\\necho "halfscope ran with $*"\\n' >"$2/halfscope" && chmod +x "$2/halfscope" ;;
esac
"""


class Demo(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="zthalf-demo-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.tree = self.folder / "tree"
        for name in ("demo", "CMakeLists.txt", "CMakePresets.json", "examples/halfscope/help.txt", "tools/setup.sh",
                     "include/zthalf/version.h"):
            (self.tree / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(PROJECT / name, self.tree / name)
        for name in ("cmake", "src"):
            (self.tree / name).mkdir()
        self.tool("cmake", CMAKE)
        self.environment = dict(os.environ, PATH=f"{self.folder}/bin:{os.environ['PATH']}", CALLS=str(self.calls),
                                ZTHALF_NO_SETUP="1")
        for name in ("CMAKE_CXX_COMPILER_LAUNCHER", "FAIL_AT"):
            self.environment.pop(name, None)

    @property
    def calls(self):
        return self.folder / "calls"

    def tool(self, name, text):
        (self.folder / "bin").mkdir(exist_ok=True)
        (self.folder / "bin" / name).write_text(text)
        (self.folder / "bin" / name).chmod(0o755)

    def run_in(self, command, *arguments, **more):
        return subprocess.run(
            [command, *arguments], cwd=self.folder, env=dict(self.environment, **more), text=True, timeout=60,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False,
        )

    def demo(self, *arguments, **more):
        return self.run_in(self.tree / "demo", *arguments, **more)

    def test_answers_before_it_builds(self):
        help_text = self.demo("--help")
        self.assertEqual((help_text.returncode, help_text.stderr), (0, ""))
        of_program = self.run_in(PROGRAM, "--help").stdout.replace("halfscope", "./demo", 1)
        self.assertTrue(help_text.stdout.startswith(of_program))
        self.assertIn("./demo accuracy", help_text.stdout)
        self.assertEqual(self.demo("-h").stdout, help_text.stdout)
        self.assertEqual(self.demo("--version").stdout, self.run_in(PROGRAM, "--version").stdout)
        self.assertFalse((self.tree / "build").exists())

    def test_refuses_what_the_program_refuses_before_it_builds(self):
        (self.folder / "plain.csv").write_text("a\n1\n")
        for arguments in (
            ["missing.csv"], ["plain.csv", "missing.csv"], ["plain.csv/inside"], ["bin"], ["esc\x1b[2Jape"],
            ["--", "--all"], ["--all", "missing.csv"], ["--columns=a", "missing.csv"], ["--columns", "a", "missing.csv"],
            ["--fast"], ["--columns"], [""],
        ):
            with self.subTest(arguments):
                ours, programs = self.demo(*arguments), self.run_in(PROGRAM, *arguments)
                self.assertEqual(programs.returncode, 2)
                self.assertEqual((ours.returncode, ours.stdout, ours.stderr),
                                 (programs.returncode, programs.stdout, programs.stderr))
        self.assertFalse((self.tree / "build").exists())

    def test_says_where_it_cannot_write(self):
        (self.tree / "build").write_text("in the way\n")  # stands for a folder without permission, which root has
        result = self.demo()
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertIn(f"it builds in {self.tree}/build/demo, where nothing can be written", result.stderr)
        self.assertNotIn("mkdir", result.stderr)

    def test_builds_once_and_hands_over(self):
        self.tool("ccache", "#!/bin/sh\n")
        result = self.demo("--all", "-")
        self.assertEqual((result.returncode, result.stdout), (0, "halfscope ran with --all -\n"), result.stderr)
        tenths = [line.strip() for line in result.stderr.splitlines() if " of 20, " in line]
        self.assertEqual(len(tenths), 20)  # ten of each of the two builds
        self.assertTrue(tenths[0].startswith("2 of 20, "))
        self.assertNotIn("Building 1", result.stderr)
        for line in self.calls.read_text().splitlines():
            self.assertTrue(line.startswith("through ccache: "), line)
        self.calls.unlink()
        again = self.demo("--version", "--json", "-")
        self.assertEqual(again.returncode, 0)
        again = self.demo("-")
        self.assertEqual((again.stdout, again.stderr), ("halfscope ran with -\n", ""))
        self.assertFalse(self.calls.exists())

    def test_keeps_another_launcher(self):
        self.tool("ccache", "#!/bin/sh\n")
        self.assertEqual(self.demo(CMAKE_CXX_COMPILER_LAUNCHER="other").returncode, 0)
        for line in self.calls.read_text().splitlines():
            self.assertTrue(line.startswith("through other: "), line)

    def test_builds_the_library_where_the_tests_do(self):
        self.demo()
        calls = self.calls.read_text()
        self.assertIn("--preset release", calls)
        self.assertIn("-DZTHALF_BUILD_TESTS=OFF", calls)
        self.assertIn(f"--build {self.tree}/build/release --target zthalf\n", calls)
        self.calls.unlink()
        (self.tree / "build/release/CMakeCache.txt").write_text("")  # ./test was here
        (self.tree / "build/demo/up-to-date").unlink()
        self.demo()
        self.assertNotIn("ZTHALF_BUILD_TESTS", self.calls.read_text())

    def test_shows_what_failed(self):
        result = self.demo(FAIL_AT="1")
        self.assertEqual((result.returncode, result.stdout), (1, ""))
        self.assertIn("a.cpp:1: error: no", result.stderr)
        self.assertFalse((self.tree / "build/demo/up-to-date").exists())

    def test_progress_is_one_line_of_a_terminal(self):
        ours, theirs = pty.openpty()
        process = subprocess.Popen([self.tree / "demo"], cwd=self.folder, env=self.environment,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=theirs)
        os.close(theirs)
        screen = b""
        try:
            while block := os.read(ours, 4096):
                screen += block
        except OSError:  # the end of a terminal
            pass
        process.communicate()
        os.close(ours)
        self.assertEqual(process.returncode, 0)
        line = next(x for x in screen.decode().split("\r\n") if "build the library" in x)
        self.assertEqual(line.count("/20]"), 20)
        self.assertIn("\rbuild the library ...", line)
        self.assertIn("ok, ", line.split("\r")[-1])


unittest.main(argv=[sys.argv[0]])
