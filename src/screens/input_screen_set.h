#pragma once

#include "screens/frm_aux_rating_table.h"
#include "screens/frm_aux_spillway_profile.h"
#include "screens/frm_aux_spillways.h"
#include "screens/frm_dam_surface.h"
#include "screens/frm_dist.h"
#include "screens/frm_headcut.h"
#include "screens/frm_hydrograph_data.h"
#include "screens/frm_hydrograph_select.h"
#include "screens/frm_project_information.h"
#include "screens/frm_ps_conduit.h"
#include "screens/frm_ps_rating_table.h"
#include "screens/frm_ps_type.h"
#include "screens/frm_structure_table.h"
#include "screens/properties.h"

namespace kestra {

// All input screens, made once and joined to each other.
class InputScreenSet {
 public:
  InputScreenSet(ScreenContext& base, InputDesktop& desktop);

  InputContext context;
  frmProjectInformation projectInformation{context};
  Properties properties{context};
  frmDamSurface damSurface{context};
  frmPSType psType{context};
  frmPSConduit psConduit{context};
  frmPSRatingTable psRatingTable{context};
  frmHeadcut headcut{context};
  frmAuxSpillways auxSpillways{context};
  frmAuxRatingTable auxRatingTable{context};
  frmAuxSpillwayProfile auxSpillwayProfile{context};
  frmDist dist{context};
  frmStructureTable structureTable{context};
  frmHydrographData hydrographData{context};
  frmHydrographSelect hydrographSelect{context};

  void enterAll(ScreenHost& host);
  // Those of the Next sequence, in its order.
  std::vector<Screen*> sequence();
};

}  // namespace kestra
