// What the tables and stores hold when a main run has been read, what stays as it was, and what is told of too many
// rows.
#include <gtest/gtest.h>

#include "support/control_desk.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

struct TableCase {
  const char* name;
  Lines lines;
  const char* table;
  int row;
  int column;
  std::vector<Lines> cells;
};

void PrintTo(const TableCase& told, std::ostream* out) {
  *out << told.name;
}

class MainRunTable : public testing::TestWithParam<TableCase> {};

TEST_P(MainRunTable, isFilled) {
  ControlDesk desk;
  desk.parse(fileOf(GetParam().lines));
  const std::string name = GetParam().table;
  const auto& table =
      static_cast<const Table&>(*desk.host.find(name.substr(0, name.find('.')))->find(name.substr(name.find('.') + 1)));
  for (std::size_t i = 0; i < GetParam().cells.size(); ++i) {
    for (std::size_t j = 0; j < GetParam().cells[i].size(); ++j) {
      EXPECT_EQ(table.cell(GetParam().row + static_cast<int>(i), GetParam().column + static_cast<int>(j)),
                GetParam().cells[i][j])
          << i << ", " << j;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Tables, MainRunTable,
    testing::Values(
        TableCase{
            "structureCellByCell",
            {"STRUCTURE pond", "                    1000                0         0.5", "                    1005", "x",
             "                    1010      7", "ENDTABLE", "                    1020"},
            "frmStructureTable.grdTable",
            1,
            1,
            {{"1000", "", "0", "0.5"}, {"1005", "", "", ""}, {"", "", "", ""}, {"1010", "7", "", ""}, {"", ""}}},
        TableCase{"anEmptyLineEndsATable",
                  {"STRUCTURE", "                    1000", "", "                    1005"},
                  "frmStructureTable.grdTable",
                  1,
                  1,
                  {{"1000"}, {""}}},
        TableCase{"crestByPairs",
                  {"CRESTPRFL", "          0         1026", "          30", "          60        1024"},
                  "frmDamSurface.grdTable",
                  1,
                  1,
                  {{"0", "", "60"}, {"1026", "", "1024"}}},
        TableCase{"tailwaterByPairs",
                  {"TAILWATER", "          1000      0", "          1001     ", "          1002      9"},
                  "frmPSRatingTable.grdTable",
                  1,
                  1,
                  {{"1000", "0"}, {"", ""}, {"1002", "9"}}},
        TableCase{"ratingCellsNeedACharacterMore",
                  {"ASRATING  2Way", "          1", "          12", "          1020      5", "          1020      56"},
                  "frmAuxRatingTable.grdTable(1)",
                  1,
                  1,
                  {{"", ""}, {"12", ""}, {"1020", ""}, {"1020", "56"}}},
        TableCase{"constantStepsCloseUp",
                  {"HYD       t         1         0         0C", "                    1                   3",
                   "                                        4                   6         7", "ENDTABLE"},
                  "frmHydrographData.grdTable",
                  1,
                  1,
                  {{"1"}, {"3"}, {"4"}, {"6"}, {""}}},
        TableCase{"timesAndDischarges",
                  {"HYD       t         1         0         0V", "          0         5", "                    6",
                   "          0.5       7", "          0.75      ", "          9         9"},
                  "frmHydrographData.varTable",
                  1,
                  0,
                  {{"0", "5"}, {"0.5", "7"}, {"", ""}}},
        TableCase{"templateByColumns",
                  {"TEMPLATE  x", "          0         100", "          10        105                X", "          20",
                   "ENDTABLE"},
                  "frmDamSurface.xcTable",
                  1,
                  1,
                  {{"0", "10", "20", "0"}, {"100", "105", "", "100"}, {"", "         X", "", ""}}}),
    caseName<TableCase>);

TEST(MainRunRead, fillsTheStoreOfASpillway) {
  ControlDesk desk;
  desk.parse(
      fileOf({"ASSURFACE 2Way      3         50       10.5       500",
              "          0         100       5.6       0.8       1         2", "          100       200", "ENDTABLE"}));
  const AuxProfile& profile = desk.profile(1);
  EXPECT_EQ(profile.txtSide, "3");
  EXPECT_EQ(profile.txtBottom, "50");
  EXPECT_EQ(profile.txtTopsoil, "0.5");
  EXPECT_EQ(profile.txtEnd, "500");
  EXPECT_EQ(profile.reaches[0], (AuxReach{"0", "100", "5.6", "0.8", "1", "2"}));
  EXPECT_EQ(profile.reaches[1], (AuxReach{"100", "200", "", "", "", ""}));
  EXPECT_EQ(desk.profile(0), AuxProfile());
  EXPECT_EQ(desk.state.numAuxSpillways, 2);
}

TEST(MainRunRead, leavesWhatItDoesNotMention) {
  ControlDesk desk;
  desk.screens.damSurface.txtCrestWidth.setText("12");
  desk.screens.structureTable.grdTable.setCell(3, 1, "1030");
  desk.parse(fileOf({"STRUCTURE", "                    1000", "ENDTABLE"}));
  EXPECT_EQ(desk.screens.damSurface.txtCrestWidth.text(), "12");
  EXPECT_EQ(desk.screens.structureTable.grdTable.cell(1, 1), "1000");
  EXPECT_EQ(desk.screens.structureTable.grdTable.cell(3, 1), "1030");
}

TEST(MainRunRead, hidesTheScreensThatItNeedsAndShowsTheOthersAnew) {
  ControlDesk desk;
  desk.host.show(desk.screens.psConduit);
  desk.host.show(desk.screens.projectInformation);
  desk.parse(fileOf({"PSpDATA   1    120  24                  0.013     1002      1000      TR"}));
  EXPECT_EQ(desk.front(), "frmPSConduit");
  EXPECT_EQ(desk.host.shown().size(), 1U);
  EXPECT_EQ(desk.screens.psConduit.title(), "Principal Spillway: Two Stage Inlet, Rectangular Conduit");
}

TEST(MainRunRead, cannotBeUndoneAndIsNoEdit) {
  ControlDesk desk;
  desk.host.show(desk.screens.damSurface);
  desk.screens.damSurface.txtCrestWidth.userReplace("12");
  desk.state.fileDirty = false;
  desk.parse("DAMCREST  14\r\n");
  EXPECT_FALSE(desk.history.canUndo());
  EXPECT_FALSE(desk.state.fileDirty);
  desk.screens.damSurface.txtCrestWidth.userReplace("15");
  EXPECT_TRUE(desk.history.undo());
  EXPECT_EQ(desk.screens.damSurface.txtCrestWidth.text(), "14");
}

TEST(MainRunRead, isTakenAwayAgainWithItsScreens) {
  ControlDesk desk;
  const std::string blank = desk.build();
  desk.parse(fileOf({"OPTION    COEFF     RIPRAP    NOPS", "DAMCREST  14", "PSpINLET  0.7", "PSpHOOD   60", "TAILWATER",
                     "          1000      0", "ENDTABLE", "CRESTPRFL", "          0         1", "ENDTABLE",
                     "ASRATING  1Way      1", "          1020      5", "ENDTABLE", "TEMPLATE", "          1"}));
  EXPECT_NE(desk.build(), blank);
  desk.unload();
  EXPECT_EQ(desk.build(), blank);
}

struct FaultCase {
  const char* name;
  std::string head;
  std::string row;
  int rows;  // that the screen has room for
  const char* record;
};

void PrintTo(const FaultCase& told, std::ostream* out) {
  *out << told.name;
}

class TooManyRows : public testing::TestWithParam<FaultCase> {};

TEST_P(TooManyRows, areToldOnceWithFileLineAndRecord) {
  const auto& [name, head, row, rows, record] = GetParam();
  std::string text = "UPSTREAM  3\r\n" + head + "\r\n";
  for (int i = 0; i < rows; ++i) text += row + "\r\n";
  ControlDesk desk;
  desk.state.currentFile = "/p/dam.KSC";
  desk.parse(text + "ENDTABLE\r\nDAMCREST  12\r\n");
  EXPECT_EQ(desk.takeBoxes(), Lines());
  EXPECT_EQ(desk.screens.damSurface.txtCrestWidth.text(), "12");
  desk.unload();
  desk.parse(text + row + "\r\n" + row + "\r\nENDTABLE\r\nDAMCREST  12\r\n");
  EXPECT_EQ(desk.takeBoxes(), Lines{"File Error: /p/dam.KSC, line " + std::to_string(rows + 3) + ", record " + record +
                                    ": more rows than the table holds."});
  EXPECT_EQ(desk.screens.damSurface.txtUpSlope.text(), "3");
  EXPECT_EQ(desk.screens.damSurface.txtCrestWidth.text(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Tables, TooManyRows,
    testing::Values(FaultCase{"structure", "STRUCTURE", "                    1000", 50, "STRUCTURE"},
                    FaultCase{"crest", "CRESTPRFL", "          0         1", 101, "CRESTPRFL"},
                    FaultCase{"tailwater", "TAILWATER", "          0         1", 50, "TAILWATER"},
                    FaultCase{"rating", "ASRATING  1", "          0         10", 50, "ASRATING"},
                    FaultCase{"reaches", "ASSURFACE 1", "          0", 100, "ASSURFACE"},
                    FaultCase{"constantSteps", "HYDROGRAPHt",
                              "                    1         2         3         4         5", 1000, "HYD"},
                    FaultCase{"variableSteps", "HYD       t         1         0         0V", "          0         1",
                              5000, "HYD"},
                    FaultCase{"sectionTemplate", "TEMPLATE", "          1", 101, "TEMPLATE"}),
    caseName<FaultCase>);

}  // namespace
}  // namespace kestra
