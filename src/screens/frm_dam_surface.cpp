#include "screens/frm_dam_surface.h"

#include "screens/frm_project_information.h"
#include "screens/show_controls.h"

namespace kestra {
namespace {

constexpr const char* kIndex = "Retardance Curve Index";
constexpr const char* kIndexOrManning = "Retardance Curve Index         (or Manning's n)";
constexpr const char* kManning = "     Manning's n";

}  // namespace

frmDamSurface::frmDamSurface(InputContext& context)
    : InputScreen(context, "frmDamSurface", "Dam Surface Description", "html\\DamSurfaceDescription.htm") {
  placeFields();
  showControls(false, {&lblCSS, &txtCSS, &frameDamCrossSection});
  grdTable.onFocus = [this] { editor_.cursorOnFirstCell(); };
}

void frmDamSurface::placeFields() {
  standIn(frameCrestProfile, {&grdTable});
  standIn(frameCrest, {&lblCrestWidth, &txtCrestWidth, &lblCrestRCI, &txtCrestRCI, &lblCoeff, &txtCoeff});
  standIn(frameUpstream, {&lblUpSlope, &txtUpSlope, &lblUpRCI, &txtUpRCI});
  standIn(frameDownstream, {&lblDownSlope,    &txtDownSlope,    &lblDownRCI, &txtDownRCI, &lblDownVCF, &txtDownVCF,
                            &lblDownCode,     &txtDownCode,     &lblDownPI,  &txtDownPI,  &lblRiprapU, &txtRiprapU,
                            &lblDownDiameter, &txtDownDiameter, &lblRiprapP, &txtRiprapP, &lblRiprapT, &txtRiprapT,
                            &lblRiprapD50,    &txtRiprapD50,    &lblCSS,     &txtCSS});
  standIn(frameDamCrossSection, {&xcTable});
}

void frmDamSurface::load() {
  setColNum();
  setColWidth();
  setRowHeight();
  grdTable.setCell(1, 0, "  Station (ft)");
  grdTable.setCell(2, 0, "  Elev (ft)");
}

void frmDamSurface::setColNum() {
  numberColumns(grdTable);
}

void frmDamSurface::setColWidth() {
  grdTable.setColumnWidth(0, 1250);
  for (int column = 1; column < grdTable.columns(); ++column) {
    grdTable.setColumnWidth(column, 1000);
    grdTable.setCentred(column, true);
  }
}

void frmDamSurface::setRowHeight() {
  for (int row = 0; row < grdTable.rows(); ++row) grdTable.setRowHeight(row, 300);
}

void frmDamSurface::activate() {
  showCrestAndUpstream();
  showDownstream();
  showControls(true, {&frameUpstream, &frameCrest});
  frameDamCrossSection.setVisible(false);
}

void frmDamSurface::showCrestAndUpstream() {
  const frmProjectInformation& project = *context_.screens.projectInformation;
  const bool user = project.optUser.selected();
  showControls(user, {&lblCoeff, &txtCoeff});
  showControls(!user, {&lblUpRCI, &txtUpRCI, &lblCrestRCI, &txtCrestRCI});
  if (user) return;
  lblUpRCI.setCaption(project.optSimple.selected() ? kIndexOrManning : kIndex);
  lblCrestRCI.setCaption(kIndexOrManning);
}

void frmDamSurface::showDownstream() {
  const frmProjectInformation& project = *context_.screens.projectInformation;
  const bool earth = project.optEarth.selected();
  const bool riprap = project.optRipRap.selected();
  showControls(earth, {&lblDownVCF, &txtDownVCF, &lblDownCode, &txtDownCode, &lblDownPI, &txtDownPI, &lblDownDiameter,
                       &txtDownDiameter});
  showControls(riprap, {&lblRiprapD50, &txtRiprapD50, &lblRiprapU, &txtRiprapU, &lblRiprapP, &txtRiprapP, &lblRiprapT,
                        &txtRiprapT});
  showControls(false, {&lblCSS, &txtCSS});
  showControls(true, {&lblDownSlope, &txtDownSlope});
  showControls(!riprap, {&lblDownRCI, &txtDownRCI});
  if (project.optBare.selected()) lblDownRCI.setCaption(kManning);
  const bool rated = project.optUser.selected() || project.optSimple.selected();
  if (earth) lblDownRCI.setCaption(rated ? kIndex : kIndexOrManning);
}

void frmDamSurface::goPrevious() {
  const bool breach = !context_.screens.projectInformation->optNoBreachAnalysis.selected();
  moveTo(breach ? "Properties" : "frmProjectInformation");
}

}  // namespace kestra
