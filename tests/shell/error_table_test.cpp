// The table of the last check's findings, and the way from each to its screen.
#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr const char* kPath = "/home/dam/pond.KSC";
constexpr const char* kHeading = "    1    1\r\n";
constexpr int kKind = 1;

using Row = std::vector<std::string>;

struct ErrorTable : testing::Test {
  WindowDesk desk;
  frmErrorTable& screen = desk.shell.errorTable;
  Table& table = screen.errTable;

  ErrorTable() {
    desk.window.mnuNew.click();
    desk.saveAs(kPath);
  }
  // Findings as the checkers have left them, shown by the command.
  void show(const std::string& dam, const std::string& spillway2 = "") {
    desk.memory.put("/home/dam/pond.ERR0", dam.empty() ? "" : kHeading + dam);
    if (!spillway2.empty()) desk.memory.put("/home/dam/pond.ERR2", kHeading + spillway2);
    desk.window.mnuErrorTable.click();
  }
  Row row(int number) const {
    Row cells;
    for (int column = 0; column < table.columns(); ++column) cells.push_back(table.cell(number, column));
    return cells;
  }
  void goFrom(int row, int column = kKind) {
    table.setCursor({row, column});
    table.userDoubleClick();
  }
  void load(const char* name) { desk.app.host.load(*desk.app.host.find(name)); }
};

TEST_F(ErrorTable, showsARowAFindingWithMessageScreenTabAndValues) {
  show("F    3    0         4   215.5       1         9         \r\nW    7    3         2   60\r\n",
       "F   10    3         1        401\r\n");
  EXPECT_EQ(desk.front(), "frmErrorTable");
  EXPECT_EQ(screen.title(), "Error Table");
  ASSERT_EQ(table.rows(), 4);
  EXPECT_EQ(row(0), (Row{"Number", "Error or Warning", "Error/Warning Code", "Error/Warning Message", "Screen Name",
                         "Tab Number", "Current Value(s)"}));
  EXPECT_EQ(row(1), (Row{"1", "Error", "21", "Value is outside the permitted range.", "Dam Surface Description", "0",
                         "5.5, 1 to 9"}));
  EXPECT_EQ(row(2),
            (Row{"2", "Warning", "60", "WARNING: Inlet weir length is greater than five times the conduit diameter.",
                 "Principal Spillway Conduit", "3", ""}));
  EXPECT_EQ(row(3),
            (Row{"3", "Error", "40", "Headcut Index must have a value.", "Auxiliary Spillway Properties", "3", "1"}));
  EXPECT_EQ(screen.errorRows.back().spillwayNumber, 2);
  EXPECT_EQ(table.cursor(), (CellPosition{1, kKind}));
}

TEST_F(ErrorTable, givesARowALineForEachTwentySixCharactersOfItsMessage) {
  show("F    1    0         0    0\r\nF    1    0         0    5\r\nF    1    0         0   60\r\n");
  EXPECT_EQ(table.rowHeight(1), 225);      // no message
  EXPECT_EQ(table.rowHeight(2), 225);      // 25 characters
  EXPECT_EQ(table.rowHeight(3), 225 * 3);  // 75
}

TEST_F(ErrorTable, isBuiltAnewForEachCheck) {
  show("F    1    0         0    1\r\nF    1    0         0    2\r\n");
  goFrom(2, 0);
  show("W    2    0         0    3\r\n");
  ASSERT_EQ(table.rows(), 2);
  EXPECT_EQ(row(1), (Row{"1", "Warning", "3", "Spillway ref. numbers do not match.", "Project Properties", "0", ""}));
  EXPECT_EQ(table.cursor(), (CellPosition{1, kKind}));
}

TEST_F(ErrorTable, isNotShownWithoutAFinding) {
  show("F    1    0         0    1\r\n");
  show("");
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Error Table: No Errors Found"});
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_FALSE(screen.loaded());
  EXPECT_TRUE(screen.errorRows.empty());
}

TEST_F(ErrorTable, hasTheSlotOfItsWindowWhileItIsLoaded) {
  show("F    1    0         0    1\r\n");
  EXPECT_TRUE(desk.state.window(6));
  EXPECT_EQ(desk.window.mnuWindowsArray(2).caption(), "Error Table");
  screen.mnuExit.click();
  EXPECT_FALSE(desk.state.window(6));
  EXPECT_TRUE(screen.errorRows.empty());
}

TEST_F(ErrorTable, leadsToTheScreenOfAFinding) {
  const std::pair<int, const char*> screens[] = {
      {1, "frmProjectInformation"}, {2, "Properties"}, {3, "frmDamSurface"}, {4, "frmStructureTable"},
      {5, "frmHydrographData"},     {6, "frmPSType"},  {7, "frmPSConduit"},  {8, "frmPSRatingTable"},
      {9, "frmAuxSpillways"},       {12, "frmKestra"}};
  for (const auto& [number, name] : screens) {
    load(name);
    show("F" + std::string(number < 10 ? "    " : "   ") + std::to_string(number) + "    0         0    1\r\n");
    goFrom(1);
    EXPECT_EQ(desk.front(), name);
  }
  EXPECT_EQ(desk.takeBoxes(), Boxes());
}

TEST_F(ErrorTable, isLeftByDoubleClickByEnterAndByTheMenuFromTheSecondColumnOnly) {
  load("frmStructureTable");
  const std::function<void()> ways[] = {[this] { table.userDoubleClick(); },
                                        [this] {
                                          table.userKey({kEnter, ""});
                                        },
                                        [this] { screen.mnuElement.click(); }};
  for (const auto& leave : ways) {
    for (int column = 0; column < table.columns(); ++column) {
      show("F    4    0         0    1\r\n");
      table.setCursor({1, column});
      leave();
      EXPECT_EQ(desk.front(), column == kKind ? "frmStructureTable" : "frmErrorTable") << column;
    }
  }
  table.userKey({U'x', ""});
  EXPECT_EQ(desk.takeBoxes(), Boxes());
}

TEST_F(ErrorTable, leadsToTheTabOfAFinding) {
  load("frmPSConduit");
  Tabs& tabs = desk.shell.input.psConduit.SSTab1;
  for (const auto& [tab, index] :
       {std::pair{"3", 2}, std::pair{"1", 0}, std::pair{"2", 1}, std::pair{"0", 0}, std::pair{"9", 0}}) {
    show(std::string("F    7    ") + tab + "         0    1\r\n");
    goFrom(1);
    EXPECT_EQ(tabs.index(), index) << tab;
  }
}

TEST_F(ErrorTable, saysThatTheScreenIsNotLoaded) {
  show("F    3    1         0    1\r\nF    0    0         0    0\r\n");
  for (const int row : {1, 2}) {
    goFrom(row);
    ASSERT_EQ(desk.boxes.shown.size(), 1U);
    EXPECT_EQ(desk.boxes.shown[0].icon, BoxIcon::warning);
    EXPECT_EQ(desk.takeBoxes(), Boxes{"Error: Screen Not Loaded -- Check Input File."});
    EXPECT_EQ(desk.front(), "frmErrorTable");
  }
}

TEST_F(ErrorTable, leadsFromTheDamsFindingsAboutASpillwayToAllOfThem) {
  load("frmAuxSpillways");
  desk.state.curAuxSpillway = 2;
  for (const char* number : {"10", "11"}) {
    show(std::string("F   ") + number + "    2         0    1\r\n");
    goFrom(1);
    EXPECT_EQ(desk.front(), "frmAuxSpillways") << number;
    EXPECT_EQ(desk.state.curAuxSpillway, 0);
  }
}

TEST_F(ErrorTable, leadsFromASpillwaysFindingToThatSpillway) {
  load("frmAuxSpillways");
  show("", "F    9    2         0        1\r\nF   10    3         0        1\r\nF   11    0         0        1\r\n");
  goFrom(1);
  EXPECT_EQ(desk.front(), "frmAuxSpillways");
  EXPECT_EQ(desk.state.curAuxSpillway, 1);
  desk.shell.input.context.aux.auxProfile[1].txtBottom = "50";
  load("frmAuxSpillwayProfile");
  load("frmAuxRatingTable");
  frmAuxSpillwayProfile& profile = desk.shell.input.auxSpillwayProfile;
  desk.state.curAuxSpillway = 0;
  for (const auto& [row, tab] : {std::pair{1, 1}, std::pair{2, 2}}) {
    goFrom(row);
    EXPECT_EQ(desk.front(), "frmAuxSpillwayProfile");
    EXPECT_EQ(profile.SSTab1.index(), tab);
    EXPECT_EQ(profile.txtBottom.text(), "50");
  }
  goFrom(3);
  EXPECT_EQ(desk.front(), "frmAuxRatingTable");
}

TEST_F(ErrorTable, tellsAGlobalFindingInABox) {
  constexpr const char* kDate = "Global Error: Save or Import the control file to update the QUIL Date Field.";
  constexpr const char* kBefore =
      "Global Error: Save or Import the control file to update the QUIL Date Field before checking this warning/error.";
  load("frmProjectInformation");
  show("F    1    0         0 3170\r\nF    1    0         0 3209\r\nF    1    0         0    1\r\n");
  EXPECT_EQ(row(2), (Row{"2", "Error", "3209", "", "Project Information", "0", ""}));
  goFrom(1);
  goFrom(2);
  EXPECT_EQ(desk.takeBoxes(), (Boxes{kDate, kBefore}));
  EXPECT_EQ(desk.front(), "frmErrorTable");
  show("F    1    0         0    1\r\nF    1    0         0 3209\r\n");
  goFrom(2);
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Global Error: Global Error Message -- Check Input File."});
}

TEST_F(ErrorTable, leadsNowhereWithoutRows) {
  desk.app.host.show(screen);
  table.userDoubleClick();
  screen.mnuElement.click();
  EXPECT_EQ(desk.front(), "frmErrorTable");
  EXPECT_EQ(row(0)[0], "Number");
}

}  // namespace
}  // namespace kestra
