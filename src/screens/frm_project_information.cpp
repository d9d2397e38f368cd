#include "screens/frm_project_information.h"

namespace kestra {

frmProjectInformation::frmProjectInformation(InputContext& context)
    : InputScreen(context, "frmProjectInformation", "Project Information", "html\\ProjectInformation.htm") {
  txtComments.setMultiLine(true);
  txtComments.standIn(frameComments);
  for (Control* option : {&optSimple, &optUser}) option->standIn(frameOvertopping);
  for (Control* option : {&optEarth, &optRipRap, &optBare}) option->standIn(frameSlope);
  for (Control* option : {&optBreachAnalysis, &optNoBreachAnalysis}) option->standIn(frameBreach);
}

void frmProjectInformation::goNext() {
  moveTo(optNoBreachAnalysis.selected() ? "frmDamSurface" : "Properties");
}

}  // namespace kestra
