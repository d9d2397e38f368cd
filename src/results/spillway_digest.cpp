#include "results/spillway_digest.h"

#include <optional>

#include "base/numbers.h"
#include "results/field_number.h"
#include "results/result_files.h"
#include "results/round_to.h"
#include "results/routing_table.h"

namespace kestra {
namespace {

constexpr std::string_view kStabilityTitle =
    "Erosionally Effective Stress for Stability Analysis  of Aux. Exit Channel";
constexpr std::size_t kInstanceLines = 35;

enum Value : std::size_t { kName, kAttack, kDuration, kCrest, kRatio, kHighest };

bool isSpillway(int number) {
  return number >= 1 && number <= 3;
}

std::string orNotAvailable(std::string_view text) {
  return std::string(trim(text).empty() ? kNotAvailable : text);
}

// The value of the table's row that ends in "max.": its own, else that of the line before.
std::string_view highestInTable(const OutputLine& row, const OutputLine& before) {
  constexpr std::string_view kMark = "max.";
  const OutputLine unmarked(row.text().substr(0, row.text().size() - kMark.size()));
  const std::string_view own = trim(unmarked.columns(83, 8));
  return own.empty() ? trim(before.columns(83, 8)) : own;
}

// What stands behind the title: the stability line, and the table in which a row is marked.
void readStabilityTable(LineReader& lines, SpillwayValues& values) {
  skipLines(lines, 2);
  std::string_view text;
  if (!lines.next(text)) return;
  const OutputLine stability(text);
  if (stability.length() > 45) values[kAttack] = orNotAvailable(stability.columns(45, 8));
  if (stability.length() > 76) values[kRatio] = orNotAvailable(stability.columns(76, 6));
  skipLines(lines, 2);
  OutputLine before;
  OutputLine row;
  while (nextTableRow(lines, row)) {
    if (row.length() >= 84 && row.text().ends_with("max."))
      values[kHighest] = orNotAvailable(highestInTable(row, before));
    before = row;
  }
}

void skipHeading(LineReader& lines) {
  std::string_view text;
  for (int headings = 3; headings > 0 && lines.next(text);) {
    if (!trim(text).empty()) --headings;
  }
}

// How long the spillway flows, h: from the first row with a discharge to the next without. 0 when there are no two such
// rows; a row whose discharge is no number tells neither.
double flowDuration(LineReader& lines, int number) {
  skipHeading(lines);
  std::optional<double> start;
  OutputLine row;
  while (nextTableRow(lines, row)) {
    if (row.length() < 61) continue;
    const auto flow = fieldNumber(row.columns(routingSpillway(number), kRoutingWidth));
    if (!flow || (*flow != 0) == start.has_value()) continue;
    const double time = lenientNumber(row.columns(kRoutingTime, kRoutingWidth));
    if (start) return time - *start;
    start = time;
  }
  return 0;
}

bool findRoutingTitle(LineReader& lines) {
  std::string_view text;
  while (lines.next(text)) {
    if (isRoutingTitle(text)) return true;
  }
  return false;
}

// Crest of the spillway from the dam's digest, in which the crests begin in line 3.
std::string crestInDigest(FileSystem& files, const std::string& path, int number) {
  const auto digest = readResultFile(files, path);
  if (!digest || !isSpillway(number)) return std::string(kNotAvailable);
  LineReader lines(digest.value());
  std::string_view line;
  for (int taken = 0; taken < 2 + number; ++taken) {
    if (!lines.next(line)) return std::string(kNotAvailable);
  }
  return orNotAvailable(trim(line));
}

bool sameFile(FileSystem& files, const std::string& a, const std::string& b) {
  const auto here = files.canonical(presentPath(files, a));
  const auto there = files.canonical(presentPath(files, b));
  return here && there && here.value() == there.value();
}

Status takeValues(FileSystem& files, const SpillwayCase& spillway, SpillwayValues& values) {
  const std::string outputPath = spillway.workDir + ".OUT";
  const auto output = readResultFile(files, outputPath);
  if (!output) return output.failure();
  values = readSpillwayOutput(output.value(), spillway.spillwayNumber);
  const std::string copyPath = withExtension(spillway.digestPath, "OUT");
  if (!sameFile(files, outputPath, copyPath)) {
    if (Status copied = writeResultFile(files, copyPath, output.value()); !copied) return copied;
  }
  values[kCrest] = crestInDigest(files, spillway.workDir + ".DIS", spillway.spillwayNumber);
  return Done{};
}

}  // namespace

SpillwayValues readSpillwayOutput(std::string_view output, int number) {
  SpillwayValues values;
  values.fill(std::string(kNotAvailable));
  LineReader lines(output);
  LineReader behindTables = lines;
  std::string_view text;
  while (lines.next(text)) {
    if (trim(text) != kStabilityTitle) continue;
    readStabilityTable(lines, values);
    behindTables = lines;
  }
  // The routing table stands behind those tables, or before them.
  LineReader fromStart(output);
  LineReader& routing = findRoutingTitle(behindTables) ? behindTables : fromStart;
  if (!isSpillway(number) || (&routing == &fromStart && !findRoutingTitle(fromStart))) return values;
  values[kDuration] = decimalNumber(lenientNumber(RoundTo(flowDuration(routing, number), 3)));
  return values;
}

Status BuildSpillwayDigest(FileSystem& files, const SpillwayCase& spillway) {
  constexpr std::size_t kShortestPath = 5;
  SpillwayValues values;
  values.fill(std::string(kNotAvailable));
  if (!spillway.byRating && spillway.digestPath.size() >= kShortestPath) {
    if (Status taken = takeValues(files, spillway, values); !taken) return taken;
  }
  values[kName] = trim(spillway.spillwayName);
  std::string text;
  for (std::size_t i = 0; i < kInstanceLines; ++i) {
    text.append(i < values.size() ? std::string_view(values[i]) : kNotAvailable).append(kCrLf);
  }
  return writeResultFile(files, spillway.digestPath, text);
}

Status InsertDigestPlaceholder(FileSystem& files, const std::string& digestPath, std::string_view spillwayName) {
  constexpr int kLinesBefore = 4;
  const auto digest = readResultFile(files, digestPath);
  if (!digest) return digest.failure();
  if (Status kept = writeResultFile(files, digestPath + "~", digest.value()); !kept) return kept;
  LineReader lines(digest.value());
  std::string text(spillwayName);
  text += kCrLf;
  std::string_view line;
  for (int i = 0; i < kLinesBefore; ++i) text.append(lines.next(line) ? line : kNotAvailable).append(kCrLf);
  text.append(kNotAvailable).append(kCrLf);
  while (lines.next(line)) text.append(line).append(kCrLf);
  return writeResultFile(files, digestPath, text);
}

}  // namespace kestra
