// What the stores hold when the run of a spillway has been read.
#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "support/control_desk.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

struct RunDesk : ControlDesk {
  void read(const Lines& lines, int spillway = 0) { control.ReadSpillwayRun(fileOf(lines), spillway); }
  void readIntegrity(const Lines& lines) {
    screens.auxSpillways.optQUIL(0).setSelected(true);
    read(lines);
  }
};

TEST(ReadSpillwayRun, fillsTheProfileOfItsSpillway) {
  RunDesk desk;
  desk.read({"QUIL      02/09/20022         East", "POOLDATA  ELEV                                              980",
             "ASSPRFL   41        0.5                 East",
             "          0         1010      100       1008      200       1000",
             "          300       980                 970", "ENDTABLE", "ASSURFACE 41        500",
             "          0         100       5.6       0.8       1         2", "          100       200", "ENDTABLE",
             "ASDATA    41                            3", "BTMWIDTH  FEET      50", "ENDJOB", "ENDRUN"},
            1);
  const AuxProfile& profile = desk.profile(1);
  EXPECT_EQ(profile.txtElevation, "980");
  EXPECT_EQ(profile.txtTopsoil, "0.5");
  EXPECT_EQ(profile.txtEnd, "500");
  EXPECT_EQ(profile.txtSide, "3");
  EXPECT_EQ(profile.txtBottom, "50");
  EXPECT_EQ(profile.points[2], (StationElevation{"200", "1000"}));
  EXPECT_EQ(profile.points[3], (StationElevation{"300", "980"}));
  EXPECT_EQ(profile.points[4], (StationElevation{"", "970"}));
  EXPECT_EQ(profile.reaches[0], (AuxReach{"0", "100", "5.6", "0.8", "1", "2"}));
  EXPECT_EQ(profile.reaches[1], (AuxReach{"100", "200", "", "", "", ""}));
  EXPECT_EQ(desk.screens.auxSpillways.label(1), "East");
  EXPECT_EQ(desk.profile(0), AuxProfile());
}

TEST(ReadSpillwayRun, keepsALabelThatTheMainRunHasGiven) {
  RunDesk desk;
  desk.screens.auxSpillways.txtsway(0).setText("North");
  desk.read({"QUIL      02/09/20021         East", "ASSPRFL   41        0.5                 East", "ENDTABLE"});
  EXPECT_EQ(desk.screens.auxSpillways.label(0), "North");
  EXPECT_EQ(desk.profile().txtTopsoil, "0.5");
}

TEST(ReadSpillwayRun, takesALabelFromTheProfileWhereNothingElseHasOne) {
  RunDesk desk;
  desk.read({"QUIL      02/09/20021", "ASSPRFL   41                            East", "ENDTABLE"});
  EXPECT_EQ(desk.screens.auxSpillways.label(0), "East");
}

TEST(ReadSpillwayRun, showsWhatItHasReadOnTheScreenOfTheProfile) {
  RunDesk desk;
  desk.host.show(desk.screens.auxSpillwayProfile);
  desk.read({"BTMWIDTH  FEET      50"});
  EXPECT_EQ(desk.screens.auxSpillwayProfile.txtBottom.text(), "50");
}

TEST(ReadSpillwayRun, readsMaterialsWithTheirBoundaries) {
  RunDesk desk;
  desk.readIntegrity({"ASMATERIAL", "          1         10        0.002     30        120       0.05",
                      "          2         PDF       0.1       -0.4      110       PDF", "ENDTABLE",
                      "ASCOORD   1         Shale     N         450       2.5       Y",
                      "          0         1010      100       1008      200       990", "          300       980",
                      "ENDTABLE", "ASCOORD   2         Sandstone"});
  const AuxMaterials& materials = desk.materials();
  ASSERT_EQ(materials.count, 2);
  EXPECT_EQ(materials.material(1).values, (std::array<std::string, 6>{"10", "0.002", "30", "", "120", "0.05"}));
  EXPECT_FALSE(materials.material(1).byDetachment);
  EXPECT_EQ(materials.material(1).description, "Shale");
  EXPECT_EQ(materials.material(1).points,
            (std::vector<StationElevation>{{"0", "1010"}, {"100", "1008"}, {"200", "990"}, {"300", "980"}}));
  EXPECT_EQ(materials.material(2).values, (std::array<std::string, 6>{"PDF", "0.1", "", "0.4", "110", "PDF"}));
  EXPECT_TRUE(materials.material(2).byDetachment);
  EXPECT_EQ(materials.material(2).description, "Sandstone");
  EXPECT_TRUE(desk.profile().chkBarrier);
  EXPECT_EQ(desk.profile().txtBarrier, "450");
  EXPECT_TRUE(desk.profile().chkCrest);
  EXPECT_EQ(desk.profile().txtBreachDepth, "2.5");
}

TEST(ReadSpillwayRun, takesThePlaceOfTheMaterialsThatWereThere) {
  RunDesk desk;
  for (int i = 0; i < 5; ++i) desk.materials().add();
  desk.materials().material(5).description = "old";
  desk.materials().insert(1);
  desk.read({"ASMATERIAL", "          1         10", "ENDTABLE"});
  EXPECT_EQ(desk.materials().count, 1);
  EXPECT_EQ(desk.materials().order, AuxMaterials::inOrder());
  EXPECT_EQ(desk.materials().material(2), AuxMaterial());
}

struct FillCase {
  const char* name;
  const char* fills;      // behind ASMATERIAL
  std::vector<int> rows;  // numbers of the rows
  int boundaries;         // count of ASCOORD records
  int count;              // of the materials that come of it
  std::array<FillChoice, 2> fill;
};

void PrintTo(const FillCase& told, std::ostream* out) {
  *out << told.name;
}

class FillsOfARun : public testing::TestWithParam<FillCase> {};

TEST_P(FillsOfARun, areToldByTheirNumbers) {
  const FillCase& given = GetParam();
  Lines lines = {std::string("ASMATERIAL") + given.fills};
  for (const int number : given.rows)
    lines.push_back("          " + std::to_string(number) + "         of" + std::to_string(number));
  lines.push_back("ENDTABLE");
  for (int number = 1; number <= given.boundaries; ++number) {
    lines.push_back("ASCOORD   " + std::to_string(number));
    lines.push_back("ENDTABLE");
  }
  RunDesk desk;
  desk.readIntegrity(lines);
  EXPECT_EQ(desk.materials().count, given.count);
  EXPECT_EQ(desk.profile().fill, given.fill);
  for (const int number : given.rows) {
    EXPECT_EQ(desk.materials().material(number).value(MaterialProperty::plasticityIndex),
              "of" + std::to_string(number));
  }
}

constexpr auto kNone = FillChoice::none;
constexpr auto kInPlace = FillChoice::inPlace;
constexpr auto kExternal = FillChoice::external;

INSTANTIATE_TEST_SUITE_P(
    Forms, FillsOfARun,
    testing::Values(FillCase{"noneNone", "", {1, 2}, 2, 2, {kNone, kNone}},
                    FillCase{"noneInPlace", "          2", {1, 2}, 2, 2, {kNone, kInPlace}},
                    FillCase{"noneExternal", "          4", {1, 2, 4}, 2, 2, {kNone, kExternal}},
                    FillCase{"inPlaceNone", "2", {1, 2}, 2, 2, {kInPlace, kNone}},
                    FillCase{"inPlaceInPlace", "1         2", {1, 2}, 2, 2, {kInPlace, kInPlace}},
                    FillCase{"inPlaceExternal", "1         4", {1, 2, 4}, 2, 2, {kInPlace, kExternal}},
                    FillCase{"externalNone", "3", {1, 2, 3}, 2, 2, {kExternal, kNone}},
                    FillCase{"externalInPlace", "3         2", {1, 2, 3}, 2, 2, {kExternal, kInPlace}},
                    FillCase{"externalExternal", "3         4         ", {1, 2, 3, 4}, 2, 2, {kExternal, kExternal}},
                    FillCase{"aFillAlone", "1", {1}, 0, 0, {kExternal, kNone}},
                    FillCase{"noBoundariesAtAll", "", {1, 2}, 0, 2, {kNone, kNone}}),
    caseName<FillCase>);

TEST(ReadSpillwayRun, countsAllRowsAsMaterialsWhereTheStabilityIsAnalysed) {
  RunDesk desk;
  desk.screens.auxSpillways.optStability(0).setSelected(true);
  desk.read({"ASMATERIAL3", "          1", "          2", "ENDTABLE"});
  EXPECT_EQ(desk.materials().count, 2);
  EXPECT_EQ(desk.profile().fill[0], kExternal);
}

TEST(ReadSpillwayRun, readsTheThresholdEquations) {
  RunDesk desk;
  desk.read({"ORLEN     1         2         3         4         5         1"});
  const frmHeadcut& headcut = desk.screens.headcut;
  EXPECT_TRUE(headcut.optORLEN.selected());
  EXPECT_TRUE(headcut.optLogLog.selected());
  EXPECT_EQ(
      headcut.txta1.text() + headcut.txtb1.text() + headcut.txta2.text() + headcut.txtb2.text() + headcut.txtc2.text(),
      "12345");
  desk.read({"ORLEN     1         2         3         4         5         0"});
  EXPECT_TRUE(headcut.optSemiLog.selected());
}

TEST(ReadSpillwayRun, readsItsRecordsInAnyOrder) {
  RunDesk desk;
  desk.readIntegrity(
      {"LHS       50        7", "          1         5         Normal                        110       5", "ENDTABLE",
       "ASCOORD   1         Shale     N         450       2.5       Y", "          0         1010      100       1008",
       "ENDTABLE", "ASMATERIAL", "          1         10        0.002     30        PDF       0.05", "ENDTABLE"});
  const AuxMaterials& materials = desk.materials();
  ASSERT_EQ(materials.count, 1);
  EXPECT_EQ(materials.material(1).values, (std::array<std::string, 6>{"10", "0.002", "30", "", "PDF", "0.05"}));
  EXPECT_EQ(materials.material(1).description, "Shale");
  EXPECT_EQ(materials.material(1).points, (std::vector<StationElevation>{{"0", "1010"}, {"100", "1008"}}));
  EXPECT_EQ(desk.profile().txtBarrier, "450");
  EXPECT_EQ(materials.material(1).distribution(MaterialProperty::dryDensity),
            (Distribution{"Normal", {"110", "5", "", ""}, true}));
}

constexpr const char* kSampleRow = "          1         6         Triangular                    1         2         3";

TEST(ReadSpillwayRun, readsTheSamplingBlock) {
  RunDesk desk;
  desk.read({"ASMATERIAL", "          1", "ENDTABLE", "LHS       50        7         1         1", kSampleRow,
             "                    1         Normal                        900       80", "ENDTABLE"});
  EXPECT_EQ(desk.state.totalInstances, "50");
  EXPECT_EQ(desk.state.lhsSeed, "7");
  EXPECT_TRUE(desk.state.bRandomSample);
  EXPECT_TRUE(desk.state.bRandomPairing);
  EXPECT_EQ(desk.materials().material(1).distribution(MaterialProperty::headCutIndex),
            (Distribution{"Triangular", {"1", "2", "3", ""}, true}));
  EXPECT_EQ(desk.profile().hydroDist[0], (Distribution{"Normal", {"900", "80", "", ""}, true}));
  EXPECT_FALSE(desk.profile().hydroDist[1].inUse);
  EXPECT_TRUE(desk.takeBoxes().empty());
}

struct SampleCase {
  const char* name;
  Lines lines;
  Lines boxes;
};

void PrintTo(const SampleCase& told, std::ostream* out) {
  *out << told.name;
}

class SamplingFault : public testing::TestWithParam<SampleCase> {};

TEST_P(SamplingFault, isToldAndTheValueIsNotDrawn) {
  RunDesk desk;
  Lines lines = {"ASMATERIAL", "          1", "ENDTABLE"};
  lines.insert(lines.end(), GetParam().lines.begin(), GetParam().lines.end());
  desk.read(lines);
  EXPECT_EQ(desk.takeBoxes(), GetParam().boxes);
  for (const Distribution& distribution : desk.materials().material(1).distributions) {
    EXPECT_EQ(distribution, Distribution());
  }
}

INSTANTIATE_TEST_SUITE_P(
    Blocks, SamplingFault,
    testing::Values(
        SampleCase{"noInstances", {"LHS                 7"}, {"Warning: Using default value for totalInstances"}},
        SampleCase{"noSeed", {"LHS       5         x"}, {"Warning: Using default value for Seed"}},
        SampleCase{"anUnknownDistribution",
                   {"LHS       5         7", "          1         6         triangular"},
                   {"Warning: 'triangular' given for data generation for Probalbity distribution not recognized\r\n"
                    "Using default value for distribution for material number 1"}},
        SampleCase{"anUnknownDistributionOfTheHydrograph",
                   {"LHS       5         7", "                    1         normal"},
                   {"Warning: 'normal' given for data generation for Probalbity distribution not recognized\r\n"
                    "Using default value for distribution for Hydrograph Data "}},
        SampleCase{
            "anUnknownProperty",
            {"LHS       5         7", "          1         7         Normal", "                    3         Normal"},
            {"Warning: Property Index 7 for material 1 not recognized\r\nProperty Index 3 not recognized"}},
        SampleCase{"anUnknownMaterial",
                   {"LHS       5         7", "          4         1         Normal"},
                   {"Warning: Material 4 not recognized"}},
        SampleCase{"aRowThatIsNone",
                   {"LHS       5         7", "          one       1         Normal", kSampleRow},
                   {"Error: Invalid File Format with improper Probability Distribution Information"}},
        SampleCase{"aConstant", {"LHS       5         7", "          1         1         CONSTANT"}, {}}),
    caseName<SampleCase>);

struct FaultCase {
  const char* name;
  const char* head;
  const char* row;
  int rows;
  const char* record;
};

void PrintTo(const FaultCase& told, std::ostream* out) {
  *out << told.name;
}

class TooManyRowsOfARun : public testing::TestWithParam<FaultCase> {};

TEST_P(TooManyRowsOfARun, areToldWithLineAndRecord) {
  const auto& [name, head, row, rows, record] = GetParam();
  Lines lines = {"ASMATERIAL", "          1", "ENDTABLE", head};
  for (int i = 0; i < rows; ++i) lines.push_back(row);
  RunDesk desk;
  desk.read(lines, 1);
  EXPECT_EQ(desk.takeBoxes(), Lines());
  lines.push_back(row);
  desk.read(lines, 1);
  EXPECT_EQ(desk.takeBoxes(), Lines{"File Error: Run of auxiliary spillway 2, line " + std::to_string(rows + 5) +
                                    ", record " + record + ": more rows than the table holds."});
}

INSTANTIATE_TEST_SUITE_P(Tables, TooManyRowsOfARun,
                         testing::Values(FaultCase{"profile", "ASSPRFL   41", "          1         2", 34, "ASSPRFL"},
                                         FaultCase{"reaches", "ASSURFACE 41", "          1", 100, "ASSURFACE"},
                                         FaultCase{"materials", "ASMATERIAL", "          1", 102, "ASMATERIAL"},
                                         FaultCase{"boundary", "ASCOORD   1", "          1         2", 34, "ASCOORD"},
                                         FaultCase{"samples", "LHS       1         1",
                                                   "          1         1         Normal", 614, "LHS"}),
                         caseName<FaultCase>);

TEST(ReadSpillwayRun, isAFaultForASpillwayThatThereIsNot) {
  RunDesk desk;
  EXPECT_THROW(desk.read({}, 3), RuntimeFault);
  EXPECT_THROW(desk.read({}, -1), RuntimeFault);
}

TEST(ParseControlText, putsARunBackToTheSpillwayThatItNames) {
  ControlDesk desk;
  desk.control.texts.controlText = fileOf({"ASSURFACE 3West     3", "ENDTABLE", "ENDRUN"});
  desk.control.texts.auxRunText[0] = fileOf({"QUIL      02/09/20023         West", "BTMWIDTH  FEET      30"});
  desk.control.texts.auxRunText[1] = fileOf({"QUIL      02/09/2002          North", "BTMWIDTH  FEET      40"});
  desk.control.texts.auxRunText[2] = fileOf({"BTMWIDTH  FEET      10"});
  desk.control.ParseControlText();
  EXPECT_EQ(desk.profile(0).txtBottom, "");
  EXPECT_EQ(desk.profile(1).txtBottom, "40");
  EXPECT_EQ(desk.profile(2).txtBottom, "10");
  EXPECT_EQ(desk.control.texts.workText, "");
}

}  // namespace
}  // namespace kestra
