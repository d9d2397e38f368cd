#include "screens/frm_dam_surface.h"

#include <gtest/gtest.h>

#include "screens/frm_project_information.h"
#include "support/input_desk.h"
#include "support/shown_fields.h"

namespace kestra {
namespace {

constexpr const char* kIndex = "Retardance Curve Index";
constexpr const char* kIndexOrManning = "Retardance Curve Index         (or Manning's n)";

struct DamSurface : testing::Test {
  InputDesk desk;
  frmProjectInformation project{desk.context};
  frmDamSurface screen{desk.context};
  PlainScreen properties{"Properties"};
  PlainScreen structureTable{"frmStructureTable"};

  DamSurface() {
    desk.context.screens.projectInformation = &project;
    for (Screen* each : std::initializer_list<Screen*>{&project, &screen, &properties, &structureTable}) {
      desk.host.enter(*each);
    }
    desk.host.show(screen);
  }
  // The texts of a row of the crest profile up to a point, joined by blanks; an empty cell as "-".
  std::string row(int number, int points) {
    std::string texts;
    for (int point = 1; point <= points; ++point) {
      const std::string& text = screen.grdTable.cell(number, point);
      texts += (point > 1 ? " " : "") + (text.empty() ? "-" : text);
    }
    return texts;
  }
};

TEST_F(DamSurface, startsWithEmptyFieldsUnderTheirCaptions) {
  EXPECT_EQ(screen.title(), "Dam Surface Description");
  const std::pair<const char*, const char*> captions[] = {{"cmdPlot", "P&lot"},
                                                          {"frameCrestProfile", "Dam Crest Profile"},
                                                          {"frameCrest", "Dam Crest"},
                                                          {"frameUpstream", "Upstream Embankment"},
                                                          {"frameDownstream", "Downstream Dam Face"},
                                                          {"frameDamCrossSection", "Dam Cross Section - Typical"},
                                                          {"lblCrestWidth", "Dam Crest Width (ft)"},
                                                          {"lblCoeff", "Embankment Discharge Coefficient"},
                                                          {"lblUpSlope", "Slope (H/V)"},
                                                          {"lblDownSlope", "Slope (H/V)"},
                                                          {"lblDownVCF", "Vegetal Cover Factor"},
                                                          {"lblDownCode", "Maintenance Code"},
                                                          {"lblDownPI", "Plasticity Index"},
                                                          {"lblDownDiameter", "Particle Diameter (in)"},
                                                          {"lblRiprapD50", "Riprap D50 (ft)"},
                                                          {"lblRiprapU", "Riprap Uniformity"},
                                                          {"lblRiprapP", "Riprap Porosity"},
                                                          {"lblRiprapT", "Riprap Thickness (ft)"},
                                                          {"lblCSS", "Critical Shear Stress (lb/ft^2)"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(captionOf(screen, name), caption);
  for (const Control* control : screen.controls()) {
    if (control->kind() != ControlKind::text) continue;
    EXPECT_EQ(static_cast<const TextBox*>(control)->text(), "") << control->name();
  }
}

TEST(DamSurfaceDesign, hasTheCaptionsOfTheRetardanceFieldsBeforeItsFirstShow) {
  InputDesk desk;
  const frmDamSurface screen(desk.context);
  EXPECT_EQ(screen.lblCrestRCI.caption(), kIndex);
  EXPECT_EQ(screen.lblUpRCI.caption(), kIndex);
  EXPECT_EQ(screen.lblDownRCI.caption(), "Retardance Curve Index        (or Manning's n)");
  EXPECT_FALSE(screen.txtCSS.visible());
  EXPECT_FALSE(screen.xcTable.visible());
}

struct FieldCase {
  OptionButton frmProjectInformation::*rating;
  OptionButton frmProjectInformation::*slope;
  const char* fields;
  const char* downCaption;
};

class FieldsOnShow : public DamSurface, public testing::WithParamInterface<FieldCase> {};

TEST_P(FieldsOnShow, followTheRatingAndTheSlopeProtection) {
  (project.*GetParam().rating).userSelect();
  (project.*GetParam().slope).userSelect();
  desk.host.show(screen);
  EXPECT_EQ(shownFields(screen), GetParam().fields);
  EXPECT_EQ(screen.lblDownRCI.visible() ? screen.lblDownRCI.caption() : "", GetParam().downCaption);
  EXPECT_TRUE(screen.frameUpstream.visible() && screen.frameCrest.visible());
  EXPECT_FALSE(screen.frameDamCrossSection.visible() || screen.xcTable.visible());
}

using Project = frmProjectInformation;
INSTANTIATE_TEST_SUITE_P(
    Choices, FieldsOnShow,
    testing::Values(FieldCase{&Project::optSimple, &Project::optEarth,
                              "CrestWidth CrestRCI UpSlope UpRCI DownSlope DownRCI DownVCF DownCode DownPI "
                              "DownDiameter",
                              kIndex},
                    FieldCase{&Project::optSimple, &Project::optRipRap,
                              "CrestWidth CrestRCI UpSlope UpRCI DownSlope RiprapD50 RiprapU RiprapP RiprapT", ""},
                    FieldCase{&Project::optSimple, &Project::optBare,
                              "CrestWidth CrestRCI UpSlope UpRCI DownSlope DownRCI", "     Manning's n"},
                    FieldCase{&Project::optUser, &Project::optEarth,
                              "CrestWidth Coeff UpSlope DownSlope DownRCI DownVCF DownCode DownPI DownDiameter",
                              kIndex},
                    FieldCase{&Project::optUser, &Project::optRipRap,
                              "CrestWidth Coeff UpSlope DownSlope RiprapD50 RiprapU RiprapP RiprapT", ""},
                    FieldCase{&Project::optUser, &Project::optBare, "CrestWidth Coeff UpSlope DownSlope DownRCI",
                              "     Manning's n"}));

TEST_F(DamSurface, namesTheRetardanceFieldsByTheRating) {
  EXPECT_EQ(screen.lblUpRCI.caption(), kIndexOrManning);
  EXPECT_EQ(screen.lblCrestRCI.caption(), kIndexOrManning);
  project.optSimple.setSelected(false);
  desk.host.show(screen);
  EXPECT_EQ(screen.lblUpRCI.caption(), kIndex);
  EXPECT_EQ(screen.lblCrestRCI.caption(), kIndexOrManning);
  EXPECT_EQ(screen.lblDownRCI.caption(), kIndexOrManning);
  EXPECT_TRUE(screen.txtUpRCI.visible() && screen.txtCrestRCI.visible());
  EXPECT_FALSE(screen.txtCoeff.visible());
}

TEST_F(DamSurface, keepsTheTextsOfFieldsThatAreHiddenForAWhile) {
  screen.txtDownVCF.userReplace("0.87");
  project.optRipRap.userSelect();
  EXPECT_TRUE(screen.txtDownVCF.visible());  // until the next activation
  desk.host.show(screen);
  EXPECT_FALSE(screen.txtDownVCF.visible());
  project.optEarth.userSelect();
  desk.host.show(screen);
  EXPECT_TRUE(screen.txtDownVCF.visible());
  EXPECT_EQ(screen.txtDownVCF.text(), "0.87");
}

TEST_F(DamSurface, takesAnyTextInItsFields) {
  typeInto(screen.txtCrestWidth, "about 12");
  screen.txtCrestWidth.userLeave();
  EXPECT_EQ(screen.txtCrestWidth.text(), "about 12");
  EXPECT_TRUE(desk.takeBoxes().empty());
  EXPECT_EQ(desk.beeper.beeps, 0);
}

TEST_F(DamSurface, headsTheCrestProfile) {
  const Table& table = screen.grdTable;
  EXPECT_EQ(table.rows(), 3);
  EXPECT_EQ(table.columns(), 102);
  EXPECT_EQ(table.cell(1, 0), "  Station (ft)");
  EXPECT_EQ(table.cell(2, 0), "  Elev (ft)");
  EXPECT_EQ(table.cell(0, 1), "1");
  EXPECT_EQ(table.cell(0, 101), "101");
  EXPECT_EQ(table.columnWidth(0), 1250);
  for (int column = 1; column < 102; ++column) {
    EXPECT_EQ(table.columnWidth(column), 1000);
    EXPECT_TRUE(table.centred(column));
  }
  for (int row = 0; row < 3; ++row) EXPECT_EQ(table.rowHeight(row), 300);
  EXPECT_EQ(screen.xcTable.rows(), 4);
  EXPECT_EQ(screen.xcTable.columns(), 102);
}

TEST_F(DamSurface, putsTheCursorOnTheFirstCellWhenTheTableGetsTheFocus) {
  screen.grdTable.userSelect({2, 7}, {2, 7});
  screen.grdTable.userFocus();
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{1, 1}));
}

TEST_F(DamSurface, takesStationsThatStandStillAndRefusesThoseThatFall) {
  typeInto(screen.grdTable, "0\r-1.5\r100\r12\r100\r12\r");
  EXPECT_TRUE(desk.takeBoxes().empty());
  typeInto(screen.grdTable, "99\r");
  EXPECT_EQ(desk.takeBoxes(), std::vector<std::string>{"Data Check: Values must be increasing."});
  EXPECT_EQ(row(1, 4), "0 100 100 -");
  EXPECT_EQ(row(2, 4), "-1.5 12 12 -");
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{1, 4}));
}

TEST_F(DamSurface, movesFromTheLastCellToNext) {
  screen.grdTable.setCell(1, 101, "5");
  screen.grdTable.userFocus();
  screen.grdTable.userSelect({2, 101}, {2, 101});
  typeInto(screen.grdTable, "7\r");
  EXPECT_TRUE(desk.takeBoxes().empty());
  EXPECT_EQ(desk.host.focus(), &screen.cmdNext);
  EXPECT_EQ(screen.grdTable.cursor(), (CellPosition{2, 101}));
}

TEST_F(DamSurface, pastesStationsThatFallAndShiftsPointsAlongColumns) {
  screen.grdTable.userFocus();
  desk.clipboard.setText("30\t20\t10\r\n3\t2\t1\r\n");
  screen.edit.mnuPaste.click();
  EXPECT_TRUE(desk.takeBoxes().empty());
  EXPECT_EQ(row(1, 4), "30 20 10 -");
  EXPECT_EQ(row(2, 4), "3 2 1 -");
  screen.edit.mnuInsertPoint.click();
  EXPECT_EQ(row(1, 4), "- 30 20 10");
  EXPECT_EQ(row(2, 4), "- 3 2 1");
  screen.edit.mnuDeletePoint.click();
  screen.edit.mnuDeleteCell.click();
  EXPECT_EQ(row(1, 4), "20 10 - -");
  EXPECT_EQ(row(2, 4), "3 2 1 -");
  screen.edit.mnuInsertCell.click();
  EXPECT_EQ(row(1, 4), "- 20 10 -");
  EXPECT_EQ(screen.edit.mnuInsertPoint.name(), "mnuInsertColumn");
  EXPECT_EQ(screen.edit.mnuDeletePoint.name(), "mnuDeleteColumn");
}

TEST_F(DamSurface, standsBetweenThePropertiesOrTheProjectAndTheStructureTable) {
  screen.cmdNext.click();
  EXPECT_EQ(desk.front(), "frmStructureTable");
  EXPECT_FALSE(screen.visible());
  desk.host.show(screen);
  screen.cmdPrevious.click();
  EXPECT_EQ(desk.front(), "Properties");
  project.optNoBreachAnalysis.userSelect();
  desk.host.show(screen);
  screen.edit.mnuExit.click();
  EXPECT_EQ(desk.front(), "frmProjectInformation");
  desk.host.show(screen);
  EXPECT_FALSE(desk.host.closeByFrame(screen));
  EXPECT_EQ(desk.front(), "frmProjectInformation");
  screen.cmdHome.click();
  EXPECT_EQ(desk.front(), "frmKestra");
  screen.cmdHelp.click();
  EXPECT_EQ(desk.help.topics, std::vector<std::string>{"html\\DamSurfaceDescription.htm"});
}

TEST_F(DamSurface, followsAnOptionThatIsUndoneWhileItIsOnShow) {
  project.optUser.userSelect();
  desk.host.show(screen);
  EXPECT_TRUE(screen.txtCoeff.visible());
  screen.mnuUndo.click();
  EXPECT_TRUE(project.optSimple.selected());
  EXPECT_FALSE(screen.txtCoeff.visible());
  EXPECT_TRUE(screen.txtUpRCI.visible());
}

TEST_F(DamSurface, losesItsInputAndKeepsItsHeadingsWhenUnloaded) {
  screen.txtUpSlope.userReplace("3");
  typeInto(screen.grdTable, "5\r");
  screen.xcTable.setCell(1, 1, "0");
  EXPECT_TRUE(desk.host.unload(screen));
  desk.host.show(screen);
  EXPECT_EQ(screen.txtUpSlope.text(), "");
  EXPECT_EQ(screen.grdTable.cell(1, 1), "");
  EXPECT_EQ(screen.grdTable.cell(0, 101), "101");
  EXPECT_EQ(screen.xcTable.cell(1, 1), "");
}

}  // namespace
}  // namespace kestra
