#include "screens/frm_structure_table.h"

#include <gtest/gtest.h>

#include "screens/frm_project_information.h"
#include "support/input_desk.h"

namespace kestra {
namespace {

using Boxes = std::vector<std::string>;

constexpr const char* kMissing = "Data Check: This cell must contain data.";

struct StructureTable : testing::Test {
  InputDesk desk;
  frmProjectInformation project{desk.context};
  frmStructureTable screen{desk.context};
  PlainScreen damSurface{"frmDamSurface"};
  PlainScreen hydrograph{"frmHydrographData"};

  StructureTable() {
    desk.context.screens.projectInformation = &project;
    for (Screen* each : std::initializer_list<Screen*>{&project, &screen, &damSurface, &hydrograph}) {
      desk.host.enter(*each);
    }
    desk.host.show(screen);
  }
  void choose(const std::string& path) { desk.dialogs.files.push_back(std::vector<std::string>{path}); }
  void cancel() { desk.dialogs.files.push_back(std::nullopt); }
  std::vector<std::string> row(int n) {
    return {screen.grdTable.cell(n, 1), screen.grdTable.cell(n, 2), screen.grdTable.cell(n, 3),
            screen.grdTable.cell(n, 4)};
  }
  void enterAt(int row, int column) {
    screen.grdTable.userFocus();
    screen.grdTable.userSelect({row, column}, {row, column});
    typeInto(screen.grdTable, "\r");
  }
};

TEST_F(StructureTable, isLaidOutOnLoad) {
  EXPECT_EQ(screen.title(), "Structure Table");
  EXPECT_EQ(screen.lblStructureID.caption(), "Structure Identifier:");
  EXPECT_EQ(screen.lblValleyFloor.caption(), "Dam Base Elevation, ft:");
  EXPECT_EQ(screen.lblStartRouting.caption(), "Start Routing, ft:");
  EXPECT_EQ(screen.optFEET.caption(), "elevation, ft");
  EXPECT_EQ(screen.optCFS.caption(), "output, cfs");
  EXPECT_EQ(screen.lblTable.caption(), "Principal Spillway Rating and Reservoir Stage-Storage");
  EXPECT_EQ(screen.cmdPlot.caption(), "P&lot");
  const Table& table = screen.grdTable;
  EXPECT_EQ(table.rows(), 51);
  EXPECT_EQ(table.columns(), 5);
  EXPECT_EQ(row(0), (Boxes{"Elevation, ft", "Principal Spillway Discharge, cfs ", "Reservoir Storage Volume, acre-ft",
                           "Reservoir Surface Area, acres"}));
  EXPECT_EQ(table.cell(1, 0), "1");
  EXPECT_EQ(table.cell(50, 0), "50");
  EXPECT_EQ(table.columnWidth(0), 500);
  EXPECT_EQ(table.columnWidth(4), 1750);
  EXPECT_EQ(table.rowHeight(0), 560);
  EXPECT_TRUE(table.centred(0) && table.centred(1) && table.centred(4));
  EXPECT_EQ(screen.find("optFeet"), &screen.optFEET);
}

TEST_F(StructureTable, walksToTheHydrographAndBackToTheDam) {
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmHydrographData");
  desk.host.show(screen);
  screen.cmdPrevious.click();
  EXPECT_EQ(desk.front(), "frmDamSurface");
  desk.host.show(screen);
  screen.editMenu.mnuExit.click();
  EXPECT_EQ(desk.front(), "frmDamSurface");
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, Boxes{"html\\StructureTable.htm"});
}

TEST_F(StructureTable, offersADischargeAsStartOnlyWithoutBreachAnalysis) {
  EXPECT_TRUE(screen.optFEET.selected());
  EXPECT_FALSE(screen.optCFS.visible());
  project.optNoBreachAnalysis.userSelect();
  desk.host.show(screen);
  EXPECT_TRUE(screen.optCFS.visible());
  screen.optCFS.userSelect();
  desk.host.show(screen);
  EXPECT_TRUE(screen.optCFS.selected());
  project.optBreachAnalysis.userSelect();
  desk.host.show(screen);
  EXPECT_TRUE(screen.optFEET.selected());
  EXPECT_FALSE(screen.optCFS.selected());
  EXPECT_FALSE(screen.optCFS.visible());
}

TEST_F(StructureTable, isEnteredRowByRowAndWantsAnElevation) {
  typeInto(screen.grdTable, "-5\r\r12\r\r7\r");
  EXPECT_EQ(row(1), (Boxes{"-5", "", "12", ""}));
  EXPECT_EQ(row(2), (Boxes{"7", "", "", ""}));
  enterAt(3, 1);
  EXPECT_EQ(desk.takeBoxes(), Boxes{kMissing});
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{3, 1}));
  enterAt(1, 4);
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{2, 1}));
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(StructureTable, takesElevationsThatFall) {
  typeInto(screen.grdTable, "9\r\r\r\r8\r");
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{2, 2}));
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(StructureTable, goesToNextFromTheLastCell) {
  screen.grdTable.setCell(50, 4, "1");
  enterAt(50, 4);
  EXPECT_EQ(desk.takeBoxes(), Boxes{kMissing});
  EXPECT_EQ(screen.grdTable.cell(50, 4), "");
  screen.grdTable.setCell(50, 1, "1");
  screen.grdTable.setCell(50, 4, "2");
  enterAt(50, 4);
  EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
}

TEST_F(StructureTable, startsAtTheFirstCellWhenItGetsTheFocus) {
  screen.grdTable.setCursor({7, 3});
  screen.txtStructureID.userFocus();
  screen.grdTable.userFocus();
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{1, 1}));
}

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

TEST_F(StructureTable, isClearedInOneStepThatCanBeUndone) {
  screen.grdTable.setCell(1, 1, "7");
  screen.grdTable.setCell(50, 4, "8");
  screen.grdTable.userSelect({3, 2}, {5, 4});
  screen.clearTable();
  EXPECT_EQ(row(1)[0] + row(50)[3], "");
  EXPECT_EQ(screen.grdTable.cell(1, 0), "1");
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{1, 1}));
  EXPECT_EQ(screen.grdTable.corner(), (CellPosition{1, 1}));
  EXPECT_TRUE(desk.state.fileDirty);
  screen.mnuUndo.click();
  EXPECT_EQ(row(1)[0] + row(50)[3], "78");
}

TEST_F(StructureTable, isSetUpAnewByItsHelpers) {
  screen.grdTable.setCell(2, 0, "x");
  screen.grdTable.setColumnWidth(4, 1);
  screen.grdTable.setRowHeight(0, 1);
  screen.setRowNum();
  screen.setColWidth();
  screen.setRowHeight();
  EXPECT_EQ(screen.grdTable.cell(2, 0), "2");
  EXPECT_EQ(screen.grdTable.columnWidth(4), 1750);
  EXPECT_EQ(screen.grdTable.rowHeight(0), 560);
}

TEST_F(StructureTable, isEditedByTheCommandsOfItsMenu) {
  typeInto(screen.grdTable, "1\r2\r3\r4\r5");
  screen.grdTable.userSelect({1, 1}, {1, 1});
  screen.editMenu.mnuInsertPoint.click();
  EXPECT_EQ(screen.editMenu.mnuInsertPoint.name(), "mnuInsertRow");
  EXPECT_EQ(row(2), (Boxes{"1", "2", "3", "4"}));
  screen.editMenu.mnuDeletePoint.click();
  EXPECT_EQ(row(1), (Boxes{"1", "2", "3", "4"}));
}

TEST_F(StructureTable, offersTheStartThatAnUndoneAnalysisLeaves) {
  project.optNoBreachAnalysis.userSelect();
  desk.host.show(screen);
  screen.optCFS.userSelect();
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.optFEET.selected() && screen.optCFS.visible());
  screen.mnuUndo.click();
  EXPECT_TRUE(project.optBreachAnalysis.selected());
  EXPECT_FALSE(screen.optCFS.visible());
  screen.mnuRedo.click();
  EXPECT_TRUE(screen.optCFS.visible());
  screen.mnuRedo.click();
  EXPECT_TRUE(screen.optCFS.selected());
}

}  // namespace
}  // namespace kestra
