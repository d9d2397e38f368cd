"""Opens control files as script/run does, with the program that was built: run_test.py KESTRA."""

import os
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True

HOME = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
KESTRA = sys.argv.pop(1)

SMALL_FILE = """KESTRA    01/01/2009A dam
NONSENSE  1
STRUCTURE Larkmoor
                    1000                0         0
                    1004                1.2
ENDTABLE
"""
SMALL_PAGE = """Folder   {0}/runs/1
Project  {0}/runs/1/project
File     {0}/runs/1/project/small dam.KSC
Title    Kestra B ( {0}/runs/1/project/small dam.KSC )

Main run
       1   KESTRA
           project  A dam
       3   STRUCTURE
           structure  Larkmoor
           elevation  discharge  storage  area
                1000                   0     0
                1004                 1.2
       2   not known: NONSENSE  1
           the file ends before this run does
"""


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

    def open(self, control_file, program=KESTRA):
        return self.run_script(sys.executable, "-B", os.path.join(HOME, "script", "open_control_file.py"), program,
                               self.runs, control_file)

    def put(self, name, text):
        path = os.path.join(self.place, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def test_a_file_is_shown_record_by_record(self):
        code, page, errors = self.open(self.put("small dam.KSC", SMALL_FILE))
        self.assertEqual((code, errors), (0, ""))
        self.assertEqual(page, SMALL_PAGE.format(self.place))

    def test_the_example_is_known_to_its_last_line(self):
        code, page, errors = self.open(os.path.join(HOME, "examples", "stock-pond.KSC"))
        self.assertEqual((code, errors), (0, ""))
        self.assertIn("           project  Larkmoor Farm stock pond\n", page)
        self.assertNotIn("not known", page)
        self.assertNotIn("the file ends before", page)

    def test_each_run_has_a_folder_of_its_own_and_leaves_the_users_settings_alone(self):
        example = self.put("small.KSC", SMALL_FILE)
        for number in ("1", "2"):
            code, page, _ = self.open(example)
            self.assertEqual(code, 0)
            self.assertIn(f"Folder   {self.runs}/{number}\n", page)
        self.assertEqual(sorted(os.listdir(self.runs)), ["1", "2"])
        self.assertFalse(os.path.exists(os.path.join(self.place, "config")))

    def test_what_cannot_be_done_is_told(self):
        missing = os.path.join(self.place, "none.KSC")
        whole = self.put("small.KSC", SMALL_FILE)
        for arguments, message in (
                ((missing,), f"open_control_file: there is no control file {missing}\n"),
                ((self.place,), f"open_control_file: there is no control file {self.place}\n"),
                ((whole, "/bin/false"), "open_control_file: false new ended with 1\n"),
                ((whole, "/bin/none"), "open_control_file: [Errno 2] No such file or directory: '/bin/none'\n")):
            with self.subTest(message):
                self.assertEqual(self.open(*arguments), (1, "", message))

    def test_script_run_tells_of_a_missing_file_before_it_builds(self):
        script = os.path.join(HOME, "script", "run")
        self.assertEqual(self.run_script(script, "none.KSC"),
                         (1, "", f"script/run: there is no control file {self.place}/none.KSC\n"))
        self.assertEqual(self.run_script(script, "a", "b"), (2, "", "usage: script/run [CONTROL_FILE]\n"))


if __name__ == "__main__":
    unittest.main()
