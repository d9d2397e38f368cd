#include "screens/structure_table_desk.h"

namespace kestra {
namespace {

TEST_F(StructureTable, savesItsFirstTwentyRowsAndOpensThemAgain) {
  screen.txtStructureID.userReplace("POND1");
  for (int n = 1; n <= 25; ++n) {
    if (n != 2) screen.grdTable.setCell(n, 1, std::to_string(n));
  }
  screen.grdTable.setCell(1, 2, "20");
  screen.grdTable.setCell(1, 3, "300");
  screen.grdTable.setCell(1, 4, "40");
  choose("/p/pond.STR");
  desk.files.putDirectory("/p");
  screen.mnuSave_Click();
  const std::string text = desk.files.content("/p/pond.STR").value_or("");
  EXPECT_EQ(text.substr(0, 87),
            "STRUCTURE POND1\r\n                    1         40        20                  300\r\n     ");
  desk.host.unload(screen);
  EXPECT_EQ(row(1), (Boxes{"", "", "", ""}));
  desk.host.show(screen);
  choose("/p/pond.STR");
  screen.mnuOpen_Click();
  EXPECT_EQ(screen.txtStructureID.text(), "POND1");
  EXPECT_EQ(row(1), (Boxes{"1", "20", "300", "40"}));
  EXPECT_EQ(row(2), (Boxes{"3", "", "", ""}));
  EXPECT_EQ(row(19), (Boxes{"20", "", "", ""}));
  EXPECT_EQ(row(20), (Boxes{"", "", "", ""}));
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(StructureTable, asksForAStructureTableFile) {
  screen.mnuOpen_Click();
  screen.mnuSave_Click();
  ASSERT_EQ(desk.dialogs.shownFiles.size(), 2U);
  EXPECT_EQ(desk.dialogs.shownFiles[0].kind, FileDialog::Kind::open);
  EXPECT_EQ(desk.dialogs.shownFiles[0].title, "Select a file");
  EXPECT_EQ(desk.dialogs.shownFiles[1].kind, FileDialog::Kind::save);
  for (const FileDialog& dialog : desk.dialogs.shownFiles) {
    EXPECT_EQ(dialog.filter, "All Files (*.*)|*.*|Structure Table Files (*.STR)|*.STR");
    EXPECT_EQ(dialog.filterIndex, 2);
  }
}

TEST_F(StructureTable, asksForTextFilesAndForOutputOfTheSpillwayProgram) {
  screen.mnuImport_Click();
  screen.mnuExport_Click();
  screen.mnuImportTorve_Click();
  ASSERT_EQ(desk.dialogs.shownFiles.size(), 3U);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(desk.dialogs.shownFiles[i].title, "Select a file");
    EXPECT_EQ(desk.dialogs.shownFiles[i].filter, "All Files (*.*)|*.*|Text Files (*.txt)|*.txt");
    EXPECT_EQ(desk.dialogs.shownFiles[i].filterIndex, 2);
  }
  EXPECT_EQ(desk.dialogs.shownFiles[2].title, "Open File");
  EXPECT_EQ(desk.dialogs.shownFiles[2].filter, "All Files (*.*)|*.*| Torve Output File (*.OUT)|*.OUT");
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(StructureTable, saysWhenNoNameIsGivenAndStopsQuietlyWhenCancelled) {
  struct Case {
    void (frmStructureTable::*command)();
    Boxes boxes;
  };
  const std::string none = "Select a File: No filename is provided";
  screen.grdTable.setCell(1, 1, "7");
  for (const auto& [command, boxes] :
       {Case{&frmStructureTable::mnuOpen_Click, {none}}, Case{&frmStructureTable::mnuImport_Click, {none}},
        Case{&frmStructureTable::mnuExport_Click, {none}}, Case{&frmStructureTable::mnuSave_Click, {}},
        Case{&frmStructureTable::mnuImportTorve_Click, {"Open File: No filename provided."}}}) {
    choose("");
    (screen.*command)();
    EXPECT_EQ(desk.takeBoxes(), boxes);
    cancel();
    (screen.*command)();
    EXPECT_EQ(desk.takeBoxes(), Boxes());
  }
  EXPECT_EQ(row(1)[0], "7");
  EXPECT_EQ(desk.files.paths(), Boxes());
}

TEST_F(StructureTable, refusesAFileOfAnotherForm) {
  screen.grdTable.setCell(1, 1, "7");
  for (const char* text : {"", "ENDTABLE\r\n", "\x80\x81\x82"}) {
    desk.files.put("/p/a.STR", text);
    choose("/p/a.STR");
    screen.mnuOpen_Click();
    EXPECT_EQ(desk.takeBoxes(), Boxes{"Select File: The selected file is not in the correct format."});
    EXPECT_EQ(row(1)[0], "7");
  }
}

TEST_F(StructureTable, keepsItsIdentifierWhenAFileHasNone) {
  screen.txtStructureID.setText("mine");
  desk.files.put("/p/a.STR", "STRUCTURE\n                    5\n");
  choose("/p/a.STR");
  screen.mnuOpen_Click();
  EXPECT_EQ(screen.txtStructureID.text(), "mine");
  EXPECT_EQ(row(1)[0], "5");
}

TEST_F(StructureTable, saysNothingOfFilesThatCannotBeReadOrWritten) {
  screen.grdTable.setCell(1, 1, "7");
  for (auto command : {&frmStructureTable::mnuOpen_Click, &frmStructureTable::mnuImport_Click,
                       &frmStructureTable::mnuImportTorve_Click, &frmStructureTable::mnuSave_Click,
                       &frmStructureTable::mnuExport_Click}) {
    choose("/nowhere/a.STR");
    (screen.*command)();
  }
  EXPECT_TRUE(desk.takeBoxes().empty());
  EXPECT_EQ(row(1)[0], "7");
}

TEST_F(StructureTable, importsARatingAndBlanksTheRest) {
  for (int n = 1; n <= 50; ++n) screen.grdTable.setCell(n, 4, "9");
  desk.files.put("/p/a.OUT", "RATING TABLE NUMBER  2\n1\n2\n3\n     100.5              12.5\n");
  choose("/p/a.OUT");
  screen.mnuImportTorve_Click();
  EXPECT_EQ(row(1), (Boxes{"100.5", "12.5", "", ""}));
  EXPECT_EQ(row(50), (Boxes{"", "", "", ""}));
}

const std::string kBlanks(20, ' ');
const std::string kRows21 = [] {
  std::string text;
  for (int i = 1; i <= 21; ++i) text += kBlanks + std::to_string(i) + "\n";
  return text;
}();

struct FileCase {
  void (frmStructureTable::*command)();
  std::string text;
  Boxes boxes;
  Boxes firstRow;
};

TEST_F(StructureTable, keepsTheRowsBeforeAValueThatIsNone) {
  const Boxes kept = {"1", "", "", ""};
  for (const auto& [command, text, boxes, firstRow] :
       {FileCase{&frmStructureTable::mnuImport_Click,
                 "1\n2\t3,5\n3\n",
                 {"Select File: /p/in, line 2: \"3,5\" is no discharge."},
                 kept},
        FileCase{&frmStructureTable::mnuImport_Click,
                 "Elevation\tFlow\n1\n2\t3\tx\n",
                 {"Select File: /p/in, line 3: \"x\" is no storage."},
                 kept},
        FileCase{&frmStructureTable::mnuImport_Click,
                 "1,5\t2\n",
                 {"Select File: /p/in, line 1: \"1,5\" is no elevation."},
                 {"7", "", "", ""}},
        FileCase{&frmStructureTable::mnuOpen_Click,
                 "STRUCTURE A\n" + kBlanks + "1\n" + kBlanks + "2         4,5\n",
                 {"Select File: /p/in, line 3: \"4,5\" is no surface area."},
                 kept},
        FileCase{&frmStructureTable::mnuOpen_Click,
                 "STRUCTURE A\n" + kBlanks + "one\nENDTABLE\n",
                 {"Select File: /p/in, line 2: \"one\" is no elevation."},
                 {"7", "", "", ""}}}) {
    screen.clearTable();
    screen.grdTable.setCell(1, 1, "7");
    desk.files.put("/p/in", text);
    choose("/p/in");
    (screen.*command)();
    EXPECT_EQ(desk.takeBoxes(), boxes);
    EXPECT_EQ(row(1), firstRow) << text;
    EXPECT_EQ(row(2), (Boxes{"", "", "", ""})) << text;
  }
}

TEST_F(StructureTable, isNotTouchedByAFileThatHoldsNothing) {
  screen.grdTable.setCell(1, 1, "7");
  screen.txtStructureID.setText("mine");
  for (const auto& [command, text, boxes, firstRow] :
       {FileCase{&frmStructureTable::mnuImport_Click, "", {}, {}},
        FileCase{&frmStructureTable::mnuImport_Click, "\n\t\t\n", {}, {}},
        FileCase{&frmStructureTable::mnuImport_Click, "\x80\x81\x82", {}, {}},
        FileCase{&frmStructureTable::mnuOpen_Click, "STRUCTURE A\n", {}, {}},
        FileCase{&frmStructureTable::mnuOpen_Click, "STRUCTURE A\n\n", {}, {}}}) {
    desk.files.put("/p/in", text);
    choose("/p/in");
    (screen.*command)();
    EXPECT_EQ(desk.takeBoxes(), Boxes{"Select File: The file holds no points."}) << text;
    EXPECT_EQ(row(1)[0], "7");
    EXPECT_EQ(screen.txtStructureID.text(), "mine");
  }
  desk.files.put("/p/in", "STRUCTURE A\nENDTABLE\n");  // an empty table was saved
  choose("/p/in");
  screen.mnuOpen_Click();
  EXPECT_TRUE(desk.takeBoxes().empty());
  EXPECT_EQ(row(1)[0], "");
  EXPECT_EQ(screen.txtStructureID.text(), "A");
}

TEST_F(StructureTable, tellsOfPointsThatItDoesNotTake) {
  std::string tabs;
  for (int i = 1; i <= 50; ++i) tabs += std::to_string(i) + "\n";
  const std::string open = "STRUCTURE A\n" + kRows21;
  const Boxes first = {"1", "", "", ""};
  for (const auto& [command, text, boxes, firstRow] :
       {FileCase{&frmStructureTable::mnuImport_Click, tabs + "\n", {}, first},
        FileCase{&frmStructureTable::mnuImport_Click,
                 tabs + "51\n\n52\n",
                 {"Select File: The file holds 52 points, of which the first 50 were taken."},
                 first},
        FileCase{&frmStructureTable::mnuOpen_Click, open + "ENDTABLE\n" + kRows21, {}, first},
        FileCase{&frmStructureTable::mnuOpen_Click,
                 open + kBlanks + "22\n\nENDTABLE\n",
                 {"Select File: The file holds 22 points, of which the first 21 were taken."},
                 first}}) {
    desk.files.put("/p/in", text);
    choose("/p/in");
    (screen.*command)();
    EXPECT_EQ(desk.takeBoxes(), boxes);
    EXPECT_EQ(row(1), firstRow);
  }
}

TEST_F(StructureTable, tellsOfValuesThatItsFileCannotHold) {
  desk.files.putDirectory("/p");
  screen.grdTable.setCell(1, 1, "1234567890");
  screen.saveStructureTable("/p/a.STR");
  EXPECT_TRUE(desk.takeBoxes().empty());
  screen.grdTable.setCell(1, 4, "12345678901");
  screen.grdTable.setCell(2, 2, "12345678901");  // not written: its row has no elevation
  screen.grdTable.setCell(3, 1, "12345678901");
  screen.grdTable.setCell(3, 3, "12345678901");
  screen.grdTable.setCell(21, 1, "12345678901");  // not written
  screen.saveStructureTable("/p/a.STR");
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Save File: These values do not fit their ten columns: surface area in row 1, "
                                    "elevation in row 3, storage in row 3."});
  EXPECT_TRUE(desk.files.content("/p/a.STR").has_value());
  screen.saveStructureTable("/nowhere/a.STR");
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(StructureTable, isNotTouchedByAnOutputWithoutRating) {
  screen.grdTable.setCell(1, 1, "7");
  desk.files.put("/p/a.OUT", "RATING TABLE NUMBER  3\n1\n2\n3\n     100.5\n");
  choose("/p/a.OUT");
  screen.mnuImportTorve_Click();
  EXPECT_EQ(row(1)[0], "7");
}

TEST_F(StructureTable, importsAndExportsTabDelimitedText) {
  std::string text = "1\t2\t3\t4\r\n\t6\r\n5\r\n";
  for (int i = 4; i <= 60; ++i) text += std::to_string(i) + "\r\n";
  desk.files.put("/p/a.txt", text);
  choose("/p/a.txt");
  screen.mnuImport_Click();
  EXPECT_EQ(row(1), (Boxes{"1", "2", "3", "4"}));
  EXPECT_EQ(row(2), (Boxes{"", "6", "", ""}));
  EXPECT_EQ(row(50), (Boxes{"50", "", "", ""}));
  choose("/p/b.txt");
  screen.mnuExport_Click();
  EXPECT_EQ(desk.files.content("/p/b.txt").value_or("").substr(0, 22), "1\t2\t3\t4\r\n5\t\t\t\r\n4\t\t\t\r\n5");
}

TEST_F(StructureTable, takesAnImportBackInOneStep) {
  typeInto(screen.grdTable, "7");
  desk.files.put("/p/a.STR", "STRUCTURE A\n                    5\n                    6\n");
  choose("/p/a.STR");
  desk.state.fileDirty = false;
  screen.mnuOpen_Click();
  EXPECT_TRUE(desk.state.fileDirty);
  EXPECT_EQ(desk.history.steps(), 2U);
  screen.mnuUndo.click();
  EXPECT_EQ(row(1)[0], "7");
  EXPECT_EQ(row(2)[0], "");
  EXPECT_EQ(screen.txtStructureID.text(), "");
  screen.mnuRedo.click();
  EXPECT_EQ(row(2)[0], "6");
  EXPECT_EQ(screen.txtStructureID.text(), "A");
}

TEST_F(StructureTable, readsFilesWithCarriageReturnsAlone) {
  desk.files.put("/p/a.STR", "STRUCTURE A\r                    5\r                    6\rENDTABLE\r");
  choose("/p/a.STR");
  screen.mnuOpen_Click();
  EXPECT_EQ(screen.txtStructureID.text(), "A");
  EXPECT_EQ(row(2)[0], "6");
  desk.files.put("/p/a.txt", "1\t2\r3\t4");
  choose("/p/a.txt");
  screen.mnuImport_Click();
  EXPECT_EQ(row(2), (Boxes{"3", "4", "", ""}));
  desk.files.put("/p/a.OUT", "RATING TABLE NUMBER  2\r1\r2\r3\r     100.5              12.5\r");
  choose("/p/a.OUT");
  screen.mnuImportTorve_Click();
  EXPECT_EQ(row(1), (Boxes{"100.5", "12.5", "", ""}));
}

}  // namespace
}  // namespace kestra
