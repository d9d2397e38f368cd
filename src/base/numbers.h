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

// The whole text, blanks around it aside, as a number; nothing when it is anything else or beyond the range of a
// double.
std::optional<double> realNumber(std::string_view text);

// The shortest text that stands for this number and no other of single precision: "0.1", "16777216", "1e+20".
std::string singleNumber(float value);

// Plain decimal text, never with an exponent, of at most `digits` significant digits (1 to 17) without zeros at its
// end: "0.5", "12000", "0.00000012". What is not finite is "inf", "-inf" or "nan".
std::string decimalNumber(double value, int digits = 15);

}  // namespace kestra
