#include "screens/frm_aux_spillways.h"

#include <gtest/gtest.h>

#include "support/aux_desk.h"

namespace kestra {
namespace {

struct AuxSpillways : testing::Test {
  AuxDesk desk;
  frmAuxSpillways& screen = desk.spillways;

  void label(std::initializer_list<const char*> labels) {
    int i = 0;
    for (const char* text : labels) screen.txtsway(i++).userReplace(text);
  }
};

TEST_F(AuxSpillways, startsWithoutACountAndWithAllRowsHidden) {
  EXPECT_EQ(screen.title(), "Auxiliary Spillways");
  EXPECT_EQ(screen.cmbAuxSpillways.text(), "Select");
  EXPECT_EQ(screen.cmbAuxSpillways.items(), (std::vector<std::string>{"Select", "0", "1", "2", "3"}));
  EXPECT_EQ(screen.lblAuxSpillways.caption(), "Number of Auxiliary Spillways");
  EXPECT_EQ(screen.lblUserLabel.caption(), "User Label");
  EXPECT_EQ(screen.cmdNext.caption(), "&Next Screen");
  EXPECT_EQ(screen.find("cmdPlot"), nullptr);
  for (int i = 0; i < kAuxSpillways; ++i) {
    EXPECT_FALSE(screen.txtsway(i).visible() || screen.lblsway(i).visible() || screen.optProfile(i).visible() ||
                 screen.optNone(i).visible());
    EXPECT_TRUE(screen.optProfile(i).selected() && screen.optNone(i).selected());
  }
}

TEST_F(AuxSpillways, bearsItsCaptions) {
  for (int i = 0; i < kAuxSpillways; ++i) {
    EXPECT_EQ(screen.lblsway(i).caption(), "AS " + std::to_string(i + 1));
    EXPECT_EQ(screen.frameInputType(i).caption(), "Input Type");
    EXPECT_EQ(screen.optProfile(i).caption(), "Surface Profile");
    EXPECT_EQ(screen.optRating(i).caption(), "Rating Table");
    EXPECT_EQ(screen.frameAnalysisType(i).caption(), "Analysis Type");
    EXPECT_EQ(screen.optQUIL(i).caption(), "Integrity");
    EXPECT_EQ(screen.optStability(i).caption(), "Stability");
    EXPECT_EQ(screen.optNone(i).caption(), "None");
    EXPECT_EQ(screen.txtsway(i).maxLength(), 9);
  }
}

struct CountCase {
  const char* count;
  const char* next;
  int rows;
};

TEST_F(AuxSpillways, showsTheRowsUpToTheCount) {
  for (const CountCase& c :
       {CountCase{"3", "&NextScreen", 3}, CountCase{"1", "&Next Screen", 1}, CountCase{"2", "&Next Screen", 2},
        CountCase{"0", "&Run Simulation", 0}, CountCase{"Select", "&Next Screen", 0}}) {
    screen.cmbAuxSpillways.userSelect(c.count);
    EXPECT_EQ(screen.cmdNext.caption(), c.next);
    for (int i = 0; i < kAuxSpillways; ++i) {
      const bool used = i < c.rows;
      EXPECT_EQ(screen.txtsway(i).visible(), used);
      EXPECT_EQ(screen.lblsway(i).visible(), used);
      EXPECT_EQ(screen.optRating(i).visible(), used);
      EXPECT_EQ(screen.optStability(i).visible(), used);
      EXPECT_EQ(screen.frameInputType(i).enabled() && screen.frameAnalysisType(i).enabled(), used);
      for (const auto* options :
           {&screen.optProfile, &screen.optRating, &screen.optQUIL, &screen.optStability, &screen.optNone}) {
        EXPECT_EQ((*options)(i).enabled(), used) << (*options)(i).name();
      }
    }
  }
}

TEST_F(AuxSpillways, keepsEachRowsOptionsApartAndWhileTheyAreHidden) {
  screen.cmbAuxSpillways.userSelect("3");
  screen.optRating(2).userSelect();
  screen.optQUIL(2).userSelect();
  EXPECT_TRUE(screen.optProfile(1).selected() && screen.optNone(1).selected());
  EXPECT_FALSE(screen.optNone(2).selected());
  screen.cmbAuxSpillways.userSelect("1");
  screen.cmbAuxSpillways.userSelect("3");
  EXPECT_TRUE(screen.optRating(2).selected() && screen.optQUIL(2).selected());
}

TEST_F(AuxSpillways, showsTheRowsOfACountThatTheProgramHasSet) {
  screen.setCount(2);
  EXPECT_EQ(screen.cmbAuxSpillways.text(), "2");
  desk.host.show(screen);
  EXPECT_TRUE(screen.txtsway(1).visible());
  EXPECT_FALSE(screen.txtsway(2).visible());
  screen.setCount(4);
  desk.host.show(screen);
  EXPECT_EQ(screen.count(), -1);
  EXPECT_FALSE(screen.txtsway(0).visible());
}

TEST_F(AuxSpillways, movesTheFocusByEnterInTheCount) {
  typeInto(screen.cmbAuxSpillways, "x");
  EXPECT_EQ(desk.host.focus(), &screen.cmbAuxSpillways);
  typeInto(screen.cmbAuxSpillways, "\r");
  EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
  screen.cmbAuxSpillways.userSelect("0");
  typeInto(screen.cmbAuxSpillways, "\r");
  EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
  screen.cmbAuxSpillways.userSelect("1");
  typeInto(screen.cmbAuxSpillways, "\r");
  EXPECT_EQ(desk.host.focus(), &screen.txtsway(0));
}

constexpr const char* kSelect = "Input Data: Select the number of auxiliary spillways ";
constexpr const char* kOne = "Input Data: Enter the label for the spillway ";
constexpr const char* kEach = "Input Data: Enter the labels for the spillways ";
constexpr const char* kDistinct = "Input Error: Enter distinct labels for the spillways ";

struct LabelCase {
  const char* count;
  std::initializer_list<const char*> labels;
  const char* box;  // empty: Next goes on
};

TEST_F(AuxSpillways, asksForDistinctLabelsOfTheSpillwaysInUse) {
  for (const LabelCase& c : {
           LabelCase{"Select", {"A", "B", "C"}, kSelect},
           LabelCase{"1", {"", "B", "C"}, kOne},
           LabelCase{"1", {"A", "A", ""}, ""},
           LabelCase{"2", {"", "B", "C"}, kEach},
           LabelCase{"2", {"A", "", "C"}, kEach},
           LabelCase{"2", {"", "", "C"}, kEach},
           LabelCase{"2", {"A", "A", "C"}, kDistinct},
           LabelCase{"2", {"A", "a", ""}, ""},
           LabelCase{"2", {"A", "B", "A"}, ""},
           LabelCase{"3", {"A", "B", ""}, kEach},
           LabelCase{"3", {"A", "", "C"}, kEach},
           LabelCase{"3", {"", "", ""}, kEach},
           LabelCase{"3", {"A", "A", "C"}, kDistinct},
           LabelCase{"3", {"A", "B", "B"}, kDistinct},
           LabelCase{"3", {"A", "B", "A"}, kDistinct},
           LabelCase{"3", {"A", "B", "b"}, ""},
           LabelCase{"2", {" ", "  ", ""}, ""},
       }) {
    desk.host.show(screen);
    screen.cmbAuxSpillways.userSelect(c.count);
    label(c.labels);
    screen.cmdNext.click();
    const std::string text = c.box;
    EXPECT_EQ(desk.takeBoxes(), text.empty() ? std::vector<std::string>{} : std::vector<std::string>{text});
    EXPECT_EQ(screen.visible(), !text.empty()) << c.count;
  }
}

TEST_F(AuxSpillways, warnsAndStaysWithoutTakingTheCount) {
  desk.state.numAuxSpillways = 2;
  screen.cmbAuxSpillways.userSelect("1");
  screen.cmdNext.click();
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_EQ(desk.front(), "frmAuxSpillways");
  EXPECT_EQ(desk.state.numAuxSpillways, 2);
}

TEST_F(AuxSpillways, takesTheCountAndBeginsWithTheFirstSpillway) {
  desk.state.curAuxSpillway = 2;
  desk.chooseSpillways({"A", "B"});
  screen.optRating(0).userSelect();
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmAuxRatingTable");
  EXPECT_EQ(desk.state.numAuxSpillways, 2);
  EXPECT_EQ(desk.state.curAuxSpillway, 0);
}

TEST_F(AuxSpillways, goesBackByPreviousAndByTheFrameAndHome) {
  screen.cmdPrevious.click();
  EXPECT_EQ(desk.front(), "frmPSRatingTable");
  desk.host.show(screen);
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_EQ(desk.front(), "frmPSRatingTable");
  desk.host.show(screen);
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\AuxiliarySpillways.htm"});
}

TEST_F(AuxSpillways, undoesTheCountWithItsRows) {
  screen.cmbAuxSpillways.userSelect("1");
  screen.cmbAuxSpillways.userSelect("3");
  screen.mnuUndo.click();
  EXPECT_EQ(screen.cmbAuxSpillways.text(), "1");
  EXPECT_FALSE(screen.txtsway(1).visible());
  EXPECT_EQ(screen.cmdNext.caption(), "&Next Screen");
}

}  // namespace
}  // namespace kestra
