"""Graphs of a finished run: by requests, control by control, and by `kestra graph`."""

import os
import unittest

from program import DONE, Flow, done, text_of, write

PICTURES = os.environ.get("KESTRA_PICTURES") == "ON"
BEGINNINGS = {"png": b"\x89PNG", "svg": b"<?xml", "pdf": b"%PDF-", "bmp": b"BM"}


def row(*values):
    return "".join(f"{value:10.2f}" for value in values) + "\n"


ROUTING = ("Hydrograph Routing\n\n\n\n(hr)\n ---\n"
           + row(0, 0, 0, 0, 0, 0, 0, 0, 1016, 1016, 1000)
           + row(1, 137, 40, 10, 0, 0, 5, 55, 1024.5, 1024.5, 1002)
           + row(2, 20, 30, 5, 0, 0, 0, 35, 1022, 1022, 1001) + "\n")


class Graphs(Flow):
    def setUp(self):
        super().setUp()
        self.run_dir = self.at("run")
        write(self.at("run/dam.KSC"), b"KESTRA    01/01/2009Larkmoor\r\n")
        write(self.at("run/dam.OUT"), ROUTING.encode())

    def opened(self):
        drive = self.drive()
        self.assertEqual(drive.ask("call", name="frmOutputGraph.OpenFile", args=[self.at("run/dam.KSC")]), DONE)
        return drive

    def texts(self, drive, number):
        calls = drive.value("canvas", screen="frmOutputGraph", control=f"Pic1({number})")
        return [call[3] for call in calls if call[0] == "Print"]

    def window(self, drive, number):
        return [drive.value("variable", name=f"Saved{end}")[number] for end in ("Xmin", "Xmax", "Ymin", "Ymax")]

    def test_are_drawn_call_by_call(self):
        drive = self.opened()
        self.assertEqual(drive.state("titles")["frmOutputGraph"], f"Graphics [ {self.at('run/dam.KSC')} ]")
        self.assertEqual(drive.state("windowOpen"), [False, False, True, False, False, False])
        calls = drive.value("canvas", screen="frmOutputGraph", control="Pic1(0)")
        self.assertEqual(calls[0], ["Visible", True])
        self.assertEqual(self.texts(drive, 0)[0], "Hydrographs")
        self.assertEqual(self.texts(drive, 0)[-1], "FILE = dam.KSC,  PROJECT ID = Larkmoor")
        self.assertEqual(self.window(drive, 0), [0, 2, 0, 140])
        self.assertEqual(drive.value("variable", name="SeriesCount"), 7)
        self.assertEqual(drive.value("variable", name="PlotY")[0], [0, 137, 20])
        # The last window is that of the data, so that the mouse comes in their units.
        scale = drive.value("get", screen="frmOutputGraph", control="Pic1(0)")["scale"]
        for got, wanted in zip(scale, [-0.48, -140 / 9.5, 2.4, 190.4]):
            self.assertAlmostEqual(got, wanted)

    def test_follow_the_mouse(self):
        drive = self.opened()

        def mouse(event, x, y):
            return drive.ask("mouse", screen="frmOutputGraph", control="Pic1(0)", event=event, button=1, x=x, y=y)

        for event, x, y in (("down", 0.5, 20), ("move", 1.5, 60), ("up", 1.5, 60)):
            self.assertEqual(mouse(event, x, y), DONE)
        self.assertEqual(self.window(drive, 0), [0.4, 1.6, 80, 120])
        self.assertTrue(drive.value("variable", name="BandArmed"))
        self.assertEqual(drive.click("frmOutputGraph", "mnuFrame"), DONE)
        self.assertEqual(self.window(drive, 0), [0, 2, 0, 140])
        self.assertEqual(drive.click("frmOutputGraph", "Toolbar1(Pan)"), DONE)
        self.assertEqual((mouse("down", 2, 70), mouse("up", 2, 70)), (DONE, DONE))
        self.assertEqual(self.window(drive, 0), [1, 3, 0, 140])
        self.assertEqual(drive.ask("type", screen="frmOutputGraph", control="Pic1(0)", keys={"key": "PageUp"}), DONE)
        self.assertEqual(drive.state("focus"), {"screen": "frmOutputGraph", "control": "Pic1(21)"})
        self.assertEqual(self.texts(drive, 21), ["Tailwater Rating Graph Not Available"])

    def test_have_the_users_colours_which_are_kept(self):
        drive = self.opened()
        self.assertEqual(drive.ask("dblclick", screen="frmOutputGraph", control="Pic1(0)"), DONE)
        self.assertEqual(drive.state("visible")[0], "frmUpdateColors")
        drive.ask("mouse", screen="frmUpdateColors", control="LegendPic", event="down", button=1, x=5, y=2.5)
        answer = drive.ask("dblclick", screen="frmUpdateColors", control="LegendPic", answers=[{"color": 4711}])
        self.assertEqual(answer["dialogs"][0]["answer"], {"color": 4711})
        self.assertEqual(drive.click("frmUpdateColors", "mnuExit"), DONE)
        calls = drive.value("canvas", screen="frmOutputGraph", control="Pic1(0)")
        self.assertIn(["ForeColor", 4711], calls)
        drive.end()
        self.assertEqual(self.drive().value("variable", name="ColorList(2)"), 4711)

    def test_have_colours_and_lines_that_the_input_window_leads_to(self):
        drive = self.drive()
        self.assertEqual(drive.ask("activate", screen="frmKestra"), DONE)
        for command, screen in (("mnuColors", "frmUpdateColors"), ("mnuSpecifyLines", "frmUpdateLines")):
            menu = drive.value("get", screen="frmKestra", control=command)
            self.assertEqual((menu["visible"], menu["enabled"]), (True, True))
            self.assertEqual(drive.click("frmKestra", command), DONE)
            self.assertEqual(drive.state("visible")[0], screen)
            if screen == "frmUpdateLines":
                self.assertEqual(drive.ask("set", screen=screen, control="styleCombo(3)", value="Dot"), DONE)
                self.assertEqual(drive.ask("set", screen=screen, control="widthCombo(13)", value="4"), DONE)
            self.assertEqual(drive.click(screen, "mnuExit"), DONE)
            self.assertEqual(drive.state("visible")[0], "frmKestra")
        drive.end()
        self.assertEqual(text_of(self.settings).decode().split()[:4], ["[ComboList]", "3=2", "[WidthList]", "13=4"])
        drive = self.drive()
        self.assertEqual(drive.value("variable", name="ComboList"), [0, 0, 0, 2] + 10 * [0])
        self.assertEqual(drive.value("variable", name="WidthList"), [0, 2, 2, 2, 2, 2, 2, 1, 2, 2, 2, 1, 1, 4])

    def test_are_on_show_again_when_the_colours_are_closed_by_the_frame(self):
        drive = self.opened()
        self.assertEqual(drive.ask("dblclick", screen="frmOutputGraph", control="Pic1(0)"), DONE)
        self.assertEqual(drive.ask("close", screen="frmUpdateColors")["ok"], True)
        self.assertEqual(drive.state("visible")[0], "frmOutputGraph")

    def test_are_saved_copied_and_printed_or_the_reason_is_told(self):
        drive = self.opened()
        box = {"title": "Printer Error", "text": "Unable to print graph, check printer.", "icon": "warning",
               "buttons": ["OK"], "answer": "OK"}
        if not os.path.exists("/usr/bin/lp"):
            answer = drive.click("frmOutputGraph", "mnuPrint", {"print": True})
            self.assertEqual(answer["boxes"], [box])
        if not PICTURES:
            return
        answer = drive.click("frmOutputGraph", "mnuSaveAs", {"file": self.at("a.bmp")})
        self.assertNotIn("boxes", answer)
        self.assertEqual(text_of(self.at("a.bmp"))[:2], b"BM")
        self.assertEqual(drive.click("frmOutputGraph", "mnuCopyToClipboard"), DONE)
        answer = drive.click("frmOutputGraph", "mnuSaveAs", {"file": self.at("none/a.bmp")})
        self.assertEqual([b["text"] for b in answer["boxes"]], [self.at("none") + ": No such file or directory"])

    def test_are_made_into_pictures(self):
        drive = self.opened()
        for form, beginning in BEGINNINGS.items():
            file = self.at("a." + form)
            answer = drive.ask("image", screen="frmOutputGraph", control="Pic1(0)", file=file, width=60, height=40)
            if PICTURES:
                self.assertEqual(answer, DONE)
                self.assertTrue(text_of(file).startswith(beginning), form)
            else:
                self.assertEqual(answer["error"], "this program was built without the picture renderer")
                self.assertFalse(os.path.exists(file))

    def test_are_drawn_by_a_command(self):
        for form in ("png", "svg", "pdf"):
            out, err, code = self.run_kestra("graph", "run/dam.KSC", "--graph", "0", "-o", "g." + form)
            if PICTURES:
                self.assertEqual((out, err, code), ("", "", 0))
                self.assertTrue(text_of(self.at("g." + form)).startswith(BEGINNINGS[form]))
            else:
                self.assertEqual((err, code), ("kestra: this program was built without the picture renderer\n", 1))
        out, err, code = self.run_kestra("graph", "run/dam.KSC", "--graph", "20", "--format", "csv", "-o", "-")
        self.assertEqual((out, err, code),
                         ("Time (hr),Tailwater: Elevation (ft)\r\n0,1000\r\n1,1002\r\n2,1001\r\n", "", 0))

    def test_leave_an_old_table_where_the_new_one_cannot_be_written(self):
        write(self.at("old.csv"), b"old")
        os.chmod(self.at("old.csv"), 0o444)
        out, err, code = self.run_kestra("graph", "run/dam.KSC", "--graph", "20", "-o", "old.csv")
        self.assertEqual((out, err, code), ("", "kestra: old.csv: The file is read-only\n", 1))
        self.assertEqual(text_of(self.at("old.csv")), b"old")

    def test_come_through_a_file_of_a_million_rows(self):
        line = row(1, 10, 1, 1, 1, 1, 1, 1, 1016, 1016, 1000).encode()
        write(self.at("run/dam.OUT"), ROUTING.split("   0.00")[0].rstrip(" ").encode() + line * 1_000_000)
        out, err, code = self.run_kestra("graph", "run/dam.KSC", "--graph", "20", "--format", "csv", "-o", "-")
        self.assertEqual((out.count("\r\n"), err, code), (20001, "", 0))

    def test_have_the_routines_of_the_mouse_as_operations(self):
        drive = self.opened()
        for name, *place in (("Down", 0.5, 20), ("Move", 1.5, 60), ("Up", 1.5, 60)):
            self.assertEqual(drive.ask("call", name="GenericMouse" + name, args=[1, *place, 0]), DONE)
        self.assertEqual(self.window(drive, 0), [0.4, 1.6, 80, 120])
        self.assertEqual(drive.click("frmOutputGraph", "mnuPointer"), DONE)
        self.assertEqual(drive.ask("call", name="GenericMouseDownA", args=[1, 1.5, 60, 17]), DONE)
        self.assertTrue(drive.value("get", screen="frmOutputGraph", control="txtLabelA(17)")["visible"])
        self.assertEqual(drive.ask("call", name="GenericMouseUpA", args=[1, 1.5, 60, 17]), DONE)
        self.assertFalse(drive.value("get", screen="frmOutputGraph", control="txtLabelA(17)")["visible"])
        for name, number in (("GenericMouseMove", 22), ("GenericMouseMoveA", 0)):
            self.assertEqual(drive.ask("call", name=name, args=[1, 1.5, 60, number]),
                             {"ok": False, "error": "subscript out of range"})
        for name, args in (("SetMouse", [12]), ("ClearBrush", [])):
            self.assertEqual(drive.ask("call", name=name, args=args), DONE)

    def test_scale_and_clip_as_operations(self):
        drive = self.drive()
        for given, wanted in (([0, 137, 0, 1000], [20, 200, 0, 140, 0, 1000]), ([-6, 5, -6, 5], [2, 2, -6, 6, -8, 6])):
            value = drive.value("call", name="Scaling", args=["frmOutputGraph", *given])
            self.assertEqual(list(value.values()), wanted)
        self.assertEqual(drive.value("call", name="DrawClippedLine", args=[-2, -1, 12, 6, 0, 0, 10, 5, 0]),
                         [["Line", 0, 5, 10, 0]])
        self.assertEqual(drive.ask("call", name="Scaling", args=["frmAbout", 0, 1, 0, 1])["error"],
                         'no graph screen named "frmAbout"')
        self.assertEqual(drive.ask("call", name="ReDrawGraph", args=[22])["error"], "there is no graph 22")
        self.assertEqual(drive.ask("call", name="PickColor", args=[5]),
                         done(dialogs=[{"kind": "color", "title": "", "filter": "", "filterIndex": 0, "default": 5,
                                        "answer": {"cancel": True}}], unanswered=1))


if __name__ == "__main__":
    unittest.main()
