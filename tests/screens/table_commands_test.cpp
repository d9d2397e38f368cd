#include "screens/table_commands.h"

#include <gtest/gtest.h>

#include "support/input_desk.h"

namespace kestra {
namespace {

struct DataScreen : Screen {
  DataScreen() : Screen("frmData", "Data") {}
  bool holdsInput() const override { return true; }
};

// A table of three rows and three columns of data, a heading row and a heading column, filled a b c / d e f / g h i.
struct TableCommandsTest : testing::Test {
  InputDesk desk;
  DataScreen screen;
  Table table{screen, "grdTable", {4, 4, 1, 1}};

  TableCommandsTest() {
    desk.host.enter(screen);
    const char* texts = "abcdefghi";
    for (int row = 0; row < 4; ++row) table.setCell(row, 0, "H");
    for (int column = 0; column < 4; ++column) table.setCell(0, column, "H");
    for (int i = 0; i < 9; ++i) table.setCell(1 + i / 3, 1 + i % 3, std::string(1, texts[i]));
  }

  // The data cells row by row, a blank one as "-"; checks that the headings stand.
  std::string data() {
    std::string all;
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(table.cell(0, i), "H");
      EXPECT_EQ(table.cell(i, 0), "H");
    }
    for (int row = 1; row < 4; ++row) {
      for (int column = 1; column < 4; ++column) all += table.cell(row, column).empty() ? "-" : table.cell(row, column);
      if (row < 3) all += ' ';
    }
    return all;
  }
};

TEST_F(TableCommandsTest, copyJoinsCellsByTabsAndEndsRows) {
  table.userSelect({3, 2}, {2, 1});
  copyBlock(table, desk.clipboard);
  EXPECT_EQ(desk.clipboard.text(), "d\te\r\ng\th\r\n");
  EXPECT_EQ(data(), "abc def ghi");
}

TEST_F(TableCommandsTest, cutAlsoBlanksAndDeleteLeavesTheClipboard) {
  table.userSelect({1, 1}, {1, 2});
  cutBlock(table, desk.clipboard);
  EXPECT_EQ(desk.clipboard.text(), "a\tb\r\n");
  EXPECT_EQ(data(), "--c def ghi");
  table.userSelect({3, 3}, {3, 3});
  deleteBlock(table);
  EXPECT_EQ(data(), "--c def gh-");
  EXPECT_EQ(desk.clipboard.text(), "a\tb\r\n");
}

TEST_F(TableCommandsTest, neverTouchTheHeadings) {
  table.userSelect({0, 0}, {3, 3});
  deleteBlock(table);
  EXPECT_EQ(data(), "--- --- ---");
  table.userSelect({0, 0}, {0, 0});
  pasteText(table, "x");
  insertCell(table, PointDirection::downRows);
  deletePoint(table, PointDirection::alongColumns);
  EXPECT_EQ(data(), "--- --- ---");
}

struct PasteCase {
  const char* text;
  CellPosition at;
  const char* data;
};

class Paste : public TableCommandsTest, public testing::WithParamInterface<PasteCase> {};

TEST_P(Paste, writesRowsAndCellsAndKeepsTheCursor) {
  table.userSelect(GetParam().at, GetParam().at);
  pasteText(table, GetParam().text);
  EXPECT_EQ(data(), GetParam().data);
  EXPECT_EQ(table.cursor(), GetParam().at);
}

INSTANTIATE_TEST_SUITE_P(Blocks, Paste,
                         testing::Values(PasteCase{"1\t2\r\n3\t4\r\n", {1, 1}, "12c 34f ghi"},
                                         PasteCase{"1\t2\n3\t4", {2, 2}, "abc d12 g34"},
                                         PasteCase{"1\t2\t3\r\n4\t5\t6\r\n7", {3, 2}, "abc def g12"},
                                         PasteCase{"1\t\r\n\t4\r\n", {1, 1}, "1-c -4f ghi"},
                                         PasteCase{"1\r\n\r\n2", {1, 1}, "1bc -ef 2hi"},
                                         PasteCase{"1\t2\r3\t4\r", {1, 1}, "12c 34f ghi"},
                                         PasteCase{"1\r\r2", {1, 1}, "1bc -ef 2hi"},
                                         PasteCase{"", {1, 1}, "abc def ghi"}, PasteCase{"x", {3, 3}, "abc def ghx"}));

TEST_F(TableCommandsTest, pasteIsOneStepToUndo) {
  table.userSelect({1, 1}, {1, 1});
  pasteText(table, "1\t2\t3\r\n4\t5\t6\r\n7\t8\t9\r\n");
  EXPECT_EQ(desk.history.steps(), 1U);
  EXPECT_TRUE(desk.history.undo());
  EXPECT_EQ(data(), "abc def ghi");
  EXPECT_TRUE(desk.history.redo());
  EXPECT_EQ(data(), "123 456 789");
  EXPECT_TRUE(desk.state.fileDirty);
}

TEST_F(TableCommandsTest, selectAllTakesTheDataCells) {
  selectAllCells(table);
  EXPECT_EQ(table.cursor(), (CellPosition{1, 1}));
  EXPECT_EQ(table.corner(), (CellPosition{3, 3}));
}

struct MoveCase {
  void (*command)(Table&, PointDirection);
  PointDirection direction;
  CellPosition at;
  const char* data;
};

class Move : public TableCommandsTest, public testing::WithParamInterface<MoveCase> {};

TEST_P(Move, shiftsFromTheCursorOnAndKeepsIt) {
  table.userSelect(GetParam().at, GetParam().at);
  GetParam().command(table, GetParam().direction);
  EXPECT_EQ(data(), GetParam().data);
  EXPECT_EQ(table.cursor(), GetParam().at);
}

constexpr PointDirection kAlong = PointDirection::alongColumns;
constexpr PointDirection kDown = PointDirection::downRows;
INSTANTIATE_TEST_SUITE_P(Commands, Move,
                         testing::Values(MoveCase{insertCell, kAlong, {2, 2}, "abc d-e ghi"},
                                         MoveCase{insertCell, kDown, {2, 2}, "abc d-f gei"},
                                         MoveCase{deleteCell, kAlong, {2, 1}, "abc ef- ghi"},
                                         MoveCase{deleteCell, kDown, {1, 3}, "abf dei gh-"},
                                         MoveCase{insertPoint, kAlong, {2, 1}, "-ab -de -gh"},
                                         MoveCase{insertPoint, kDown, {2, 3}, "abc --- def"},
                                         MoveCase{deletePoint, kAlong, {1, 2}, "ac- df- gi-"},
                                         MoveCase{deletePoint, kDown, {1, 1}, "def ghi ---"},
                                         MoveCase{insertCell, kAlong, {1, 3}, "ab- def ghi"},
                                         MoveCase{deletePoint, kDown, {3, 3}, "abc def ---"}));

TEST_F(TableCommandsTest, numberTheHeadings) {
  numberColumns(table);
  numberRows(table);
  EXPECT_EQ(table.cell(0, 3), "3");
  EXPECT_EQ(table.cell(3, 0), "3");
  EXPECT_TRUE(table.centred(0));
}

}  // namespace
}  // namespace kestra
