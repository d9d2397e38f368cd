#pragma once

#include "screens/frm_hydrograph_data.h"
#include "screens/frm_hydrograph_select.h"
#include "screens/frm_project_information.h"
#include "screens/frm_structure_table.h"

namespace kestra {

// All input screens, made once and joined to each other.
class InputScreenSet {
 public:
  InputScreenSet(ScreenContext& base, InputDesktop& desktop);

  InputContext context;
  frmProjectInformation projectInformation{context};
  frmStructureTable structureTable{context};
  frmHydrographData hydrographData{context};
  frmHydrographSelect hydrographSelect{context};

  void enterAll(ScreenHost& host);
  // Those of the Next sequence, in its order.
  std::vector<Screen*> sequence();
};

}  // namespace kestra
