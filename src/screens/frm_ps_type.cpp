#include "screens/frm_ps_type.h"

#include "screens/frm_ps_conduit.h"

namespace kestra {

frmPSType::frmPSType(InputContext& context)
    : InputScreen(context, "frmPSType", "Principal Spillway Type", "html\\PrincipalSpillwayType.htm") {}

int frmPSType::type() const {
  int number = 0;
  for (const OptionButton* option : {&optNone, &optSingleCir, &optSingleRec, &optTwoCir, &optTwoRec, &optHood}) {
    if (option->selected()) return number;
    ++number;
  }
  return 0;
}

void frmPSType::goNext() {
  if (optNone.selected()) return moveTo("frmPSRatingTable");
  context_.screens.psConduit->Initialize(type());
  moveTo(*context_.screens.psConduit);
}

}  // namespace kestra
