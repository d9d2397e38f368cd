#include "screens/frm_dist.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/aux_desk.h"

namespace kestra {
namespace {

// Carries out what the user does in a modal screen.
struct Acting : ModalLoop {
  std::function<void()> act = [] {};
  int shown = 0;
  void run(Screen&) override {
    ++shown;
    act();
  }
};

struct Dist : testing::Test {
  AuxDesk desk;
  frmAuxSpillwayProfile& screen = desk.profile;
  frmDist& dialog = desk.dist;
  Acting user;

  Dist() {
    desk.host.setModalLoop(&user);
    desk.openProfile(desk.spillways.optQUIL(0));
    screen.SSTab1.userSelect(2);
  }
  void open(Button& range, std::function<void()> act) {
    user.act = std::move(act);
    range.click();
  }
  void enter(const char* distribution, std::initializer_list<const char*> parameters) {
    dialog.cmbDist.userSelect(distribution);
    TextBox* const boxes[] = {&dialog.txtOne, &dialog.txtTwo, &dialog.txtThree, &dialog.txtFour};
    int i = 0;
    for (const char* parameter : parameters) boxes[i++]->userReplace(parameter);
  }
  const AuxMaterial& material(int n = 1) { return desk.materials().material(n); }
};

TEST_F(Dist, bearsItsCaptionsAndDefaults) {
  EXPECT_EQ(dialog.title(), "Material Property Distributions");
  EXPECT_EQ(dialog.Combo1.items(),
            (std::vector<std::string>{"Plasticity Index", "Dry Density", "Head Cut Index", "Percent Clay",
                                      "Detachment Rate", "Representative Diameter"}));
  EXPECT_EQ(dialog.cmbDist.text(), "CONSTANT");
  EXPECT_EQ(dialog.cmbDist.items().size(), 26U);
  EXPECT_TRUE(dialog.optLatinHypercube.selected());
  EXPECT_EQ(dialog.lblProperty.caption(), "Material Property");
  EXPECT_EQ(dialog.lblDistribution.caption(), "Distribution");
  EXPECT_EQ(dialog.lblInstance.caption(), "Number of Instances:");
  EXPECT_EQ(dialog.lblSeed.caption(), "Seed Value:");
  EXPECT_EQ(dialog.frameGlobal.caption(), "Global Values");
  EXPECT_EQ(dialog.lblSampling.caption(), "Sampling Method:");
  EXPECT_EQ(dialog.optRandomSample.caption(), "Random");
  EXPECT_EQ(dialog.optLatinHypercube.caption(), "Latin Hypercube");
  EXPECT_EQ(dialog.cmdOK.caption() + dialog.cmdCancel.caption(), "OKCancel");
}

TEST_F(Dist, isOpenedOnThePropertyOfTheRangeButton) {
  const std::pair<Button*, const char*> buttons[] = {
      {&screen.cmdPlastic, "Plasticity Index"}, {&screen.cmdDry, "Dry Density"},
      {&screen.cmdHeadCut, "Head Cut Index"},   {&screen.cmdPercent, "Percent Clay"},
      {&screen.cmdDetach, "Detachment Rate"},   {&screen.cmdRep, "Representative Diameter"}};
  for (const auto& [button, property] : buttons) {
    EXPECT_EQ(button->caption(), "Range");
    open(*button, [this, property = property] { EXPECT_EQ(dialog.Combo1.text(), property); });
    EXPECT_FALSE(dialog.visible());
  }
  EXPECT_EQ(user.shown, 6);
}

TEST_F(Dist, showsTheParametersOfTheChosenDistribution) {
  open(screen.cmdDry, [this] {
    EXPECT_EQ(dialog.lblOne.caption(), "Constant Value");
    EXPECT_FALSE(dialog.lblTwo.visible() || dialog.txtTwo.visible() || dialog.txtFour.visible());
    EXPECT_TRUE(dialog.lblDist.caption().starts_with("CONSTANT is not a distribution; it allows you"));
    dialog.cmbDist.userSelect("Triangular");
    EXPECT_EQ(dialog.lblThree.caption(), "Upper Bound (c)");
    EXPECT_TRUE(dialog.txtThree.visible());
    EXPECT_FALSE(dialog.txtFour.visible() || dialog.lblFour.visible());
    dialog.cmbDist.userSelect("Beta");
    EXPECT_EQ(dialog.lblFour.caption(), "Shape Factor q");
    EXPECT_TRUE(dialog.txtFour.visible());
  });
}

TEST_F(Dist, storesWhatIsChosenAndShowsThatItIsDrawn) {
  screen.txtDescript.userReplace("Clay");
  screen.txtDry.userReplace("110");
  desk.state.fileDirty = false;
  open(screen.cmdPlastic, [this] {
    enter("Normal", {"10", "2"});
    dialog.Combo1.userSelect("Dry Density");
    EXPECT_EQ(dialog.cmbDist.text(), "CONSTANT");
    EXPECT_EQ(dialog.txtOne.text(), "110");
    dialog.txtOne.userReplace("120");
    dialog.Combo1.userSelect("Plasticity Index");
    EXPECT_EQ(dialog.cmbDist.text(), "Normal");
    EXPECT_EQ(dialog.txtTwo.text(), "2");
    dialog.txtInstance.userReplace("25");
    dialog.txtSeed.userReplace("77");
    dialog.optRandomSample.userSelect();
    EXPECT_FALSE(desk.state.fileDirty);
    dialog.cmdOK.click();
    EXPECT_FALSE(dialog.visible());
  });
  EXPECT_EQ(screen.txtPlastic.text(), "PDF");
  EXPECT_EQ(screen.txtDry.text(), "120");
  EXPECT_EQ(material().distribution(MaterialProperty::plasticityIndex),
            (Distribution{"Normal", {"10", "2", "", ""}, true}));
  EXPECT_EQ(material().distribution(MaterialProperty::dryDensity), (Distribution{"CONSTANT", {"120"}, false}));
  EXPECT_EQ(material().value(MaterialProperty::dryDensity), "120");
  EXPECT_EQ(material().description, "Clay");
  EXPECT_EQ(desk.state.totalInstances, "25");
  EXPECT_EQ(desk.state.lhsSeed, "77");
  EXPECT_TRUE(desk.state.bRandomSample);
  EXPECT_TRUE(desk.state.fileDirty);
}

TEST_F(Dist, storesTheDistributionOfAMaterialThatIsNothingElseYet) {
  open(screen.cmdHeadCut, [this] {
    enter("Uniform", {"1", "2"});
    dialog.cmdOK.click();
  });
  EXPECT_EQ(desk.materials().count, 1);
  EXPECT_TRUE(material().distribution(MaterialProperty::headCutIndex).inUse);
  EXPECT_EQ(screen.txtHead.text(), "PDF");
}

TEST_F(Dist, showsTheStoredDistributionAgain) {
  open(screen.cmdHeadCut, [this] {
    enter("Uniform", {"1", "2"});
    dialog.cmdOK.click();
  });
  screen.cmdAddMaterial.click();
  EXPECT_EQ(screen.txtHead.text(), "");
  open(screen.cmdHeadCut, [this] {
    EXPECT_EQ(dialog.cmbDist.text(), "CONSTANT");
    EXPECT_EQ(dialog.txtOne.text(), "");
  });
  screen.cmdPreMaterial.click();
  EXPECT_EQ(screen.txtHead.text(), "PDF");
  open(screen.cmdHeadCut, [this] {
    EXPECT_EQ(dialog.cmbDist.text(), "Uniform");
    EXPECT_EQ(dialog.txtTwo.text(), "2");
  });
}

TEST_F(Dist, isLeftByANumberThatIsTypedOverIt) {
  open(screen.cmdHeadCut, [this] {
    enter("Uniform", {"1", "2"});
    dialog.cmdOK.click();
  });
  screen.txtHead.userReplace("0.05");
  screen.cmdHome.click();
  EXPECT_FALSE(material().distribution(MaterialProperty::headCutIndex).inUse);
  EXPECT_EQ(material().value(MaterialProperty::headCutIndex), "0.05");
}

TEST_F(Dist, storesNothingByCancelOrWithoutAnAnswer) {
  for (const bool cancels : {true, false}) {
    open(screen.cmdPlastic, [this, cancels] {
      enter("Normal", {"10", "2"});
      dialog.txtSeed.userReplace("77");
      if (cancels) dialog.cmdCancel.click();
    });
    EXPECT_FALSE(dialog.visible());
    EXPECT_EQ(screen.txtPlastic.text(), "");
    EXPECT_EQ(desk.state.lhsSeed, "1");
    EXPECT_EQ(desk.materials().count, 0);
  }
  open(screen.cmdPlastic, [this] {
    EXPECT_EQ(dialog.cmbDist.text(), "CONSTANT");
    EXPECT_EQ(dialog.txtSeed.text(), "1");
  });
}

TEST_F(Dist, isAcceptedByClosingItsWindow) {
  open(screen.cmdPlastic, [this] {
    enter("Normal", {"10", "2"});
    EXPECT_FALSE(desk.host.closeByFrame(dialog));
    EXPECT_FALSE(dialog.visible());
  });
  EXPECT_EQ(screen.txtPlastic.text(), "PDF");
}

TEST_F(Dist, staysWhileSomethingIsWrong) {
  open(screen.cmdPlastic, [this] {
    enter("Normal", {"10", "0"});
    dialog.txtSeed.userReplace("");
    dialog.txtInstance.userReplace("");
    dialog.cmdOK.click();
    dialog.txtSeed.userReplace("5");
    dialog.cmdOK.click();
    dialog.txtInstance.userReplace("5");
    EXPECT_FALSE(desk.host.closeByFrame(dialog));
    EXPECT_TRUE(dialog.visible());
    ASSERT_EQ(desk.boxes.shown.size(), 3U);
    EXPECT_EQ(desk.boxes.shown[0].icon, BoxIcon::warning);
    EXPECT_EQ(desk.takeBoxes(),
              (std::vector<std::string>{"Data Check: Please enter the Seed Value",
                                        "Data Check: Please enter the Number of Instances",
                                        "Data Check: Please enter Positive value for Standard Deviation"}));
  });
  EXPECT_EQ(screen.txtPlastic.text(), "");
}

TEST_F(Dist, keepsThePropertyOnShowWhileItIsWrong) {
  open(screen.cmdDry, [this] {
    enter("Normal", {"10", "0"});
    dialog.cmdOK.click();
    EXPECT_EQ(desk.takeBoxes(),
              std::vector<std::string>{"Data Check: Please enter Positive value for Standard Deviation"});
    EXPECT_TRUE(dialog.visible());
    EXPECT_EQ(dialog.Combo1.text(), "Dry Density");
    EXPECT_EQ(dialog.cmbDist.text() + " " + dialog.txtOne.text() + " " + dialog.txtTwo.text(), "Normal 10 0");
  });
}

TEST_F(Dist, showsAnotherPropertyThatIsDrawnAndWrong) {
  open(screen.cmdDry, [this] {
    enter("Normal", {"10", "0"});
    dialog.Combo1.userSelect("Head Cut Index");
    enter("Pareto", {"2.1", "1"});
    dialog.Combo1.userSelect("Plasticity Index");
    dialog.cmdOK.click();
    dialog.txtOne.userReplace("12");
    dialog.cmdOK.click();
    EXPECT_EQ(desk.takeBoxes(),
              (std::vector<std::string>{"Data Check: Please Enter value for Constant Value",
                                        "Data Check: Please enter Positive value for Standard Deviation"}));
    EXPECT_TRUE(dialog.visible());
    EXPECT_EQ(dialog.Combo1.text() + " " + dialog.cmbDist.text() + " " + dialog.txtTwo.text(), "Dry Density Normal 0");
    dialog.txtTwo.userReplace("1");
    dialog.cmdOK.click();
    EXPECT_FALSE(dialog.visible());
  });
  EXPECT_TRUE(desk.takeBoxes().empty());
  EXPECT_EQ(screen.txtPlastic.text() + " " + screen.txtDry.text() + " " + screen.txtHead.text(), "12 PDF PDF");
}

TEST_F(Dist, givesTheFocusBackToTheRangeButton) {
  for (Button* range : {&screen.cmdPlastic, &screen.cmdDry, &screen.cmdHeadCut, &screen.cmdPercent, &screen.cmdDetach,
                        &screen.cmdRep}) {
    range->userFocus();
    open(*range, [this] {
      dialog.txtSeed.userFocus();
      EXPECT_EQ(desk.host.focus(), &dialog.txtSeed);
      dialog.cmdCancel.click();
    });
    EXPECT_EQ(desk.host.focus(), range);
  }
}

TEST_F(Dist, wantsAConstantToHaveAValue) {
  open(screen.cmdPlastic, [this] { dialog.cmdOK.click(); });
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{"Data Check: Please Enter value for Constant Value"});
}

TEST_F(Dist, belongsToTheFillsOwnMaterialOnItsPage) {
  screen.SSTab1.userSelect(5);
  open(screen.cmdDry, [this] {
    enter("Uniform", {"1", "2"});
    dialog.cmdOK.click();
  });
  EXPECT_EQ(desk.materials().count, 0);
  EXPECT_TRUE(material(2).distribution(MaterialProperty::dryDensity).inUse);
}

TEST(DistAlone, leavesTheMaterialOfAScreenThatWasNotShownYet) {
  AuxDesk desk;
  desk.materials().add();
  desk.materials().material(1).description = "Clay";
  desk.materials().material(1).value(MaterialProperty::plasticityIndex) = "12";
  desk.host.show(desk.dist);
  EXPECT_EQ(desk.dist.txtOne.text(), "12");
  desk.dist.cmdOK.click();
  EXPECT_EQ(desk.materials().material(1).description, "Clay");
  EXPECT_EQ(desk.materials().material(1).value(MaterialProperty::plasticityIndex), "12");
}

TEST_F(Dist, isUndoneInOneStep) {
  screen.txtDescript.userReplace("Clay");
  screen.SSTab1.userSelect(0);
  screen.SSTab1.userSelect(2);
  open(screen.cmdDry, [this] {
    enter("Uniform", {"1", "2"});
    dialog.txtSeed.userReplace("77");
    dialog.cmdOK.click();
  });
  screen.mnuUndo.click();
  EXPECT_EQ(screen.txtDry.text(), "");
  EXPECT_EQ(desk.state.lhsSeed, "1");
  EXPECT_FALSE(material().distribution(MaterialProperty::dryDensity).inUse);
  EXPECT_EQ(material().description, "Clay");
  screen.mnuRedo.click();
  EXPECT_EQ(screen.txtDry.text(), "PDF");
  EXPECT_EQ(desk.state.lhsSeed, "77");
  EXPECT_TRUE(material().distribution(MaterialProperty::dryDensity).inUse);
}

}  // namespace
}  // namespace kestra
