// What the screens hold when a main run has been read.
#include <gtest/gtest.h>

#include "support/control_desk.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

// The value of a control in words: its text, "on" or "off", or the chosen entry.
std::string valueOf(ControlDesk& desk, const std::string& name) {
  const std::size_t dot = name.find('.');
  const Screen* screen = desk.host.find(name.substr(0, dot));
  const Control* control = screen == nullptr ? nullptr : screen->find(name.substr(dot + 1));
  if (control == nullptr) return "no such control";
  switch (control->kind()) {
    case ControlKind::text:
      return static_cast<const TextBox*>(control)->text();
    case ControlKind::option:
      return static_cast<const OptionButton*>(control)->selected() ? "on" : "off";
    case ControlKind::check:
      return static_cast<const CheckBox*>(control)->checked() ? "on" : "off";
    default:
      return static_cast<const ComboBox*>(control)->text();
  }
}

struct ReadCase {
  const char* name;
  Lines lines;
  std::vector<std::pair<std::string, std::string>> values;  // controls and what they hold
};

void PrintTo(const ReadCase& told, std::ostream* out) {
  *out << told.name;
}

class MainRunRead : public testing::TestWithParam<ReadCase> {};

TEST_P(MainRunRead, fillsTheScreens) {
  ControlDesk desk;
  desk.parse(fileOf(GetParam().lines));
  EXPECT_TRUE(desk.takeBoxes().empty());
  for (const auto& [control, value] : GetParam().values) EXPECT_EQ(valueOf(desk, control), value) << control;
}

INSTANTIATE_TEST_SUITE_P(
    Options, MainRunRead,
    testing::Values(
        ReadCase{"anEmptyFileIsABlankProject",
                 {},
                 {{"frmProjectInformation.optSimple", "on"},
                  {"frmProjectInformation.optEarth", "on"},
                  {"frmProjectInformation.optBreachAnalysis", "on"},
                  {"frmAuxSpillways.optNone(0)", "on"},
                  {"frmAuxSpillways.cmbAuxSpillways", "0"}}},
        ReadCase{"anIdentifierKeepsItsBlanksUpToColumn70",
                 {"KESTRA    01/01/1999  Mill " + std::string(50, 'x')},
                 {{"frmProjectInformation.txtWatershedID", "  Mill " + std::string(43, 'x')}}},
        ReadCase{
            "quilStandsForKestra", {"QUIL      ..........Mill"}, {{"frmProjectInformation.txtWatershedID", "Mill"}}},
        ReadCase{"aShortIdentityLeavesTheIdentifier",
                 {"KESTRA    01/01/2009"},
                 {{"frmProjectInformation.txtWatershedID", ""}}},
        ReadCase{"detailedIsSimple",
                 {"OPTION    DETAILED  RIPRAP"},
                 {{"frmProjectInformation.optSimple", "on"}, {"frmProjectInformation.optRipRap", "on"}}},
        ReadCase{"coefficientBareAndNoSpillway",
                 {"OPTION    COEFF     BARESOIL  NOPS"},
                 {{"frmProjectInformation.optUser", "on"},
                  {"frmProjectInformation.optBare", "on"},
                  {"frmPSType.optNone", "on"},
                  {"frmProjectInformation.optBreachAnalysis", "on"}}},
        ReadCase{"noBreach",
                 {"OPTION    SIMPLE    EARTH               NOBREACH"},
                 {{"frmProjectInformation.optNoBreachAnalysis", "on"}, {"frmHydrographData.chk10daydrawdown", "off"}}},
        ReadCase{"nobaIsNoBreach",
                 {"OPTION    SIMPLE    EARTH               NOBA"},
                 {{"frmProjectInformation.optNoBreachAnalysis", "on"}}},
        ReadCase{"anotherWordIsBreach",
                 {"OPTION    SIMPLE    EARTH               NOBREACH", "OPTION    SIMPLE    EARTH               BREACH"},
                 {{"frmProjectInformation.optBreachAnalysis", "on"}}},
        ReadCase{"aDrawdownIsNoBreach",
                 {"OPTION    SIMPLE    EARTH               DRAWDOWN  1010.5    FEET      96"},
                 {{"frmProjectInformation.optNoBreachAnalysis", "on"},
                  {"frmHydrographData.chk10daydrawdown", "on"},
                  {"frmHydrographData.txtDrawdownElevation", "1010.5"},
                  {"frmHydrographData.optFeet", "on"},
                  {"frmHydrographData.txtDrawdownTime", "96"}}},
        ReadCase{"aDrawdownWithoutTimeHas240Hours",
                 {"OPTION    SIMPLE    EARTH               DRAWDOWN  85        PERCENT   96",
                  "OPTION    SIMPLE    EARTH               DRAWDOWN  85        PERCENT   "},
                 {{"frmHydrographData.optPercent", "on"}, {"frmHydrographData.txtDrawdownTime", "240"}}},
        ReadCase{"aDrawdownThatIsGivenUp",
                 {"OPTION    SIMPLE    EARTH               DRAWDOWN  85",
                  "OPTION    SIMPLE    EARTH               NOBREACH"},
                 {{"frmHydrographData.chk10daydrawdown", "off"}}},
        ReadCase{"commentsOneBehindTheOther",
                 {"*           two blanks ", "COMMENT   " + std::string(70, 'x'), "*", "*         "},
                 {{"frmProjectInformation.txtComments", "  two blanks \r\n" + std::string(60, 'x') + "\r\n"}}}),
    caseName<ReadCase>);

INSTANTIATE_TEST_SUITE_P(
    Dam, MainRunRead,
    testing::Values(ReadCase{"headcutModel1",
                             {"HCMODEL   1                   0.8                 0.05      0.04"},
                             {{"Properties.optHcModel(1)", "on"},
                              {"Properties.txtKd", "0.8"},
                              {"Properties.txtCriticalShearStress", "0.05"},
                              {"Properties.txtHeadcutIndex", "0.04"}}},
                    ReadCase{"headcutModel2",
                             {"HCMODEL   2         115       0.8       700       0.05"},
                             {{"Properties.optHcModel(2)", "on"},
                              {"Properties.txtBulkDensity", "115"},
                              {"Properties.txtKd", "0.8"},
                              {"Properties.txtUndrainedShear", "700"},
                              {"Properties.txtCriticalShearStress", "0.05"}}},
                    ReadCase{"noHeadcutModelIsTheSecond", {"HCMODEL"}, {{"Properties.optHcModel(2)", "on"}}},
                    ReadCase{"theModelIsANumber",
                             {"HCMODEL    1.0                0.8"},
                             {{"Properties.optHcModel(1)", "on"}, {"Properties.txtKd", "0.8"}}},
                    ReadCase{"anotherModelReadsNoField",
                             {"HCMODEL   3         115       0.8"},
                             {{"Properties.optHcModel(1)", "on"}, {"Properties.txtKd", ""}}},
                    ReadCase{"faces",
                             {"UPSTREAM  3         5.6", "DAMCREST  12        5.5       2.65      ",
                              "DWNSTREAM 2.5       0.03      0.7       1         12        0.002"},
                             {{"frmDamSurface.txtUpSlope", "3"},
                              {"frmDamSurface.txtUpRCI", "5.6"},
                              {"frmDamSurface.txtCrestWidth", "12"},
                              {"frmDamSurface.txtCrestRCI", "5.5"},
                              {"frmDamSurface.txtCoeff", "2.65"},
                              {"frmDamSurface.txtDownSlope", "2.5"},
                              {"frmDamSurface.txtDownRCI", "0.03"},
                              {"frmDamSurface.txtDownVCF", "0.7"},
                              {"frmDamSurface.txtDownCode", "1"},
                              {"frmDamSurface.txtDownPI", "12"},
                              {"frmDamSurface.txtDownDiameter", "0.002"}}},
                    ReadCase{"aShortLineLeavesTheOtherFields",
                             {"DAMCREST  12        5.5       2.65", "DAMCREST  14"},
                             {{"frmDamSurface.txtCrestWidth", "14"}, {"frmDamSurface.txtCrestRCI", "5.5"}}},
                    ReadCase{"aBlankFieldIsTaken",
                             {"DAMCREST  12        5.5       2.65", "DAMCREST  14                  2.7"},
                             {{"frmDamSurface.txtCrestWidth", "14"}, {"frmDamSurface.txtCrestRCI", ""}}},
                    ReadCase{"downstreamOfRiprapIsToldByTheOptions",
                             {"OPTION    SIMPLE    RIPRAP", "DWNSTREAM 2.5       1.8       0.5       1.5       0.4"},
                             {{"frmDamSurface.txtRiprapU", "1.8"},
                              {"frmDamSurface.txtRiprapD50", "0.5"},
                              {"frmDamSurface.txtRiprapT", "1.5"},
                              {"frmDamSurface.txtRiprapP", "0.4"},
                              {"frmDamSurface.txtDownRCI", ""}}},
                    ReadCase{"downstreamOfBareSoilIsToldByTheOptions",
                             {"OPTION    SIMPLE    BARESOIL", "DWNSTREAM 2.5       0.03      0.7"},
                             {{"frmDamSurface.txtDownSlope", "2.5"},
                              {"frmDamSurface.txtDownRCI", "0.03"},
                              {"frmDamSurface.txtDownVCF", ""}}},
                    ReadCase{"routing",
                             {"STROUTE   1012      1000      CFS"},
                             {{"frmStructureTable.txtStartRouting", "1012"},
                              {"frmStructureTable.txtValleyFloor", "1000"},
                              {"frmStructureTable.optCFS", "on"}}},
                    ReadCase{"routingWithoutAUnitIsInFeet",
                             {"STROUTE   1012      1000      CFS", "STROUTING 1013"},
                             {{"frmStructureTable.txtStartRouting", "1013"}, {"frmStructureTable.optFEET", "on"}}},
                    ReadCase{"anUnknownKeywordIsPassedOver",
                             {"FOREIGN   1", "OUTPUT    ALL", "UPSTREAM  3"},
                             {{"frmDamSurface.txtUpSlope", "3"}}}),
    caseName<ReadCase>);

constexpr const char* kInlet = "PSpINLET  0.7       9         1012      1008      1.5       2         ";

INSTANTIATE_TEST_SUITE_P(
    Conduit, MainRunRead,
    testing::Values(ReadCase{"theInletIsReadAsFarAsTheLineGoes",
                             {kInlet},
                             {{"frmPSConduit.txtEntranceLossCoefficient", "0.7"},
                              {"frmPSConduit.txtWeirLength", "9"},
                              {"frmPSConduit.txtHighStageCrest", "1012"},
                              {"frmPSConduit.txtLowStageCrest", "1008"},
                              {"frmPSConduit.txtOrificeHeight", "1.5"},
                              {"frmPSConduit.txtOrificeWidth", "2"}}},
                    ReadCase{"rectangular",
                             {"PSpDATA   1    12345624        3         0.013     1002      1000      SR"},
                             {{"frmPSType.optSingleRec", "on"},
                              {"frmPSConduit.txtNumOfConduit", "1"},
                              {"frmPSConduit.txtLengthOfConduit", "12345"},
                              {"frmPSConduit.txtDiameterOfConduit", "624"},
                              {"frmPSConduit.txtHeight", "3"},
                              {"frmPSConduit.txtManning", "0.013"},
                              {"frmPSConduit.txtInvertElevAtRiser", "1002"},
                              {"frmPSConduit.txtInvertElevAtOutlet", "1000"}}},
                    ReadCase{"circularHasNoHeight",
                             {"PSpDATA   1    120  24        3         0.013     1002      1000      TC"},
                             {{"frmPSType.optTwoCir", "on"}, {"frmPSConduit.txtHeight", ""}}},
                    ReadCase{"withoutATypeItIsSingleAndCircular",
                             {"PSpDATA   1    120  24"},
                             {{"frmPSType.optSingleCir", "on"}, {"frmPSConduit.txtLengthOfConduit", "120"}}},
                    ReadCase{"aHoodIsToldByItsRecordWhereverThatStands",
                             {"PSpDATA   1    120  24                  0.013     1002      1000      HD",
                              "PSpHOOD   60        65        1001      999       3.2       0.7       B"},
                             {{"frmPSType.optHood", "on"},
                              {"frmPSConduit.txtLengthOfConduit", ""},
                              {"frmPSConduit.optBendInPipe", "on"},
                              {"frmPSConduit.txtHorizInToBen", "60"},
                              {"frmPSConduit.txtHorizBenToOut", "65"},
                              {"frmPSConduit.txtElevationAtBend", "1001"},
                              {"frmPSConduit.txtElevationAtOutlet", "999"},
                              {"frmPSConduit.txtHoodWeirInletCoefficient", "3.2"},
                              {"frmPSConduit.txtWeirInletCoefficient", ""},
                              {"frmPSConduit.txtEntranceLossCoefficient", "0.7"}}},
                    ReadCase{"aHoodWithoutItsLetterKeepsThePipe",
                             {"PSpHOOD   60"},
                             {{"frmPSConduit.optStraightPipe", "on"}, {"frmPSConduit.txtHorizInToBen", "60"}}},
                    ReadCase{"theWeirOfAHood",
                             {"PSpHOOD   60        65        1001      999       3.2       0.7       S",
                              "PSpCOEFFS 0.61      3.14      3.05      0.62      0.6       6"},
                             {{"frmPSConduit.txtHoodWeirInletCoefficient", "0.6"},
                              {"frmPSConduit.txtHighStageWeirCoefficient", ""}}},
                    ReadCase{"theWeirOfARiser",
                             {"PSpCOEFFS 0.61      3.14      3.05      0.62      3.1       6"},
                             {{"frmPSConduit.txtConduitOrificeDischargeCoefficient", "0.61"},
                              {"frmPSConduit.txtConduitOrificeArea", "3.14"},
                              {"frmPSConduit.txtOrificeLowStageWeirFlow", "3.05"},
                              {"frmPSConduit.txtOrificeLowStageFullFlow", "0.62"},
                              {"frmPSConduit.txtHighStageWeirCoefficient", "3.1"},
                              {"frmPSConduit.txtHoodWeirInletCoefficient", ""},
                              {"frmPSConduit.txtFilletSize", "6"}}}),
    caseName<ReadCase>);

INSTANTIATE_TEST_SUITE_P(HydrographsAndSpillways, MainRunRead,
                         testing::Values(ReadCase{"constantSteps",
                                                  {"HYD       Big storm 0.25      1         1C        ", "ENDTABLE"},
                                                  {{"frmHydrographData.txtTitle", "Big storm"},
                                                   {"frmHydrographData.optConst", "on"},
                                                   {"frmHydrographData.txtConst", "0.25"},
                                                   {"frmHydrographData.txtDesired", ""},
                                                   {"frmHydrographData.txtStartTime", "1"},
                                                   {"frmHydrographData.chkAdjustTimeIncrement", "on"}}},
                                         ReadCase{"variableSteps",
                                                  {"HYDROGRAPHBig storm 0.25      1         0V        ", "ENDTABLE"},
                                                  {{"frmHydrographData.optVariable", "on"},
                                                   {"frmHydrographData.txtConst", ""},
                                                   {"frmHydrographData.txtDesired", "0.25"},
                                                   {"frmHydrographData.chkAdjustTimeIncrement", "off"}}},
                                         ReadCase{"aShortLineHasConstantSteps",
                                                  {"HYD       1"},
                                                  {{"frmHydrographData.optConst", "on"},
                                                   {"frmHydrographData.txtTitle", "1"},
                                                   {"frmHydrographData.chkAdjustTimeIncrement", "off"}}},
                                         ReadCase{"theHighestNumberIsTheCount",
                                                  {"ASSURFACE 3Far      3"},
                                                  {{"frmAuxSpillways.cmbAuxSpillways", "3"},
                                                   {"frmAuxSpillways.txtsway(2)", "Far"},
                                                   {"frmAuxSpillways.txtsway(0)", ""},
                                                   {"frmAuxSpillways.optProfile(0)", "on"},
                                                   {"frmAuxSpillways.optNone(2)", "on"}}},
                                         ReadCase{"anotherNumberIsTheFirst",
                                                  {"ASRATING  9Way"},
                                                  {{"frmAuxSpillways.cmbAuxSpillways", "1"},
                                                   {"frmAuxSpillways.txtsway(0)", "Way"},
                                                   {"frmAuxSpillways.optRating(0)", "on"}}},
                                         ReadCase{"analysesOfTheSpillways",
                                                  {"ASSURFACE 1One      3         50       1", "ENDTABLE",
                                                   "ASSURFACE 2Two      3         50       2", "ENDTABLE",
                                                   "ASRATING  3Three    1"},
                                                  {{"frmAuxSpillways.optQUIL(0)", "on"},
                                                   {"frmAuxSpillways.optStability(1)", "on"},
                                                   {"frmAuxSpillways.optRating(2)", "on"},
                                                   {"frmAuxSpillways.optQUIL(2)", "on"}}}),
                         caseName<ReadCase>);

}  // namespace
}  // namespace kestra
