// What the tables of the screens write into the main run, byte for byte, and what stands around them.
#include <gtest/gtest.h>

#include <functional>

#include "support/control_desk.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

// A program's choice on a screen.
void choose(OptionButton& option) {
  option.setSelected(true);
}

struct RowsCase {
  const char* name;
  std::function<void(InputScreenSet&)> enter;
  const char* keyword;
  Lines rows;
};

void PrintTo(const RowsCase& told, std::ostream* out) {
  *out << told.name;
}

class MainRunRows : public testing::TestWithParam<RowsCase> {};

TEST_P(MainRunRows, standAsTheScreensSay) {
  ControlDesk desk;
  GetParam().enter(desk.screens);
  EXPECT_EQ(rowsOf(desk.build(), GetParam().keyword), GetParam().rows);
}

void setRow(Table& table, int row, int column, std::initializer_list<const char*> texts) {
  for (const char* text : texts) table.setCell(row, column++, text);
}

INSTANTIATE_TEST_SUITE_P(Tables, MainRunRows,
                         testing::Values(RowsCase{"anEmptyStructure", [](InputScreenSet&) {}, "STRUCTURE", {}},
                                         RowsCase{"aStructureUpToItsFirstBlankElevation",
                                                  [](InputScreenSet& s) {
                                                    setRow(s.structureTable.grdTable, 1, 1, {" 1000 ", "", "0", "0.5"});
                                                    setRow(s.structureTable.grdTable, 2, 1, {"1005", "7", "", ""});
                                                    setRow(s.structureTable.grdTable, 4, 1, {"1010", "9", "", ""});
                                                  },
                                                  "STRUCTURE",
                                                  {"                    1000                0         0.5       ",
                                                   "                    1005      7                             "}},
                                         RowsCase{"aCrestUpToItsFirstBlankCell",
                                                  [](InputScreenSet& s) {
                                                    setRow(s.damSurface.grdTable, 1, 1, {"0", " 120", "240", "360"});
                                                    setRow(s.damSurface.grdTable, 2, 1, {"1026", "1024", " ", "1026"});
                                                  },
                                                  "CRESTPRFL",
                                                  {"          0         1026      ", "          120       1024      "}},
                                         RowsCase{"aTailwaterUpToItsFirstBlankCell",
                                                  [](InputScreenSet& s) {
                                                    setRow(s.psRatingTable.grdTable, 1, 1, {"1000", "0"});
                                                    setRow(s.psRatingTable.grdTable, 2, 1, {"", "10"});
                                                    setRow(s.psRatingTable.grdTable, 3, 1, {"1002", "20"});
                                                  },
                                                  "TAILWATER",
                                                  {"          1000      0         "}}),
                         caseName<RowsCase>);

INSTANTIATE_TEST_SUITE_P(
    Hydrographs, MainRunRows,
    testing::Values(RowsCase{"discharges",
                             [](InputScreenSet& s) {
                               int row = 1;
                               for (const char* flow : {"0", "123456.789", "1234567.1", "", "4", "5"}) {
                                 s.hydrographData.grdTable.setCell(row++, 1, flow);
                               }
                             },
                             "HYD",
                             {"                    0         123456.78 1234567             4         ",
                              "                    5                                                 "}},
                    RowsCase{"aLineThatBeginsBlankEndsThem",
                             [](InputScreenSet& s) {
                               s.hydrographData.grdTable.setCell(1, 1, "1");
                               s.hydrographData.grdTable.setCell(7, 1, "2");
                             },
                             "HYD",
                             {"                    1                                                 "}},
                    RowsCase{"timesAndDischarges",
                             [](InputScreenSet& s) {
                               choose(s.hydrographData.optVariable);
                               setRow(s.hydrographData.varTable, 1, 0, {"0", "5"});
                               setRow(s.hydrographData.varTable, 2, 0, {" 0.5", "12345678901"});
                               setRow(s.hydrographData.varTable, 3, 0, {"1", " "});
                               setRow(s.hydrographData.varTable, 4, 0, {"2", "7"});
                             },
                             "HYD",
                             {"          0         5         ", "           0.5      1234567890"}}),
    caseName<RowsCase>);

TEST(HydrographText, endsInEndTableWithoutALineEnd) {
  ControlDesk desk;
  desk.screens.hydrographData.txtTitle.setText("Probable maximum flood");
  desk.screens.hydrographData.txtConst.setText("0.25");
  desk.screens.hydrographData.txtStartTime.setText("1");
  desk.screens.hydrographData.chkAdjustTimeIncrement.setChecked(true);
  desk.control.BuildHydrographText();
  EXPECT_EQ(desk.control.texts.hydrographText, "HYD       Probable m0.25      1         1C        \r\nENDTABLE");
  desk.screens.hydrographData.txtDesired.setText("0.5");
  choose(desk.screens.hydrographData.optVariable);
  desk.screens.hydrographData.chkAdjustTimeIncrement.setChecked(false);
  desk.control.BuildHydrographText();
  EXPECT_EQ(desk.control.texts.hydrographText, "HYD       Probable m0.5       1         0V        \r\nENDTABLE");
}

TEST(HydrographText, holdsAllPointsOfAFullTableAtConstantSteps) {
  ControlDesk desk;
  for (int row = 1; row <= 5000; ++row) desk.screens.hydrographData.grdTable.setCell(row, 1, std::to_string(row));
  const Lines rows = rowsOf(desk.build(), "HYD");
  ASSERT_EQ(rows.size(), 1000U);
  EXPECT_EQ(rows.back(), "                    4996      4997      4998      4999      5000      ");
}

TEST(HydrographText, holdsThe4996FirstPointsOfATableWithTimes) {
  ControlDesk desk;
  choose(desk.screens.hydrographData.optVariable);
  for (int row = 1; row <= 5000; ++row) {
    setRow(desk.screens.hydrographData.varTable, row, 0, {std::to_string(row).c_str(), "1"});
  }
  const Lines rows = rowsOf(desk.build(), "HYD");
  ASSERT_EQ(rows.size(), 4996U);
  EXPECT_EQ(rows.back(), "          4996      1         ");
}

TEST(MainRun, goesFromTailwaterToOutputWithoutAuxiliarySpillways) {
  ControlDesk desk;
  const Lines lines = linesOf(desk.build());
  const Lines last(lines.end() - 4, lines.end());
  EXPECT_EQ(last, (Lines{"TAILWATER", "ENDTABLE", "OUTPUT    ALL", "ENDRUN"}));
}

TEST(MainRun, goesFromTheOptionsToTheModelWithoutAComment) {
  ControlDesk desk;
  const Lines lines = linesOf(desk.build());
  EXPECT_EQ(lines[1], "OPTION    SIMPLE    EARTH     ");
  EXPECT_TRUE(lines[2].starts_with("HCMODEL"));
}

TEST(MainRun, hasTheRecordsOfEachAuxiliarySpillwayInUse) {
  ControlDesk desk;
  frmAuxSpillways& spillways = desk.screens.auxSpillways;
  desk.state.numAuxSpillways = 3;
  for (int i = 0; i < 3; ++i) spillways.txtsway(i).setText("Way " + std::to_string(i + 1) + " of three");
  choose(spillways.optRating(1));
  choose(spillways.optStability(2));
  for (const int i : {0, 2}) {
    AuxProfile& profile = desk.profile(i);
    profile.txtSide = "3";
    profile.txtBottom = "1234567890";
    profile.txtTopsoil = "0.5";
    profile.txtEnd = "500";
    profile.reaches[0] = {"0", "100", " 5.6", "0.8", "1", "2"};
    profile.reaches[2] = {"100", "200", "5.6", "0.8", "1", ""};
    profile.reaches[3] = {"", "300", "5.6", "", "", ""};
    profile.reaches[99] = {"400", "", "", "", "", "3"};
  }
  setRow(desk.screens.auxRatingTable.grdTable(1), 1, 1, {"1020", "0"});
  setRow(desk.screens.auxRatingTable.grdTable(1), 2, 1, {"1021", ""});
  setRow(desk.screens.auxRatingTable.grdTable(1), 50, 1, {" 1022", "95 "});
  const std::string text = desk.build();
  const std::string surface = text.substr(text.find("ASSURFACE"));
  EXPECT_EQ(surface, fileOf({"ASSURFACE 1Way 1 of 3         1234567890"
                             "0.5       500",
                             "          0         100       5.6       0.8       1         2         ",
                             "          100       200       5.6       0.8       1                   ",
                             "          400                                               3         ", "ENDTABLE",
                             "ASRATING  2Way 2 of 0", "          1020      0         ",
                             "          1022      95        ", "ENDTABLE",
                             "ASSURFACE 3Way 3 of 3         1234567892"
                             "0.5       500",
                             "          0         100       5.6       0.8       1                   ",
                             "          100       200       5.6       0.8       1                   ",
                             "          400                                                         ", "ENDTABLE",
                             "OUTPUT    ALL", "ENDRUN"}));
}

}  // namespace
}  // namespace kestra
