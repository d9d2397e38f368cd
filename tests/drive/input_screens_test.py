"""A walk over the input screens: what is typed stays, what is refused is told, and files hold what the tables do."""

import unittest

from program import DONE, Flow, done, text_of, warning, write


class InputScreens(Flow):
    def setUp(self):
        super().setUp()
        self.make_project("dam")
        self.kestra = self.drive(self.at("dam/a.KSC"))

    def type(self, screen, control, keys):
        return self.kestra.ask("type", screen=screen, control=control, keys=keys)

    def increment(self, text):
        self.assertEqual(self.kestra.ask("set", screen="frmHydrographData", control="txtConst", value=text), DONE)
        self.assertEqual(self.kestra.ask("leave", screen="frmHydrographData", control="txtConst"), DONE)

    def cells(self, screen, rows, columns, control="grdTable"):
        return self.kestra.value("cells", screen=screen, control=control, row=1, column=1, rows=rows, columns=columns)

    def front(self):
        return self.kestra.state("visible")[0]

    def test_lead_past_the_conduit_when_the_structure_table_has_discharges(self):
        self.kestra.ask("activate", screen="frmProjectInformation")
        route = []
        for screen in ("frmProjectInformation", "Properties", "frmDamSurface", "frmStructureTable"):
            route.append(self.front())
            self.assertEqual(self.kestra.click(screen, "cmdNext"), DONE)
        self.assertEqual(route, ["frmProjectInformation", "Properties", "frmDamSurface", "frmStructureTable"])
        self.kestra.click("frmHydrographData", "cmdNext")
        self.assertEqual(self.front(), "frmPSType")
        self.kestra.click("frmPSType", "cmdPrevious")
        self.assertEqual(self.type("frmStructureTable", "grdTable", "100\r5\r"), DONE)
        self.kestra.click("frmHydrographData", "cmdNext")
        self.assertEqual(self.front(), "frmPSRatingTable")
        self.assertEqual(self.cells("frmStructureTable", 1, 2), [["100", "5"]])

    def test_save_and_import_the_structure_table(self):
        self.type("frmStructureTable", "grdTable", "100\r5\r30\r2\r101")
        path = self.at("a.STR")
        self.assertEqual(self.kestra.ask("call", name="frmStructureTable.saveStructureTable", args=[path]), DONE)
        self.assertEqual(text_of(path), b"STRUCTURE\r\n" + b" " * 20 + b"100       2         5                   30\r\n" +
                         b" " * 20 + b"101\r\nENDTABLE\r\n")
        bad = self.at("bad.txt")
        write(bad, b"7\t1\n8\t1,5\n")
        answer = self.kestra.ask("call", name="frmStructureTable.mnuImport_Click", args=[], answers=[{"file": bad}])
        self.assertEqual(answer["boxes"], [warning("Select File", f'{bad}, line 2: "1,5" is no discharge.')])
        self.assertEqual(self.cells("frmStructureTable", 2, 2), [["7", "1"], ["", ""]])

    def test_undo_an_increment_with_its_resampling(self):
        self.kestra.ask("activate", screen="frmHydrographData")
        self.increment("1")
        self.type("frmHydrographData", "grdTable", "0\r10\r4")
        self.increment("0.5")
        self.assertEqual(self.cells("frmHydrographData", 6, 1), [["0"], ["5"], ["10"], ["7"], ["4"], [""]])
        self.kestra.click("frmHydrographData", "mnuUndo")
        self.kestra.ask("activate", screen="frmHydrographData")
        self.assertEqual(self.cells("frmHydrographData", 4, 1), [["0"], ["10"], ["4"], [""]])
        self.assertEqual(self.kestra.value("get", screen="frmHydrographData", control="txtConst")["value"], "1")

    def test_say_what_cannot_be_converted(self):
        answer = self.kestra.click("frmHydrographData", "cmdConvert")
        self.assertEqual(answer, done(boxes=[warning("Data Check", "Constant time increment must greater than 0.")]))


if __name__ == "__main__":
    unittest.main()
