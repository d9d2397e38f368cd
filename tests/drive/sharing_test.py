"""Two programs at one project."""

import os
import pwd
import unittest

from program import DONE, Flow, as_nobody, done, question, warning, write


class Sharing(Flow):
    def setUp(self):
        super().setUp()
        self.dam = self.make_project("dam")
        self.first = self.drive()
        self.assertEqual(self.first.open(self.dam), DONE)
        user = pwd.getpwuid(os.geteuid()).pw_name
        self.holder = f"program kestra, process {self.first.process.pid}, of user {user}"
        self.told = warning("Open Project",
                            f"This project is open in {self.holder}. You can look at it here, but nothing in it can be "
                            "changed.")
        self.refused = [question("Delete Project", "Do you really want to remove the QUIL project dam ?", "Yes"),
                        warning("Delete Project",
                                f"This project is open in {self.holder} and cannot be removed now.")]

    def read_only(self, drive):
        return drive.value("variable", name="projectReadOnly")

    def test_the_second_is_told_and_may_look(self):
        second = self.drive()
        self.assertEqual(second.open(self.dam), done(boxes=[self.told]))
        self.assertTrue(self.read_only(second))
        self.assertFalse(self.read_only(self.first))
        self.assertEqual(second.state("projectDir"), self.dam)
        self.assertEqual(second.end(), ("", "", 0))

    def test_the_second_is_told_on_standard_error_when_it_starts_with_a_file(self):
        write(self.at("dam/a.KSC"), b"KESTRA\r\nENDRUN\r\n")
        second = self.drive(os.path.join(self.dam, "a.KSC"))
        self.assertTrue(self.read_only(second))
        self.assertEqual(second.end(), ("", f"Open Project: {self.told['text']}\n", 0))

    def test_the_second_cannot_delete_it(self):
        second = self.drive()
        self.assertEqual(second.delete(self.dam, "Yes"), done(boxes=self.refused))
        self.assertEqual(second.open(self.dam), done(boxes=[self.told]))
        self.assertEqual(second.delete(self.dam, "Yes"), done(boxes=self.refused))
        self.assertEqual(self.names_in("dam"), ["SUMMARY.IDE", "owner"])

    def test_the_first_can_delete_it_while_the_second_looks(self):
        second = self.drive()
        second.open(self.dam)
        self.assertEqual(self.first.delete(self.dam, "Yes"), done(boxes=self.refused[:1]))
        self.assertFalse(os.path.exists(self.dam))
        self.assertEqual(second.new(self.base, "dam"), DONE)
        self.assertFalse(self.read_only(second))

    def has_it_once_the_first(self, leaves):
        second = self.drive()
        self.assertEqual(second.open(self.dam), done(boxes=[self.told]))
        leaves()
        self.assertEqual(second.click("frmKestra", "mnuExit"), DONE)
        self.assertEqual(second.open(self.dam), DONE)
        self.assertFalse(self.read_only(second))

    def test_the_second_has_it_once_the_first_has_closed_it(self):
        self.has_it_once_the_first(lambda: self.first.click("frmKestra", "mnuExit"))

    def test_the_second_has_it_once_the_first_has_another_open(self):
        self.has_it_once_the_first(lambda: self.first.new(self.base, "other"))

    def test_the_second_has_it_once_the_first_has_ended(self):
        self.has_it_once_the_first(self.first.end)

    def test_the_second_has_it_once_the_first_was_killed(self):
        self.has_it_once_the_first(self.first.close)

    def test_a_second_name_of_the_project_is_the_same_project(self):
        os.symlink("dam", self.at("link"))
        self.assertEqual(self.drive().open(self.at("link")), done(boxes=[self.told]))

    def test_another_user_is_told_too(self):
        self.let_nobody_in()
        second = self.drive(before=as_nobody)
        self.assertEqual(second.open(self.dam), done(boxes=[self.told]))

    def test_a_copy_of_the_project_is_another_project(self):
        write(self.at("copy/owner"), b"x\r\nTORVE\r\n")
        self.assertEqual(self.drive().open(self.at("copy")), DONE)


if __name__ == "__main__":
    unittest.main()
