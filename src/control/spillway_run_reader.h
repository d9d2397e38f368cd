#pragma once

#include <string_view>

#include "control/run_reader.h"
#include "control/screen_fields.h"
#include "screens/input_context.h"

namespace kestra {

// The spillway, from 0, that the first record of a run names in its columns 21 to 30; -1 where it names none.
int namedSpillway(std::string_view runText);

// Fills the stores of a spillway, from 0, from its run: profile, surface conditions, materials with their boundaries,
// fills, barriers; and of the application the threshold equations and the sampling. What the run does not mention
// stays, but for the materials, which are those of the run where it has any. Samples that cannot be read are told in
// boxes. A table with more rows than its store is a fault at `place`.
void readSpillwayRun(InputContext& input, ScreenFields& fields, int spillway, std::string_view text, ReadPlace& place);

}  // namespace kestra
