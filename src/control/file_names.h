#pragma once

#include <string>
#include <string_view>

// The names of the files that stand beside a control file.
namespace kestra {

// The path up to the last point of its file name; the whole path where that has none.
std::string_view withoutExtension(std::string_view path);

// The file of a spillway's run, from 0: "dam.AS1".
std::string spillwayFileOf(std::string_view controlFile, int spillway);

// The output of the dam's run: "dam.OUT".
std::string outputFileOf(std::string_view controlFile);

// What was entered and has no place in the control file: ".kestra/dam.json", in the directory of the control file.
std::string companionFileOf(std::string_view controlFile);

}  // namespace kestra
