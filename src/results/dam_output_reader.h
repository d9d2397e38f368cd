#pragma once

#include <string_view>

#include "results/dam_digest.h"

namespace kestra {

inline constexpr std::size_t kSlopeDischarge = 20;  // line of the digest, which a breach history overrules

// The texts of the digest that a solver's output gives. The output is the echo of the control file, each record one
// column to the right, then report lines and tables. Never fails: what lines do not give is empty, the count of errors
// and warnings is always there. One pass over the text, one more for the counts; no copies of its lines.
DigestFields readDamOutput(std::string_view output);

}  // namespace kestra
