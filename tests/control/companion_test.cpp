// What has no place in the control file and comes back all the same.
#include "control/companion.h"

#include <gtest/gtest.h>

#include <functional>
#include <nlohmann/json.hpp>

#include "support/control_desk.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

// A project in /p. What is saved in one desk is opened in another one that has the same disk.
struct ProjectDesk : ControlDesk {
  ProjectDesk() {
    files.putDirectory("/p");
    state.projectDir = "/p";
  }
  void save() {
    EXPECT_EQ(control.BuildControlText("/p/dam.KSC"), -1);
    EXPECT_TRUE(control.WriteControlFiles("/p/dam.KSC"));
  }
  void open() {
    unload();
    control.ReadControlFile("/p/dam.KSC");
    EXPECT_TRUE(takeBoxes().empty());
  }
  void saveAndOpen() {
    save();
    open();
  }
  bool hasCompanion() const { return files.content("/p/.kestra/dam.json").has_value(); }
};

struct TextCase {
  const char* name;
  std::function<void(InputScreenSet&)> choose;
  std::function<TextBox&(InputScreenSet&)> box;
};

void PrintTo(const TextCase& told, std::ostream* out) {
  *out << told.name;
}

class HiddenField : public testing::TestWithParam<TextCase> {};

TEST_P(HiddenField, comesBack) {
  ProjectDesk desk;
  GetParam().choose(desk.screens);
  GetParam().box(desk.screens).setText("1.25");
  desk.saveAndOpen();
  EXPECT_EQ(GetParam().box(desk.screens).text(), "1.25");
  EXPECT_TRUE(desk.hasCompanion());
}

void nothing(InputScreenSet&) {}
void noBreach(InputScreenSet& s) {
  s.projectInformation.optNoBreachAnalysis.setSelected(true);
}
void hood(InputScreenSet& s) {
  s.psType.optHood.setSelected(true);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, HiddenField,
    testing::Values(
        TextCase{"riprapOfAnEarthSlope", nothing,
                 [](InputScreenSet& s) -> TextBox& { return s.damSurface.txtRiprapD50; }},
        TextCase{"coverOfABareSlope", [](InputScreenSet& s) { s.projectInformation.optBare.setSelected(true); },
                 [](InputScreenSet& s) -> TextBox& { return s.damSurface.txtDownVCF; }},
        TextCase{"strengthOfTheOtherModel", nothing,
                 [](InputScreenSet& s) -> TextBox& { return s.properties.txtUndrainedShear; }},
        TextCase{"modelWithoutBreach", noBreach, [](InputScreenSet& s) -> TextBox& { return s.properties.txtKd; }},
        TextCase{"elevationOfADrawdownThatIsNotChosen", noBreach,
                 [](InputScreenSet& s) -> TextBox& { return s.hydrographData.txtDrawdownElevation; }},
        TextCase{"stepOfTheOtherForm", nothing,
                 [](InputScreenSet& s) -> TextBox& { return s.hydrographData.txtDesired; }},
        TextCase{"heightOfACircularConduit", nothing,
                 [](InputScreenSet& s) -> TextBox& { return s.psConduit.txtHeight; }},
        TextCase{"orificeOfASingleStage", nothing,
                 [](InputScreenSet& s) -> TextBox& { return s.psConduit.txtOrificeWidth; }},
        TextCase{"lengthOfTheConduitBesideAHood", hood,
                 [](InputScreenSet& s) -> TextBox& { return s.psConduit.txtLengthOfConduit; }},
        TextCase{"bendOfAStraightHood", hood,
                 [](InputScreenSet& s) -> TextBox& { return s.psConduit.txtElevationAtBend; }},
        TextCase{"weirOfARiserBesideAHood", hood,
                 [](InputScreenSet& s) -> TextBox& { return s.psConduit.txtWeirInletCoefficient; }},
        TextCase{"conduitBesideDischargesOfTheStructure",
                 [](InputScreenSet& s) { s.structureTable.grdTable.setCell(1, 2, "5"); },
                 [](InputScreenSet& s) -> TextBox& { return s.psConduit.txtManning; }},
        TextCase{"equationsWithoutAnAnalysis", nothing, [](InputScreenSet& s) -> TextBox& { return s.headcut.txta1; }},
        TextCase{"labelOfASpillwayThatIsNotInUse", nothing,
                 [](InputScreenSet& s) -> TextBox& { return s.auxSpillways.txtsway(2); }},
        TextCase{"aFieldThatIsNeverOnShow", nothing,
                 [](InputScreenSet& s) -> TextBox& { return s.damSurface.txtCSS; }}),
    caseName<TextCase>);

struct OptionCase {
  const char* name;
  std::function<void(InputScreenSet&)> choose;
  std::function<OptionButton&(InputScreenSet&)> option;
};

void PrintTo(const OptionCase& told, std::ostream* out) {
  *out << told.name;
}

class HiddenOption : public testing::TestWithParam<OptionCase> {};

TEST_P(HiddenOption, comesBack) {
  ProjectDesk desk;
  GetParam().choose(desk.screens);
  GetParam().option(desk.screens).setSelected(true);
  desk.saveAndOpen();
  EXPECT_TRUE(GetParam().option(desk.screens).selected());
}

INSTANTIATE_TEST_SUITE_P(
    Options, HiddenOption,
    testing::Values(OptionCase{"modelWithoutBreach", noBreach,
                               [](InputScreenSet& s) -> OptionButton& { return s.properties.optHcModel(2); }},
                    OptionCase{"typeOfConduitBesideDischargesOfTheStructure",
                               [](InputScreenSet& s) { s.structureTable.grdTable.setCell(1, 2, "5"); },
                               [](InputScreenSet& s) -> OptionButton& { return s.psType.optTwoRec; }},
                    OptionCase{"equationsWithoutAnAnalysis", nothing,
                               [](InputScreenSet& s) -> OptionButton& { return s.headcut.optORLEN; }},
                    OptionCase{"unitOfADrawdownThatIsNotChosen", nothing,
                               [](InputScreenSet& s) -> OptionButton& { return s.hydrographData.optFeet; }},
                    OptionCase{"analysisOfASpillwayThatIsNotInUse", nothing,
                               [](InputScreenSet& s) -> OptionButton& { return s.auxSpillways.optQUIL(1); }}),
    caseName<OptionCase>);

TEST(Companion, holdsRowsBehindABlankOne) {
  ProjectDesk desk;
  Table& table = desk.screens.structureTable.grdTable;
  table.setCell(1, 1, "1000");
  table.setCell(3, 1, "1010");
  table.setCell(3, 4, "7");
  desk.saveAndOpen();
  EXPECT_EQ(table.cell(1, 1), "1000");
  EXPECT_EQ(table.cell(2, 1), "");
  EXPECT_EQ(table.cell(3, 1), "1010");
  EXPECT_EQ(table.cell(3, 4), "7");
}

TEST(Companion, holdsTheGapsOfAHydrograph) {
  ProjectDesk desk;
  Table& table = desk.screens.hydrographData.grdTable;
  for (const int row : {1, 3, 9, 5000}) table.setCell(row, 1, std::to_string(row));
  desk.saveAndOpen();
  for (const int row : {1, 3, 9, 5000}) EXPECT_EQ(table.cell(row, 1), std::to_string(row));
  EXPECT_EQ(table.cell(2, 1), "");
}

TEST(Companion, holdsTheTableOfTheOtherFormAndItsLength) {
  ProjectDesk desk;
  Table& table = desk.screens.hydrographData.varTable;
  table.growTo(6000);
  table.setCell(5999, 0, "5999");
  desk.saveAndOpen();
  EXPECT_EQ(table.cell(5999, 0), "5999");
}

TEST(Companion, holdsASpillwayWithoutARun) {
  ProjectDesk desk;
  desk.state.numAuxSpillways = 1;
  AuxProfile& profile = desk.profile();
  profile.points[5] = {"50", "1000"};
  profile.txtElevation = "980";
  profile.chkBarrier = true;
  profile.fill = {FillChoice::external, FillChoice::inPlace};
  profile.materNum = {"2", "1"};
  profile.reaches[0] = {"0", "100", "5.6", "0.8", "1", "2"};
  profile.reaches[4] = {"", "300", "", "", "", ""};
  desk.materials().add();
  desk.materials().material(1).description = "Shale";
  desk.materials().material(1).distribution(MaterialProperty::dryDensity) = {"Uniform", {"90", "110", "", ""}, true};
  desk.materials().material(2).points = {{"0", "1000"}};
  const AuxProfile entered = profile;
  const AuxMaterial first = desk.materials().material(1);
  const AuxMaterial own = desk.materials().material(2);
  desk.saveAndOpen();
  EXPECT_EQ(desk.profile(), entered);
  EXPECT_EQ(desk.materials().count, 1);
  EXPECT_EQ(desk.materials().material(1), first);
  EXPECT_EQ(desk.materials().material(2), own);
}

TEST(Companion, holdsThePercentOfClayBesideADetachmentRate) {
  ProjectDesk desk;
  desk.state.numAuxSpillways = 1;
  desk.screens.auxSpillways.optQUIL(0).setSelected(true);
  desk.materials().add();
  AuxMaterial& material = desk.materials().material(1);
  material.byDetachment = true;
  material.value(MaterialProperty::detachmentRate) = "0.4";
  desk.saveAndOpen();
  EXPECT_FALSE(desk.hasCompanion());
  material.value(MaterialProperty::percentClay) = "30";
  desk.saveAndOpen();
  EXPECT_EQ(desk.materials().material(1).value(MaterialProperty::percentClay), "30");
  EXPECT_EQ(desk.materials().material(1).value(MaterialProperty::detachmentRate), "0.4");
}

TEST(Companion, holdsWhatIsSetForSamplesThatAreNotDrawn) {
  ProjectDesk desk;
  desk.state.totalInstances = "80";
  desk.state.bRandomSample = true;
  desk.saveAndOpen();
  EXPECT_EQ(desk.state.totalInstances, "80");
  EXPECT_TRUE(desk.state.bRandomSample);
}

TEST(Companion, holdsTheCountThatIsChosenAndNotYetTaken) {
  ProjectDesk desk;
  desk.screens.auxSpillways.setCount(2);
  desk.saveAndOpen();
  EXPECT_EQ(desk.screens.auxSpillways.count(), 2);
  EXPECT_EQ(desk.state.numAuxSpillways, 0);
}

TEST(Companion, holdsACommentWhoseLinesTheFileDoesNotKeep) {
  ProjectDesk desk;
  TextBox& comments = desk.screens.projectInformation.txtComments;
  comments.setText("one\r\n\r\ntwo");
  desk.saveAndOpen();
  EXPECT_EQ(comments.text(), "one\r\n\r\ntwo");
  comments.setText("one\r\ntwo");
  desk.saveAndOpen();
  EXPECT_EQ(comments.text(), "one\r\ntwo\r\n");
  EXPECT_EQ(desk.files.content("/p/.kestra/dam.json"), std::nullopt);
}

TEST(Companion, holdsWordsWholeAndLeavesNumbersCut) {
  ProjectDesk desk;
  desk.screens.hydrographData.txtTitle.setText("Probable maximum flood");
  desk.screens.psConduit.txtLengthOfConduit.setText("123456");
  desk.screens.hydrographData.grdTable.setCell(1, 1, "123456.789");
  desk.screens.hydrographData.grdTable.setCell(7, 1, "123456.789");
  desk.saveAndOpen();
  EXPECT_EQ(desk.screens.hydrographData.txtTitle.text(), "Probable maximum flood");
  EXPECT_EQ(desk.screens.psConduit.txtLengthOfConduit.text(), "12345");
  EXPECT_EQ(desk.screens.hydrographData.grdTable.cell(1, 1), "123456.78");
  EXPECT_EQ(desk.screens.hydrographData.grdTable.cell(7, 1), "123456.789");
}

TEST(Companion, holdsTextsThatAreNoUtf8) {
  ProjectDesk desk;
  desk.screens.damSurface.txtRiprapU.setText("h\xF6he\xFF");
  desk.saveAndOpen();
  EXPECT_EQ(desk.screens.damSurface.txtRiprapU.text(), "h\xF6he\xFF");
}

TEST(Companion, doesNotSpeakAgainstTheFile) {
  ProjectDesk desk;
  desk.screens.hydrographData.chk10daydrawdown.setChecked(true);
  desk.saveAndOpen();
  EXPECT_TRUE(desk.screens.projectInformation.optNoBreachAnalysis.selected());
}

TEST(Companion, isNotThereWhereTheFileHoldsAll) {
  ProjectDesk desk;
  desk.screens.damSurface.txtCrestWidth.setText("12");
  desk.saveAndOpen();
  EXPECT_EQ(desk.files.paths(), (Lines{"/p", "/p/dam.KSC"}));
  desk.screens.damSurface.txtRiprapU.setText("1.8");
  desk.save();
  EXPECT_EQ(desk.files.paths(), (Lines{"/p", "/p/.kestra", "/p/.kestra/dam.json", "/p/dam.KSC"}));
  desk.screens.damSurface.txtRiprapU.setText("");
  desk.save();
  EXPECT_EQ(desk.files.content("/p/.kestra/dam.json"), std::nullopt);
  EXPECT_EQ(desk.files.paths(), (Lines{"/p", "/p/.kestra", "/p/dam.KSC"}));
}

TEST(Companion, ofAFileThatWasChangedIsLeftAside) {
  ProjectDesk desk;
  desk.screens.damSurface.txtRiprapU.setText("1.8");
  desk.save();
  desk.files.put("/p/dam.KSC", *desk.files.content("/p/dam.KSC") + " ");
  desk.open();
  EXPECT_EQ(desk.screens.damSurface.txtRiprapU.text(), "");
}

TEST(Companion, isOfTheOpenProjectOnly) {
  ProjectDesk desk;
  desk.files.putDirectory("/q");
  desk.screens.damSurface.txtRiprapU.setText("1.8");
  desk.build();
  EXPECT_TRUE(desk.control.WriteControlFiles("/q/dam.KSC"));
  EXPECT_EQ(desk.files.paths(), (Lines{"/p", "/q", "/q/dam.KSC"}));
  desk.files.putLink("/link", "/p");
  EXPECT_TRUE(desk.control.WriteControlFiles("/link/dam.KSC"));
  EXPECT_TRUE(desk.hasCompanion());
  desk.state.projectDir = "";
  desk.open();
  EXPECT_EQ(desk.screens.damSurface.txtRiprapU.text(), "");
}

TEST(Companion, thatCannotBeWrittenIsToldAndTheFileStands) {
  ProjectDesk desk;
  desk.files.put("/p/.kestra", "a file in the way");
  desk.screens.damSurface.txtRiprapU.setText("1.8");
  desk.build();
  EXPECT_TRUE(desk.control.WriteControlFiles("/p/dam.KSC"));
  EXPECT_TRUE(desk.files.content("/p/dam.KSC"));
  EXPECT_EQ(desk.takeBoxes(),
            Lines{"Warning: /p/dam.KSC was saved. What was entered and has no place in it could not be kept beside it: "
                  "File exists."});
}

TEST(Companion, tellsPeopleWhatItIsOf) {
  ProjectDesk desk;
  desk.screens.damSurface.txtRiprapU.setText("1.8");
  desk.save();
  const auto json = nlohmann::json::parse(*desk.files.content("/p/.kestra/dam.json"));
  EXPECT_EQ(json["of"], "dam.KSC");
  EXPECT_TRUE(json["digest"].get<std::string>().starts_with("fnv1a64:"));
  EXPECT_EQ(json["controls"], (nlohmann::json{{"frmDamSurface.txtRiprapU", "1.8"}}));
}

class OddCompanion : public testing::TestWithParam<const char*> {};

// Whatever stands under its keys, the screens take what is meant for them and no more.
TEST_P(OddCompanion, doesNoHarm) {
  ControlDesk desk;
  const std::string digest = R"("digest":"fnv1a64:cbf29ce484222325:0")";
  giveBackCompanion(desk.screens, desk.base, "{" + digest + R"(,"controls":{"frmDamSurface.txtUpSlope":"3"}})", "");
  EXPECT_EQ(desk.screens.damSurface.txtUpSlope.text(), "3");
  const std::string before = desk.build();
  giveBackCompanion(desk.screens, desk.base, "{" + digest + "," + GetParam() + "}", "");
  EXPECT_EQ(desk.build(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, OddCompanion,
    testing::Values(R"("controls":7)", R"("controls":{"frmDamSurface.txtUpSlope":7})",
                    R"("controls":{"frmNone.txtUpSlope":"7"})", R"("controls":{"txtUpSlope":"7","":"7",".":"7"})",
                    R"("controls":{"frmKestra.mnuNew":true})", R"("controls":{"frmDamSurface.txtUpSlope":{"hex":7}})",
                    R"("controls":{"frmDamSurface.grdTable":"7"})", R"("options":{"a":"b"})",
                    R"("options":[7,"frmDamSurface.txtUpSlope","frmNone.optUser"])", R"("tables":[])",
                    R"("tables":{"frmDamSurface.txtUpSlope":[["7"]]})",
                    R"("tables":{"frmPSRatingTable.grdTable":[7,[["7"]],{"a":"b"}]})", R"("spillways":"x")",
                    R"("spillways":[7,null,[]])", R"("spillways":[{"profile":7,"materials":8}])",
                    R"("spillways":[{"profile":{"points":7,"fills":["x",8],"hydroDist":[7]},"materials":[7]}])",
                    R"("sampling":[7])", R"("sampling":{"totalInstances":7,"bRandomSample":"x"})", "7",
                    "\"controls\""));

TEST(OddCompanionText, isPassedOver) {
  ControlDesk desk;
  const std::string before = desk.build();
  for (const std::string_view text :
       {"", "null", "[]", "{", "\xFF", "{\"digest\":7,\"options\":[\"frmPSType.optHood\"]}"}) {
    giveBackCompanion(desk.screens, desk.base, text, "");
    EXPECT_EQ(desk.build(), before) << text;
  }
  giveBackCompanion(desk.screens, desk.base, std::string(1'000'000, '['), "");
  EXPECT_EQ(desk.build(), before);
}

}  // namespace
}  // namespace kestra
