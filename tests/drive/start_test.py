"""How `kestra drive` starts: with a control file and without, in a project and outside one."""

import os
import unittest

from program import Flow, as_nobody, write

NO_PROJECT = "Open Project: This is not a valid QUIL project directory!\n"


class Start(Flow):
    def starts_with(self, word, control_file, **how):
        write(control_file, b"KESTRA    01/01/2009Pond\r\nENDRUN\r\n")
        drive = self.drive(word, **how)
        directory = os.path.dirname(control_file)
        state = drive.value("state")
        titles = state.pop("titles")
        self.assertEqual((titles["frmTopScreen"], titles["frmKestra"]),
                         (f"Kestra B [Project  {directory}]", f"Kestra B ( {control_file} )"))
        self.assertEqual(state, {
            "projectDir": directory, "currentFile": control_file, "fileDirty": False, "fileIsNew": False,
            "fileHasName": True, "bExiting": False, "windowOpen": [True] + [False] * 5, "numAuxSpillways": 0,
            "curAuxSpillway": 0, "totalInstances": "1", "lhsSeed": "1", "bRandomSample": False,
            "recentProjects": [directory], "visible": ["frmKestra", "frmTopScreen"], "focus": None})
        self.assertTrue(drive.value("get", screen="frmKestra", control="mnuSaveAs")["enabled"])
        self.assertEqual(drive.end(), ("", "", 0))

    def refuses(self, word, message, **how):
        self.assertEqual(self.run_kestra("drive", word, stdin=b'{"do":"state"}\n', **how), ("", message, 1))

    def test_without_a_control_file_shows_the_top_screen_alone(self):
        drive = self.drive()
        self.assertEqual(drive.line('{"do":"state"}'),
                         '{"ok":true,"value":{"projectDir":"","currentFile":"","fileDirty":false,"fileIsNew":true,'
                         '"fileHasName":false,"bExiting":false,"windowOpen":[false,false,false,false,false,false],'
                         '"numAuxSpillways":0,"curAuxSpillway":0,"totalInstances":"1","lhsSeed":"1",'
                         '"bRandomSample":false,"recentProjects":[],"visible":["frmTopScreen"],'
                         '"titles":{"frmTopScreen":"Kestra B"},"focus":null}}\n')
        self.assertEqual(drive.end(), ("", "", 0))

    def test_opens_the_project_of_a_control_file(self):
        dam = self.make_project("dam")
        self.starts_with(self.at("dam/a.KSC"), self.at("dam/a.KSC"))
        self.starts_with("a.KSC", self.at("dam/a.KSC"), cwd=dam)
        self.starts_with("dam/../dam//./a.KSC", self.at("dam/a.KSC"))

    def test_takes_the_file_into_the_screens(self):
        self.make_project("dam")
        write(self.at("dam/a.KSC"), b"KESTRA    01/01/2009Pond\r\nENDRUN\r\n")
        drive = self.drive("dam/a.KSC")
        self.assertEqual(drive.value("get", screen="frmProjectInformation", control="txtWatershedID")["value"], "Pond")
        self.assertEqual(drive.value("variable", name="controlText"), "KESTRA    01/01/2009Pond\r\nENDRUN\r\n")

    def test_tells_that_the_file_is_not_there_and_opens_its_project(self):
        self.make_project("dam")
        drive = self.drive("dam/a.KSC")
        self.assertEqual(drive.state("currentFile"), self.at("dam/a.KSC"))
        out, err, code = drive.end()
        self.assertEqual((out, code, err.count("\n")), ("", 0, 1), err)
        self.assertIn(self.at("dam/a.KSC"), err)

    def test_takes_a_control_file_in_quotes(self):
        self.make_project("two words")
        self.starts_with(f'"{self.at("two words/a b.KSC")}"', self.at("two words/a b.KSC"))
        self.starts_with('"two words/a b.KSC"', self.at("two words/a b.KSC"))

    def test_ignores_a_single_character(self):
        for word in ("a", "/", '"', ""):
            drive = self.drive(word)
            self.assertEqual(drive.state("projectDir"), "")
            self.assertEqual(drive.end(), ("", "", 0))

    def test_ends_where_the_control_file_stands_in_no_project(self):
        write(self.at("plain/a.KSC"))
        os.makedirs(self.at("odd/owner"))
        for word in (self.at("plain/a.KSC"), "plain/a.KSC", "nowhere/a.KSC", "ab", '""', '"a', "plain/a.KSC/b",
                     "odd/a.KSC"):
            self.refuses(word, NO_PROJECT)
        self.assertFalse(os.path.exists(self.settings))

    def test_ends_where_the_project_cannot_be_entered(self):
        self.make_project("dam")
        self.let_nobody_in("dam")
        os.chmod(self.at("dam"), 0)
        self.refuses(self.at("dam/a.KSC"), "Open Project: Unable to open project directory!\n", before=as_nobody)

    def test_finds_the_flag_file_in_any_case(self):
        write(self.at("dam/OWNER"))
        self.starts_with("dam/a.KSC", self.at("dam/a.KSC"))

    def test_enters_a_project_behind_a_link(self):
        write(self.at("dam/owner"))
        os.symlink("dam", self.at("link"))
        self.starts_with("link/a.KSC", self.at("link/a.KSC"))


if __name__ == "__main__":
    unittest.main()
