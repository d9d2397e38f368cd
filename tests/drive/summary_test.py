"""The summary of a project: its tables, its graphics and its files, by requests and by `kestra summary`."""

import json
import os
import unittest
import zipfile

from program import DONE, Flow, done, question, text_of, write

TABLE = "frmSummaryTable"
AUX = "frmAuxSummaryTable"
PEAK = "Peak Outflow (cfs)"
STRESS = "Erosionally Effective Stress (lb/ft^2)"
ROWS = [("dam", "Single Instance", "", "150.5", ""), ("dam1_1", "Max.", "", "150.5", "0.2"),
        ("dam1_0", "Min.", "", "150.5", "0.1"), ("dam1_3", "Mean", "", "150.5", "0.4"),
        ("pond", "Single Instance", "", "80", "")]
HEADINGS = ("Name", "Type", "Input", PEAK, STRESS)


def lines_of(texts):
    return "".join(text + "\r\n" for text in texts).encode()


def dam_digest(peak):
    return lines_of(["Larkmoor"] + ["N/A"] * 10 + [peak] + ["N/A"] * 28)


def instance_digest(stress, measure):
    return lines_of(["EAST", stress] + ["N/A"] * 27 + [measure] + ["N/A"] * 5)


def select(row):
    return {"screen": TABLE, "control": "metaSum", "row": row, "column": 1}


class Summary(Flow):
    """Two dams; one of them with four instances of a spillway, whose measures are 2.5, 9, none and 4."""

    def setUp(self):
        super().setUp()
        self.make_project("p")
        names = ["dam", "dam1_0", "dam1_1", "pond", "dam1_2", "dam1_3"]
        write(self.at("p/SUMMARY.IDE"), lines_of(["1", "12", "1", "2"] + [f'"{name}"' for name in names]))
        for name, peak in (("dam", "150.5"), ("pond", "80")):
            write(self.at(f"p/{name}.DIS"), dam_digest(peak))
            write(self.at(f"p/{name}.KSC"), b"KESTRA    01/01/2009\r\n")
            write(self.at(f"p/{name}.OUT"), f"output of {name}\r\n".encode())
        for k, measure in enumerate(["2.5", "9", "N/A", "4"]):
            write(self.at(f"p/dam/dam1_{k}.DIS"), instance_digest(f"0.{k + 1}", measure))
            write(self.at(f"p/dam/dam1_{k}.OUT"), f"output of {k}\r\n".encode())
        write(self.settings, b"[SummaryFields]\nsummaryOrder=1\n")

    def opened(self):
        drive = self.drive()
        self.assertEqual(drive.open(self.at("p")), DONE)
        self.assertEqual(drive.ask("activate", screen=TABLE), DONE)
        return drive

    def cells(self, drive, grid, screen=TABLE):
        return drive.value("cells", screen=screen, control=grid)

    def summary(self, *words):
        return self.run_kestra("summary", "--project", self.at("p"), *words)


class Tables(Summary):
    def test_show_a_run_of_many_instances_in_three_rows(self):
        drive = self.opened()
        self.assertEqual(self.cells(drive, "metaSum"), [list(row[:3]) for row in [HEADINGS, *ROWS]])
        self.assertEqual(self.cells(drive, "damSum"), [[row[0], row[3]] for row in [HEADINGS, *ROWS]])
        self.assertEqual(self.cells(drive, "sumTable"), [[row[0], row[4]] for row in [HEADINGS, *ROWS]])
        self.assertEqual(drive.value("variable", name="shownNames"), [row[0] for row in ROWS])
        self.assertEqual(drive.value("variable", name="shownIsCondensed"), [False, True, True, True, False])
        self.assertEqual([values[54] for values in drive.value("variable", name="shownValues")],
                         ["", "9", "2.5", "4", ""])
        self.assertEqual(drive.state("windowOpen"), [True, True, False, False, False, False])

    def test_give_the_entries_that_they_are_asked_for(self):
        drive = self.opened()
        self.assertEqual(drive.value("variable", name="entryNames"),
                         ["dam", "dam1_0", "dam1_1", "dam1_2", "dam1_3", "pond"])
        for find, entry in (("FindMaxFile", 3), ("FindMinFile", 2), ("FindMeanFile", 5)):
            self.assertEqual(drive.value("call", name=find, args=[2, 5]), entry, find)
            answer = drive.ask("call", name=find, args=[2, 7])
            self.assertEqual(answer, {"ok": False, "error": "subscript out of range"})
        self.assertEqual(drive.ask("call", name="UpdateEntryArray", args=[1, 6]), DONE)
        self.assertEqual(drive.value("variable", name="entryNames")[::5], ["pond", "dam"])
        self.assertEqual(drive.ask("call", name="ModifyEntryArray", args=[2, 7]),
                         {"ok": False, "error": "subscript out of range"})
        self.assertEqual(drive.ask("call", name="UpdateEntryArray", args=[6, 1]), DONE)
        self.assertEqual(drive.ask("call", name="ModifyEntryArray", args=[2, 3]), DONE)
        self.assertEqual(drive.ask("call", name="frmSummaryTable.ModifyTable", args=[6]), DONE)
        self.assertEqual(self.cells(drive, "metaSum"), [list(row[:3]) for row in [HEADINGS, *ROWS]])

    def test_show_every_instance_of_a_run_and_of_a_spillway(self):
        drive = self.opened()
        drive.ask("cursor", **select(3))
        self.assertEqual(drive.click(TABLE, "cmdViewAll"), DONE)
        self.assertEqual(drive.value("get", screen=TABLE, control="lbl_Header")["caption"],
                         "Summary Table - One Run - All Instances")
        self.assertEqual(drive.value("variable", name="allInstancesCount"), 4)
        every = [["Name", STRESS]] + [[f"dam1_{k}", f"0.{k + 1}"] for k in range(4)]
        self.assertEqual(self.cells(drive, "sumTable"), every)
        self.assertEqual(drive.click(TABLE, "cmdViewDam"), DONE)
        self.assertEqual(len(self.cells(drive, "sumTable")), 6)
        drive.ask("cursor", **select(1))
        self.assertEqual(drive.click(TABLE, "cmdView(1)"), DONE)
        self.assertEqual(drive.state("visible")[0], AUX)
        self.assertEqual(self.cells(drive, "sumTable", AUX), [every[0], every[2], every[1], every[4]])
        self.assertEqual(drive.click(AUX, "cmdViewAll"), DONE)
        self.assertEqual(self.cells(drive, "sumTable", AUX), every)
        self.assertEqual(drive.click(AUX, "cmdViewDam"), DONE)
        self.assertEqual(drive.state("visible")[0], TABLE)

    def test_lead_to_text_and_graphs(self):
        drive = self.opened()
        drive.ask("cursor", **select(5))
        self.assertEqual(drive.click(TABLE, "cmdText"), DONE)
        self.assertEqual(drive.state("titles")["frmEditor"], f"Text Editor: [ {self.at('p/pond.OUT')} ]")
        self.assertEqual(drive.value("get", screen="frmEditor", control="txtKestraEditor")["value"],
                         "output of pond\r\n")
        drive.ask("cursor", **select(2))
        self.assertEqual(drive.click(TABLE, "mnuText"), DONE)
        self.assertEqual(drive.value("get", screen="frmEditor", control="txtOutEditor")["value"], "output of 1\r\n")
        drive.ask("cursor", **select(5))
        self.assertEqual(drive.click(TABLE, "cmdGraph"), DONE)
        self.assertEqual(drive.state("titles")["frmOutputGraph"], f"Graphics [ {self.at('p/pond.KSC')} ]")
        self.assertEqual(drive.state("windowOpen"), [True, True, True, True, False, False])

    def test_delete_a_run_with_its_files_and_leave_its_input(self):
        drive = self.opened()
        asked = "Do you really want to delete the selected entry and all the corresponding files?"
        drive.ask("cursor", **select(5))
        self.assertEqual(drive.click(TABLE, "cmdDelete", "No"), done(boxes=[question("Delete All", asked, "No")]))
        self.assertTrue(os.path.exists(self.at("p/pond.OUT")))
        self.assertEqual(drive.click(TABLE, "cmdDelete", "Yes"), done(boxes=[question("Delete All", asked, "Yes")]))
        drive.ask("cursor", **select(2))
        drive.click(TABLE, "mnuDelete", "Yes")
        self.assertEqual(self.names_in("p"), ["SUMMARY.IDE", "dam", "dam.DIS", "dam.KSC", "dam.OUT", "owner",
                                              "pond.KSC"])
        self.assertEqual(self.names_in("p/dam"), [])
        self.assertEqual(text_of(self.at("p/SUMMARY.IDE")), lines_of(["1", "12", "1", "2", '"dam"']))
        self.assertEqual(len(self.cells(drive, "metaSum")), 2)

    def test_delete_everything_and_show_it_no_more(self):
        drive = self.opened()
        drive.ask("cursor", **select(5))
        drive.click(TABLE, "cmdText")
        drive.click(TABLE, "cmdGraph")
        drive.ask("call", name="frmSummaryGraphics.ShowScreen", args=[12, 12, False])
        asked = "Do you really want to delete all entries and corresponding output files?"
        self.assertEqual(drive.click(TABLE, "cmdDelAll", "Yes"), done(boxes=[question("Delete All", asked, "Yes")]))
        titles = drive.state("titles")
        self.assertEqual([titles[name] for name in ("frmEditor", "frmOutputGraph", "frmSummaryGraphics")],
                         ["Text Editor: Untitled", "Graphics [ Untitled ]", "Summary Graphics [ No Data ]"])
        self.assertEqual(drive.value("get", screen="frmEditor", control="txtKestraEditor")["value"], "")
        self.assertEqual(self.names_in("p"), ["SUMMARY.IDE", "dam", "dam.KSC", "owner", "pond.KSC"])
        for command in ("cmdDelAll", "cmdDelete", "cmdText", "cmdGraph", "cmdViewAll", "cmdView(1)", "cmdSumGraph"):
            self.assertEqual(drive.click(TABLE, command), DONE, command)

    def test_are_exported_whole_or_not_at_all(self):
        drive = self.opened()
        path = self.at("out.txt")
        write(path, b"old")
        asked = question("Export Summary File", f"The file {path} already exists. Do you want to replace it?", "No")
        answer = drive.click(TABLE, "mnuExport", {"file": path}, "No")
        self.assertEqual(answer["boxes"], [asked])
        self.assertEqual({key: answer["dialogs"][0][key] for key in ("kind", "title", "filter")},
                         {"kind": "save", "title": "Export Summary File",
                          "filter": "All Files (*.*)|*.*|Text Files (*.txt)|*.txt"})
        self.assertEqual(text_of(path), b"old")
        drive.click(TABLE, "mnuExport", {"file": path}, "Yes")
        self.assertEqual(text_of(path), lines_of("\t".join(row) for row in [HEADINGS, *ROWS]))
        answer = drive.click(TABLE, "mnuExport", {"file": ""})
        self.assertEqual([(box["title"], box["text"]) for box in answer["boxes"]],
                         [("Select a File", "No filename is provided")])
        answer = drive.click(TABLE, "mnuExport", {"file": self.at("none/out.txt")})
        self.assertEqual([box["text"] for box in answer["boxes"]], [f"{self.at('none')}: No such file or directory"])

    def test_tell_of_changed_input(self):
        write(self.at("p/.kestra/pond.input"), b"0123456789abcdef\r\n")
        drive = self.opened()
        self.assertEqual([row[2] for row in self.cells(drive, "metaSum")],
                         ["Input", "", "", "", "", "input changed since this run"])


class Graphics(Summary):
    def test_draw_two_chosen_fields_of_all_rows(self):
        drive = self.opened()
        self.assertEqual(drive.click(TABLE, "cmdSumGraph"), DONE)
        fields = drive.value("get", screen="frmSummarySelections", control="lstSumFields")
        self.assertEqual(fields["items"], [PEAK, STRESS])
        self.assertFalse(drive.value("get", screen="frmSummarySelections", control="cmdSumGraph")["enabled"])
        for field, choose in ((STRESS, "cmdChooseX"), (PEAK, "cmdChooseY")):
            drive.ask("set", screen="frmSummarySelections", control="lstSumFields", value=field)
            self.assertEqual(drive.click("frmSummarySelections", choose), DONE)
        self.assertEqual(drive.value("get", screen="frmSummarySelections", control="txtX")["value"], STRESS)
        self.assertEqual(drive.click("frmSummarySelections", "cmdSumGraph"), DONE)
        self.assertEqual(drive.state("visible")[0], "frmSummaryGraphics")
        self.assertEqual(drive.state("titles")["frmSummaryGraphics"], "Summary Graphics [ Scatter Plot ]")
        points = [call[1] for call in drive.value("canvas", screen="frmSummaryGraphics", control="picScatter")
                  if call[0] == "PSet"]
        self.assertEqual(points, [0.2, 0.1, 0.4])
        self.assertEqual(drive.click("frmSummaryGraphics", "cmdAlt"), DONE)
        self.assertEqual(drive.value("get", screen="frmSummaryGraphics", control="cmdAlt")["caption"],
                         "&Scatter Graph")
        self.assertEqual(drive.state("titles")["frmSummaryGraphics"], "Summary Graphics [ Line Graph ]")

    def test_have_nothing_to_draw_where_a_field_has_no_numbers(self):
        drive = self.opened()
        answer = drive.ask("call", name="frmSummaryGraphics.ShowScreen", args=[12, 13, True])
        self.assertEqual([(box["text"], box["icon"]) for box in answer["boxes"]],
                         [("Cannot draw a summary graph", "none")])
        self.assertEqual(drive.state("titles")["frmSummaryGraphics"], "Summary Graphics [ No Data ]")

    def test_round_their_axes(self):
        drive = self.drive()
        for args, low, high, step in (([0, 1000], 0, 1000, 200), ([5, 5], 5, 5, 0), ([-3, 7.5], -4, 8, 2)):
            self.assertEqual(drive.value("call", name="frmSummaryGraphics.Scaling", args=args),
                             {"low": low, "high": high, "step": step}, args)


class CommandLine(Summary):
    def test_prints_the_rows_of_the_table_in_columns(self):
        widths = [max(len(row[i]) for row in [HEADINGS, *ROWS]) + 2 for i in range(5)]
        text = "".join("".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip() + "\n"
                       for row in [HEADINGS, *ROWS])
        self.assertEqual(self.summary(), (text, "", 0))

    def test_prints_every_entry_where_asked(self):
        out, err, code = self.summary("--format", "csv", "--all")
        self.assertEqual((err, code), ("", 0))
        rows = [HEADINGS, ROWS[0]] + [(f"dam1_{k}", "Single Instance", "", "150.5", f"0.{k + 1}") for k in range(4)]
        self.assertEqual(out.encode(), lines_of(",".join(row) for row in [*rows, ROWS[4]]))

    def test_writes_objects(self):
        out, err, code = self.summary("--format", "json")
        self.assertEqual((err, code), ("", 0))
        self.assertEqual(json.loads(out), [
            {"name": name, "type": kind, "condensed": kind != "Single Instance", "inputChanged": False,
             "dam": {PEAK: peak}, "instance": {STRESS: stress}} for name, kind, _, peak, stress in ROWS])

    def test_writes_workbooks(self):
        self.assertEqual(self.summary("--format", "xlsx")[1:],
                         ("kestra: summary --format xlsx needs -o\nRun kestra help for the commands.\n", 2))
        path = self.at("out.xlsx")
        self.assertEqual(self.summary("--format", "xlsx", "-o", path), ("", "", 0))
        with zipfile.ZipFile(path) as book:
            self.assertIsNone(book.testzip())
            sheet = book.read("xl/worksheets/sheet1.xml").decode()
            self.assertIn('<c r="D2"><v>150.5</v></c>', sheet)
            self.assertIn(">dam1_3<", book.read("xl/sharedStrings.xml").decode())
        gone = self.at("none/out.xlsx")
        self.assertEqual(self.summary("--format", "xlsx", "-o", gone),
                         ("", f"kestra: {self.at('none')}: No such file or directory\n", 1))


if __name__ == "__main__":
    unittest.main()
