#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Text as the system sees it: UTF-8, a position being a character. A byte that belongs to no valid UTF-8 sequence
// counts as one character of its own, so that texts in an 8-bit encoding pass through with their columns in place.
namespace kestra {

// Number of characters.
std::size_t charCount(std::string_view text);

// The characters from `first` (from 0), at most `count` of them; empty behind the end.
std::string_view charsFrom(std::string_view text, std::size_t first, std::size_t count = std::string_view::npos);

// Without the blanks (and only blanks) at both ends.
std::string_view trim(std::string_view text);

// ASCII letters in upper and lower case; all other bytes stand.
std::string toUpper(std::string_view text);
std::string toLower(std::string_view text);

// Equal but for the case of ASCII letters.
bool equalIgnoringCase(std::string_view a, std::string_view b);

// A character as UTF-8.
std::string utf8(char32_t character);

// The character at the front of a text that is not empty, taken off it; a stray byte is its own value.
char32_t popCharacter(std::string_view& text);

}  // namespace kestra
