#pragma once

#include <array>
#include <string_view>

#include "controls/choices.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "screens/aux_store.h"
#include "screens/input_context.h"

namespace kestra {

// The distributions from which the properties of the material on show are drawn, and how the samples are made. OK puts
// them into the material; what the dialog shows before that belongs to nobody.
class frmDist : public Screen {
 public:
  explicit frmDist(InputContext& context);

  Label lblProperty{*this, "lblProperty", "Material Property"};
  ComboBox Combo1{*this,
                  "Combo1",
                  {"Plasticity Index", "Dry Density", "Head Cut Index", "Percent Clay", "Detachment Rate",
                   "Representative Diameter"},
                  0};
  Label lblDistribution{*this, "lblDistribution", "Distribution"};
  ComboBox cmbDist{*this, "cmbDist"};

  Frame formDist{*this, "formDist"};
  Label lblDist{*this, "lblDist"};
  Label lblOne{*this, "lblOne"};
  TextBox txtOne{*this, "txtOne"};
  Label lblTwo{*this, "lblTwo"};
  TextBox txtTwo{*this, "txtTwo"};
  Label lblThree{*this, "lblThree"};
  TextBox txtThree{*this, "txtThree"};
  Label lblFour{*this, "lblFour"};
  TextBox txtFour{*this, "txtFour"};

  Frame frameGlobal{*this, "frameGlobal", "Global Values"};
  Label lblInstance{*this, "lblInstance", "Number of Instances:"};
  TextBox txtInstance{*this, "txtInstance"};
  Label lblSeed{*this, "lblSeed", "Seed Value:"};
  TextBox txtSeed{*this, "txtSeed"};
  Label lblSampling{*this, "lblSampling", "Sampling Method:"};
  OptionGroup sampling;
  OptionButton optRandomSample{*this, "optRandomSample", sampling, "Random"};
  OptionButton optLatinHypercube{*this, "optLatinHypercube", sampling, "Latin Hypercube", true};

  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  // Takes the material on show over, and the property of it that is shown first.
  void choose(MaterialProperty property);

 protected:
  void load() override;
  bool queryUnload(CloseReason reason, bool bExiting) override;  // closing by the frame is OK

 private:
  using Distributions = std::array<Distribution, kMaterialProperties>;

  void select(MaterialProperty property);  // in the list, and shows it
  void showProperty();
  void leaveProperty();
  void showForm();
  void accept();
  bool passes();
  std::string_view faultToShow();

  InputContext& context_;
  const std::array<Label*, 4> labels_ = {&lblOne, &lblTwo, &lblThree, &lblFour};
  const std::array<TextBox*, 4> texts_ = {&txtOne, &txtTwo, &txtThree, &txtFour};
  Distributions distributions_;  // by MaterialProperty
  MaterialProperty property_ = MaterialProperty::plasticityIndex;
};

}  // namespace kestra
