#include "screens/table_editor.h"

#include <gtest/gtest.h>

#include "screens/table_commands.h"
#include "support/input_desk.h"

namespace kestra {
namespace {

constexpr const char* kMissing = "Data Check: This cell must contain data.";
constexpr const char* kFalling = "Data Check: Values must be increasing.";

struct EditedScreen : Screen {
  EditedScreen() : Screen("frmEdited", "Edited") {}
  bool holdsInput() const override { return true; }
  Button cmdNext{*this, "cmdNext", "&Next Screen"};
};

// A table of two points along columns: stations in row 1, elevations in row 2.
struct AlongColumns : testing::Test {
  InputDesk desk;
  EditedScreen screen;
  Table table{screen, "grdTable", {3, 3, 1, 1}};
  TableEditor editor{table, {PointDirection::alongColumns, 2, "0123456789.-", true}, desk.ports, screen.cmdNext};

  AlongColumns() {
    desk.host.enter(screen);
    desk.host.show(screen);
    table.userFocus();
  }
  void put(int row, int column, const char* text) { table.setCell(row, column, text); }
  void enterAt(int row, int column) {
    table.userSelect({row, column}, {row, column});
    typeInto(table, "\r");
  }
  void expect(CellPosition cursor, std::vector<std::string> boxes = {}) {
    EXPECT_EQ(table.cursor(), cursor);
    EXPECT_EQ(desk.takeBoxes(), boxes);
    EXPECT_EQ(editor.tempStr, "");
  }
};

TEST_F(AlongColumns, takesNumbersInTheOrderStationElevationNextPoint) {
  typeInto(table, "-3\r1024.5\r12\r");
  EXPECT_EQ(table.cell(1, 1), "-3");
  EXPECT_EQ(table.cell(2, 1), "1024.5");
  EXPECT_EQ(table.cell(1, 2), "12");
  EXPECT_EQ(desk.takeBoxes(), (std::vector<std::string>{}));
}

TEST_F(AlongColumns, replacesWhatStandsInACellOnceTypingBegins) {
  put(1, 1, "old");
  typeInto(table, "12");
  EXPECT_EQ(table.cell(1, 1), "12");
  table.userSelect({2, 1}, {2, 1});
  typeInto(table, "3");
  EXPECT_EQ(table.cell(2, 1), "3");
}

TEST_F(AlongColumns, removesTheLastCharacterByBackspace) {
  put(1, 1, "125");
  typeInto(table, "\b\b");
  EXPECT_EQ(table.cell(1, 1), "1");
  typeInto(table, "7\b\b\b");
  EXPECT_EQ(table.cell(1, 1), "");
  EXPECT_EQ(desk.beeper.beeps, 0);
}

TEST_F(AlongColumns, beepsAtEveryOtherKey) {
  typeInto(table, "a,e \t");
  EXPECT_EQ(desk.beeper.beeps, 5);
  EXPECT_EQ(table.cell(1, 1), "");
  table.userKey({U'\u0663', {}});
  EXPECT_EQ(desk.beeper.beeps, 6);
}

TEST_F(AlongColumns, wantsAStationBeforeItGoesOn) {
  enterAt(1, 1);
  expect({1, 1}, {kMissing});
  put(1, 1, " ");
  enterAt(1, 1);
  expect({1, 1}, {kMissing});
  put(1, 1, "5");
  enterAt(1, 1);
  expect({2, 1});
}

TEST_F(AlongColumns, refusesAStationBelowTheOneBeforeAndBlanksIt) {
  put(1, 1, "5");
  put(1, 2, "4.9");
  enterAt(1, 2);
  expect({1, 2}, {kFalling});
  EXPECT_EQ(table.cell(1, 2), "");
  put(1, 2, "5");
  enterAt(1, 2);
  expect({2, 2});
}

TEST_F(AlongColumns, marksTheCellThatItRefuses) {
  put(1, 1, "5");
  put(1, 2, "4.9");
  enterAt(1, 2);
  ASSERT_TRUE(table.fault());
  EXPECT_EQ(table.fault()->at, (CellPosition{1, 2}));
  EXPECT_EQ(table.fault()->message, "Values must be increasing.");
  typeInto(table, "6");
  EXPECT_FALSE(table.fault());
}

TEST_F(AlongColumns, goesBackToTheStationWhenBothAreMissing) {
  enterAt(2, 1);
  expect({1, 1}, {kMissing});
  put(1, 1, "5");
  enterAt(2, 1);
  expect({2, 1}, {kMissing});
  put(2, 1, "7");
  enterAt(2, 1);
  expect({1, 2});
}

TEST_F(AlongColumns, movesTheFocusToNextFromTheLastCellWithBothValues) {
  put(2, 2, "7");
  enterAt(2, 2);
  expect({2, 2}, {kMissing});
  EXPECT_EQ(table.cell(2, 2), "");
  put(1, 2, "5");
  put(2, 2, "7");
  enterAt(2, 2);
  expect({2, 2});
  EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
  EXPECT_EQ(table.cell(2, 2), "7");
}

TEST_F(AlongColumns, movesByArrowKeysWithinTheData) {
  put(1, 1, "5");
  typeInto(table, "1");
  for (const char* name : {"Right", "Down", "Right", "Down", "PageDown"}) table.userKey({0, name});
  EXPECT_EQ(table.cursor(), (CellPosition{2, 2}));
  for (const char* name : {"Left", "Up", "Left", "Up"}) table.userKey({0, name});
  EXPECT_EQ(table.cursor(), (CellPosition{1, 1}));
  EXPECT_EQ(editor.tempStr, "");
}

TEST_F(AlongColumns, beginsAnewWhenSomethingElseHasChangedTheCell) {
  typeInto(table, "12");
  deleteBlock(table);
  typeInto(table, "3");
  EXPECT_EQ(table.cell(1, 1), "3");
  pasteText(table, "99");
  typeInto(table, "4");
  EXPECT_EQ(table.cell(1, 1), "4");
  EXPECT_TRUE(desk.history.undo());
  typeInto(table, "5");
  EXPECT_EQ(table.cell(1, 1), "5");
  desk.host.unload(screen);
  desk.host.show(screen);
  typeInto(table, "6");
  EXPECT_EQ(table.cell(1, 1), "6");
}

TEST_F(AlongColumns, neverTypesIntoAHeading) {
  table.setCell(0, 2, "2");
  table.setCell(1, 0, "Station");
  table.userSelect({0, 2}, {0, 2});
  typeInto(table, "7");
  EXPECT_EQ(table.cell(0, 2), "2");
  EXPECT_EQ(table.cell(1, 2), "7");
  table.userSelect({1, 0}, {1, 0});
  typeInto(table, "8\b\b");
  EXPECT_EQ(table.cell(1, 0), "Station");
  EXPECT_EQ(table.cell(1, 1), "");
}

TEST_F(AlongColumns, movesByPagesAndToTheEndsAndLeavesOtherNamedKeysAlone) {
  typeInto(table, "1");
  table.userKey({0, "F9"});
  typeInto(table, "2");
  EXPECT_EQ(table.cell(1, 1), "12");
  table.userKey({0, "End"});
  EXPECT_EQ(table.cursor(), (CellPosition{1, 2}));
  table.userKey({0, "PageDown"});
  EXPECT_EQ(table.cursor(), (CellPosition{2, 2}));
  table.userKey({0, "Home"});
  table.userKey({0, "PageUp"});
  EXPECT_EQ(table.cursor(), (CellPosition{1, 1}));
  table.userSelect({1, 1}, {2, 2});
  table.userKey({0, "F9"});
  EXPECT_EQ(table.corner(), (CellPosition{2, 2}));
}

TEST_F(AlongColumns, takesNothingBackInACellThatIsEmptyAgain) {
  typeInto(table, "12");
  desk.history.undo();
  typeInto(table, "\b");
  EXPECT_EQ(table.cell(1, 1), "");
  typeInto(table, "34");
  deleteBlock(table);
  typeInto(table, "\b");
  EXPECT_EQ(table.cell(1, 1), "");
  EXPECT_EQ(editor.tempStr, "");
}

TEST_F(AlongColumns, forgetsWhatWasTypedWhenItsScreenIsUnloaded) {
  typeInto(table, "12");
  EXPECT_EQ(editor.tempStr, "12");
  desk.host.unload(screen);
  EXPECT_EQ(editor.tempStr, "");
  desk.host.show(screen);
  typeInto(table, "\b");
  EXPECT_EQ(table.cell(1, 1), "");
}

TEST_F(AlongColumns, undoesATypedCellInOneStep) {
  typeInto(table, "12\r34");
  EXPECT_EQ(desk.history.steps(), 2U);
  EXPECT_TRUE(desk.history.undo());
  EXPECT_EQ(table.cell(2, 1), "");
  EXPECT_EQ(table.cell(1, 1), "12");
  EXPECT_TRUE(desk.history.undo());
  EXPECT_EQ(table.cell(1, 1), "");
  EXPECT_TRUE(desk.history.redo());
  EXPECT_TRUE(desk.history.redo());
  EXPECT_EQ(table.cell(2, 1), "34");
  EXPECT_TRUE(desk.state.fileDirty);
}

// A table of two points down rows, of which only the first value is required.
struct DownRows : testing::Test {
  InputDesk desk;
  EditedScreen screen;
  Table table{screen, "grdTable", {3, 4, 1, 1}};
  TableEditor editor{table, {PointDirection::downRows, 3, "0123456789.", false, false}, desk.ports, screen.cmdNext};

  DownRows() {
    desk.host.enter(screen);
    table.userFocus();
  }
  void enterAt(int row, int column) {
    table.userSelect({row, column}, {row, column});
    typeInto(table, "\r");
  }
};

TEST_F(DownRows, letsLaterValuesBeEmptyAndGoesToTheNextRow) {
  table.setCell(1, 1, "5");
  typeInto(table, "\r\r\r");
  EXPECT_EQ(table.cursor(), (CellPosition{2, 1}));
  EXPECT_TRUE(desk.takeBoxes().empty());
  typeInto(table, "\r");
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{kMissing});
}

TEST_F(DownRows, staysOnACellOfOneBlankButForTheLastOfARow) {
  for (const int column : {1, 2}) {
    table.setCell(1, column, " ");
    enterAt(1, column);
    EXPECT_EQ(table.cursor(), (CellPosition{1, column}));
  }
  table.setCell(1, 3, " ");
  enterAt(1, 3);
  EXPECT_EQ(table.cursor(), (CellPosition{2, 1}));
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(DownRows, doesNotCheckTheOrderAndRefusesTheMinus) {
  table.setCell(1, 1, "9");
  table.setCell(2, 1, "1");
  enterAt(2, 1);
  EXPECT_EQ(table.cursor(), (CellPosition{2, 2}));
  typeInto(table, "-");
  EXPECT_EQ(desk.beeper.beeps, 1);
}

TEST_F(DownRows, wantsTheFirstAndTheCurrentValueInTheLastCell) {
  table.setCell(2, 1, "1");
  enterAt(2, 3);
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{kMissing});
  table.setCell(2, 3, "2");
  enterAt(2, 3);
  EXPECT_EQ(desk.host.focus(), nullptr);  // the screen is not on show, though its button has the focus
  desk.host.show(screen);
  EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
}

}  // namespace
}  // namespace kestra
