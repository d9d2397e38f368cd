"""Projects that scripts make, open and delete: every message word for word."""

import os
import resource
import unittest

from program import DONE, Flow, as_nobody, done, question, text_of, warning, write

NEW = "New Project"
OPEN = "Open Project"
DELETE = "Delete Project"


def boxes(title, *texts):
    return done(boxes=[warning(title, text) for text in texts])


def sure(name, answer):
    return question(DELETE, f"Do you really want to remove the QUIL project {name} ?", answer)


NO_PROJECT = boxes(OPEN, "This is not a valid QUIL project directory!")
NOT_DELETED = boxes(DELETE, "This is not a valid project directory!")


class NewProject(Flow):
    def test_makes_the_project_and_shows_the_input_window(self):
        drive = self.drive()
        self.assertEqual(drive.new(self.base, "my dam"), DONE)
        dam = self.at("my dam")
        self.assertEqual(drive.value("state"), {
            "projectDir": dam, "currentFile": "", "fileDirty": False, "fileIsNew": False, "fileHasName": False,
            "bExiting": False, "windowOpen": [True] + [False] * 5, "numAuxSpillways": 0, "curAuxSpillway": 0,
            "totalInstances": "1", "lhsSeed": "1", "bRandomSample": False, "recentProjects": [dam],
            "visible": ["frmKestra", "frmTopScreen"],
            "titles": {"frmTopScreen": f"Kestra B [ Project  {dam}]", "frmKestra": "Kestra B - Input Interface"},
            "focus": None})
        for command in ("mnuNew", "mnuOpen", "mnuImport", "mnuBuildFile", "mnuRebuildAll", "mnuSpecifySum"):
            self.assertTrue(drive.value("get", screen="frmKestra", control=command)["enabled"], command)
        self.assertFalse(drive.value("get", screen="frmKestra", control="mnuSaveAs")["enabled"])
        self.assertEqual(os.readlink(f"/proc/{drive.process.pid}/cwd"), dam)
        self.assertEqual(self.names_in("my dam"), ["SUMMARY.IDE", "owner"])

    def test_refuses_a_nested_and_an_existing_one_and_stays_on_the_screen(self):
        self.make_project("dam")
        os.mkdir(self.at("taken"))
        drive = self.drive()
        self.assertEqual(drive.new(self.at("dam"), "inner"),
                         boxes(NEW, "QUIL project directories cannot be nested!"))
        self.assertEqual(drive.state("visible"), ["frmNewProject", "frmTopScreen"])
        for name in ("taken", "", "dam", "./taken", "taken/"):
            self.assertEqual(drive.new(self.base, name),
                             boxes(NEW, "Project directory already exists, please try another name."), name)
        self.assertEqual(drive.state("projectDir"), "")
        self.assertEqual(drive.click("frmNewProject", "cmdCancel"), DONE)
        self.assertEqual(drive.state("visible"), ["frmTopScreen"])

    def test_refuses_a_name_that_leads_into_a_project(self):
        self.make_project("dam")
        drive = self.drive()
        self.assertEqual(drive.new(self.base, "dam/inner"), boxes(NEW, "QUIL project directories cannot be nested!"))

    def test_is_not_chosen_in_a_directory_that_is_not_there(self):
        write(self.at("file"))
        drive = self.drive()
        drive.click("frmTopScreen", "mnuNewProject")
        for place in ("nowhere", "file"):
            self.assertEqual(
                drive.ask("set", screen="frmNewProject", control="dirList", value=self.at(place)),
                {"ok": False, "error": f"frmNewProject.dirList cannot choose {self.at(place)}: no such directory"})
        self.assertEqual(drive.value("get", screen="frmNewProject", control="dirList")["value"], self.base)

    def test_says_why_the_directory_cannot_be_made(self):
        drive = self.drive()
        for name, why in (("none/dam", "No such file or directory"), ("x" * 256, "File name too long"),
                          ("a\0b", "The name holds a zero byte")):
            self.assertEqual(drive.new(self.base, name),
                             boxes(NEW, f"Unable to make the project directory {self.at(name)}: {why}"))

    def test_leaves_nothing_on_a_disk_without_room_and_goes_on(self):
        def no_bytes():
            resource.setrlimit(resource.RLIMIT_FSIZE, (0, resource.RLIM_INFINITY))

        drive = self.drive(before=no_bytes)
        self.assertEqual(drive.new(self.base, "dam"),
                         boxes(NEW, f"Unable to make the project directory {self.at('dam')}: File too large"))
        self.assertEqual(self.names_in(), [])
        resource.prlimit(drive.process.pid, resource.RLIMIT_FSIZE, (resource.RLIM_INFINITY, resource.RLIM_INFINITY))
        self.assertEqual(drive.click("frmNewProject", "cmdOK"), DONE)
        self.assertEqual(drive.state("projectDir"), self.at("dam"))

    def test_is_refused_where_nothing_may_be_written(self):
        os.mkdir(self.at("closed"), 0o555)
        self.let_nobody_in()
        drive = self.drive(before=as_nobody)
        self.assertEqual(drive.new(self.at("closed"), "dam"),
                         boxes(NEW, f"Unable to make the project directory {self.at('closed/dam')}: Permission denied"))


class OpenProject(Flow):
    def test_opens_it_in_place_of_the_open_one(self):
        for name in ("a", "b"):
            self.make_project(name)
        drive = self.drive()
        for name in ("a", "b"):
            self.assertEqual(drive.open(self.at(name)), DONE)
            state = drive.value("state")
            self.assertEqual(state["projectDir"], self.at(name))
            self.assertEqual(state["titles"], {"frmTopScreen": f"Kestra B [Project  {self.at(name)}]",
                                               "frmKestra": "Kestra B - Input Interface"})
            self.assertEqual(os.readlink(f"/proc/{drive.process.pid}/cwd"), self.at(name))
        self.assertEqual(drive.state("recentProjects"), [self.at("b"), self.at("a")])

    def test_refuses_what_is_no_project_and_the_open_one(self):
        self.make_project("dam")
        os.makedirs(self.at("odd/owner"))
        os.symlink("dam", self.at("link"))
        drive = self.drive()
        for place in (self.base, self.at("odd")):
            self.assertEqual(drive.open(place), NO_PROJECT)
            self.assertEqual(drive.state("visible"), ["frmOpenProject", "frmTopScreen"])
        self.assertEqual(drive.open(self.at("dam")), DONE)
        for place in ("dam", "link"):
            self.assertEqual(drive.open(self.at(place)), boxes(OPEN, "This project is already open."))

    def test_opens_what_has_any_owner_file(self):
        for name, content in (("empty", b""), ("other", b"x\r\nSOMEBODY\r\n"), ("bytes", b"\0\xff\n" * 1000)):
            write(self.at(name, "owner"), content)
            self.assertEqual(self.drive().open(self.at(name)), DONE)

    def test_refuses_a_directory_that_may_not_be_entered(self):
        self.make_project("dam")
        self.let_nobody_in("dam")
        drive = self.drive(before=as_nobody)
        drive.choose("OpenProject", self.at("dam"))
        os.chmod(self.at("dam"), 0)
        self.assertEqual(drive.click("frmOpenProject", "cmdOK"), boxes(OPEN, "Unable to open project directory!"))
        os.chmod(self.at("dam"), 0o755)
        self.assertEqual(drive.click("frmOpenProject", "cmdOK"), DONE)

    def test_may_look_at_a_project_that_may_not_be_written(self):
        self.make_project("dam")
        self.let_nobody_in()
        drive = self.drive(before=as_nobody)
        self.assertEqual(drive.open(self.at("dam")), DONE)
        self.assertEqual(drive.state("projectDir"), self.at("dam"))


class RecentProject(Flow):
    def open_recent(self, drive, number):
        return drive.click("frmTopScreen", f"mnuRecentProject({number})")

    def test_opens_from_the_list_and_moves_to_its_top(self):
        for name in ("a", "b"):
            self.make_project(name)
        drive = self.drive()
        self.assertEqual(self.open_recent(drive, 2), DONE)
        self.assertEqual(drive.state("projectDir"), self.at("a"))
        self.assertEqual(drive.state("recentProjects"), [self.at("a"), self.at("b")])
        self.assertEqual(drive.value("get", screen="frmTopScreen", control="mnuRecentProject(1)"),
                         {"kind": "menu", "value": None, "caption": f"&1 {self.at('a')}", "visible": True,
                          "enabled": True, "checked": False})
        self.assertEqual(self.open_recent(drive, 1), boxes(OPEN, "This project is already open."))
        self.assertEqual(drive.state("recentProjects"), [self.at("a"), self.at("b")])

    def test_that_is_gone_is_taken_off_the_list(self):
        self.make_project("a")
        b = self.make_project("b")
        os.chmod(self.at("b/owner"), 0o644)
        os.remove(self.at("b/owner"))
        drive = self.drive()
        self.assertEqual(self.open_recent(drive, 1), boxes(OPEN, "This is not a valid Kestra B project directory!"))
        self.assertEqual(drive.state("recentProjects"), [self.at("a")])
        os.remove(os.path.join(b, "SUMMARY.IDE"))
        os.rmdir(b)
        self.assertEqual(self.open_recent(drive, 2),
                         {"ok": False, "error": "frmTopScreen.mnuRecentProject(2) is hidden"})

    def test_that_cannot_be_entered_is_taken_off_the_list(self):
        self.make_project("dam")
        self.let_nobody_in("dam")
        drive = self.drive(before=as_nobody)
        os.chmod(self.at("dam"), 0)
        self.assertEqual(self.open_recent(drive, 1), boxes(OPEN, "Unable to open project directory!"))
        self.assertEqual(drive.state("recentProjects"), [])

    def test_eleventh_drops_the_oldest(self):
        names = [f"p{number}" for number in range(11)]
        for name in names:
            self.make_project(name)
        self.assertEqual(self.drive().state("recentProjects"), [self.at(name) for name in names[:0:-1]])


class DeleteProject(Flow):
    def test_asks_and_removes_all(self):
        self.make_project("dam")
        write(self.at("dam/run/a.DG1"), b"x")
        write(self.at("outside/kept"), b"x")
        os.symlink(self.at("outside"), self.at("dam/link"))
        drive = self.drive()
        drive.open(self.at("dam"))
        self.assertEqual(drive.delete(self.at("dam"), "No"), done(boxes=[sure("dam", "No")]))
        self.assertEqual(drive.delete(self.at("dam")), done(boxes=[sure("dam", "No")], unanswered=1))
        self.assertEqual(self.names_in("dam"), ["SUMMARY.IDE", "link", "owner", "run"])
        self.assertEqual(drive.delete(self.at("dam"), "Yes"), done(boxes=[sure("dam", "Yes")]))
        self.assertFalse(os.path.exists(self.at("dam")))
        self.assertEqual(self.names_in("outside"), ["kept"])
        state = drive.value("state")
        self.assertEqual((state["projectDir"], state["recentProjects"], state["visible"], state["titles"]),
                         ("", [], ["frmTopScreen"], {"frmTopScreen": "Kestra B"}))
        self.assertEqual(os.readlink(f"/proc/{drive.process.pid}/cwd"), os.path.dirname(self.program))
        self.assertEqual(drive.end(), ("", "", 0))

    def test_refuses_what_lacks_the_owners_mark(self):
        for name, content in (("empty", b""), ("one", b"TORVE\r\n"), ("lower", b"x\r\ntorve\r\n"),
                              ("blank", b"x\r\nTORVE \r\n"), ("other", b"x\r\nSOMEBODY\r\n")):
            write(self.at(name, "owner"), content)
            drive = self.drive()
            self.assertEqual(drive.delete(self.at(name), "Yes"), NOT_DELETED)
            self.assertEqual(drive.state("visible"), ["frmDeleteProject", "frmTopScreen"])
            self.assertEqual(self.names_in(name), ["owner"])
        os.makedirs(self.at("odd/owner"))
        self.assertEqual(self.drive().delete(self.at("odd"), "Yes"), NOT_DELETED)

    def test_says_when_not_all_could_be_removed(self):
        os.mkdir(self.at("place"))
        self.make_project("place/dam")
        write(self.at("place/dam/stuck/file"), b"x")
        self.let_nobody_in("place")
        os.chmod(self.at("place/dam/stuck"), 0o555)
        drive = self.drive(before=as_nobody)
        failed = warning(DELETE, "Unable to remove all files in the project directory.")
        self.assertEqual(drive.delete(self.at("place/dam"), "Yes"), done(boxes=[sure("dam", "Yes"), failed]))
        self.assertEqual(self.names_in("place/dam"), ["owner", "stuck"])
        os.chmod(self.at("place/dam/stuck"), 0o755)
        self.assertEqual(drive.click("frmDeleteProject", "cmdOK", "Yes"), done(boxes=[sure("dam", "Yes")]))
        self.assertEqual(self.names_in("place"), [])

    def test_leaves_another_project_open(self):
        for name in ("a", "b"):
            self.make_project(name)
        drive = self.drive()
        drive.open(self.at("a"))
        self.assertEqual(drive.delete(self.at("b"), "Yes"), done(boxes=[sure("b", "Yes")]))
        self.assertEqual(drive.state("projectDir"), self.at("a"))
        self.assertEqual(drive.state("recentProjects"), [self.at("a")])


class VanishedProject(Flow):
    """The open project's directory goes away under the program's feet."""

    def setUp(self):
        super().setUp()
        self.make_project("dam")
        self.running = self.drive()
        self.running.open(self.at("dam"))

    def remove(self):
        for name in ("owner", "SUMMARY.IDE"):
            os.remove(self.at("dam", name))
        os.rmdir(self.at("dam"))

    def test_is_still_the_open_one_until_another_is_opened(self):
        self.make_project("other")
        self.remove()
        self.assertEqual(self.running.state("projectDir"), self.at("dam"))
        self.assertEqual(self.running.open(self.at("other")), DONE)
        self.assertEqual(self.running.state("projectDir"), self.at("other"))
        self.assertEqual(self.running.end(), ("", "", 0))

    def test_is_opened_anew_where_it_was_moved_to(self):
        os.rename(self.at("dam"), self.at("moved"))
        self.assertEqual(self.running.open(self.at("moved")), DONE)
        self.assertEqual(self.running.state("projectDir"), self.at("moved"))

    def test_can_no_longer_be_chosen(self):
        self.remove()
        self.running.click("frmTopScreen", "mnuDeleteProject")
        self.assertEqual(self.running.ask("set", screen="frmDeleteProject", control="dirList", value=self.at("dam")),
                         {"ok": False,
                          "error": f"frmDeleteProject.dirList cannot choose {self.at('dam')}: no such directory"})

    def test_that_was_chosen_before_is_no_longer_a_project(self):
        self.running.choose("DeleteProject", self.at("dam"))
        self.remove()
        self.assertEqual(self.running.click("frmDeleteProject", "cmdOK", "Yes"), NOT_DELETED)

    def test_can_be_made_again(self):
        self.remove()
        self.assertEqual(self.running.new(self.base, "dam"), DONE)
        self.assertEqual(self.names_in("dam"), ["SUMMARY.IDE", "owner"])

    def test_does_not_keep_the_program_from_ending(self):
        self.remove()
        self.assertEqual(self.running.click("frmTopScreen", "mnuExit"), DONE)
        self.assertEqual(self.running.end(), ("", "", 0))
        self.assertEqual(text_of(self.settings),
                         f"[ProjectHistory]\r\nn=1\r\n1Project={self.at('dam')}\r\n".encode())


if __name__ == "__main__":
    unittest.main()
