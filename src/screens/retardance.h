#pragma once

#include <string_view>

namespace kestra {

// The retardance curve index that stands for a class of vegetal retardance, A to E in either case: "7.6" for b. Empty
// for any other character.
std::string_view retardanceIndex(char32_t letter);

}  // namespace kestra
