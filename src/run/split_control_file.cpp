#include "run/split_control_file.h"

#include <array>

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "run/file_steps.h"

namespace kestra {
namespace {

// Where the dam's run tells about a spillway: number in column 11, name behind it, analysis in a column of its own.
struct SpillwayRecord {
  std::string_view key;
  int analysisColumn;  // "2" there: stability analysis. A shorter record tells nothing
  bool rating;         // the spillway is given by a rating table
};

constexpr std::array<SpillwayRecord, 2> kSpillwayRecords = {{{"ASSURFACE", 40, false}, {"ASRATING", 21, true}}};

std::string_view keyOf(std::string_view line) {
  return line.size() > 1 ? trim(columns(line, 1, 10)) : std::string_view();
}

// 1 to 3; 0 for anything else.
std::size_t spillwayNumber(std::string_view field) {
  const auto number = wholeNumber(field);
  return number && *number >= 1 && *number <= static_cast<long long>(kSpillways) ? static_cast<std::size_t>(*number)
                                                                                 : 0;
}

void noteSpillway(std::string_view line, RunTables& tables) {
  for (const auto& [key, analysisColumn, rating] : kSpillwayRecords) {
    const std::size_t number = keyOf(line) == key ? spillwayNumber(columns(line, 11, 1)) : 0;
    if (number == 0 || charCount(line) < static_cast<std::size_t>(analysisColumn)) continue;
    tables.spillwayName[number - 1] = columns(line, 12, 9);
    if (columns(line, analysisColumn, 1) != "2") continue;
    tables.spillwayAnalysisFlag[number - 1] = true;
    tables.spillwayRatingFlag[number - 1] = rating;
  }
}

// Writes the runs of spillways, each under a number of its own.
class SplitFiles {
 public:
  SplitFiles(FileSystem& files, const std::string& runBase) : files_(files), runBase_(runBase) {}

  void write(const std::string& run, std::size_t place) {
    if (run.find_first_not_of(" \r\n") == std::string_view::npos) return;
    const std::size_t number = freeNumber(run, place);
    taken_[number - 1] = true;
    writeText(files_, splitFileOf(runBase_, number), run);
  }

 private:
  std::size_t freeNumber(std::string_view run, std::size_t place) const {
    const std::size_t own = spillwayNumber(columns(PopLine(run), 21, 10));
    if (own != 0 && !taken_[own - 1]) return own;
    std::size_t number = place;
    while (taken_[number - 1]) number = number % kSpillways + 1;
    return number;
  }

  FileSystem& files_;
  const std::string& runBase_;
  std::array<bool, kSpillways> taken_{};
};

}  // namespace

std::string splitFileOf(const std::string& runBase, std::size_t spillwayNumber) {
  return runBase + ".AS" + std::to_string(spillwayNumber);
}

void SplitControlFile(FileSystem& files, RunTables& tables, const std::string& sourcePath,
                      const std::string& runBase) try {
  if (sourcePath.empty()) return;
  tables.spillwayName = {};
  tables.spillwayAnalysisFlag = tables.spillwayRatingFlag = {};
  for (std::size_t n = 1; n <= kSpillways; ++n) {
    const std::string old = splitFileOf(runBase, n);
    if (!equalIgnoringCase(old, sourcePath)) removeFound(files, old);
  }
  const std::string source = readText(files, sourcePath);
  LineReader lines(source);
  SplitFiles splits(files, runBase);
  std::size_t section = 0;
  std::string run;
  for (std::string_view line; section <= kSpillways && lines.next(line);) {
    if (section == 0) {
      noteSpillway(line, tables);
    } else {
      run.append(line).append(kCrLf);
    }
    if (keyOf(line) != "ENDRUN") continue;
    if (section > 0) splits.write(run, section);
    run.clear();
    ++section;
  }
  if (section > 0 && section <= kSpillways) splits.write(run, section);
} catch (const RuntimeFault&) {
  // Left as far as it got.
}

}  // namespace kestra
