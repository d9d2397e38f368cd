#include "screens/frm_ps_type.h"

#include <gtest/gtest.h>

#include "screens/frm_ps_conduit.h"
#include "support/input_desk.h"

namespace kestra {
namespace {

struct SpillwayType : testing::Test {
  InputDesk desk;
  frmPSType screen{desk.context};
  frmPSConduit conduit{desk.context};
  PlainScreen hydrograph{"frmHydrographData"};
  PlainScreen rating{"frmPSRatingTable"};

  SpillwayType() {
    desk.context.screens.psType = &screen;
    desk.context.screens.psConduit = &conduit;
    for (Screen* each : std::initializer_list<Screen*>{&screen, &conduit, &hydrograph, &rating}) {
      desk.host.enter(*each);
    }
    desk.host.show(screen);
  }
};

TEST_F(SpillwayType, startsWithACircularConduitOfOneStage) {
  EXPECT_EQ(screen.title(), "Principal Spillway Type");
  EXPECT_TRUE(screen.optSingleCir.selected());
  EXPECT_EQ(screen.find("cmdPlot"), nullptr);
}

struct TypeCase {
  OptionButton frmPSType::*option;
  const char* caption;
  int type;
  const char* next;
  const char* conduitTitle;
};

class EachType : public SpillwayType, public testing::WithParamInterface<TypeCase> {};

TEST_P(EachType, leadsToTheConduitOfThatTypeOrPastIt) {
  OptionButton& option = screen.*GetParam().option;
  option.userSelect();
  EXPECT_EQ(option.caption(), GetParam().caption);
  EXPECT_EQ(screen.type(), GetParam().type);
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), GetParam().next);
  EXPECT_FALSE(screen.visible());
  EXPECT_EQ(conduit.title(), GetParam().conduitTitle);
}

INSTANTIATE_TEST_SUITE_P(
    Types, EachType,
    testing::Values(TypeCase{&frmPSType::optNone, "No Principal Spillway", 0, "frmPSRatingTable",
                             "Principal Spillway: Conduit"},
                    TypeCase{&frmPSType::optSingleCir, "Single Stage Inlet, Circular Conduit", 1, "frmPSConduit",
                             "Principal Spillway: Single Stage Inlet, Circular Conduit"},
                    TypeCase{&frmPSType::optSingleRec, "Single Stage Inlet, Rectangular Conduit", 2, "frmPSConduit",
                             "Principal Spillway: Single Stage Inlet, Rectangular Conduit"},
                    TypeCase{&frmPSType::optTwoCir, "Two Stage Inlet, Circular Conduit", 3, "frmPSConduit",
                             "Principal Spillway: Two Stage Inlet, Circular Conduit"},
                    TypeCase{&frmPSType::optTwoRec, "Two Stage Inlet, Rectangular Conduit", 4, "frmPSConduit",
                             "Principal Spillway: Two Stage Inlet, Rectangular Conduit"},
                    TypeCase{&frmPSType::optHood, "Hood Inlet, Circular Conduit", 5, "frmPSConduit",
                             "Principal Spillway: Hood Inlet"}));

TEST_F(SpillwayType, goesBackToTheHydrograph) {
  screen.cmdPrevious.click();
  EXPECT_EQ(desk.front(), "frmHydrographData");
  desk.host.show(screen);
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_EQ(desk.front(), "frmHydrographData");
  EXPECT_TRUE(screen.loaded());
}

TEST_F(SpillwayType, showsItsHelpAndLeadsHome) {
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\PrincipalSpillwayType.htm"});
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
}

}  // namespace
}  // namespace kestra
