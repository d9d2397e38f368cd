#pragma once

#include <string>
#include <string_view>

#include "base/text.h"

namespace kestra {

// The text as UTF-8 throughout: bytes that belong to no character are read as Latin-1.
inline std::string validText(std::string_view text) {
  std::string valid;
  while (!text.empty()) valid += utf8(popCharacter(text));
  return valid;
}

}  // namespace kestra
