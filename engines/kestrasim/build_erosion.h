#pragma once

#include "hydraulics/crest_overflow.h"
#include "hydraulics/dam_erosion_input.h"
#include "kestrasim/dam_model.h"
#include "kestrasim/run_messages.h"

namespace kestra {

// What erodes, at the lowest point of the crest; `base` is the elevation of the dam's base, ft. A breach that is asked
// for without a usable HCMODEL is told as an error and not computed.
DamErosionInput buildErosion(const DamModel& dam, const CrestOverflow& crest, double base, RunMessages& messages);

}  // namespace kestra
