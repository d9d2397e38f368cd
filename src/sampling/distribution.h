#pragma once

#include <array>
#include <string>

namespace kestra {

// How a value is drawn: the name of a distribution in the catalogue and the texts of its parameters.
struct Distribution {
  std::string name = "CONSTANT";
  std::array<std::string, 4> parameters;
  bool inUse = false;  // the value is drawn; else it is the number that stands in its field

  bool operator==(const Distribution&) const = default;
};

}  // namespace kestra
