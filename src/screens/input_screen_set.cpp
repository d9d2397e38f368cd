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
}

void InputScreenSet::enterAll(ScreenHost& host) {
  for (Screen* screen : sequence()) host.enter(*screen);
}

std::vector<Screen*> InputScreenSet::sequence() {
  return {&projectInformation, &properties, &damSurface, &psType, &psConduit, &psRatingTable, &headcut};
}

}  // namespace kestra
