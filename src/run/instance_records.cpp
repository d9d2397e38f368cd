#include "run/instance_records.h"

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr int kMostValues = 5;
constexpr int kWidth = 10;

std::string_view keyOf(std::string_view line) {
  return trim(columns(line, 1, kWidth));
}

std::string_view restFrom(std::string_view line, std::size_t column) {
  return trim(charsFrom(line, column - 1));
}

std::vector<std::string> valuesOf(std::string_view line) {
  std::vector<std::string> values;
  for (int i = 0; i < kMostValues; ++i) {
    const std::string_view value = trim(columns(line, 21 + i * kWidth, kWidth));
    if (!value.empty()) values.emplace_back(value);
  }
  return values;
}

bool opensRun(std::string_view line) {
  const std::string_view key = trim(columns(line, 1, 5));
  return key == "TORVE" || key == "VERN2" || key == "QUIL";
}

void takeFlags(std::string_view line, InstanceRecords& records) {
  const std::string_view flag = trim(columns(line, 71, 1));
  records.stripFalseStructure = flag == "L";
  records.blankFalseFields = flag == "F" || trim(columns(line, 72, 1)) == "8";
}

// The lines that `keep` wants, each with the system's line end.
template <class Keep>
std::string filtered(std::string_view text, Keep keep) {
  std::string kept;
  LineReader lines(text);
  for (std::string_view line; lines.next(line);) {
    if (keep(line)) kept.append(line).append(kCrLf);
  }
  return kept;
}

// Number of the line with the last HYD record, from 1; 0 where there is none.
std::size_t hydrographLine(std::string_view text) {
  std::size_t found = 0;
  LineReader lines(text);
  for (std::string_view line; lines.next(line);) {
    if (keyOf(line) == "HYD") found = lines.lineNumber();
  }
  return found;
}

}  // namespace

InstanceRecords readInstanceRecords(std::string_view text) {
  InstanceRecords records;
  LineReader lines(text);
  for (std::string_view line; lines.next(line);) {
    const std::string_view key = keyOf(line);
    if (key == "KESTRA" && charCount(line) > 20) {
      records.spillwayNumber = static_cast<int>(wholeNumber(columns(line, 11, kWidth)).value_or(0));
      records.damFile = restFrom(line, 21);
    }
    if (key == "MODIFIED" && charCount(line) > 10) records.recordedDate = restFrom(line, 11);
    if (opensRun(line)) takeFlags(line, records);
    if (key == "BTMWIDTH") records.widths = valuesOf(line);
    if (key == "ASCREST") records.crests = valuesOf(line);
  }
  return records;
}

bool hasPlaceholderHydrograph(std::string_view text) {
  const std::size_t hyd = hydrographLine(text);
  std::string rows;
  LineReader lines(text);
  for (std::string_view line; hyd > 0 && lines.next(line);) {
    if (lines.lineNumber() <= hyd) continue;
    if (keyOf(line) == "ENDTABLE") break;
    rows.append(trim(line)).append(" ");
  }
  return trim(rows) == "1";
}

std::string withHydrograph(std::string_view text, std::string_view table) {
  const std::size_t hyd = hydrographLine(text);
  if (hyd == 0) return std::string(text);
  std::string changed;
  bool skipping = false;
  LineReader lines(text);
  for (std::string_view line; lines.next(line);) {
    if (lines.lineNumber() == hyd) {
      changed += table;
      skipping = true;
    }
    if (!skipping) changed.append(line).append(kCrLf);
    if (keyOf(line) == "ENDTABLE") skipping = false;
  }
  return changed;
}

std::string withoutLink(std::string_view text) {
  return filtered(text, [](std::string_view line) { return keyOf(line) != "KESTRA" && keyOf(line) != "MODIFIED"; });
}

std::string withAlternative(std::string_view text, const std::optional<std::string>& width,
                            const std::optional<std::string>& crest) {
  std::string changed;
  LineReader lines(text);
  for (std::string_view line; lines.next(line);) {
    const std::string_view key = keyOf(line);
    const auto& value = key == "BTMWIDTH" ? width : crest;
    if ((key == "BTMWIDTH" || key == "ASCREST") && value) {
      changed += PadField(key, kWidth) + PadField(columns(line, 11, kWidth), kWidth) + *value;
      changed += kCrLf;
    } else {
      changed.append(line).append(kCrLf);
    }
  }
  return changed;
}

}  // namespace kestra
