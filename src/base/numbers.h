#pragma once

#include <optional>
#include <string>
#include <string_view>

// Numbers in texts, the same under every locale.
namespace kestra {

// Lenient conversion: blanks and tabs are passed over, a sign, digits, a decimal point and an exponent (e or d) are
// read, and the first character that is not part of a number ends it. 0 where there is no number. Never fails; a value
// beyond the range of a double is infinite.
double lenientNumber(std::string_view text);

// The whole text, blanks around it aside, as a decimal integer; nothing when it is anything else or out of range.
std::optional<long long> wholeNumber(std::string_view text);

// Shortest general number text of at most 15 significant digits: "0.5", "1234", "1E+20", "-1.5E-07".
std::string generalNumber(double value);

}  // namespace kestra
