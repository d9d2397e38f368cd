#include "base/text.h"

#include <algorithm>

namespace kestra {
namespace {

bool isContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// Bytes of the character that starts at `at`.
std::size_t charLength(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  std::size_t length = 1;
  if (lead >= 0xC2 && lead <= 0xDF) length = 2;
  if (lead >= 0xE0 && lead <= 0xEF) length = 3;
  if (lead >= 0xF0 && lead <= 0xF4) length = 4;
  if (at + length > text.size()) return 1;
  for (std::size_t i = 1; i < length; ++i) {
    if (!isContinuation(text[at + i])) return 1;
  }
  return length;
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Byte position of character `count`, counted from byte `from`; the end when there are fewer.
std::size_t advance(std::string_view text, std::size_t from, std::size_t count) {
  while (count > 0 && from < text.size()) {
    from += charLength(text, from);
    --count;
  }
  return from;
}

}  // namespace

std::size_t charCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += charLength(text, at)) ++count;
  return count;
}

std::string_view charsFrom(std::string_view text, std::size_t first, std::size_t count) {
  if (isAscii(text)) return first >= text.size() ? std::string_view() : text.substr(first, count);
  const std::size_t begin = advance(text, 0, first);
  return text.substr(begin, advance(text, begin, count) - begin);
}

std::string_view trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string toUpper(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), upper);
  return result;
}

std::string toLower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), lower);
  return result;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return upper(x) == upper(y); });
}

std::string utf8(char32_t character) {
  const auto byte = [](char32_t value) { return static_cast<char>(static_cast<unsigned char>(value)); };
  if (character < 0x80) return {byte(character)};
  if (character < 0x800) return {byte(0xC0 | (character >> 6)), byte(0x80 | (character & 0x3F))};
  if (character < 0x10000) {
    return {byte(0xE0 | (character >> 12)), byte(0x80 | ((character >> 6) & 0x3F)), byte(0x80 | (character & 0x3F))};
  }
  return {byte(0xF0 | (character >> 18)), byte(0x80 | ((character >> 12) & 0x3F)),
          byte(0x80 | ((character >> 6) & 0x3F)), byte(0x80 | (character & 0x3F))};
}

char32_t popCharacter(std::string_view& text) {
  constexpr unsigned char kLeadBits[] = {0x7F, 0x7F, 0x1F, 0x0F, 0x07};
  const std::size_t length = charLength(text, 0);
  const auto lead = static_cast<unsigned char>(text.front());
  char32_t character = length == 1 ? lead : static_cast<char32_t>(lead & kLeadBits[length]);
  for (std::size_t i = 1; i < length; ++i) {
    character = (character << 6) | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  text.remove_prefix(length);
  return character;
}

}  // namespace kestra
