#pragma once

#include "screens/frm_aux_rating_table.h"
#include "screens/frm_aux_spillway_profile.h"
#include "screens/frm_aux_spillways.h"
#include "screens/frm_dist.h"
#include "screens/frm_project_information.h"

namespace kestra {

// All input screens, made once and joined to each other.
class InputScreenSet {
 public:
  InputScreenSet(ScreenContext& base, InputDesktop& desktop);

  InputContext context;
  frmProjectInformation projectInformation{context};
  frmAuxSpillways auxSpillways{context};
  frmAuxRatingTable auxRatingTable{context};
  frmAuxSpillwayProfile auxSpillwayProfile{context};
  frmDist dist{context};

  void enterAll(ScreenHost& host);
  // Those of the Next sequence, in its order.
  std::vector<Screen*> sequence();
};

}  // namespace kestra
