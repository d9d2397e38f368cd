#include "screens/retardance.h"

#include <array>

namespace kestra {

std::string_view retardanceIndex(char32_t letter) {
  constexpr std::array<std::string_view, 5> kIndices = {"10.0", "7.6", "5.6", "4.4", "2.9"};
  const char32_t first = letter >= U'a' ? U'a' : U'A';
  if (letter < first || letter - first >= kIndices.size()) return {};
  return kIndices[letter - first];
}

}  // namespace kestra
