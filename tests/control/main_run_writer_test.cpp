// What the screens write into the main run, byte for byte.
#include <gtest/gtest.h>

#include <functional>

#include "support/control_desk.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

struct LineCase {
  const char* name;
  std::function<void(InputScreenSet&)> enter;
  const char* start;  // of the lines that are looked at
  Lines lines;
};

void PrintTo(const LineCase& told, std::ostream* out) {
  *out << told.name;
}

class MainRunLines : public testing::TestWithParam<LineCase> {};

TEST_P(MainRunLines, standAsTheScreensSay) {
  ControlDesk desk;
  GetParam().enter(desk.screens);
  EXPECT_EQ(linesWith(desk.build(), GetParam().start), GetParam().lines);
}

// A program's choice on a screen.
void choose(OptionButton& option) {
  option.setSelected(true);
}

void fillDamSurface(InputScreenSet& s) {
  s.damSurface.txtUpSlope.setText("3");
  s.damSurface.txtUpRCI.setText("5.6");
  s.damSurface.txtCrestWidth.setText("12");
  s.damSurface.txtCrestRCI.setText("5.5");
  s.damSurface.txtCoeff.setText("2.65");
  s.damSurface.txtDownSlope.setText("2.5");
  s.damSurface.txtDownRCI.setText("0.03");
  s.damSurface.txtDownVCF.setText("0.7");
  s.damSurface.txtDownCode.setText("1");
  s.damSurface.txtDownPI.setText("12");
  s.damSurface.txtDownDiameter.setText("0.002");
  s.damSurface.txtRiprapU.setText("1.8");
  s.damSurface.txtRiprapD50.setText("0.5");
  s.damSurface.txtRiprapT.setText("1.5");
  s.damSurface.txtRiprapP.setText("0.4");
}

void fillConduit(InputScreenSet& s) {
  frmPSConduit& c = s.psConduit;
  const std::pair<TextBox*, const char*> texts[] = {{&c.txtEntranceLossCoefficient, "0.7"},
                                                    {&c.txtWeirLength, "9"},
                                                    {&c.txtHighStageCrest, "1012"},
                                                    {&c.txtLowStageCrest, "1008"},
                                                    {&c.txtOrificeHeight, "1.5"},
                                                    {&c.txtOrificeWidth, "2"},
                                                    {&c.txtNumOfConduit, "1"},
                                                    {&c.txtLengthOfConduit, "120"},
                                                    {&c.txtDiameterOfConduit, "24"},
                                                    {&c.txtHeight, "3"},
                                                    {&c.txtManning, "0.013"},
                                                    {&c.txtInvertElevAtRiser, "1002"},
                                                    {&c.txtInvertElevAtOutlet, "1000"},
                                                    {&c.txtHorizInToBen, "60"},
                                                    {&c.txtHorizBenToOut, "65"},
                                                    {&c.txtElevationAtBend, "1001"},
                                                    {&c.txtElevationAtOutlet, "999"},
                                                    {&c.txtWeirInletCoefficient, "3.2"},
                                                    {&c.txtHoodWeirInletCoefficient, "0.6"},
                                                    {&c.txtHighStageWeirCoefficient, "3.1"},
                                                    {&c.txtConduitOrificeDischargeCoefficient, "0.61"},
                                                    {&c.txtConduitOrificeArea, "3.14"},
                                                    {&c.txtOrificeLowStageWeirFlow, "3.05"},
                                                    {&c.txtOrificeLowStageFullFlow, "0.62"},
                                                    {&c.txtFilletSize, "6"}};
  for (const auto& [box, text] : texts) box->setText(text);
}

// The conduit of a type, whose screen is filled with a value in each field.
std::function<void(InputScreenSet&)> conduitOf(OptionButton frmPSType::*type, bool bend = false) {
  return [type, bend](InputScreenSet& s) {
    fillConduit(s);
    choose(s.psType.*type);
    if (bend) choose(s.psConduit.optBendInPipe);
  };
}

INSTANTIATE_TEST_SUITE_P(
    Identity, MainRunLines,
    testing::Values(
        LineCase{"aBlankProject", [](InputScreenSet&) {}, "KESTRA", {"KESTRA    01/01/2009"}},
        LineCase{"anIdentifierIsNeitherPaddedNorCut",
                 [](InputScreenSet& s) { s.projectInformation.txtWatershedID.setText(std::string(60, 'x')); },
                 "KESTRA",
                 {"KESTRA    01/01/2009" + std::string(60, 'x')}},
        LineCase{"lineEndsInAValueBecomeBlanks",
                 [](InputScreenSet& s) { s.projectInformation.txtWatershedID.setText("a\r\nENDRUN"); },
                 "KESTRA",
                 {"KESTRA    01/01/2009a  ENDRUN"}},
        LineCase{"aCommentIsWrapped",
                 [](InputScreenSet& s) { s.projectInformation.txtComments.setText("one\r\n\r\ntwo"); },
                 "*",
                 {"*         one", "*         ", "*         two"}},
        LineCase{"sixtyOneCharactersWithoutABlankAreTwoLines",
                 [](InputScreenSet& s) { s.projectInformation.txtComments.setText(std::string(61, 'x')); },
                 "*",
                 {"*         " + std::string(60, 'x'), "*         x"}},
        LineCase{"sixtyCharactersAndALineEndBringAnEmptyLine",
                 [](InputScreenSet& s) { s.projectInformation.txtComments.setText(std::string(60, 'x') + "\r\n"); },
                 "*",
                 {"*         " + std::string(60, 'x'), "*         "}},
        LineCase{"sixtyCharactersAndALineEndAreBrokenAtTheirLastBlank",
                 [](InputScreenSet& s) {
                   s.projectInformation.txtComments.setText(std::string(40, 'x') + " " + std::string(19, 'y') + "\r\n");
                 },
                 "*",
                 {"*         " + std::string(40, 'x') + " ", "*         " + std::string(19, 'y')}}),
    caseName<LineCase>);

INSTANTIATE_TEST_SUITE_P(
    Options, MainRunLines,
    testing::Values(LineCase{"breachAndSpillway", [](InputScreenSet&) {}, "OPTION", {"OPTION    SIMPLE    EARTH     "}},
                    LineCase{"breachAndNoSpillway",
                             [](InputScreenSet& s) {
                               choose(s.psType.optNone);
                               choose(s.projectInformation.optUser);
                               choose(s.projectInformation.optRipRap);
                             },
                             "OPTION",
                             {"OPTION    COEFF     RIPRAP    NOPS      "}},
                    LineCase{"noBreachAndSpillway",
                             [](InputScreenSet& s) {
                               choose(s.projectInformation.optNoBreachAnalysis);
                               choose(s.projectInformation.optBare);
                             },
                             "OPTION",
                             {"OPTION    SIMPLE    BARESOIL            NOBREACH"}},
                    LineCase{"noBreachAndNoSpillway",
                             [](InputScreenSet& s) {
                               choose(s.projectInformation.optNoBreachAnalysis);
                               choose(s.psType.optNone);
                             },
                             "OPTION",
                             {"OPTION    SIMPLE    EARTH     NOPS      NOBREACH"}},
                    LineCase{"drawdownWithSpillway",
                             [](InputScreenSet& s) {
                               choose(s.projectInformation.optNoBreachAnalysis);
                               s.hydrographData.chk10daydrawdown.setChecked(true);
                               s.hydrographData.txtDrawdownElevation.setText("85");
                             },
                             "OPTION",
                             {"OPTION    SIMPLE    EARTH               DRAWDOWN  85        PERCENT   240"}},
                    LineCase{"drawdownWithSpillwayStandsWithBreachAsWell",
                             [](InputScreenSet& s) {
                               s.hydrographData.chk10daydrawdown.setChecked(true);
                               s.hydrographData.txtDrawdownElevation.setText("1010.5");
                               choose(s.hydrographData.optFeet);
                               s.hydrographData.txtDrawdownTime.setText("12345678901");
                             },
                             "OPTION",
                             {"OPTION    SIMPLE    EARTH               DRAWDOWN  1010.5    FEET      12345678901"}},
                    LineCase{"drawdownWithoutSpillway",
                             [](InputScreenSet& s) {
                               choose(s.projectInformation.optNoBreachAnalysis);
                               choose(s.psType.optNone);
                               s.hydrographData.chk10daydrawdown.setChecked(true);
                             },
                             "OPTION",
                             {"OPTION    SIMPLE    EARTH     NOPS      DRAWDOWN            PERCENT   240"}},
                    LineCase{"drawdownWithoutSpillwayUnderBreachIsNotWritten",
                             [](InputScreenSet& s) {
                               choose(s.psType.optNone);
                               s.hydrographData.chk10daydrawdown.setChecked(true);
                             },
                             "OPTION",
                             {"OPTION    SIMPLE    EARTH     NOPS      "}},
                    LineCase{"neitherModelIsDetailed",
                             [](InputScreenSet& s) { s.projectInformation.optSimple.setSelected(false); },
                             "OPTION",
                             {"OPTION    DETAILED  EARTH     "}}),
    caseName<LineCase>);

void fillProperties(InputScreenSet& s) {
  s.properties.txtKd.setText("0.8");
  s.properties.txtCriticalShearStress.setText("0.05");
  s.properties.txtHeadcutIndex.setText("0.04");
  s.properties.txtBulkDensity.setText("115");
  s.properties.txtUndrainedShear.setText("700");
}

INSTANTIATE_TEST_SUITE_P(
    Dam, MainRunLines,
    testing::Values(LineCase{"headcutModel1",
                             fillProperties,
                             "HCMODEL",
                             {"HCMODEL   1                   0.8                 0.05      0.04"}},
                    LineCase{"headcutModel2",
                             [](InputScreenSet& s) {
                               fillProperties(s);
                               choose(s.properties.optHcModel(2));
                             },
                             "HCMODEL",
                             {"HCMODEL   2         115       0.8       700       0.05"}},
                    LineCase{"noHeadcutModelWithoutBreach",
                             [](InputScreenSet& s) { choose(s.projectInformation.optNoBreachAnalysis); },
                             "HCMODEL",
                             {}},
                    LineCase{"routingFromAnElevation",
                             [](InputScreenSet& s) {
                               s.structureTable.txtStartRouting.setText("1012");
                               s.structureTable.txtValleyFloor.setText("1000");
                             },
                             "STROUTE",
                             {"STROUTE   1012      1000      FEET"}},
                    LineCase{"routingFromADischarge",
                             [](InputScreenSet& s) { choose(s.structureTable.optCFS); },
                             "STROUTE",
                             {"STROUTE                       CFS"}},
                    LineCase{"upstream", fillDamSurface, "UPSTREAM", {"UPSTREAM  3         5.6"}},
                    LineCase{"crest", fillDamSurface, "DAMCREST", {"DAMCREST  12        5.5       2.65      "}},
                    LineCase{"downstreamOfEarth",
                             fillDamSurface,
                             "DWNSTREAM",
                             {"DWNSTREAM 2.5       0.03      0.7       1         12        0.002"}},
                    LineCase{"downstreamOfRiprap",
                             [](InputScreenSet& s) {
                               fillDamSurface(s);
                               choose(s.projectInformation.optRipRap);
                             },
                             "DWNSTREAM",
                             {"DWNSTREAM 2.5       1.8       0.5       1.5       0.4       "}},
                    LineCase{"downstreamOfBareSoilThatBreaches",
                             [](InputScreenSet& s) {
                               fillDamSurface(s);
                               choose(s.projectInformation.optBare);
                             },
                             "DWNSTREAM",
                             {"DWNSTREAM 2.5       0.03"}},
                    LineCase{"downstreamOfBareSoilThatDoesNotBreach",
                             [](InputScreenSet& s) {
                               fillDamSurface(s);
                               choose(s.projectInformation.optBare);
                               choose(s.projectInformation.optNoBreachAnalysis);
                             },
                             "DWNSTREAM",
                             {"DWNSTREAM 2.5       0.03      "}}),
    caseName<LineCase>);

constexpr const char* kCoefficients = "PSpCOEFFS 0.61      3.14      3.05      0.62      3.1       6         ";

INSTANTIATE_TEST_SUITE_P(
    Conduit, MainRunLines,
    testing::Values(
        LineCase{"singleStageCircular",
                 conduitOf(&frmPSType::optSingleCir),
                 "PSp",
                 {"PSpINLET  0.7       9         1012      ",
                  "PSpDATA   1    120  24                  0.013     1002      1000      SC", kCoefficients}},
        LineCase{"singleStageRectangular",
                 conduitOf(&frmPSType::optSingleRec),
                 "PSp",
                 {"PSpINLET  0.7       9         1012      ",
                  "PSpDATA   1    120  24        3         0.013     1002      1000      SR", kCoefficients}},
        LineCase{"twoStagesCircular",
                 conduitOf(&frmPSType::optTwoCir),
                 "PSp",
                 {"PSpINLET  0.7       9         1012      1008      1.5       2         ",
                  "PSpDATA   1    120  24                  0.013     1002      1000      TC", kCoefficients}},
        LineCase{"twoStagesRectangular",
                 conduitOf(&frmPSType::optTwoRec),
                 "PSp",
                 {"PSpINLET  0.7       9         1012      1008      1.5       2         ",
                  "PSpDATA   1    120  24        3         0.013     1002      1000      TR", kCoefficients}},
        LineCase{"aStraightHood",
                 conduitOf(&frmPSType::optHood),
                 "PSp",
                 {"PSpINLET  0.7       9         1012      ",
                  "PSpDATA   1    120  24                  0.013     1002      1000      HD",
                  "PSpHOOD   60                            999       3.2       0.7       S",
                  "PSpCOEFFS 0.61      3.14      3.05      0.62      0.6       6         "}},
        LineCase{"aBentHood",
                 conduitOf(&frmPSType::optHood, true),
                 "PSpH",
                 {"PSpHOOD   60        65        1001      999       3.2       0.7       B"}},
        LineCase{"aLengthOfSixCharactersIsCut",
                 [](InputScreenSet& s) {
                   fillConduit(s);
                   s.psConduit.txtLengthOfConduit.setText("123456");
                 },
                 "PSpDATA",
                 {"PSpDATA   1    1234524                  0.013     1002      1000      SC"}},
        LineCase{"noneWithoutASpillway", conduitOf(&frmPSType::optNone), "PSp", {}},
        LineCase{"noneBesideDischargesOfTheStructure",
                 [](InputScreenSet& s) {
                   fillConduit(s);
                   s.structureTable.grdTable.setCell(50, 2, "1");
                 },
                 "PSp",
                 {}}),
    caseName<LineCase>);

}  // namespace
}  // namespace kestra
