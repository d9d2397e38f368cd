#pragma once

#include <string>
#include <string_view>

// Fixed-column text: padding and cutting fields, and taking lines and tab-separated fields off the front of a text.
namespace kestra {

// The line terminator of every text that the system writes.
inline constexpr std::string_view kCrLf = "\r\n";

// Left-justified field: the first `width` characters of `text` followed by ten blanks. `width` below 0 counts as 0.
// A text longer than its field loses its tail; a width above the text's length + 10 gives a shorter field.
std::string PadField(std::string_view text, int width);

// The characters in columns `first` (from 1) to first + width - 1 of a line; shorter or empty where the line ends.
std::string_view columns(std::string_view line, int first, int width);

// Removes the first line from `text` and returns it. A line feed ends the line, and the character before the line
// feed is dropped with it, so a line that ends in a line feed alone loses its last character. A text without a line
// feed is one line.
std::string PopLine(std::string_view& text);

// Removes the text before the first tab, and the tab, from `line` and returns it; without a tab the whole line.
std::string nextTabField(std::string_view& line);

}  // namespace kestra
