#pragma once

#include "control/companion_values.h"

namespace kestra {

// A spillway as it stands in the stores.
struct SpillwayView {
  const AuxProfile& profile;
  const AuxMaterials& materials;
};

// What is to be kept of a spillway that was entered, `read` being what comes back from the file: all of it, or null
// where nothing is lost. A number that the file holds cut is kept cut, unless numbers are to be kept as they are.
Json keptSpillway(const SpillwayView& entered, const SpillwayView& read, bool numbersAsTheyAre);

}  // namespace kestra
