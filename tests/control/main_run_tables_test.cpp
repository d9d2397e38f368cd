// The tables that the screens hold when a main run has been read.
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

}  // namespace
}  // namespace kestra
