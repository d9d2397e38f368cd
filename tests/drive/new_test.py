"""`kestra new`: what it makes, and what it refuses, word for word."""

import os
import resource
import stat
import unittest

from program import Flow, as_nobody, text_of, write

OWNER = b"This is the flag file of a valid QUIL project directory, the owner is\r\nTORVE\r\n"
EXISTS = "New Project: Project directory already exists, please try another name.\n"
NESTED = "New Project: QUIL project directories cannot be nested!\n"


def unable(path, why):
    return f"New Project: Unable to make the project directory {path}: {why}\n"


class New(Flow):
    def refused(self, directory, message, **how):
        self.assertEqual(self.run_kestra("new", directory, **how), ("", message, 1))

    def test_makes_the_directory_with_its_two_files_and_remembers_it(self):
        dam = self.at("dam")
        self.assertEqual(self.run_kestra("new", dam), (dam + "\n", "", 0))
        self.assertEqual(self.names_in("dam"), ["SUMMARY.IDE", "owner"])
        self.assertEqual(text_of(self.at("dam/owner")), OWNER)
        self.assertEqual(stat.S_IMODE(os.stat(self.at("dam/owner")).st_mode) & 0o222, 0)
        self.assertTrue(text_of(self.at("dam/SUMMARY.IDE")).endswith(b"\r\n"))
        self.assertEqual(text_of(self.settings),
                         b"[ProjectHistory]\r\nn=1\r\n1Project=" + dam.encode() + b"\r\n")

    def test_refuses_what_is_there(self):
        write(self.at("file"))
        os.mkdir(self.at("directory"))
        for name in ("file", "directory"):
            self.refused(self.at(name), EXISTS)
        self.refused("", EXISTS)
        self.refused(".", EXISTS)
        self.refused("/", EXISTS)
        self.assertEqual(self.names_in("directory"), [])

    def test_refuses_a_project_in_a_project_and_not_beside_one(self):
        dam = self.make_project("dam")
        self.refused(self.at("dam/inner"), NESTED)
        self.refused("inner", NESTED, cwd=dam)
        self.refused(self.at("dam/SUMMARY.IDE"), NESTED)
        self.assertEqual(self.names_in("dam"), ["SUMMARY.IDE", "owner"])
        self.make_project("beside")

    def test_says_why_the_directory_cannot_be_made(self):
        write(self.at("file"))
        os.symlink("nowhere", self.at("link"))
        self.refused(self.at("none/dam"), unable(self.at("none/dam"), "No such file or directory"))
        self.refused(self.at("file/dam"), unable(self.at("file/dam"), "Not a directory"))
        self.refused(self.at("link"), unable(self.at("link"), "File exists"))
        self.refused(self.at("x" * 256), unable(self.at("x" * 256), "File name too long"))
        self.assertEqual(self.names_in(), ["config", "file", "link"])

    def test_says_when_the_parent_may_not_be_written(self):
        os.mkdir(self.at("closed"), 0o555)
        self.let_nobody_in()
        dam = self.at("closed/dam")
        self.refused(dam, unable(dam, "Permission denied"), before=as_nobody)
        self.assertEqual(self.names_in("closed"), [])

    def test_leaves_nothing_where_no_byte_can_be_written(self):
        def no_bytes():
            resource.setrlimit(resource.RLIMIT_FSIZE, (0, 0))

        _, err, code = self.run_kestra("new", self.at("dam"), before=no_bytes)
        self.assertEqual(code, 1)
        self.assertTrue(err.startswith(unable(self.at("dam"), "File too large")), err)
        self.assertFalse(os.path.exists(self.at("dam")))

    def test_leaves_nothing_where_only_the_first_file_finds_room(self):
        def few_bytes():
            resource.setrlimit(resource.RLIMIT_FSIZE, (50, 50))

        self.refused_for_room(few_bytes)

    def refused_for_room(self, before):
        _, err, code = self.run_kestra("new", self.at("dam"), before=before)
        self.assertEqual(code, 1)
        self.assertIn(unable(self.at("dam"), "File too large"), err)
        self.assertFalse(os.path.exists(self.at("dam")))

    def test_takes_any_name_that_the_disk_takes(self):
        names = ["two words", " blank ends ", '"quoted"', "it's", "line\nfeed", "cr\rlf", "Überlauf", "堤", "a\udcffb",
                 "[x]", "a=b", ";c", "#d", "%s%n", "&1 and", "back\\slash", "tab\tbed", "x" * 255, "{}", "$HOME", "~"]
        for name in names:
            self.assertEqual(self.run_kestra("new", self.at(name)), (self.at(name) + "\n", "", 0))
            self.assertEqual(text_of(self.at(name, "owner")), OWNER)
        drive = self.drive()
        shown = [self.at(name).encode("utf-8", "surrogateescape").decode("utf-8", "replace") for name in names]
        self.assertEqual(drive.state("recentProjects"), shown[:-11:-1])
        self.assertEqual(drive.end(), ("", "", 0))

    def test_takes_a_path_above_260_characters(self):
        long = self.at(*(["d" * 90] * 4))
        os.makedirs(long)
        dam = os.path.join(long, "dam")
        self.assertEqual(self.run_kestra("new", dam), (dam + "\n", "", 0))
        self.assertEqual(self.drive().state("recentProjects"), [dam])

    def test_takes_relative_paths(self):
        os.mkdir(self.at("here"))
        for given, made in (("a", "here/a"), ("./b/", "here/b"), ("../c", "c"), ("a/../d", "here/d"),
                            ("x/../e", "here/e")):
            self.assertEqual(self.run_kestra("new", given, cwd=self.at("here")), (self.at(made) + "\n", "", 0))
            self.assertEqual(text_of(self.at(made, "owner")), OWNER)

    def test_takes_a_dash_in_front_behind_two_dashes(self):
        self.assertEqual(self.run_kestra("new", "--", "-dam"), (self.at("-dam") + "\n", "", 0))

    def test_keeps_the_project_when_the_settings_cannot_be_written(self):
        write(self.at("config"))
        self.assertEqual(self.run_kestra("new", self.at("dam")),
                         (self.at("dam") + "\n",
                          "Kestra B: The list of recent projects could not be saved. "
                          f"{self.settings}: Not a directory\n", 0))

    def test_takes_the_settings_file_that_is_named(self):
        self.run_kestra("new", "dam", "--settings", "mine.ini")
        self.run_kestra("--settings", self.at("mine.ini"), "new", "dam2")
        wanted = f"[ProjectHistory]\r\nn=2\r\n1Project={self.at('dam2')}\r\n2Project={self.at('dam')}\r\n"
        self.assertEqual(text_of(self.at("mine.ini")), wanted.encode())
        self.assertFalse(os.path.exists(self.at("config")))


if __name__ == "__main__":
    unittest.main()
