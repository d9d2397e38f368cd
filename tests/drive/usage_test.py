"""The words of the command line, and what the program does where nobody reads it."""

import os
import re
import subprocess
import unittest

from program import Flow

GENERAL = "Usage: kestra [OPTIONS] [SUBCOMMAND]\n"
HINT = "\nRun kestra help for the commands.\n"


class Usage(Flow):
    def test_tells_the_version(self):
        out, err, code = self.run_kestra("--version")
        self.assertTrue(re.fullmatch(r"Kestra B \d+\.\d+\.\d+\n", out), out)
        self.assertEqual((err, code), ("", 0))

    def test_tells_of_itself_and_its_commands(self):
        out, err, code = self.run_kestra("help")
        self.assertIn(GENERAL, out)
        self.assertEqual((err, code), ("", 0))
        self.assertEqual(self.run_kestra("--help"), (out, "", 0))
        for command in ("new", "build", "check", "drive", "help"):
            out, err, code = self.run_kestra("help", command)
            self.assertIn(f"Usage: kestra {command} ", out)
            self.assertEqual((err, code), ("", 0))
            self.assertEqual(self.run_kestra(command, "--help"), (out, "", 0))

    def test_refuses_wrong_words_with_2(self):
        for words, message in (
                (["dance"], "kestra: The following argument was not expected: dance" + HINT),
                (["new"], "kestra: DIR is required" + HINT),
                (["new", "a", "b"], "kestra: The following argument was not expected: b" + HINT),
                (["drive", "--dance"], "kestra: The following argument was not expected: --dance" + HINT),
                (["drive", "--app-dir"], "kestra: --app-dir: 1 required DIR missing" + HINT),
                (["help", "dance"], "kestra: no command named dance\n")):
            self.assertEqual(self.run_kestra(*words), ("", message, 2))
        out, err, code = self.run_kestra()
        self.assertEqual((out, code), ("", 2))
        self.assertIn(GENERAL, err)
        self.assertEqual(os.listdir(self.base), [])

    def test_says_when_standard_output_is_full(self):
        full = "kestra: the standard output cannot be written\n"
        for words in (["--version"], ["help"], ["drive"]):
            with open("/dev/full", "wb") as out:
                process = self.start(words, stdin=subprocess.PIPE, stdout=out, stderr=subprocess.PIPE)
                _, err = process.communicate(b'{"do":"state"}\n{"do":"state"}\n', 60)
            self.assertEqual((err.decode(), process.returncode), (full, 1), words)

    def test_takes_the_application_directory_that_is_named(self):
        for words in (["--app-dir", "apps", "drive"], ["drive", "--app-dir", self.at("apps")]):
            out, err, code = self.run_kestra(*words, stdin=b'{"do":"variable","name":"solverPath"}')
            self.assertEqual((out, err, code), (f'{{"ok":true,"value":"{self.at("apps", "QUIL.exe")}"}}\n', "", 0))

    def test_stands_by_default_where_the_program_stands_links_resolved(self):
        os.symlink(self.program, self.at("link"))
        where = os.path.join(os.path.dirname(os.path.realpath(self.program)), "QUIL.exe")
        self.program = self.at("link")
        out, _, _ = self.run_kestra("drive", stdin=b'{"do":"variable","name":"solverPath"}')
        self.assertEqual(out, f'{{"ok":true,"value":"{where}"}}\n')


if __name__ == "__main__":
    unittest.main()
