#include "screens/input_screen_set.h"

namespace kestra {

InputScreenSet::InputScreenSet(ScreenContext& base, InputDesktop& desktop) : context{base, desktop, {}} {
  context.screens.projectInformation = &projectInformation;
  context.screens.properties = &properties;
  context.screens.damSurface = &damSurface;
  context.screens.psType = &psType;
  context.screens.psConduit = &psConduit;
  context.screens.psRatingTable = &psRatingTable;
  context.screens.headcut = &headcut;
  context.screens.auxSpillways = &auxSpillways;
  context.screens.auxRatingTable = &auxRatingTable;
  context.screens.auxSpillwayProfile = &auxSpillwayProfile;
  context.screens.dist = &dist;
  context.screens.structureTable = &structureTable;
  context.screens.hydrographData = &hydrographData;
  context.screens.hydrographSelect = &hydrographSelect;
}

void InputScreenSet::enterAll(ScreenHost& host) {
  for (Screen* screen : sequence()) host.enter(*screen);
  host.enter(hydrographSelect);
  host.enter(dist);
}

std::vector<Screen*> InputScreenSet::sequence() {
  return {&projectInformation, &properties,    &damSurface,   &structureTable, &hydrographData,     &psType,
          &psConduit,          &psRatingTable, &auxSpillways, &auxRatingTable, &auxSpillwayProfile, &headcut};
}

}  // namespace kestra
