#include "run/integrity_check.h"

#include <algorithm>

#include "base/fields.h"
#include "base/lines.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr int kSpillways = 3;
constexpr int kMarkColumns = 5;  // in which a spillway's finding says what it is
constexpr std::size_t kExtension = 3;

std::string baseOf(const std::string& path) {
  return path.substr(0, path.size() - std::min(path.size(), kExtension));
}

// The file of that path, whatever its letter case on the disk.
Result<std::string> found(FileSystem& files, const std::string& path) {
  return findIgnoringCase(files, std::string(directoryOf(path)), ParsePathName(path));
}

void removeFound(FileSystem& files, const std::string& path) {
  if (const auto there = found(files, path)) (void)files.removeFile(there.value());
}

void copyFound(FileSystem& files, const std::string& from, const std::string& to) {
  const auto source = found(files, from);
  if (!source) return;
  if (const auto text = files.read(source.value(), kReadLimit)) (void)writeWholeFile(files, to, text.value());
}

ProcessOutcome runChecker(Ports& ports, const std::string& program, const std::string& file) {
  return ports.processes.run({program, {file}, {}, {}}, {});
}

void checkSpillway(Ports& ports, const std::string& program, const std::string& base, int number) {
  const auto spillwayFile = found(ports.files, base + "AS" + std::to_string(number));
  if (!spillwayFile) return;
  (void)runChecker(ports, program, spillwayFile.value());
  copyFound(ports.files, base + "ER1", base + "ERR" + std::to_string(number));
  removeFound(ports.files, base + "ER1");
}

// The lines behind the heading of an error file.
std::vector<std::string> linesOf(FileSystem& files, const std::string& path) {
  std::vector<std::string> lines;
  const auto there = found(files, path);
  if (!there) return lines;
  const auto text = files.read(there.value(), kReadLimit);
  if (!text) return lines;
  LineReader reader(text.value());
  std::string_view line;
  bool heading = true;
  while (reader.next(line)) {
    if (!heading) lines.emplace_back(line.substr(0, line.find_last_not_of(' ') + 1));
    heading = false;
  }
  std::erase(lines, std::string());
  return lines;
}

void count(Findings& findings, std::string_view mark) {
  if (mark == "F") ++findings.errors;
  if (mark == "W") ++findings.warnings;
}

}  // namespace

std::string errorFileOf(const std::string& controlFile) {
  return baseOf(controlFile) + "ERR";
}

Status RunIntegrityChecker(Ports& ports, const std::string& applicationDirectory, const std::string& filePath) {
  const std::string base = baseOf(filePath);
  for (const char* kind : {"ERR", "ERR0", "ERR1", "ERR2", "ERR3", "ER1"}) removeFound(ports.files, base + kind);
  const std::string checker = joinPath(applicationDirectory, "KestraIntCheck.exe");
  const ProcessOutcome outcome = runChecker(ports, checker, filePath);
  if (const auto* failed = std::get_if<StartFailed>(&outcome)) {
    return Failure{FailureKind::notFound, checker, failed->reason};
  }
  copyFound(ports.files, base + "ERR", base + "ERR0");
  const std::string spillwayChecker = joinPath(applicationDirectory, "IntCheck.exe");
  for (int number = 1; number <= kSpillways; ++number) checkSpillway(ports, spillwayChecker, base, number);
  return Done{};
}

Findings CountFindings(FileSystem& files, const std::string& errPath) {
  Findings findings;
  for (const std::string& line : linesOf(files, errPath)) count(findings, trim(columns(line, 1, 1)));
  for (int number = 1; number <= kSpillways; ++number) {
    for (const std::string& line : linesOf(files, errPath + std::to_string(number))) {
      count(findings, trim(columns(line, 1, kMarkColumns)));
    }
  }
  return findings;
}

std::vector<std::string> findingLines(FileSystem& files, const std::string& errPath) {
  std::vector<std::string> all = linesOf(files, errPath + "0");
  for (int number = 1; number <= kSpillways; ++number) {
    for (std::string& line : linesOf(files, errPath + std::to_string(number))) all.push_back(std::move(line));
  }
  return all;
}

}  // namespace kestra
