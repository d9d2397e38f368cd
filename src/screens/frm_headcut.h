#pragma once

#include "controls/choices.h"
#include "controls/text_box.h"
#include "screens/input_screen.h"

namespace kestra {

// The threshold and rate equations of the auxiliary spillways' erosion; the end of the sequence, where the run starts.
class frmHeadcut : public InputScreen {
 public:
  explicit frmHeadcut(InputContext& context);

  Button cmdPlot{*this, "cmdPlot", "P&lot"};

  OptionGroup family;
  OptionButton optVANT{*this, "optVANT", family, "VANT", true};
  OptionButton optORLEN{*this, "optORLEN", family, "ORLEN"};

  Frame Frame2{*this, "Frame2"};  // offered with optORLEN only
  OptionGroup form;
  OptionButton optLogLog{*this, "optLogLog", form, "Log-Log"};
  OptionButton optSemiLog{*this, "optSemiLog", form, "Semi-Log", true};

  Label lblThreshold{*this, "lblThreshold", "Threshold Equation:"};
  Label lblCoeff1{*this, "lblCoeff1", "Threshold Coefficient ( ft^3 / s )"};
  TextBox txta1{*this, "txta1"};
  Label lblExp1{*this, "lblExp1", "Exponent"};
  TextBox txtb1{*this, "txtb1"};
  Label lblRate{*this, "lblRate", "Rate Equation:"};
  Label lblCoeff2{*this, "lblCoeff2", "Rate Coefficient   (ft/h) / (ft^3 / s)^1/3"};
  TextBox txta2{*this, "txta2"};
  Label lblExp2{*this, "lblExp2"};
  TextBox txtb2{*this, "txtb2"};
  Label lblLimit{*this, "lblLimit", "     Rate Limit       (ft/h) / (ft^3 / s)^1/3"};
  TextBox txtc2{*this, "txtc2"};

 protected:
  void activate() override { showChoices(); }
  void goNext() override { runSimulation(); }
  void goPrevious() override;

 private:
  void showChoices();
  void plot();
  bool lastSpillwayHasProfile();
};

}  // namespace kestra
