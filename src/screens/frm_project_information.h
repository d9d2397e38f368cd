#pragma once

#include "controls/choices.h"
#include "controls/text_box.h"
#include "screens/input_screen.h"

namespace kestra {

// The first input screen: which dam it is, and the three choices on which the later screens rest.
class frmProjectInformation : public InputScreen {
 public:
  explicit frmProjectInformation(InputContext& context);

  Label lblWatershedID{*this, "lblWatershedID", "Project ID:"};
  TextBox txtWatershedID{*this, "txtWatershedID"};
  Frame frameComments{*this, "frameComments", "Comments"};
  TextBox txtComments{*this, "txtComments"};

  Frame frameOvertopping{*this, "frameOvertopping", "Overtopping Rating Option"};
  OptionGroup overtopping;
  OptionButton optSimple{*this, "optSimple", overtopping, "Simple Dam Cross Section Template", true};
  OptionButton optUser{*this, "optUser", overtopping, "User Specified Discharge Coefficient"};

  Frame frameSlope{*this, "frameSlope", "Dam Slope Protection"};
  OptionGroup slope;
  OptionButton optEarth{*this, "optEarth", slope, "Earth (Vegetated) Downstream Slope", true};
  OptionButton optRipRap{*this, "optRipRap", slope, "Riprap Downstream Slope"};
  OptionButton optBare{*this, "optBare", slope, "Bare Soil Downstream Slope"};

  Frame frameBreach{*this, "frameBreach", "Dam Breach Analysis"};
  OptionGroup breach;
  OptionButton optBreachAnalysis{*this, "optBreachAnalysis", breach, "Perform Breach Analysis", true};
  OptionButton optNoBreachAnalysis{*this, "optNoBreachAnalysis", breach, "No Breach Analysis"};

 protected:
  void goNext() override;
  void goPrevious() override { toInputWindow(); }
};

}  // namespace kestra
