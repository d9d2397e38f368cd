#pragma once

#include "controls/choices.h"
#include "screens/input_screen.h"

namespace kestra {

// Which kind of principal spillway the dam has, if any.
class frmPSType : public InputScreen {
 public:
  explicit frmPSType(InputContext& context);

  OptionGroup kind;
  OptionButton optNone{*this, "optNone", kind, "No Principal Spillway"};
  OptionButton optSingleCir{*this, "optSingleCir", kind, "Single Stage Inlet, Circular Conduit", true};
  OptionButton optSingleRec{*this, "optSingleRec", kind, "Single Stage Inlet, Rectangular Conduit"};
  OptionButton optTwoCir{*this, "optTwoCir", kind, "Two Stage Inlet, Circular Conduit"};
  OptionButton optTwoRec{*this, "optTwoRec", kind, "Two Stage Inlet, Rectangular Conduit"};
  OptionButton optHood{*this, "optHood", kind, "Hood Inlet, Circular Conduit"};

  // The number of the kind that is selected, in the order above: 1 to 5; 0: none.
  int type() const;

 protected:
  void goNext() override;
  void goPrevious() override { moveTo("frmHydrographData"); }
};

}  // namespace kestra
