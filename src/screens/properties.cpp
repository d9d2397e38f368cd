#include "screens/properties.h"

#include "screens/show_controls.h"

namespace kestra {

Properties::Properties(InputContext& context)
    : InputScreen(context, "Properties", "Model Properties", "html\\ModelProperties.htm") {
  optHcModel(1).setCaption("Hanson/Robinson Stress Model");
  optHcModel(2).setCaption("Temple/Hanson Energy Model");
  optHcModel(1).setSelected(true);
  standIn(frameHeadcutModel, {&optHcModel(1), &optHcModel(2)});
  showModel();
}

void Properties::showModel() {
  const bool energy = optHcModel(2).selected();
  labelKh.setCaption(energy ? "Total Unit Weight (lb/ft^3)" : "Adv Coef. (ft/h)/(ft/s^1/3)");
  showControls(energy, {&txtBulkDensity, &labelShear, &txtUndrainedShear});
  txtHeadcutIndex.setVisible(!energy);
}

}  // namespace kestra
