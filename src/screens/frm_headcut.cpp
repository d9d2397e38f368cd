#include "screens/frm_headcut.h"

#include "base/text.h"
#include "controls/control_array.h"
#include "controls/screen_host.h"
#include "screens/show_controls.h"

namespace kestra {
namespace {

// Whether an option of a spillway is selected on the screen of the auxiliary spillways.
bool isSelected(const Screen& spillways, const std::string& name, int spillway) {
  const Control* option = spillways.find(memberName(name, spillway));
  return option != nullptr && option->kind() == ControlKind::option &&
         static_cast<const OptionButton*>(option)->selected();
}

}  // namespace

frmHeadcut::frmHeadcut(InputContext& context)
    : InputScreen(context, "frmHeadcut", "Auxiliary Spillway Erosion Headcut Model Selection",
                  "html\\SelectionScreen.htm") {
  cmdNext.setCaption("&Run Simulation");
  standIn(Frame2, {&optLogLog, &optSemiLog});
  for (OptionButton* option : {&optVANT, &optORLEN, &optLogLog, &optSemiLog}) {
    option->onClick = [this] { showChoices(); };
  }
  cmdPlot.onClick = [this] { plot(); };
  showChoices();
}

// The graph needs all five values. It stands in front of this screen, which stays; without it Plot has no effect.
void frmHeadcut::plot() {
  for (const TextBox* box : {&txta1, &txtb1, &txta2, &txtb2, &txtc2}) {
    if (!trim(box->text()).empty()) continue;
    context_.base.ports.boxes.tell("Insufficient Input", "Enter the Required Values", BoxIcon::warning);
    return;
  }
  if (Screen* graph = host().find("frmHeadcutGraph")) host().show(*graph);
}

void frmHeadcut::showChoices() {
  Frame2.setVisible(optORLEN.selected());
  Frame2.setEnabled(optORLEN.selected());
  lblExp2.setCaption(optLogLog.selected() ? "Exponent" : "Rate Constant    (ft/h) / (ft^3 / s)^1/3");
}

void frmHeadcut::goPrevious() {
  moveTo(lastSpillwayHasProfile() ? "frmAuxSpillwayProfile" : "frmAuxRatingTable");
}

bool frmHeadcut::lastSpillwayHasProfile() {
  const Screen* spillways = host().find("frmAuxSpillways");
  if (spillways == nullptr) return false;
  const int last = context_.base.state.numAuxSpillways - 1;
  return isSelected(*spillways, "optQUIL", last) || isSelected(*spillways, "optStability", last) ||
         isSelected(*spillways, "optProfile", last);
}

}  // namespace kestra
