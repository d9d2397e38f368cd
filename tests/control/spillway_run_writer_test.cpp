// The run of an auxiliary spillway, byte for byte.
#include <gtest/gtest.h>

#include <functional>

#include "support/control_desk.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

// One spillway whose integrity is analysed, with two materials.
struct SpillwayDesk : ControlDesk {
  SpillwayDesk() {
    state.numAuxSpillways = 1;
    screens.auxSpillways.txtsway(0).setText("East");
    screens.auxSpillways.optQUIL(0).setSelected(true);
    profile().txtSide = "3";
    profile().txtBottom = "50";
    profile().txtElevation = "980";
    profile().txtTopsoil = "0.5";
    profile().txtEnd = "500";
    materials().add();
    materials().add();
  }
  std::string run(int spillway = 0) {
    control.BuildAuxRunText(spillway, "/p/dam.KSC");
    return control.texts.auxRunText.at(static_cast<std::size_t>(spillway));
  }
};

TEST(SpillwayRun, holdsItsRecordsInTheirOrder) {
  SpillwayDesk desk;
  desk.profile().reaches[0] = {"0", "100", "5.6", "0.8", "1", "2"};
  desk.profile().points[0] = {"0", "1010"};
  desk.profile().points[1] = {"100", "1008"};
  AuxMaterial& shale = desk.materials().material(1);
  shale.description = "Shale";
  shale.values = {"10", "0.002", "30", "", "120", "0.05"};
  shale.points = {{"0", "1010"}, {"100", "1008"}, {"200", "990"}, {"300", "980"}};
  EXPECT_EQ(desk.run(), fileOf({"QUIL      02/09/20021         East",
                                "HYD       9                   C",
                                "          1",
                                "ENDTABLE",
                                "POOLDATA  ELEV                                              980       ",
                                "ASSPRFL   41        0.5                 East",
                                "          0         1010      100       1008                ",
                                "ENDTABLE",
                                "ASSURFACE 41        500",
                                "          0         100       5.6       0.8       1         2         ",
                                "ENDTABLE",
                                "ASDATA    41                            3         ",
                                "BTMWIDTH  FEET      50",
                                "ASMATERIAL",
                                "          1         10        0.002     30        120       0.05",
                                "          2                                                 ",
                                "ENDTABLE",
                                "ASCOORD   1         Shale     N                             N",
                                "          0         1010      100       1008      200       990       ",
                                "          300       980                                               ",
                                "ENDTABLE",
                                "ASCOORD   2                   ",
                                "ENDTABLE",
                                "GRAPHICS  I",
                                "GO,HYD    L                             1         ",
                                "KESTRA    1         /p/dam.KSC",
                                "ENDJOB",
                                "ENDRUN"}));
}

TEST(SpillwayRun, ofTheStabilityHasNoRootDepthAndNoBoundaries) {
  SpillwayDesk desk;
  desk.screens.auxSpillways.optStability(0).setSelected(true);
  desk.screens.headcut.optORLEN.setSelected(true);
  desk.profile().reaches[0] = {"0", "100", "5.6", "0.8", "1", "2"};
  desk.profile().fill = {FillChoice::external, FillChoice::external};
  const std::string run = desk.run();
  EXPECT_EQ(rowsOf(run, "ASSURFACE"), Lines{"          0         100       5.6       0.8       1                   "});
  EXPECT_EQ(rowsOf(run, "ASMATERIAL").size(), 2U);
  EXPECT_TRUE(linesWith(run, "ASCOORD").empty());
  EXPECT_TRUE(linesWith(run, "ORLEN").empty());
}

TEST(SpillwayRun, namesItsSpillwayByTheNumberFromOne) {
  SpillwayDesk desk;
  desk.state.numAuxSpillways = 3;
  desk.screens.auxSpillways.optQUIL(2).setSelected(true);
  desk.screens.auxSpillways.txtsway(2).setText("West");
  const std::string run = desk.run(2);
  EXPECT_EQ(linesOf(run).front(), "QUIL      02/09/20023         West");
  EXPECT_EQ(linesWith(run, "KESTRA"), Lines{"KESTRA    3         /p/dam.KSC"});
}

TEST(SpillwayRun, writesRowsOfThreePointsAndOneOfTheLast) {
  SpillwayDesk desk;
  auto& points = desk.profile().points;
  for (std::size_t i = 0; i < points.size(); ++i) points[i] = {std::to_string(i), "1000.5"};
  points[33][0] = "";  // the first station of a row: the row is left out
  points[40][0] = "";  // another: the row stands
  const Lines rows = rowsOf(desk.run(), "ASSPRFL");
  ASSERT_EQ(rows.size(), 33U);
  EXPECT_EQ(rows[0], "          0         1000.5    1         1000.5    2         1000.5");
  EXPECT_EQ(rows[11], "          36        1000.5    37        1000.5    38        1000.5");
  EXPECT_EQ(rows[12], "          39        1000.5              1000.5    41        1000.5");
  EXPECT_EQ(rows[32], "          99        1000.5");
}

struct FillCase {
  FillChoice topsoil;
  FillChoice general;
  const char* record;
  std::vector<int> ownMaterials;  // numbers of the rows behind those of the two materials
};

class Fills : public testing::TestWithParam<FillCase> {};

TEST_P(Fills, standBehindTheKeywordOfTheMaterials) {
  SpillwayDesk desk;
  desk.profile().fill = {GetParam().topsoil, GetParam().general};
  desk.profile().materNum = {"1", "2"};
  const std::string run = desk.run();
  EXPECT_EQ(linesWith(run, "ASMATERIAL"), Lines{GetParam().record});
  const Lines rows = rowsOf(run, "ASMATERIAL");
  std::vector<int> numbers;
  for (std::size_t i = 2; i < rows.size(); ++i) numbers.push_back(rows[i][10] - '0');
  EXPECT_EQ(numbers, GetParam().ownMaterials);
}

constexpr auto kNone = FillChoice::none;
constexpr auto kInPlace = FillChoice::inPlace;
constexpr auto kExternal = FillChoice::external;

INSTANTIATE_TEST_SUITE_P(Choices, Fills,
                         testing::Values(FillCase{kNone, kNone, "ASMATERIAL", {}},
                                         FillCase{kNone, kInPlace, "ASMATERIAL          2", {}},
                                         FillCase{kNone, kExternal, "ASMATERIAL          4", {4}},
                                         FillCase{kInPlace, kNone, "ASMATERIAL1", {}},
                                         FillCase{kInPlace, kInPlace, "ASMATERIAL1         2", {}},
                                         FillCase{kInPlace, kExternal, "ASMATERIAL1         4", {4}},
                                         FillCase{kExternal, kNone, "ASMATERIAL3", {3}},
                                         FillCase{kExternal, kInPlace, "ASMATERIAL3         2", {3}},
                                         FillCase{kExternal, kExternal, "ASMATERIAL3         4         ", {3, 4}}));

struct BarrierCase {
  bool barrier;
  bool crest;
  const char* record;
};

class Barriers : public testing::TestWithParam<BarrierCase> {};

TEST_P(Barriers, standWithTheFirstMaterial) {
  SpillwayDesk desk;
  desk.profile().chkBarrier = GetParam().barrier;
  desk.profile().chkCrest = GetParam().crest;
  desk.profile().txtBarrier = "450";
  desk.profile().txtBreachDepth = "2.5";
  EXPECT_EQ(linesWith(desk.run(), "ASCOORD"), (Lines{GetParam().record, "ASCOORD   2                   "}));
}

INSTANTIATE_TEST_SUITE_P(
    Choices, Barriers,
    testing::Values(BarrierCase{true, true, "ASCOORD   1                   N         450       2.5       Y"},
                    BarrierCase{true, false, "ASCOORD   1                   N         450                 N"},
                    BarrierCase{false, true, "ASCOORD   1                   N                   2.5       Y"},
                    BarrierCase{false, false, "ASCOORD   1                   N                             N"}));

TEST(SpillwayRun, tellsADetachmentRateByItsMinusSign) {
  SpillwayDesk desk;
  AuxMaterial& material = desk.materials().material(2);
  material.values = {"", "", "30", " 0.4 ", "", ""};
  EXPECT_EQ(rowsOf(desk.run(), "ASMATERIAL")[1], "          2                             30                  ");
  material.byDetachment = true;
  EXPECT_EQ(rowsOf(desk.run(), "ASMATERIAL")[1], "          2                             -0.4                ");
}

TEST(SpillwayRun, readsTheMaterialsInTheOrderOfTheirNumbers) {
  SpillwayDesk desk;
  desk.materials().material(1).description = "first";
  desk.materials().insert(1);
  desk.materials().material(1).description = "new";
  const Lines records = linesWith(desk.run(), "ASCOORD");
  ASSERT_EQ(records.size(), 3U);
  EXPECT_EQ(records[0].substr(0, 30), "ASCOORD   1         new       ");
  EXPECT_EQ(records[1], "ASCOORD   2         first     ");
}

TEST(SpillwayRun, endsABoundaryAtItsFirstBlankStation) {
  SpillwayDesk desk;
  desk.materials().material(1).points = {{"0", "1"}, {"", "2"}, {"5", "3"}};
  EXPECT_EQ(rowsOf(desk.run(), "ASCOORD   1"), Lines{"          0         1                                       "
                                                     "          "});
}

TEST(SpillwayRun, holdsTheThresholdEquationsOfTheirForm) {
  SpillwayDesk desk;
  frmHeadcut& headcut = desk.screens.headcut;
  const std::pair<TextBox*, const char*> texts[] = {{&headcut.txta1, "1"},
                                                    {&headcut.txtb1, "2"},
                                                    {&headcut.txta2, "3"},
                                                    {&headcut.txtb2, "4"},
                                                    {&headcut.txtc2, "5"}};
  for (const auto& [box, text] : texts) box->setText(text);
  EXPECT_TRUE(linesWith(desk.run(), "ORLEN").empty());
  headcut.optORLEN.setSelected(true);
  EXPECT_EQ(linesWith(desk.run(), "ORLEN"), Lines{"ORLEN     1         2         3         4         5         0"});
  headcut.optLogLog.setSelected(true);
  EXPECT_EQ(linesWith(desk.run(), "ORLEN"), Lines{"ORLEN     1         2         3         4         5         1"});
}

TEST(SpillwayRun, tellsWhenTheDamWasRunInTheFileThatItsPathNames) {
  SpillwayDesk desk;
  desk.files.clockNs = 1'234'188'185LL * 1'000'000'000LL;
  desk.files.put("/p/dam.out", "");
  EXPECT_EQ(linesWith(desk.run(), "MODIFIED"), Lines{"MODIFIED  02/09/2009 14:03:05"});
}

TEST(SpillwayRun, holdsASamplingBlockWhereAPropertyIsDrawn) {
  SpillwayDesk desk;
  desk.state.totalInstances = "50";
  desk.state.lhsSeed = "7";
  desk.state.bRandomSample = true;
  AuxMaterial& material = desk.materials().material(2);
  material.value(MaterialProperty::headCutIndex) = "PDF";
  material.distribution(MaterialProperty::headCutIndex) = {"Truncated Lognormal-N", {"1", "2", "0.1", "0.9"}, true};
  material.distribution(MaterialProperty::dryDensity) = {"Uniform", {"90", "110", "", ""}, false};
  desk.profile().hydroDist[1] = {"Normal", {"24", "3", "", ""}, true};
  desk.profile().fill[0] = FillChoice::external;
  desk.materials().material(3).distribution(MaterialProperty::plasticityIndex) = {"Poisson", {"8", "", "", ""}, true};
  desk.materials().material(4).distribution(MaterialProperty::plasticityIndex) = {"Poisson", {"9", "", "", ""}, true};
  const std::string run = desk.run();
  EXPECT_EQ(
      run.substr(run.find("LHS")),
      fileOf({"LHS       50        7         1         0         ",
              "                    2         Normal                        24        3                             ",
              "          2         6         Truncated Lognormal-N         1         2         0.1       0.9       ",
              "          3         1         Poisson                       8                                       ",
              "ENDTABLE", "ENDJOB", "ENDRUN"}));
}

TEST(BuildAuxRunText, beginsAnewAndWriteSpillwayRunAppends) {
  SpillwayDesk desk;
  const std::string once = desk.run();
  EXPECT_EQ(desk.run(), once);
  desk.control.WriteSpillwayRun(0, "/p/dam.KSC");
  EXPECT_EQ(desk.control.texts.auxRunText[0], once + once);
}

TEST(BuildAuxRunText, takesWhatTheScreenOfTheProfileShows) {
  SpillwayDesk desk;
  desk.host.show(desk.screens.auxSpillwayProfile);
  desk.screens.auxSpillwayProfile.txtBottom.userReplace("75");
  EXPECT_EQ(linesWith(desk.run(), "BTMWIDTH"), Lines{"BTMWIDTH  FEET      75"});
}

TEST(BuildControlText, buildsTheRunsOfTheAnalysedSpillwaysInUse) {
  SpillwayDesk desk;
  desk.state.numAuxSpillways = 2;
  desk.screens.auxSpillways.optRating(1).setSelected(true);
  desk.screens.auxSpillways.optStability(1).setSelected(true);
  desk.screens.auxSpillways.optQUIL(2).setSelected(true);
  desk.build();
  const auto& runs = desk.control.texts.auxRunText;
  EXPECT_TRUE(runs[0].starts_with("QUIL      02/09/20021 "));
  EXPECT_TRUE(runs[1].starts_with("QUIL      02/09/20022 "));
  EXPECT_EQ(runs[2], "");
}

}  // namespace
}  // namespace kestra
