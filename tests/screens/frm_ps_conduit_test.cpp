#include "screens/frm_ps_conduit.h"

#include <gtest/gtest.h>

#include "screens/frm_ps_type.h"
#include "support/input_desk.h"
#include "support/shown_fields.h"

namespace kestra {
namespace {

struct Conduit : testing::Test {
  InputDesk desk;
  frmPSType type{desk.context};
  frmPSConduit screen{desk.context};
  PlainScreen rating{"frmPSRatingTable"};

  Conduit() {
    desk.context.screens.psType = &type;
    desk.context.screens.psConduit = &screen;
    for (Screen* each : std::initializer_list<Screen*>{&type, &screen, &rating}) desk.host.enter(*each);
    desk.host.show(screen);
  }
  void showType(OptionButton& option) {
    option.userSelect();
    desk.host.show(screen);
  }
};

struct TypeCase {
  int type;
  const char* title;
  const char* helpTopic;
  const char* fields;
  const char* frames;
  const char* crest;
  const char* diameter;
  const char* inlet;
};

class ConduitOfType : public Conduit, public testing::WithParamInterface<TypeCase> {
 protected:
  std::string framesOnShow() {
    std::string names;
    for (const Frame* frame : {&screen.Frame3, &screen.Frame4a, &screen.Frame4b, &screen.Frame4c}) {
      if (frame->visible()) names += (names.empty() ? "" : " ") + frame->name();
    }
    return names;
  }
};

TEST_P(ConduitOfType, showsItsFieldsUnderItsTitle) {
  const TypeCase& wanted = GetParam();
  screen.Initialize(wanted.type);
  EXPECT_EQ(screen.title(), wanted.title);
  EXPECT_EQ(shownFields(screen), wanted.fields);
  EXPECT_EQ(framesOnShow(), wanted.frames);
  EXPECT_EQ(screen.lblHighStageCrest.caption(), wanted.crest);
  EXPECT_EQ(screen.lblDiameterOfConduit.caption(), wanted.diameter);
  EXPECT_EQ(screen.Frame4a.visible() ? screen.Frame4a.caption() : "", wanted.inlet);
  EXPECT_EQ(screen.optStraightPipe.visible(), wanted.type == 5);
  EXPECT_EQ(screen.optBendInPipe.visible(), wanted.type == 5);
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{wanted.helpTopic});
}

INSTANTIATE_TEST_SUITE_P(
    Types, ConduitOfType,
    testing::Values(
        TypeCase{1, "Principal Spillway: Single Stage Inlet, Circular Conduit",
                 "html\\SingleStageInletCircularConduit.htm",
                 "HighStageCrest WeirLength NumOfConduit LengthOfConduit DiameterOfConduit Manning InvertElevAtRiser "
                 "InvertElevAtOutlet EntranceLossCoefficient WeirInletCoefficient HighStageWeirCoefficient "
                 "ConduitOrificeArea ConduitOrificeDischargeCoefficient",
                 "Frame4a Frame4c", "Crest Elevation, Feet:", "Conduit Diameter, Inches:", "Inlet"},
        TypeCase{2, "Principal Spillway: Single Stage Inlet, Rectangular Conduit",
                 "html\\SingleStageInletRectangularConduit.htm",
                 "HighStageCrest WeirLength NumOfConduit LengthOfConduit DiameterOfConduit Height Manning "
                 "InvertElevAtRiser InvertElevAtOutlet EntranceLossCoefficient WeirInletCoefficient "
                 "HighStageWeirCoefficient ConduitOrificeArea ConduitOrificeDischargeCoefficient FilletSize",
                 "Frame4a Frame4c", "Crest Elevation, Feet:", "Conduit Width, Feet:", "Inlet"},
        TypeCase{3, "Principal Spillway: Two Stage Inlet, Circular Conduit", "html\\TwoStageInletCircularConduit.htm",
                 "LowStageCrest OrificeWidth OrificeHeight HighStageCrest WeirLength NumOfConduit LengthOfConduit "
                 "DiameterOfConduit Manning InvertElevAtRiser InvertElevAtOutlet EntranceLossCoefficient "
                 "WeirInletCoefficient HighStageWeirCoefficient OrificeLowStageFullFlow OrificeLowStageWeirFlow "
                 "ConduitOrificeArea ConduitOrificeDischargeCoefficient",
                 "Frame4a Frame4b Frame4c",
                 "High Stage Crest Elevation, Feet:", "Conduit Diameter, Inches:", "High Stage Inlet"},
        TypeCase{
            4, "Principal Spillway: Two Stage Inlet, Rectangular Conduit", "html\\TwoStageInletRectangularConduit.htm",
            "LowStageCrest OrificeWidth OrificeHeight HighStageCrest WeirLength NumOfConduit LengthOfConduit "
            "DiameterOfConduit Height Manning InvertElevAtRiser InvertElevAtOutlet EntranceLossCoefficient "
            "WeirInletCoefficient HighStageWeirCoefficient OrificeLowStageFullFlow OrificeLowStageWeirFlow "
            "ConduitOrificeArea ConduitOrificeDischargeCoefficient FilletSize",
            "Frame4a Frame4b Frame4c", "High Stage Crest Elevation, Feet:", "Conduit Width, Feet:", "High Stage Inlet"},
        TypeCase{5, "Principal Spillway: Hood Inlet", "html\\HoodInletCircularConduit.htm",
                 "HighStageCrest NumOfConduit DiameterOfConduit Manning HorizInToBen ElevationAtOutlet "
                 "EntranceLossCoefficient HoodWeirInletCoefficient",
                 "Frame3", "Crest Elevation, Feet:", "Conduit Diameter, Inches:", ""}));

TEST_F(Conduit, ignoresATypeThatThereIsNot) {
  for (const int number : {0, 6, -1, 99}) {
    screen.Initialize(number);
    EXPECT_EQ(screen.title(), "Principal Spillway: Single Stage Inlet, Circular Conduit");
  }
}

TEST_F(Conduit, namesItsFieldsAndTabs) {
  EXPECT_EQ(screen.SSTab1.captions(), (std::vector<std::string>{"Inlet", "Conduit", "Coefficients"}));
  const std::pair<const char*, const char*> captions[] = {
      {"lblWeirLength", "Weir Length, Feet:"},
      {"lblLowStageCrest", "Low Stage Orifice Crest Elevation, Feet:"},
      {"lblOrificeWidth", "Low Stage Orifice Width, Feet:"},
      {"lblOrificeHeight", "Low Stage Orifice Height, Feet:"},
      {"lblNumOfConduit", "Number of Conduits:"},
      {"lblLengthOfConduit", "Length of Conduits, Feet:"},
      {"lblHeight", "Conduit Height, Feet:"},
      {"lblManning", "Conduit Manning's \"n\" Value:"},
      {"lblInvertElevAtRiser", "Conduit Invert Elevation at Riser, Feet:"},
      {"lblInvertElevAtOutlet", "Conduit Invert Elevation at Outlet, Feet:"},
      {"optStraightPipe", "Straight Pipe"},
      {"optBendInPipe", "Bend in Pipe"},
      {"lblHorizBenToOut", "Horiz. Distance, Bend to Outlet, Feet:"},
      {"lblElevationAtBend", "Elevation at Bend, Feet: "},
      {"lblElevationAtOutlet", "Elevation at Outlet, Feet:"},
      {"lblEntranceLossCoefficient", "Entrance Loss Coefficient, Ke:"},
      {"lblHighStageWeirCoefficient", "Weir Coefficient:"},
      {"lblWeirInletCoefficient", "Weir Coefficient:"},
      {"lblHoodWeirInletCoefficient", "Weir Coefficient:"},
      {"Frame4b", "Low Stage Orifice"},
      {"lblOrificeLowStageFullFlow", "Orifice Discharge Coefficient:"},
      {"lblOrificeLowStageWeirFlow", "Weir Coefficient:"},
      {"Frame4c", "Conduit"},
      {"lblConduitOrificeArea", "Entrance (Orifice) Area (sq. ft.):"},
      {"lblConduitOrificeDischargeCoefficient", "Entrance Orifice Discharge Coefficient:"},
      {"lblFilletSize", "Rectangular Conduit Fillet (inches):"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(captionOf(screen, name), caption);
  for (const Control* control : screen.controls()) {
    if (control->kind() != ControlKind::text) continue;
    EXPECT_EQ(static_cast<const TextBox*>(control)->text(), "") << control->name();
  }
}

TEST(ConduitDesign, hasAGeneralTitleBeforeItIsInitialized) {
  InputDesk desk;
  const frmPSConduit screen(desk.context);
  EXPECT_EQ(screen.title(), "Principal Spillway: Conduit");
  EXPECT_EQ(screen.find("cmdPlot"), nullptr);
}

TEST_F(Conduit, takesItsTypeFromTheOptionAtEachActivation) {
  type.optHood.userSelect();
  EXPECT_EQ(screen.title(), "Principal Spillway: Single Stage Inlet, Circular Conduit");
  desk.host.show(screen);
  EXPECT_EQ(screen.title(), "Principal Spillway: Hood Inlet");
  EXPECT_FALSE(screen.txtWeirLength.visible());
  type.optNone.userSelect();
  desk.host.show(screen);
  EXPECT_EQ(screen.title(), "Principal Spillway: Hood Inlet");
}

TEST_F(Conduit, opensOnTheFirstTabWithTheFocusOnItsFirstField) {
  EXPECT_EQ(desk.host.focus(), &screen.txtHighStageCrest);
  screen.SSTab1.userSelect(2);
  showType(type.optTwoRec);
  EXPECT_EQ(screen.SSTab1.index(), 0);
  EXPECT_EQ(desk.host.focus(), &screen.txtLowStageCrest);
  showType(type.optHood);
  EXPECT_EQ(desk.host.focus(), &screen.txtHighStageCrest);
}

TEST_F(Conduit, showsTheFieldsOfABendAtOnceOnTheHoodOnly) {
  showType(type.optHood);
  EXPECT_TRUE(screen.optStraightPipe.selected());
  EXPECT_EQ(screen.lblHorizInToBen.caption(), "Horiz. Distance, Inlet to Outlet, Feet:");
  EXPECT_FALSE(screen.txtHorizBenToOut.visible() || screen.txtElevationAtBend.visible());
  screen.optBendInPipe.userSelect();
  EXPECT_EQ(screen.lblHorizInToBen.caption(), "Horiz. Distance, Inlet to Bend, Feet:");
  EXPECT_TRUE(screen.txtHorizBenToOut.visible() && screen.txtElevationAtBend.visible());
  EXPECT_TRUE(screen.lblHorizBenToOut.visible() && screen.lblElevationAtBend.visible());
  desk.host.show(screen);
  EXPECT_TRUE(screen.txtElevationAtBend.visible());
  showType(type.optTwoCir);
  EXPECT_FALSE(screen.txtHorizBenToOut.visible() || screen.lblElevationAtBend.visible());
  showType(type.optHood);
  screen.optStraightPipe.userSelect();
  EXPECT_FALSE(screen.txtHorizBenToOut.visible() || screen.lblElevationAtBend.visible());
  EXPECT_EQ(screen.lblHorizInToBen.caption(), "Horiz. Distance, Inlet to Outlet, Feet:");
}

TEST_F(Conduit, undoesABendWithItsFields) {
  showType(type.optHood);
  screen.optBendInPipe.userSelect();
  screen.mnuUndo.click();
  EXPECT_TRUE(screen.optStraightPipe.selected());
  EXPECT_FALSE(screen.txtElevationAtBend.visible());
  EXPECT_EQ(screen.lblHorizInToBen.caption(), "Horiz. Distance, Inlet to Outlet, Feet:");
}

TEST_F(Conduit, keepsTheTextOfAHiddenHeight) {
  showType(type.optSingleRec);
  screen.txtHeight.userReplace("4");
  showType(type.optSingleCir);
  EXPECT_FALSE(screen.txtHeight.visible());
  EXPECT_EQ(screen.txtHeight.text(), "4");
}

struct CheckCase {
  TextBox frmPSConduit::*box;
  const char* text;
  const char* message;  // empty: accepted
};

class CheckOnLeaving : public Conduit, public testing::WithParamInterface<CheckCase> {};

TEST_P(CheckOnLeaving, blanksWhatItRefusesAndKeepsTheFocus) {
  TextBox& box = screen.*GetParam().box;
  typeInto(box, GetParam().text);
  box.userLeave();
  const std::string message = GetParam().message;
  const bool refused = !message.empty();
  EXPECT_EQ(desk.takeBoxes(),
            refused ? std::vector<std::string>{"Data Check: " + message} : std::vector<std::string>{});
  EXPECT_EQ(box.text(), refused ? "" : GetParam().text);
  EXPECT_EQ(desk.host.focus(), refused ? &box : nullptr);
  box.userLeave();
  EXPECT_TRUE(desk.takeBoxes().empty());
}

constexpr const char* kLength = "Length Of Conduit must be greater than 0.";
constexpr const char* kManning = "Manning's n value must be greater than 0.";
constexpr const char* kNumber = "Minimum Number Of Conduits is 1.";
constexpr const char* kWeir = "Weir Length must be greater than 0.";
INSTANTIATE_TEST_SUITE_P(Fields, CheckOnLeaving,
                         testing::Values(CheckCase{&frmPSConduit::txtLengthOfConduit, "0", kLength},
                                         CheckCase{&frmPSConduit::txtLengthOfConduit, "-12", kLength},
                                         CheckCase{&frmPSConduit::txtLengthOfConduit, "long", kLength},
                                         CheckCase{&frmPSConduit::txtLengthOfConduit, "0.01", ""},
                                         CheckCase{&frmPSConduit::txtLengthOfConduit, "150 ft", ""},
                                         CheckCase{&frmPSConduit::txtManning, "0.0", kManning},
                                         CheckCase{&frmPSConduit::txtManning, ".012", ""},
                                         CheckCase{&frmPSConduit::txtNumOfConduit, "0.99", kNumber},
                                         CheckCase{&frmPSConduit::txtNumOfConduit, "1", ""},
                                         CheckCase{&frmPSConduit::txtWeirLength, "-0", kWeir},
                                         CheckCase{&frmPSConduit::txtWeirLength, "1e-3", ""},
                                         CheckCase{&frmPSConduit::txtWeirLength, " ", ""},
                                         CheckCase{&frmPSConduit::txtHighStageCrest, "-5", ""},
                                         CheckCase{&frmPSConduit::txtDiameterOfConduit, "0", ""},
                                         CheckCase{&frmPSConduit::txtEntranceLossCoefficient, "x", ""}));

TEST_F(Conduit, checksOnlyWhatWasTypedSinceTheLastCheck) {
  screen.txtManning.setText("0");  // by the program
  screen.txtManning.userLeave();
  EXPECT_TRUE(desk.takeBoxes().empty());
  typeInto(screen.txtManning, ".");
  screen.txtManning.userLeave();
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{std::string("Data Check: ") + kManning});
}

TEST_F(Conduit, acceptsAFieldThatIsEmptiedAgain) {
  typeInto(screen.txtManning, "7\b");
  screen.txtManning.userLeave();
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(Conduit, checksAgainWhatUndoBringsBack) {
  typeInto(screen.txtWeirLength, "0");
  screen.txtWeirLength.userLeave();
  EXPECT_EQ(desk.takeBoxes().size(), 1U);
  screen.mnuUndo.click();
  EXPECT_EQ(screen.txtWeirLength.text(), "0");
  screen.txtWeirLength.userLeave();
  EXPECT_EQ(desk.takeBoxes().size(), 1U);
  EXPECT_EQ(screen.txtWeirLength.text(), "");
}

TEST_F(Conduit, makesNoStepToUndoOfACheckThatPasses) {
  typeInto(screen.txtWeirLength, "12");
  screen.txtWeirLength.userLeave();
  EXPECT_EQ(desk.history.steps(), 1U);
}

TEST_F(Conduit, standsBetweenTheTypeAndTheTailwater) {
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmPSRatingTable");
  EXPECT_FALSE(screen.visible());
  desk.host.show(screen);
  screen.cmdPrevious.click();
  EXPECT_EQ(desk.front(), "frmPSType");
  desk.host.show(screen);
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_EQ(desk.front(), "frmPSType");
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
}

TEST_F(Conduit, forgetsTypeTextsAndChecksWhenUnloaded) {
  showType(type.optHood);
  typeInto(screen.txtManning, "0");
  EXPECT_TRUE(desk.host.unload(screen));
  EXPECT_EQ(screen.title(), "Principal Spillway: Conduit");
  EXPECT_EQ(screen.txtManning.text(), "");
  EXPECT_TRUE(screen.txtWeirLength.visible());
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\SingleStageInletCircularConduit.htm"});
  screen.txtManning.setText("0");
  screen.txtManning.userLeave();
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(Conduit, followsATypeThatIsUndoneWhileItIsOnShow) {
  showType(type.optHood);
  EXPECT_FALSE(screen.txtWeirLength.visible());
  screen.mnuUndo.click();
  EXPECT_TRUE(type.optSingleCir.selected());
  EXPECT_TRUE(screen.txtWeirLength.visible());
  EXPECT_EQ(screen.title(), "Principal Spillway: Single Stage Inlet, Circular Conduit");
}

}  // namespace
}  // namespace kestra
