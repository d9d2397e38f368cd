#include "screens/properties.h"

#include <gtest/gtest.h>

#include "support/input_desk.h"
#include "support/shown_fields.h"

namespace kestra {
namespace {

struct ModelProperties : testing::Test {
  InputDesk desk;
  Properties screen{desk.context};
  PlainScreen damSurface{"frmDamSurface"};
  PlainScreen projectInformation{"frmProjectInformation"};

  ModelProperties() {
    for (Screen* each : std::initializer_list<Screen*>{&screen, &damSurface, &projectInformation}) {
      desk.host.enter(*each);
    }
    desk.host.show(screen);
  }
};

constexpr const char* kStressFields = "HeadcutIndex CriticalShearStress Kd";
constexpr const char* kEnergyFields = "BulkDensity CriticalShearStress Kd UndrainedShear";

TEST_F(ModelProperties, startsWithTheStressModelAndEmptyFields) {
  EXPECT_EQ(screen.title(), "Model Properties");
  EXPECT_TRUE(screen.optHcModel(1).selected());
  EXPECT_EQ(screen.frameHeadcutModel.caption(), "Headcut Model");
  EXPECT_EQ(captionOf(screen, "optHcModel(1)"), "Hanson/Robinson Stress Model");
  EXPECT_EQ(captionOf(screen, "optHcModel(2)"), "Temple/Hanson Energy Model");
  EXPECT_EQ(screen.lblCriticalShearStress.caption(), "Critical Shear Stress  (lb/ft^2)");
  EXPECT_EQ(screen.lblKd.caption(), "Erodibility (Kd)  (ft/h)/(lb/ft^2)");
  EXPECT_EQ(screen.labelKh.caption(), "Adv Coef. (ft/h)/(ft/s^1/3)");
  EXPECT_EQ(shownFields(screen), kStressFields);
  EXPECT_FALSE(screen.labelShear.visible());
  EXPECT_EQ(screen.find("cmdPlot"), nullptr);
}

TEST_F(ModelProperties, showsTheFieldsOfAnotherModelOnTheNextVisitOnly) {
  screen.optHcModel(2).userSelect();
  EXPECT_EQ(shownFields(screen), kStressFields);
  EXPECT_EQ(screen.labelKh.caption(), "Adv Coef. (ft/h)/(ft/s^1/3)");
  desk.host.show(screen);
  EXPECT_EQ(shownFields(screen), kEnergyFields);
  EXPECT_EQ(screen.labelKh.caption(), "Total Unit Weight (lb/ft^3)");
  EXPECT_TRUE(screen.labelShear.visible());
  EXPECT_EQ(screen.labelShear.caption(), "Undrained Shear Strength  (lb/ft^2)");
  screen.optHcModel(1).userSelect();
  desk.host.show(screen);
  EXPECT_EQ(shownFields(screen), kStressFields);
}

TEST_F(ModelProperties, keepsTheTextsOfHiddenFieldsAndChecksNone) {
  screen.txtHeadcutIndex.userReplace("not a number");
  screen.txtHeadcutIndex.userLeave();
  screen.optHcModel(2).userSelect();
  desk.host.show(screen);
  EXPECT_EQ(screen.txtHeadcutIndex.text(), "not a number");
  EXPECT_TRUE(desk.takeBoxes().empty());
}

TEST_F(ModelProperties, standsBetweenTheProjectAndTheDamSurface) {
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmDamSurface");
  EXPECT_FALSE(screen.visible());
  desk.host.show(screen);
  screen.cmdPrevious.click();
  EXPECT_EQ(desk.front(), "frmProjectInformation");
  desk.host.show(screen);
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_EQ(desk.front(), "frmProjectInformation");
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\ModelProperties.htm"});
}

TEST_F(ModelProperties, goesBackToItsDesignWhenUnloaded) {
  screen.txtKd.userReplace("0.1");
  screen.optHcModel(2).userSelect();
  desk.host.show(screen);
  EXPECT_TRUE(desk.host.unload(screen));
  desk.host.show(screen);
  EXPECT_EQ(screen.txtKd.text(), "");
  EXPECT_TRUE(screen.optHcModel(1).selected());
  EXPECT_EQ(shownFields(screen), kStressFields);
}

}  // namespace
}  // namespace kestra
