#include "graphics/draw_frame.h"

#include <gtest/gtest.h>

#include "sheet_desk.h"

namespace kestra {
namespace {

struct AFrame : testing::Test, SheetDesk {};

TEST_F(AFrame, standsInAWindowWithRoomForTitleNumbersAndLabels) {
  window = {0, 100, 0, 95};
  const Steps steps = DrawAxis(sheet, canvas);
  EXPECT_EQ(steps.XStep, 20);
  EXPECT_EQ(steps.YStep, 10);
  EXPECT_EQ(window, (View{0, 100, 0, 100}));
  EXPECT_EQ(calls(), (Lines{"Scale -24 -10.5263157894737 110 136", "DrawMode 13", "DrawWidth 1", "ForeColor 101",
                            "Line 0 0 0 100", "Line 0 100 100 100", "Line 0 0 100 0", "Line 100 0 100 100"}));
}

TEST_F(AFrame, hasAWiderMarginOnTheRightForALegend) {
  window = {10, 110, 0, 100};
  for (const auto& [count, right] : {std::pair(0, 120.0), std::pair(1, 120.0), std::pair(2, 130.0)}) {
    series.begin(count);
    setGraphScale(sheet, canvas);
    EXPECT_EQ(canvas.state().scale[2], right) << count;
  }
}

TEST_F(AFrame, isNotDrawnWithoutAScale) {
  window = {0, std::numeric_limits<double>::infinity(), 0, 1};
  EXPECT_THROW(DrawAxis(sheet, canvas), ScalingFault);
  EXPECT_EQ(calls(), Lines{});
}

TEST_F(AFrame, hasTicksAndNumbersFromTheEndsOfTheWindow) {
  window = {1, 11, 2, 4};
  DrawTic(sheet, {5, 1}, canvas);
  EXPECT_EQ(calls(), (Lines{"DrawStyle 0", "ForeColor 101",                          //
                            "Line 0.9 4 1.1 4", "Print -0.25 3.96 2",                //
                            "Line 0.9 3 1.1 3", "Print -0.25 2.96 3",                //
                            "Line 0.9 2 1.1 2", "Print -0.25 1.96 4",                //
                            "Line 1 3.98 1 4.02", "Print 0.666666666666667 4.04 1",  //
                            "Line 6 3.98 6 4.02", "Print 5.66666666666667 4.04 6",   //
                            "Line 11 3.98 11 4.02", "Print 10.6666666666667 4.04 11"}));
}

TEST_F(AFrame, endsItsTicksWhereAStepMovesNothing) {
  window = {1e20, 1e20, 0, 5};
  DrawTic(sheet, {0.0002, 1e-9}, canvas);
  EXPECT_LE(calls().size(), 2U + 2 * 1001U);
  EXPECT_EQ(textsOn(canvas).back(), "100000000000000000000");
}

TEST(ANumberAtATick, isCutAndNotRounded) {
  const std::pair<double, const char*> cases[] = {
      {1.239, "1.23"}, {-1.239, "-1.23"}, {0, "0"},       {-0.004, "0"},
      {1200, "1200"},  {0.5, "0.5"},      {0.29, "0.28"}, {1e15, "1000000000000000"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(cutNumber(value), text);
}

TEST_F(AFrame, hasItsLabelsAcrossAndDownward) {
  canvas.Scale(0, 0, 100.6, 200);
  canvas.Cls();
  DrawLabel(sheet, canvas, "Time (hr)", "A b (ft) ");
  EXPECT_EQ(calls(),
            (Lines{"DrawStyle 0", "ForeColor 101", "Print 45.45 163 Time (hr)", "Print 2.02 30 A", "Print 2.02 38 ",
                   "Print 2.02 46 b", "Print 2.02 54 ", "Print 1.313 70 (ft)", "ForeColor 103"}));
}

TEST_F(AFrame, writesALabelWithoutUnitWhollyDownward) {
  canvas.Scale(0, 0, 100, 100);
  DrawLabel(sheet, canvas, "X", "ab");
  EXPECT_EQ(textsOn(canvas), (Lines{"X", "a", "b", ""}));
}

TEST_F(AFrame, startsTheUnitAtTheLastBracket) {
  canvas.Scale(0, 0, 100, 100);
  DrawLabel(sheet, canvas, "X", "(a)(b)");
  EXPECT_EQ(textsOn(canvas), (Lines{"X", "(", "a", ")", "(b)"}));
}

TEST_F(AFrame, hasItsTitleInTheMiddleAndGivesTheFontBack) {
  canvas.FontBold(true);
  canvas.Cls();
  DrawGraphTitle(sheet, canvas, "Dam Crest Profile..");
  EXPECT_EQ(calls(), (Lines{"Scale 0 0 100 100", "ForeColor 100", "FontSize 16", "FontBold 0", "PSet 40.5 4.5",
                            "ForeColor 101", "Print 40.5 4.5 Dam Crest Profile..", "FontSize 8.25", "FontBold 1"}));
}

TEST_F(AFrame, hasTwoNoticesThatStandLower) {
  const std::pair<const char*, const char*> cases[] = {{"Headcut Advance Graph Not Available", "Scale 0 0 100 50"},
                                                       {"No Headcut Formed", "Scale 0 0 100 50"},
                                                       {"Hydrograph Graph Not Available", "Scale 0 0 100 100"}};
  for (const auto& [notice, scale] : cases) {
    canvas.Cls();
    DrawGraphTitle(sheet, canvas, notice);
    EXPECT_EQ(calls().front(), scale);
    EXPECT_EQ(textsOn(canvas), (Lines{notice}));
  }
}

TEST_F(AFrame, namesTheFileAndTheProjectAtItsFoot) {
  const std::pair<const char*, const char*> cases[] = {
      {"KESTRA    01/01/2009Larkmoor Farm\r\n", "Print 33.5 177 FILE = a.KSC,  PROJECT ID = Larkmoor Farm"},
      {"x\nKESTRA    01/01/2009  a  b  \n", "Print 38 177 FILE = a.KSC,  PROJECT ID = a  b"},
      {"KESTRA    01/01/2009\n", "Print 40 177 FILE = a.KSC,  NO PROJECT ID"},
      {"KESTRAX   01/01/2009Larkmoor\n", "Print 36 177 FILE = a.KSC,  PROJECT ID = Larkmoor"},
      {"no such record, however long it is\n", "Print 40 177 FILE = a.KSC,  NO PROJECT ID"},
      {"", "Print 40 177 FILE = a.KSC,  NO PROJECT ID"},
  };
  for (const auto& [text, line] : cases) {
    files.put("/p/a.KSC", text);
    canvas.Cls();
    DrawGraphFooter(sheet, canvas, files, "/p/a.KSC");
    EXPECT_EQ(calls(), (Lines{"Scale 0 0 100 200", "ForeColor 101", line}));
  }
}

TEST_F(AFrame, takesFiftyCharactersAsTheIdentifier) {
  files.put("/a.KSC", "KESTRA    01/01/2009" + std::string(50, 'x') + "yz\n");
  DrawGraphFooter(sheet, canvas, files, "/a.KSC");
  EXPECT_EQ(textsOn(canvas), (Lines{"FILE = a.KSC,  PROJECT ID = " + std::string(50, 'x')}));
}

TEST_F(AFrame, hasANoteBelowTheFootWhereThereIsOne) {
  DrawGraphFooter(sheet, canvas, files, "", kLowTailwaterNote);
  EXPECT_EQ(calls("Print"),
            (Lines{"Print 40 177 FILE = ,  NO PROJECT ID", "Print 39 188 * Note: Plot assumes low tailwater."}));
}

TEST_F(AFrame, hasNoFootWhenTheFileCannotBeRead) {
  DrawGraphFooter(sheet, canvas, files, "/missing.KSC");
  EXPECT_EQ(calls(), Lines{});
}

}  // namespace
}  // namespace kestra
