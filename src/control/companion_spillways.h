#pragma once

#include "control/companion_values.h"

namespace kestra {

// A spillway as it stands in the stores.
struct SpillwayView {
  const AuxProfile& profile;
  const AuxMaterials& materials;
};

// What is to be kept of a spillway that was entered, `read` being what comes back from the file: all of it, or null
// where nothing is lost. A number that the file holds cut is kept cut.
Json keptSpillway(const SpillwayView& entered, const SpillwayView& read);

// What of a text that was entered comes back: the text itself, or what the file gives for it where that is the same but
// for blanks around it and an end that is cut off.
const std::string& asRead(const std::string& entered, const std::string& read);

}  // namespace kestra
