#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "sampling/distribution.h"

namespace kestra {

// A distribution that can be chosen: its name, the captions of its parameters (empty: it has fewer), and when to use
// it.
struct DistributionForm {
  std::string_view name;
  std::array<std::string_view, 4> parameters;
  std::string_view explanation;
};

// In the order in which they are offered.
const std::vector<DistributionForm>& distributionCatalogue();

// The form of that exact name; null for a name that the catalogue does not have, "NONE" among them.
const DistributionForm* findDistribution(std::string_view name);

// What is wrong with the parameters of a distribution, in the words for the user: missing ones first, then those out of
// range, the first alone. Empty when nothing is, or when the catalogue does not have the distribution.
std::string_view distributionFault(const Distribution& distribution);

}  // namespace kestra
