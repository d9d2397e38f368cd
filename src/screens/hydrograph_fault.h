#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What is wrong with a field of a hydrograph or structure-table file, and with what it holds.
namespace kestra {

// Blank, or a number with a decimal point.
bool isNumberOrBlank(std::string_view field);

// Whether a field was meant as a number, be it one with a decimal comma or a unit.
bool isMeantAsNumber(std::string_view field);

// The end of a sentence that the file's name begins: `line 5: "12,5" is no discharge.`, or `line 5 holds no discharge.`
// where the field is blank. A long field is quoted in part.
std::string fieldFault(std::size_t line, std::string_view field, const std::string& wanted);

// A sentence on a file that holds more points than were taken.
std::string morePointsThanTaken(std::size_t points, std::size_t taken);

}  // namespace kestra
