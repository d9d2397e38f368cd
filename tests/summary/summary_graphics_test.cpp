#include <gtest/gtest.h>

#include "support/summary_screens_desk.h"

namespace kestra {
namespace {

constexpr int kPeak = 3;
constexpr int kStress = 27;

struct SummaryGraphics : testing::Test, SummaryScreensDesk {
  ~SummaryGraphics() override { history.clear(); }
  void show(int x, int y, bool isLine) { graphics.ShowScreen({x, {}}, {y, {}}, isLine); }
  Texts calls(const std::string& name) {
    return callsOf(graphics.isLineGraph() ? graphics.picLine : graphics.picScatter, name);
  }
};

using Texts = std::vector<std::string>;

TEST_F(SummaryGraphics, markAPointForEachRowWithBothNumbers) {
  putSamples();
  open();
  show(kStress, kPeak, false);
  EXPECT_EQ(front(), "frmSummaryGraphics");
  EXPECT_TRUE(state.window(5));
  EXPECT_TRUE(graphics.picScatter.visible());
  EXPECT_FALSE(graphics.picLine.visible());
  // The rows are those of the instances of highest, lowest and mean measure; that of the dam has no stress.
  EXPECT_EQ(calls("PSet").size(), 3U);
  EXPECT_EQ(calls("PSet")[0].substr(0, 9), "PSet 0.2 ");
  const Texts texts = textsOn(graphics.picScatter);
  EXPECT_NE(std::find(texts.begin(), texts.end(), "Stress"), texts.end());
  EXPECT_EQ(graphics.cmdAlt.caption(), "&Line Graph");
}

TEST_F(SummaryGraphics, joinTheRowsInTheirOrder) {
  putEntries({"c", "a", "b"});
  const std::pair<const char*, const char*> dams[] = {{"a", "10"}, {"b", "N/A"}, {"c", "20"}};
  for (const auto& [name, peak] : dams)
    files.put(std::string("/p/") + name + ".DIS", "t\n" + std::string(peak) + "\n" + peak + "\n");
  open();
  show(2, kPeak, true);
  EXPECT_TRUE(graphics.picLine.visible());
  EXPECT_EQ(calls("Line").back(), "Line 20 10 10 20");
  EXPECT_EQ(calls("PSet"), Texts{});
  EXPECT_EQ(graphics.cmdAlt.caption(), "Sca&tter Graph");
}

TEST_F(SummaryGraphics, changeBetweenTheKindsAndSayWhich) {
  putSamples();
  open();
  graphics.cmdAlt.click();
  EXPECT_EQ(graphics.title(), "Summary Graphics [ No Data ]");
  show(kPeak, kPeak, false);
  EXPECT_EQ(graphics.title(), "Summary Graphics [ Scatter Plot ]");
  graphics.cmdAlt.click();
  EXPECT_EQ(graphics.title(), "Summary Graphics [ Line Graph ]");
  EXPECT_EQ(graphics.cmdAlt.caption(), "&Scatter Graph");
  state.currentFile = "/p/dam.KSC";
  graphics.cmdAlt.click();
  EXPECT_EQ(graphics.title(), "Summary Graphics [ Scatter Plot ] ( file: /p/dam.KSC )");
  EXPECT_EQ(graphics.cmdAlt.caption(), "&Line Graph");
  graphics.cmdAlt.click();
  EXPECT_EQ(graphics.title(), "Summary Graphics [ Line Plot ] ( file: /p/dam.KSC )");
}

TEST_F(SummaryGraphics, tellThatThereIsNothingToDraw) {
  putEntries({"a", "b"});
  putDam("a", "N/A");
  putDam("b", "N/A");
  open();
  for (const int field : {kPeak, 0, 66, -1}) {
    show(2, field, false);
    EXPECT_EQ(takeBoxes(), Texts{"Kestra B: Cannot draw a summary graph"}) << field;
    EXPECT_EQ(graphics.title(), "Summary Graphics [ No Data ]");
    EXPECT_EQ(calls("PSet"), Texts{});
  }
}

TEST_F(SummaryGraphics, widenAnAxisWhoseValuesAreAllTheSame) {
  putEntries({"a"});
  putDam("a", "1e12");
  open();
  show(2, kPeak, true);
  EXPECT_EQ(takeBoxes(), Texts{});
  ASSERT_EQ(calls("PSet").size(), 1U);
  EXPECT_EQ(calls("PSet")[0].substr(0, 20), "PSet 1004 1000000000");
}

TEST_F(SummaryGraphics, roundAnAxisOrLeaveItAsItIs) {
  const struct {
    double low, high, roundLow, roundHigh, step;
  } cases[] = {{0, 1000, 0, 1000, 200}, {3, 3, 3, 3, 0}, {5, 1, 5, 1, 0}, {-7, 11, -8, 12, 2}};
  for (const auto& each : cases) {
    const AxisScale axis = frmSummaryGraphics::Scaling(each.low, each.high);
    EXPECT_EQ(axis.low, each.roundLow) << each.low;
    EXPECT_EQ(axis.high, each.roundHigh) << each.low;
    EXPECT_EQ(axis.step, each.step) << each.low;
  }
}

TEST_F(SummaryGraphics, followTheSizeOfTheWindowAndForgetWhenItCloses) {
  putSamples();
  open();
  show(kStress, kPeak, false);
  const Texts drawn = callsOf(graphics.picScatter);
  graphics.Form_Resize(6000, 4000);
  EXPECT_EQ(callsOf(graphics.picScatter), drawn);
  graphics.mnuExit.click();
  EXPECT_FALSE(state.window(5));
  EXPECT_FALSE(graphics.graphShown());
  EXPECT_EQ(graphics.title(), "Summary Graphics [ No Data ]");
}

TEST_F(SummaryGraphics, areSavedPrintedAndCopied) {
  putSamples();
  open();
  show(kStress, kPeak, false);
  files.put("/home/a.bmp", "old");
  choose("/home/a.bmp");
  graphics.mnuSaveAs.click();
  EXPECT_EQ(takeBoxes(), Texts{"Save As...: The file /home/a.bmp already exists. Do you want to replace it?"});
  EXPECT_EQ(files.content("/home/a.bmp"), "old");
  choose("/home/a.bmp");
  boxes.answers = {BoxButton::yes};
  graphics.mnuSaveAs.click();
  (void)takeBoxes();
  EXPECT_EQ(files.content("/home/a.bmp"), "form 3, 688x440, 1: Summary Graphics 150");
  choose("/home/a.png");
  pictures.fails = true;
  graphics.mnuSaveAs.click();
  EXPECT_EQ(takeBoxes(), Texts{"Error Message: no colours left"});
  EXPECT_FALSE(files.content("/home/a.png"));
  pictures.fails = false;
  graphics.mnuCopyToClipboard.click();
  EXPECT_EQ(clipboard.picture(), "form 3, 688x440, 1: Summary Graphics 150");
  dialogs.prints = {PrintChoice()};
  graphics.mnuPrint.click();
  EXPECT_EQ(printer.printed, "form 2, 688x440, 1: Summary Graphics 150, copies 1");
  graphics.mnuPrintPreview.click();
  EXPECT_EQ(keeper.takeCalls().back().substr(0, 25), "preview Summary Graphics,");
}

struct SummarySelections : SummaryGraphics {};

TEST_F(SummarySelections, listTheSelectedFieldsOfBothLevels) {
  putSamples();
  open();
  table.cmdSumGraph.click();
  EXPECT_EQ(front(), "frmSummarySelections");
  EXPECT_EQ(selections.lstSumFields.items(), (Texts{"Peak", "Stress"}));
  EXPECT_FALSE(selections.cmdSumGraph.enabled());
  EXPECT_TRUE(selections.optScatter.selected());
  selections.cmdChooseX.click();
  EXPECT_EQ(selections.txtX.text(), "");
  selections.lstSumFields.userSelect(1);
  selections.cmdChooseX.click();
  EXPECT_EQ(selections.txtX.text(), "Stress");
  EXPECT_FALSE(selections.cmdSumGraph.enabled());
  selections.txtY.userReplace("Peak");
  EXPECT_TRUE(selections.cmdSumGraph.enabled());
  selections.optLine.userSelect();
  selections.cmdSumGraph.click();
  EXPECT_EQ(front(), "frmSummaryGraphics");
  EXPECT_EQ(graphics.xField(), kStress);
  EXPECT_EQ(graphics.yField(), kPeak);
  EXPECT_TRUE(graphics.isLineGraph());
  graphics.cmdSel.click();
  EXPECT_EQ(front(), "frmSummarySelections");
  EXPECT_TRUE(selections.optLine.selected());
  EXPECT_EQ(selections.txtX.text(), "Stress");
  selections.txtX.userReplace("");
  EXPECT_FALSE(selections.cmdSumGraph.enabled());
  selections.txtX.userReplace("no such field");
  selections.cmdSumGraph.click();
  EXPECT_EQ(takeBoxes(), Texts{"Kestra B: Cannot draw a summary graph"});
}

TEST_F(SummarySelections, drawTheRowsOfTheTableFromWhichTheyCome) {
  putSamples();
  putInstance("dam/dam1_4", "0.5", "3");
  open();
  select(table, 1);
  table.cmdView(1).click();
  aux.cmdViewAll.click();
  aux.cmdSumGraph.click();
  for (Button* chooses : {&selections.cmdChooseX, &selections.cmdChooseY}) {
    selections.lstSumFields.userSelect(1);
    chooses->click();
  }
  selections.cmdSumGraph.click();
  EXPECT_EQ(calls("PSet").size(), 5U);
}

}  // namespace
}  // namespace kestra
