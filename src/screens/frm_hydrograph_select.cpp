#include "screens/frm_hydrograph_select.h"

#include "screens/frm_hydrograph_data.h"

namespace kestra {

const std::vector<frmHydrographSelect::NamedCode>& frmHydrographSelect::namedCodes() {
  static const std::vector<NamedCode> kCodes = {{"PSH Inflow Hydrograph", "1"},
                                                {"SDH Inflow Hydrograph", "3"},
                                                {"FBH Inflow Hydrograph", "5"},
                                                {"Special Event Hydrograph", "7"},
                                                {"Single Event Hydrograph", "9"}};
  return kCodes;
}

frmHydrographSelect::frmHydrographSelect(InputContext& context) : Screen("frmHydrographSelect", "Select Hydrograph") {
  cmdOK.onClick = [this, &context] {
    if (context.screens.hydrographData != nullptr) context.screens.hydrographData->setHydrographCode(code());
    host().hide(*this);
  };
}

std::string frmHydrographSelect::code() const {
  for (const NamedCode& named : namedCodes()) {
    if (List1.text() == named.name) return named.code;
  }
  return std::to_string(List1.index());
}

}  // namespace kestra
