#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What is wrong with a field of a hydrograph file.
namespace kestra {

// Blank, or a number with a decimal point.
bool isNumberOrBlank(std::string_view field);

// The end of a sentence that the file's name begins: `line 5: "12,5" is no discharge.`, or `line 5 holds no discharge.`
// where the field is blank. A long field is quoted in part.
std::string fieldFault(std::size_t line, std::string_view field, const std::string& wanted);

}  // namespace kestra
