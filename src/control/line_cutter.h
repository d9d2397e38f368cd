#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/fields.h"

namespace kestra {

// Whether every byte is ASCII, so that columns are bytes; eight bytes at a time, the last eight perhaps twice.
inline bool isPlainAscii(std::string_view text) {
  constexpr std::size_t kWord = sizeof(std::uint64_t);
  constexpr std::uint64_t kHighBits = 0x8080808080808080U;
  std::uint64_t seen = 0;
  const auto see = [&](std::size_t at) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, kWord);
    seen |= word;
  };
  if (text.size() < kWord) {
    for (const char c : text) seen |= static_cast<unsigned char>(c);
    return (seen & kHighBits) == 0;
  }
  for (std::size_t at = 0; at + kWord <= text.size(); at += kWord) see(at);
  see(text.size() - kWord);
  return (seen & kHighBits) == 0;
}

// Cuts columns out of one line; looks only once whether the line's characters are its bytes.
class LineCutter {
 public:
  explicit LineCutter(std::string_view line) : line_(line), plain_(isPlainAscii(line)) {}

  // As columns() of base/fields.h.
  std::string_view cut(int first, int width) const {
    if (!plain_) return columns(line_, first, width);
    const auto begin = static_cast<std::size_t>(first - 1);
    return begin < line_.size() ? line_.substr(begin, static_cast<std::size_t>(width)) : std::string_view();
  }

 private:
  std::string_view line_;
  bool plain_;
};

}  // namespace kestra
