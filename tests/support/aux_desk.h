#pragma once

#include <initializer_list>
#include <string>

#include "screens/frm_aux_rating_table.h"
#include "screens/frm_aux_spillway_profile.h"
#include "screens/frm_aux_spillways.h"
#include "screens/frm_dist.h"
#include "support/input_desk.h"

namespace kestra {

// The screens of the auxiliary spillways, joined to each other and to their neighbours in the sequence.
struct AuxDesk : InputDesk {
  frmAuxSpillways spillways{context};
  frmAuxRatingTable rating{context};
  frmAuxSpillwayProfile profile{context};
  frmDist dist{context};
  PlainScreen psRatingTable{"frmPSRatingTable"};
  PlainScreen headcut{"frmHeadcut"};

  AuxDesk() {
    context.screens.auxSpillways = &spillways;
    context.screens.auxRatingTable = &rating;
    context.screens.auxSpillwayProfile = &profile;
    context.screens.dist = &dist;
    for (Screen* screen :
         std::initializer_list<Screen*>{&spillways, &rating, &profile, &dist, &psRatingTable, &headcut}) {
      host.enter(*screen);
    }
    host.show(spillways);
  }

  // As many spillways as there are labels, as the user would say so.
  void chooseSpillways(std::initializer_list<const char*> labels) {
    spillways.cmbAuxSpillways.userSelect(std::to_string(labels.size()));
    int i = 0;
    for (const char* label : labels) spillways.txtsway(i++).userReplace(label);
  }
  // One spillway with a surface profile and the analysis of that option, on show from its first page on.
  void openProfile(OptionButton& analysis) {
    chooseSpillways({"North"});
    analysis.userSelect();
    spillways.cmdNext.click();
  }
  AuxMaterials& materials(int spillway = 0) { return context.aux.auxMaterials[static_cast<std::size_t>(spillway)]; }
  AuxProfile& stored(int spillway = 0) { return context.aux.auxProfile[static_cast<std::size_t>(spillway)]; }
};

}  // namespace kestra
