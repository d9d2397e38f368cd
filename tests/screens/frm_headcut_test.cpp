#include "screens/frm_headcut.h"

#include <gtest/gtest.h>

#include "controls/control_array.h"
#include "support/input_desk.h"
#include "support/shown_fields.h"

namespace kestra {
namespace {

constexpr const char* kRateConstant = "Rate Constant    (ft/h) / (ft^3 / s)^1/3";

// The options of the auxiliary spillways as the headcut screen looks for them.
struct Spillways : PlainScreen {
  Spillways() : PlainScreen("frmAuxSpillways") {}
  OptionGroup groups[4];
  ControlArray<OptionButton> optNone{*this, "optNone", 0, 3, std::ref(groups[0]), std::string()};
  ControlArray<OptionButton> optQUIL{*this, "optQUIL", 0, 3, std::ref(groups[1]), std::string()};
  ControlArray<OptionButton> optStability{*this, "optStability", 0, 3, std::ref(groups[2]), std::string()};
  ControlArray<OptionButton> optProfile{*this, "optProfile", 0, 3, std::ref(groups[3]), std::string()};
};

struct Headcut : testing::Test {
  InputDesk desk;
  frmHeadcut screen{desk.context};
  Spillways spillways;
  PlainScreen profile{"frmAuxSpillwayProfile"};
  PlainScreen rating{"frmAuxRatingTable"};

  Headcut() {
    for (Screen* each : std::initializer_list<Screen*>{&screen, &profile, &rating}) desk.host.enter(*each);
    desk.host.show(screen);
  }
  std::string previous() {
    desk.host.show(screen);
    screen.cmdPrevious.click();
    EXPECT_FALSE(screen.visible());
    return desk.front();
  }
};

TEST_F(Headcut, startsWithTheFirstFamilyAndTheSemiLogarithmicForm) {
  EXPECT_EQ(screen.title(), "Auxiliary Spillway Erosion Headcut Model Selection");
  EXPECT_TRUE(screen.optVANT.selected() && screen.optSemiLog.selected());
  EXPECT_FALSE(screen.Frame2.visible() || screen.Frame2.enabled());
  EXPECT_EQ(screen.lblExp2.caption(), kRateConstant);
  EXPECT_EQ(shownFields(screen), "a1 b1 a2 b2 c2");
  const std::pair<const char*, const char*> captions[] = {
      {"cmdNext", "&Run Simulation"},
      {"cmdPrevious", "&Previous Screen"},
      {"cmdPlot", "P&lot"},
      {"optVANT", "VANT"},
      {"optORLEN", "ORLEN"},
      {"optLogLog", "Log-Log"},
      {"optSemiLog", "Semi-Log"},
      {"lblThreshold", "Threshold Equation:"},
      {"lblRate", "Rate Equation:"},
      {"lblCoeff1", "Threshold Coefficient ( ft^3 / s )"},
      {"lblExp1", "Exponent"},
      {"lblCoeff2", "Rate Coefficient   (ft/h) / (ft^3 / s)^1/3"},
      {"lblLimit", "     Rate Limit       (ft/h) / (ft^3 / s)^1/3"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(captionOf(screen, name), caption);
}

TEST_F(Headcut, offersTheFormWithTheSecondFamilyOnly) {
  screen.optORLEN.userSelect();
  EXPECT_TRUE(screen.Frame2.visible() && screen.Frame2.enabled());
  EXPECT_TRUE(screen.optLogLog.visible());
  screen.optLogLog.userSelect();
  EXPECT_EQ(screen.lblExp2.caption(), "Exponent");
  EXPECT_FALSE(screen.optSemiLog.selected());
  screen.optVANT.userSelect();
  EXPECT_FALSE(screen.Frame2.visible() || screen.Frame2.enabled());
  EXPECT_FALSE(screen.optLogLog.visible());
  EXPECT_EQ(screen.lblExp2.caption(), "Exponent");
  desk.host.show(screen);
  EXPECT_FALSE(screen.Frame2.visible());
  screen.optORLEN.userSelect();
  screen.optSemiLog.userSelect();
  EXPECT_EQ(screen.lblExp2.caption(), kRateConstant);
}

TEST_F(Headcut, undoesAFamilyWithItsFrame) {
  screen.optORLEN.userSelect();
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.optVANT.selected());
  EXPECT_FALSE(screen.Frame2.visible() || screen.Frame2.enabled());
}

TEST_F(Headcut, startsTheRunByNext) {
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_FALSE(screen.visible());
  EXPECT_EQ(desk.builds, 1);
  desk.host.show(screen);
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  EXPECT_EQ(desk.builds, 1);
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\SelectionScreen.htm"});
}

TEST_F(Headcut, goesBackToTheRatingTablesWhereNoSpillwayIsKnown) {
  EXPECT_EQ(previous(), "frmAuxRatingTable");
  desk.host.enter(spillways);
  spillways.optProfile(0).setSelected(true);
  EXPECT_EQ(previous(), "frmAuxRatingTable");
}

struct BackCase {
  ControlArray<OptionButton> Spillways::*options;
  const char* target;
};

TEST_F(Headcut, plotsOnlyWithAllFiveValues) {
  PlainScreen graph("frmHeadcutGraph");
  desk.host.enter(graph);
  const std::vector<TextBox*> boxes = {&screen.txta1, &screen.txtb1, &screen.txta2, &screen.txtb2, &screen.txtc2};
  for (TextBox* missing : boxes) {
    for (TextBox* box : boxes) box->setText(box == missing ? " " : "1");
    screen.cmdPlot.click();
    EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{"Insufficient Input: Enter the Required Values"});
    EXPECT_EQ(desk.front(), "frmHeadcut");
  }
  for (TextBox* box : boxes) box->setText("1");
  screen.cmdPlot.click();
  EXPECT_TRUE(desk.takeBoxes().empty());
  EXPECT_EQ(desk.front(), "frmHeadcutGraph");
  EXPECT_TRUE(screen.visible());
}

TEST_F(Headcut, staysWhereThereIsNoGraph) {
  for (TextBox* box : {&screen.txta1, &screen.txtb1, &screen.txta2, &screen.txtb2, &screen.txtc2}) box->setText("1");
  screen.cmdPlot.click();
  EXPECT_TRUE(desk.takeBoxes().empty());
  EXPECT_EQ(desk.front(), "frmHeadcut");
}

class BackFromHeadcut : public Headcut, public testing::WithParamInterface<BackCase> {};

TEST_P(BackFromHeadcut, followsTheLastSpillwaysChoice) {
  desk.host.enter(spillways);
  desk.state.numAuxSpillways = 2;
  ControlArray<OptionButton>& options = spillways.*GetParam().options;
  options(0).setSelected(true);
  options(2).setSelected(true);
  EXPECT_EQ(previous(), "frmAuxRatingTable");  // the others do not count
  options(1).setSelected(true);
  EXPECT_EQ(previous(), GetParam().target);
  desk.host.show(screen);
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_EQ(desk.front(), GetParam().target);
}

INSTANTIATE_TEST_SUITE_P(Choices, BackFromHeadcut,
                         testing::Values(BackCase{&Spillways::optQUIL, "frmAuxSpillwayProfile"},
                                         BackCase{&Spillways::optStability, "frmAuxSpillwayProfile"},
                                         BackCase{&Spillways::optProfile, "frmAuxSpillwayProfile"},
                                         BackCase{&Spillways::optNone, "frmAuxRatingTable"}));

}  // namespace
}  // namespace kestra
