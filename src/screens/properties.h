#pragma once

#include <functional>
#include <string>

#include "controls/choices.h"
#include "controls/control_array.h"
#include "controls/text_box.h"
#include "screens/input_screen.h"

namespace kestra {

// The embankment's material and the headcut model of the breach analysis. Which fields are on show follows the model at
// each activation; a click on another model shows on the next visit.
class Properties : public InputScreen {
 public:
  explicit Properties(InputContext& context);

  Frame frameHeadcutModel{*this, "frameHeadcutModel", "Headcut Model"};
  OptionGroup headcutModel;
  ControlArray<OptionButton> optHcModel{*this, "optHcModel", 1, 2, std::ref(headcutModel), std::string()};

  Label labelKh{*this, "labelKh"};                    // of the field of the model that is selected
  TextBox txtHeadcutIndex{*this, "txtHeadcutIndex"};  // (ft/h)/(ft/s^1/3)
  TextBox txtBulkDensity{*this, "txtBulkDensity"};    // lb/ft^3
  Label lblCriticalShearStress{*this, "lblCriticalShearStress", "Critical Shear Stress  (lb/ft^2)"};
  TextBox txtCriticalShearStress{*this, "txtCriticalShearStress"};
  Label lblKd{*this, "lblKd", "Erodibility (Kd)  (ft/h)/(lb/ft^2)"};
  TextBox txtKd{*this, "txtKd"};
  Label labelShear{*this, "labelShear", "Undrained Shear Strength  (lb/ft^2)"};
  TextBox txtUndrainedShear{*this, "txtUndrainedShear"};

 protected:
  void activate() override { showModel(); }
  void goNext() override { moveTo("frmDamSurface"); }
  void goPrevious() override { moveTo("frmProjectInformation"); }

 private:
  void showModel();
};

}  // namespace kestra
