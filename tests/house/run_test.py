"""Does the first job of script/run with the programs that were built: run_test.py KESTRA."""

import os
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True

HOME = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
PROGRAMS = os.path.dirname(os.path.realpath(sys.argv.pop(1)))
EXAMPLE = os.path.join(HOME, "examples", "stock-pond.KSC")


class Run(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory(prefix="kestra run ")
        self.addCleanup(directory.cleanup)
        self.place = os.path.realpath(directory.name)
        self.runs = os.path.join(self.place, "runs")
        self.environment = {**os.environ, "XDG_CONFIG_HOME": os.path.join(self.place, "config")}

    def run_script(self, *command):
        done = subprocess.run(command, cwd=self.place, env=self.environment, stdin=subprocess.DEVNULL,
                              capture_output=True, encoding="utf-8", check=False)
        return done.returncode, done.stdout, done.stderr

    def first_job(self, control_file, *words, programs=PROGRAMS):
        return self.run_script(sys.executable, "-B", os.path.join(HOME, "script", "first_job.py"), programs,
                               self.runs, control_file, *words)

    def test_without_a_window_the_file_is_built_drawn_and_summed_up(self):
        code, page, errors = self.first_job(EXAMPLE)
        self.assertEqual((code, errors), (0, ""))
        folder = os.path.join(self.runs, "1")
        lines = page.splitlines()
        self.assertEqual(lines[:3], [f"File     {folder}/project/stock-pond.KSC",
                                     f"Results  {folder}/project/stock-pond.OUT",
                                     f"Graph    {folder}/graphs/graph-0.png  Hydrographs"])
        self.assertEqual(lines[-1], f"Summary  {folder}/summary.txt")
        for line in lines:
            kind, path = line.split(maxsplit=1)
            path = path.split("  ")[0]
            self.assertGreater(os.path.getsize(path), 0, line)
            self.assertEqual(path.endswith(".png"), kind == "Graph")

    def test_each_job_has_a_folder_of_its_own_and_leaves_the_users_settings_alone(self):
        for number in ("1", "2"):
            code, page, _ = self.first_job(EXAMPLE)
            self.assertEqual(code, 0)
            self.assertIn(f"File     {self.runs}/{number}/project/stock-pond.KSC\n", page)
        self.assertEqual(sorted(os.listdir(self.runs)), ["1", "2"])
        self.assertFalse(os.path.exists(os.path.join(self.place, "config")))

    def test_with_a_window_the_desktop_program_gets_the_file(self):
        programs = os.path.join(self.place, "programs")
        os.mkdir(programs)
        os.symlink(os.path.join(PROGRAMS, "kestra"), os.path.join(programs, "kestra"))
        with open(os.path.join(programs, "kestra-b"), "w", encoding="utf-8") as program:
            program.write('#!/bin/sh\nprintf "%s\\n" "$@"\n')
        os.chmod(program.name, 0o755)
        code, page, errors = self.first_job(EXAMPLE, "--window", programs=programs)
        file = f"{self.runs}/1/project/stock-pond.KSC"
        self.assertEqual((code, errors), (0, ""))
        self.assertEqual(page, f"File     {file}\n{file}\n--settings\n{self.runs}/1/settings.ini\n")

    def test_what_cannot_be_done_is_told(self):
        missing = os.path.join(self.place, "none.KSC")
        for control_file, programs, message in (
                (missing, PROGRAMS, f"first_job: there is no control file {missing}\n"),
                (self.place, PROGRAMS, f"first_job: there is no control file {self.place}\n"),
                (EXAMPLE, "/none", "first_job: [Errno 2] No such file or directory: '/none/kestra'\n")):
            with self.subTest(message):
                self.assertEqual(self.first_job(control_file, programs=programs), (1, "", message))

    def test_script_run_tells_of_a_missing_file_before_it_builds(self):
        script = os.path.join(HOME, "script", "run")
        self.assertEqual(self.run_script(script, "none.KSC"),
                         (1, "", f"script/run: there is no control file {self.place}/none.KSC\n"))
        self.assertEqual(self.run_script(script, "a", "b"), (2, "", "usage: script/run [CONTROL_FILE]\n"))


if __name__ == "__main__":
    unittest.main()
