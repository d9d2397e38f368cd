#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "base/lines.h"
#include "control/control_files.h"
#include "support/input_desk.h"

namespace kestra {

// All input screens on scripted ports, and their control file.
struct ControlDesk : InputDesk {
  InputScreenSet screens{base, *this};
  ControlFiles control{screens, base};

  ControlDesk() { screens.enterAll(host); }

  // The main run as it would be written, "/p/dam.KSC" being its name.
  std::string build() {
    EXPECT_EQ(control.BuildControlText("/p/dam.KSC"), -1);
    return control.texts.controlText;
  }
  // The screens as a program has them that opens its first file.
  void unload() {
    for (Screen* screen : screens.sequence()) {
      host.load(*screen);  // what is not loaded is not unloaded, and keeps what a test has put in
      host.unload(*screen);
    }
    screens.context.aux.ClearAuxData();
    state.forgetInput();
  }
  void parse(const std::string& text) {
    control.texts.controlText = text;
    control.texts.auxRunText.fill({});
    control.ParseControlText();
  }
  AuxProfile& profile(int spillway = 0) {
    return screens.context.aux.auxProfile.at(static_cast<std::size_t>(spillway));
  }
  AuxMaterials& materials(int spillway = 0) {
    return screens.context.aux.auxMaterials.at(static_cast<std::size_t>(spillway));
  }
};

// The name of a case as that of its test.
template <class Case>
std::string caseName(const testing::TestParamInfo<Case>& info) {
  return info.param.name;
}

// Lines without their ends.
inline std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  LineReader reader(text);
  std::string_view line;
  while (reader.next(line)) lines.emplace_back(line);
  return lines;
}

// Those lines of a text whose keyword, or first columns, are `start`.
inline std::vector<std::string> linesWith(std::string_view text, std::string_view start) {
  std::vector<std::string> found;
  for (const std::string& line : linesOf(text)) {
    if (line.starts_with(start)) found.push_back(line);
  }
  return found;
}

// The rows of a record's table: from the line behind the record's up to ENDTABLE.
inline std::vector<std::string> rowsOf(std::string_view text, std::string_view keyword) {
  std::vector<std::string> rows;
  bool within = false;
  for (const std::string& line : linesOf(text)) {
    if (line == "ENDTABLE") within = false;
    if (within) rows.push_back(line);
    if (line.starts_with(keyword)) within = true;
  }
  return rows;
}

// Lines joined as a file has them.
inline std::string fileOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

}  // namespace kestra
