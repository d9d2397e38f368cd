"""The commands on control files, as scripts give them: questions, titles, flags and what then stands on the disk."""

import os
import unittest

from program import DONE, Flow, done, question, text_of, warning, write

POND = b"KESTRA    01/01/2009Pond\r\nENDRUN\r\n"
OPEN_FILTER = "All Files(*.*)|*.*|Kestra KSC Files Only|*.KSC"
SAVE_FILTER = "All Files (*.*)|*.*|KSC Files (*.KSC)|*.KSC"


def opened(title, answer):
    return {"kind": "open", "title": title, "filter": OPEN_FILTER, "filterIndex": 2, "default": "", "answer": answer}


def saved(default, answer):
    return {"kind": "save", "title": "Save File", "filter": SAVE_FILTER, "filterIndex": 2, "default": default,
            "answer": answer}


def cancellable(title, text, answer):
    return {"title": title, "text": text, "icon": "question", "buttons": ["Yes", "No", "Cancel"], "answer": answer}


class Files(Flow):
    def setUp(self):
        super().setUp()
        self.make_project("dam")
        self.running = self.drive()
        self.running.open(self.at("dam"))

    def click(self, control, *answers):
        return self.running.click("frmKestra", control, *answers)

    def edit(self, title):
        self.assertEqual(self.running.ask("set", screen="frmProjectInformation", control="txtWatershedID", value=title),
                         DONE)

    def type_and_save(self, title, name):
        self.assertEqual(self.click("mnuNew"), DONE)
        self.edit(title)
        self.assertNotIn("boxes", self.click("mnuSaveAs", {"file": name}))

    def title(self):
        return self.running.value("get", screen="frmProjectInformation", control="txtWatershedID")["value"]

    def flags(self):
        state = self.running.value("state")
        return state["currentFile"], state["fileDirty"], state["fileIsNew"], state["fileHasName"]

    def window(self):
        return self.running.state("titles")["frmKestra"]


class NewOpenSave(Files):
    def test_a_new_file_is_typed_saved_closed_and_opened_again(self):
        path = self.at("dam/pond.KSC")
        self.assertEqual(self.click("mnuNew"), DONE)
        self.assertEqual(self.flags(), ("", False, True, False))
        self.assertEqual(self.window(), "Kestra B - Input Interface (New File)")
        self.edit("Pond")
        self.assertEqual(self.flags(), ("", True, True, False))
        self.assertEqual(self.click("mnuSaveAs", {"file": path}),
                         done(dialogs=[saved("Kestra.KSC", {"file": path})]))
        self.assertEqual(self.flags(), (path, False, False, True))
        self.assertEqual(self.window(), f"Kestra B [ {path} ]")
        self.assertTrue(text_of(path).startswith(b"KESTRA    01/01/2009Pond\r\n"))
        self.assertEqual(self.click("mnuNew"), DONE)
        self.assertEqual(self.title(), "")
        self.assertEqual(self.click("mnuOpen", {"file": path}), done(dialogs=[opened("Open", {"file": path})]))
        self.assertEqual(self.title(), "Pond")
        self.assertEqual(self.flags(), (path, False, False, True))
        self.assertEqual(self.window(), f"Kestra B ( {path} )")
        self.assertTrue(self.running.value("get", screen="frmKestra", control="mnuSaveAs")["enabled"])

    def test_a_file_outside_the_project_is_refused_and_nothing_is_loaded(self):
        write(self.at("far.KSC"), POND)
        self.type_and_save("Typed", "typed.KSC")
        path = self.at("far.KSC")
        told = warning("Warning", "First, you must import the file into the current QUIL project directory.")
        self.assertEqual(self.click("mnuOpen", {"file": path}),
                         done(boxes=[told], dialogs=[opened("Open", {"file": path})]))
        self.assertEqual(self.title(), "Typed")

    def test_an_underscore_is_refused_in_the_name_and_in_its_directory(self):
        os.mkdir(self.at("dam/a_b"))
        told = {**warning("Save As...", "Filenames cannot contain an underscore, _ , please enter a different "
                          "filename."), "icon": "critical"}
        self.click("mnuNew")
        answers = [{"file": "a_b.KSC"}, {"file": self.at("dam/a_b/c.KSC")}, {"cancel": True}]
        self.assertEqual(self.click("mnuSaveAs", *answers),
                         done(boxes=[told, told], dialogs=[saved("Kestra.KSC", answer) for answer in answers]))
        self.assertEqual(self.names_in("dam"), ["SUMMARY.IDE", "a_b", "owner"])
        self.assertEqual(self.names_in("dam/a_b"), [])

    def test_a_file_that_another_program_has_changed_is_not_replaced_unasked(self):
        path = self.at("dam/pond.KSC")
        write(path, POND)
        self.click("mnuOpen", {"file": path})
        write(path, b"by hand")
        replace = question("Save As...", f"The file {path} already exists. Do you want to replace it?", "Yes")
        changed = question("Save As...", f"Another program has changed the file {path} since it was opened here. Do "
                           "you want to replace it?", "No")
        self.assertEqual(self.click("mnuSaveAs", {"file": path}, "Yes", "No")["boxes"], [replace, changed])
        self.assertEqual(text_of(path), b"by hand")

    def test_exit_stays_on_cancel_and_saves_on_yes(self):
        self.edit("Pond")
        text = "Do you want to save changes to the current file before exiting?"
        self.assertEqual(self.click("mnuExit"), done(boxes=[cancellable("Warning", text, "Cancel")], unanswered=1))
        self.assertEqual(self.title(), "Pond")
        self.assertEqual(self.running.state("projectDir"), self.at("dam"))
        self.assertEqual(self.click("mnuExit", "Yes", {"file": "pond.KSC"})["boxes"],
                         [cancellable("Warning", text, "Yes")])
        self.assertEqual(self.running.state("visible"), ["frmTopScreen"])
        self.assertTrue(text_of(self.at("dam/pond.KSC")).startswith(b"KESTRA    01/01/2009Pond\r\n"))

    def test_a_file_that_cannot_be_taken_in_clears_nothing(self):
        self.type_and_save("Typed", "typed.KSC")
        write(self.at("dam/long.KSC"), b"KESTRA\r\n" + b"x" * 65537)
        answer = self.click("mnuOpen", {"file": "long.KSC"})
        self.assertEqual([box["title"] for box in answer["boxes"]], ["Error Message"])
        self.assertEqual(self.title(), "Typed")
        self.assertEqual(self.flags(), (self.at("dam/typed.KSC"), False, False, True))


class Import(Files):
    def test_copies_files_into_the_project_and_links_spillway_runs_to_the_copy(self):
        link = b"KESTRA    1         "
        write(self.at("src/a.KSC"), POND + link + b"/far/a.OUT\nENDRUN\n")
        write(self.at("src/b.KSC"), b"OPTION\n")
        files = {"files": [self.at("src/a.KSC"), self.at("src/b.KSC")]}
        self.assertEqual(self.click("mnuImport", files),
                         done(boxes=[warning("Error Message", "Invalid Import File")],
                              dialogs=[opened("Import File", files)]))
        self.assertEqual(text_of(self.at("dam/a.KSC")),
                         POND + link + self.at("dam/a.OUT").encode() + b"\r\nENDRUN\r\n")
        self.assertEqual(self.names_in("dam"), ["SUMMARY.IDE", "a.KSC", "owner"])

    def test_replaces_a_file_with_its_results_on_yes(self):
        for name in ("a.KSC", "a.OUT", "a1_0.V2D", "a/a1_0.DG1", "ab.KSC", "ab.OUT"):
            write(self.at("dam", name), b"old")
        write(self.at("src/a.KSC"), POND)
        asked = "The file a.KSC already exists. Do you want to replace it?"
        self.assertEqual(self.click("mnuImport", {"file": self.at("src/a.KSC")}, "No")["boxes"],
                         [question("Import Files", asked, "No")])
        self.assertEqual(text_of(self.at("dam/a.KSC")), b"old")
        self.assertEqual(self.click("mnuImport", {"file": self.at("src/a.KSC")}, "Yes")["boxes"],
                         [question("Import Files", asked, "Yes")])
        self.assertEqual(text_of(self.at("dam/a.KSC")), POND)
        self.assertEqual(self.names_in("dam"), ["SUMMARY.IDE", "a.KSC", "ab.KSC", "ab.OUT", "owner"])


class Convert(Files):
    def test_writes_every_file_anew(self):
        write(self.at("dam/pond.KSC"), POND)
        self.assertEqual(self.click("mnuConvertAll"), DONE)
        self.assertEqual(text_of(self.at("dam/New/pondP.v2c")), POND)
        self.assertEqual(self.window(), f"KESTRA B ( Converting {self.at('dam/pond.KSC')} )")


class JobTexts(Files):
    def test_are_taken_apart(self):
        parts = ["SAVMOV    0\r\nfirst\r\n", "SAVMOV    31\r\nsecond\r\n"]
        answer = self.running.value("call", name="frmOutput.GenerateTopoGraph",
                                    args=["QUIL      01/01/2009Job\r\n" + "".join(parts), 0])
        self.assertEqual(answer, "")
        self.assertEqual(self.title(), "Job")
        for index, part in enumerate(parts):
            self.assertEqual(self.running.value("variable", name=f"auxRunText({index})"), part)
        pop = [self.running.value("call", name="frmOutput.Pop", args=[]) for _ in range(3)]
        self.assertEqual(pop, [{"value": 31, "flag": True}, {"value": 0, "flag": True}, {"value": 0, "flag": False}])

    def test_numbers_are_pushed_up_to_a_hundred(self):
        for number in range(100):
            self.assertTrue(self.running.value("call", name="frmOutput.Push", args=[number]))
        self.assertFalse(self.running.value("call", name="frmOutput.Push", args=[100]))
        self.assertEqual(self.running.ask("call", name="frmOutput.Push", args=[40000])["ok"], False)


if __name__ == "__main__":
    unittest.main()
