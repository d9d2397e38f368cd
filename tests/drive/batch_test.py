"""`kestra build` and `kestra check`: files on the command line, messages on standard error, exit codes."""

import os
import unittest

from program import Flow, question, text_of, write

POND = b"KESTRA    01/01/2009Pond\r\nENDRUN\r\n"
NO_PROJECT = "Open Project: This is not a valid QUIL project directory!\n"
QUESTION = "Kestra Input: Do you want to save changes before building?\n"
REFUSED = "refused; --yes answers Yes\n"
NONE = "Integrity Check: No Errors or Warnings Found\n"
VIEW = "Integrity Check: Integrity check generated warnings. View?\n"


class Batch(Flow):
    def setUp(self):
        super().setUp()
        self.make_project("dam")

    def run_in(self, *words, **how):
        return self.run_kestra("--app-dir", self.at("app"), *words, **how)

    def checker(self, name, lines):
        """A program that writes its lines beside the file that it is given, under another extension."""
        path = self.at("app", name)
        extension = "ER1" if name == "IntCheck.exe" else "ERR"
        script = f"""#!/bin/sh
printf '{lines}' > "${{1%???}}{extension}"
"""
        write(path, script.encode())
        os.chmod(path, 0o755)

    def save_with_program(self, name):
        """A control file as the program itself writes it."""
        drive = self.drive()
        drive.open(self.at("dam"))
        drive.click("frmKestra", "mnuNew")
        drive.click("frmKestra", "mnuSaveAs", {"file": self.at("dam", name)})
        drive.end()
        return self.at("dam", name)


class Build(Batch):
    def without_solver(self, path):
        """What a build prints that finds no solver, and reaches its end all the same."""
        return (f"{path}: KestraSim.exe {os.path.basename(path)}\n"
                f"{path}: KestraSim.exe could not be started from {self.at('app')}: No such file or directory.\n"
                f"{path}: built\n")

    def test_says_what_is_missing_for_each_file(self):
        a, b = self.save_with_program("a.KSC"), self.save_with_program("b.KSC")
        wanted = "".join(f"{path}: building\n{self.without_solver(path)}" for path in (a, b))
        self.assertEqual(self.run_in("build", a, b), ("", wanted, 0))

    def test_asks_about_a_file_that_the_screens_would_write_in_another_form(self):
        path = self.at("dam/a.KSC")
        write(path, POND)
        start, end = f"{path}: building\n{QUESTION}", self.without_solver(path)
        self.assertEqual(self.run_in("build", path), ("", start + REFUSED + end, 0))
        self.assertEqual(text_of(path), POND)
        out, err, code = self.run_in("build", "--yes", path)
        self.assertEqual((out, err, code), ("", start + f'confirmed: save dialog "Save File": {path}\n'
                                            f"Save As...: The file {path} already exists. Do you want to replace it?\n"
                                            + end, 0))
        self.assertTrue(text_of(path).startswith(POND[:24]))
        self.assertNotEqual(text_of(path), POND)

    def test_gives_up_a_file_whose_name_cannot_be_saved(self):
        path = self.at("dam/a_b.KSC")
        write(path, POND)
        out, err, code = self.run_in("build", "--yes", path)
        self.assertEqual((out, code), ("", 1))
        self.assertTrue(err.endswith('Save As...: Filenames cannot contain an underscore, _ , please enter a different '
                                     f'filename.\ncancelled: save dialog "Save File"\n{path}: not built\n'), err)
        self.assertEqual(text_of(path), POND)

    def test_takes_paths_from_where_it_stands_and_the_project_that_is_named(self):
        path = self.save_with_program("a.KSC")
        wanted = ("", f"{path}: building\n{self.without_solver(path)}", 0)
        self.assertEqual(self.run_in("build", "dam/a.KSC"), wanted)
        self.assertEqual(self.run_in("build", "a.KSC", cwd=self.at("dam")), wanted)
        self.assertEqual(self.run_in("build", "--project", "dam", "dam/a.KSC"), wanted)
        outside = "Warning: First, you must import the file into the current QUIL project directory.\n"
        write(self.at("far.KSC"), POND)
        far = self.at("far.KSC")
        self.assertEqual(self.run_in("build", "--project", "dam", far),
                         ("", f"{far}: building\n{outside}{far}: not built\n", 1))

    def test_ends_where_there_is_no_project(self):
        write(self.at("plain/a.KSC"), POND)
        self.assertEqual(self.run_in("build", self.at("plain/a.KSC")), ("", NO_PROJECT, 1))
        self.assertEqual(self.run_in("build", "--project", "nowhere", self.at("dam/a.KSC")), ("", NO_PROJECT, 1))

    def test_goes_on_behind_a_file_that_is_not_there(self):
        path, none = self.save_with_program("a.KSC"), self.at("dam/none.KSC")
        self.assertEqual(self.run_in("build", none, path),
                         ("", f"{none}: building\nError Message: Invalid Filename\n{none}: not built\n"
                              f"{path}: building\n{self.without_solver(path)}", 1))

    def test_changes_nothing_in_a_project_that_another_program_has(self):
        path = self.save_with_program("a.KSC")
        holder = self.drive()
        holder.open(self.at("dam"))
        out, err, code = self.run_in("build", "--yes", path)
        self.assertEqual((out, code), ("", 1))
        self.assertTrue(err.startswith("Open Project: This project is open in "), err)
        self.assertEqual(err.count("\n"), 1)


class Check(Batch):
    def test_prints_the_findings_and_ends_with_1_where_there_are_errors(self):
        a, b = self.at("dam/a.KSC"), self.at("dam/b.KSC")
        write(a, POND)
        write(b, POND)
        self.checker("KestraIntCheck.exe", r"    1    1\r\nF    3    0         1   19\r\nW    4\r\n")
        found = "Integrity Check: 1 error and 1 warning were found. They stand in {}.\n"
        out, err, code = self.run_in("check", a, b)
        lines = "".join(f"{path}: F    3    0         1   19\n{path}: W    4\n" for path in (a, b))
        self.assertEqual((out, err, code), (lines, found.format(a[:-3] + "ERR") + found.format(b[:-3] + "ERR"), 1))

    def test_ends_with_0_where_there_are_warnings_at_most(self):
        path = self.at("dam/a.KSC")
        write(path, POND)
        self.checker("KestraIntCheck.exe", r"    0    1\r\nW    4\r\n")
        self.assertEqual(self.run_in("check", path), (f"{path}: W    4\n", VIEW + REFUSED, 0))
        self.checker("KestraIntCheck.exe", r"    0    0\r\n")
        self.assertEqual(self.run_in("check", path), ("", NONE, 0))

    def test_looks_at_the_spillway_files_too(self):
        path = self.at("dam/a.KSC")
        write(path, POND)
        write(self.at("dam/a.AS2"), POND)
        self.checker("KestraIntCheck.exe", "")
        self.checker("IntCheck.exe", r"    1    0\r\nF        2\r\n")
        out, _, code = self.run_in("check", path)
        self.assertEqual((out, code), (f"{path}: F        2\n", 1))
        self.assertIn("a.ERR2", self.names_in("dam"))
        self.assertNotIn("a.ER1", self.names_in("dam"))

    def test_says_that_the_checker_or_the_file_is_missing(self):
        path = self.at("dam/a.KSC")
        write(path, POND)
        missing = f"{self.at('app', 'KestraIntCheck.exe')}: No such file or directory\n"
        self.assertEqual(self.run_in("check", path),
                         ("", "Integrity Check: The checker could not be started. " + missing, 1))
        self.assertEqual(self.run_in("check", self.at("dam/none.KSC")),
                         ("", "Error Message: Invalid Filename\n", 1))

    def test_is_what_the_command_of_the_window_does(self):
        path = self.at("dam/a.KSC")
        write(path, POND)
        self.checker("KestraIntCheck.exe", r"    0    1\r\nW    4\r\n")
        drive = self.drive("--app-dir", self.at("app"), path)
        self.assertEqual(drive.click("frmKestra", "mnuCheckFile", "No")["boxes"],
                         [question("Integrity Check", "Integrity check generated warnings. View?", "No")])


if __name__ == "__main__":
    unittest.main()
