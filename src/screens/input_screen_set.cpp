#include "screens/input_screen_set.h"

namespace kestra {

InputScreenSet::InputScreenSet(ScreenContext& base, InputDesktop& desktop) : context{base, desktop, {}} {
  context.screens.projectInformation = &projectInformation;
  context.screens.structureTable = &structureTable;
  context.screens.hydrographData = &hydrographData;
  context.screens.hydrographSelect = &hydrographSelect;
}

void InputScreenSet::enterAll(ScreenHost& host) {
  for (Screen* screen : sequence()) host.enter(*screen);
  host.enter(hydrographSelect);
}

std::vector<Screen*> InputScreenSet::sequence() {
  return {&projectInformation, &structureTable, &hydrographData};
}

}  // namespace kestra
