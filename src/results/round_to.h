#pragma once

#include <string>

namespace kestra {

// `value` rounded to that many digits behind the point, halves to the even digit, in general number text: 2.5 and 0
// give "2", 0.375 and 2 give "0.38". A negative count rounds to tens. What is too great to have such digits, or is no
// number, stands.
std::string RoundTo(double value, int digits);

}  // namespace kestra
