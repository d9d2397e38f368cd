#include "controls/table.h"

#include <gtest/gtest.h>

#include "controls/test_screen.h"

namespace kestra {
namespace {

TEST(Table, ignoresPositionsOutside) {
  Stage stage;
  Table table(stage.screen, "grdTable", {3, 4, 1, 1});
  table.setCell(3, 0, "x");
  table.setCell(-1, 0, "x");
  table.setCell(2, 3, "y");
  EXPECT_EQ(table.cell(3, 0), "");
  EXPECT_EQ(table.cell(2, 3), "y");
  table.setCursor({3, 0});
  EXPECT_EQ(table.cursor(), (CellPosition{1, 1}));
}

TEST(Table, clearsItsDataAndKeepsItsHeadings) {
  Stage stage;
  Table table(stage.screen, "grdTable", {3, 3, 1, 1});
  table.setCell(0, 1, "Elevation");
  table.setCell(1, 0, "1");
  table.setCell(1, 1, "100");
  table.setCursor({2, 2});
  table.clearData();
  EXPECT_EQ(table.cell(0, 1), "Elevation");
  EXPECT_EQ(table.cell(1, 0), "1");
  EXPECT_EQ(table.cell(1, 1), "");
  EXPECT_EQ(table.cursor(), (CellPosition{1, 1}));
}

TEST(Table, knowsTheCornersOfASelectionDrawnUpwards) {
  Stage stage;
  Table table(stage.screen, "grdTable", {5, 5, 1, 1});
  table.setSelection({4, 1}, {2, 3});
  EXPECT_EQ(table.cursor(), (CellPosition{4, 1}));
  EXPECT_EQ(table.firstSelected(), (CellPosition{2, 1}));
  EXPECT_EQ(table.lastSelected(), (CellPosition{4, 3}));
  table.setCursor({1, 1});
  EXPECT_EQ(table.corner(), (CellPosition{1, 1}));
}

TEST(Table, countsOneEditForABlock) {
  Stage stage;
  Table table(stage.screen, "grdTable", {3, 3, 1, 1});
  int edits = 0;
  stage.host.onEdited = [&edits](Screen&, Control&) { ++edits; };
  stage.host.enter(stage.screen);
  table.userSetBlock({1, 1}, {{"a", "b"}, {"c"}});
  EXPECT_EQ(table.cell(2, 1), "c");
  EXPECT_EQ(edits, 1);
}

TEST(Table, growsByEmptyRowsAndIsOfItsDesignAgainAfterIt) {
  Stage stage;
  Table table(stage.screen, "grdTable", {3, 2, 1, 1});
  table.keepDesign();
  table.setCell(2, 1, "x");
  table.growTo(2);
  EXPECT_EQ(table.rows(), 3);
  table.growTo(5);
  EXPECT_EQ(table.rows(), 5);
  EXPECT_TRUE(table.rowShown(3) && table.rowShown(4));
  EXPECT_EQ(table.rowHeight(4), 0);
  table.setRowShown(4, false);
  EXPECT_FALSE(table.rowShown(4));
  EXPECT_EQ(table.cell(2, 1), "x");
  table.setCell(4, 1, "y");
  EXPECT_EQ(table.cell(4, 1), "y");
  table.restoreDesign();
  EXPECT_EQ(table.rows(), 3);
  table.growTo(5);
  EXPECT_EQ(table.cell(2, 1), "");
  EXPECT_EQ(table.cell(4, 1), "");
}

TEST(Table, keepsTheTextsOfARowThatIsNotShown) {
  Stage stage;
  Table table(stage.screen, "grdTable", {3, 3, 1, 1});
  table.setCell(2, 1, "kept");
  EXPECT_TRUE(table.rowShown(2));
  table.setRowShown(2, false);
  EXPECT_FALSE(table.rowShown(2));
  EXPECT_EQ(table.cell(2, 1), "kept");
  EXPECT_EQ(table.rows(), 3);
}

TEST(Table, marksACellAtFaultUntilItsTextChanges) {
  Stage stage;
  Table table(stage.screen, "grdTable", {3, 3, 1, 1});
  EXPECT_FALSE(table.fault());
  table.setFault({2, 1}, "Values must be increasing.");
  table.setCell(1, 1, "7");
  table.setCell(2, 1, "");
  ASSERT_TRUE(table.fault());
  EXPECT_EQ(table.fault()->at, (CellPosition{2, 1}));
  EXPECT_EQ(table.fault()->message, "Values must be increasing.");
  table.setCell(2, 1, "8");
  EXPECT_FALSE(table.fault());
}

}  // namespace
}  // namespace kestra
