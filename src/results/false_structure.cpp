#include "results/false_structure.h"

#include <algorithm>
#include <array>

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "results/result_files.h"

namespace kestra {
namespace {

constexpr std::string_view kBlanked = " N/A";
constexpr std::string_view kError = "***** ERROR";
constexpr std::string_view kWarning = "***** WARNING";
constexpr std::string_view kFalseStructure = "STRUCTURE FALSE     ZERO";
constexpr std::string_view kTableWarning = "NING - A STRUCTURE TABLE E";
constexpr std::string_view kNotice =
    "  USER ENTERED AUXILIARY SPILLWAY OUTFLOW\r\n"
    "  AUXILIARY SPILLWAY ANALYSIS ONLY\r\n"
    " \r\n"
    "  FALSE STRUCTURE RELATED DATA REMOVED\r\n"
    " \r\n";

// The parts of an output in their order: whether their lines are kept, and what the last line of each holds.
struct Part {
  bool kept;
  std::string_view last;
};
constexpr std::size_t kEcho = 1;
constexpr std::size_t kRatings = 2;
constexpr std::size_t kBasicData = 3;
constexpr std::array<Part, 9> kParts = {{{true, "80-80 LIST OF INPUT"},
                                         {true, "ENDJOB"},
                                         {true, "BASIC DATA"},
                                         {false, "SUMMARY OF AUXIL"},
                                         {true, "***********"},
                                         {false, "SPILLWAY --"},
                                         {true, "1TORVE....JOB"},
                                         {false, "***********************"},
                                         {true, ""}}};

bool holds(std::string_view line, std::string_view words) {
  return line.find(words) != std::string_view::npos;
}

// Copies an output part by part.
class Stripper {
 public:
  explicit Stripper(std::string_view output) : lines_(output) { result_.text.reserve(output.size()); }

  std::optional<StrippedOutput> run() {
    std::string_view line;
    while (lines_.next(line)) {
      if (holds(line, kError)) return std::nullopt;
      take(line);
      if (part_ == kRatings && !falseStructure_) return std::nullopt;
    }
    if (!falseStructure_) return std::nullopt;
    return std::move(result_);
  }

 private:
  void take(std::string_view line) {
    if (part_ == kEcho && holds(line, kFalseStructure)) falseStructure_ = true;
    if (part_ == kRatings && holds(line, kTableWarning)) return dropWithNext();
    const Part& part = kParts[part_];
    const bool last = !part.last.empty() && holds(line, part.last);
    if (last) ++part_;
    if (last && part_ == kBasicData) {
      result_.text += kNotice;
    } else if (part.kept || (last && part_ == kBasicData + 1)) {
      result_.text.append(line).append(kCrLf);
    } else if (holds(line, kWarning)) {
      ++result_.removedWarnings;
    }
  }

  void dropWithNext() {
    std::string_view next;
    lines_.next(next);
    ++result_.removedWarnings;
  }

  LineReader lines_;
  StrippedOutput result_;
  std::size_t part_ = 0;
  bool falseStructure_ = false;
};

// A digest line by line through `change`, which gets the number of each line, from 0, and the line.
template <class Change>
Status filterDigest(FileSystem& files, const std::string& path, Change change) {
  const auto digest = readResultFile(files, path);
  if (!digest) return digest.failure();
  LineReader lines(digest.value());
  std::string text;
  std::string_view line;
  for (int number = 0; lines.next(line); ++number) text.append(change(number, line)).append(kCrLf);
  return writeResultFile(files, path, text);
}

std::string keptLine(int number, std::string_view line, int removedWarnings) {
  constexpr int kWarningCount = 45;
  if (number == kWarningCount && removedWarnings > 0) {
    return generalNumber(std::max(0.0, lenientNumber(line) - removedWarnings));
  }
  return std::string(number == 0 || number == 2 || number >= 30 ? line : kBlanked);
}

}  // namespace

std::optional<StrippedOutput> stripFalseStructure(std::string_view output) {
  return Stripper(output).run();
}

Status StripFalseStructure(FileSystem& files, const std::string& filePath) {
  const std::string outputPath = withExtension(filePath, "OUT");
  const auto output = readResultFile(files, outputPath);
  if (!output) return output.failure();
  const auto stripped = stripFalseStructure(output.value());
  if (!stripped) return Done{};
  if (Status written = writeResultFile(files, outputPath, stripped->text); !written) return written;
  return filterDigest(files, withExtension(filePath, "DIS"), [&stripped](int number, std::string_view line) {
    return keptLine(number, line, stripped->removedWarnings);
  });
}

Status BlankFalseFields(FileSystem& files, const std::string& filePath) {
  return filterDigest(files, withExtension(filePath, "DIS"), [](int number, std::string_view line) {
    return std::string(number == 14 || number == 15 ? kBlanked : line);
  });
}

}  // namespace kestra
