#include "kestrasim/spillway_profiles.h"

#include <fmt/format.h>

#include "base/lines.h"
#include "base/text.h"
#include "kestrasim/number_fields.h"

namespace kestra {
namespace {

constexpr int kNameWidth = 9;  // of a spillway's name in ASSURFACE

// What a spillway's run tells: its label and the profile.
struct SpillwayRun {
  std::string label;
  std::vector<TablePoint> profile;
};

// Three stations and elevations a row, from column 11 on.
void takePairs(std::string_view row, std::size_t line, std::vector<TablePoint>& profile, RunMessages& messages) {
  const Place place{"ASSPRFL", line};
  for (int pair = 0; pair < 3; ++pair) {
    const auto field = [&](int i, std::string_view name, NumberRange range) {
      return numberIn(columns(row, 11 + 10 * (2 * pair + i), 10), name, range, place, messages);
    };
    const Number station = field(0, "station", kStations);
    const Number elevation = field(1, "elevation", kElevations);
    if (!station && !elevation) continue;
    if (!station || !elevation) {
      messages.warning(place, "a point lacks its station or its elevation", "it is left out");
    } else if (!profile.empty() && *station <= profile.back().first) {
      messages.warning(place, "the stations do not rise", "the point is left out");
    } else {
      profile.push_back({*station, *elevation, line});
    }
  }
}

SpillwayRun readRun(const ControlRun& run, std::size_t linesBefore, RunMessages& messages) {
  SpillwayRun read;
  LineReader lines(run.text);
  std::string_view line;
  bool inProfile = false;
  while (lines.next(line)) {
    const std::string_view keyword = canonicalKeyword(keywordOf(line));
    if (keyword == "KESTRA" && read.label.empty() && keywordOf(line) == "QUIL")
      read.label = trim(columns(line, 31, 50));
    if (keyword == "ASSPRFL") {
      read.profile.clear();
      inProfile = true;
    } else if (!keyword.empty()) {
      inProfile = false;
    } else if (inProfile) {
      takePairs(line, linesBefore + lines.lineNumber(), read.profile, messages);
    }
  }
  return read;
}

std::size_t countLines(std::string_view text) {
  LineReader lines(text);
  std::string_view line;
  while (lines.next(line)) continue;
  return lines.lineNumber();
}

// The spillway of that name, when it is the only one; else null.
AuxiliaryRecord* named(DamModel& dam, const std::string& label) {
  AuxiliaryRecord* found = nullptr;
  for (auto& spillway : dam.auxiliary) {
    if (!spillway || spillway->name.empty() || spillway->name != trim(columns(label, 1, kNameWidth))) continue;
    if (found != nullptr) return nullptr;
    found = &*spillway;
  }
  return found;
}

std::vector<AuxiliaryRecord*> analysed(DamModel& dam, bool byProfileOnly) {
  std::vector<AuxiliaryRecord*> spillways;
  for (auto& spillway : dam.auxiliary) {
    if (spillway && spillway->analysed && (spillway->byProfile || !byProfileOnly)) spillways.push_back(&*spillway);
  }
  return spillways;
}

}  // namespace

void takeSpillwayProfiles(const std::vector<ControlRun>& runs, DamModel& dam, RunMessages& messages) {
  std::vector<SpillwayRun> read;
  std::size_t linesBefore = countLines(runs.front().text);
  for (std::size_t i = 1; i < runs.size(); ++i) {
    read.push_back(readRun(runs[i], linesBefore, messages));
    linesBefore += countLines(runs[i].text);
  }
  std::vector<AuxiliaryRecord*> inOrder = analysed(dam, false);
  if (inOrder.size() != read.size()) inOrder = analysed(dam, true);
  for (std::size_t i = 0; i < read.size(); ++i) {
    AuxiliaryRecord* spillway = named(dam, read[i].label);
    if (spillway == nullptr && i < inOrder.size()) spillway = inOrder[i];
    if (spillway != nullptr && spillway->profile.empty()) spillway->profile = std::move(read[i].profile);
  }
}

}  // namespace kestra
