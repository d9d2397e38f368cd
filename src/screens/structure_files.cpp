#include "screens/structure_files.h"

#include <algorithm>
#include <utility>

#include "base/fields.h"
#include "base/lines.h"
#include "base/text.h"
#include "screens/hydrograph_fault.h"

namespace kestra {
namespace {

constexpr const char* kRatingAnchor = "RATING TABLE NUMBER  2";
constexpr const char* kRatingEnd = "*********************";
constexpr std::size_t kRowsRead = 21;
constexpr std::size_t kRowsWritten = 20;
constexpr std::size_t kRatingRows = 20;

struct StructureField {
  std::size_t value;    // of a row, from 0
  int column;           // of the line, from 1
  std::size_t written;  // characters, up to the next field
};
constexpr StructureField kFields[] = {{0, 21, 10}, {3, 31, 10}, {1, 41, 20}, {2, 61, std::string_view::npos}};
constexpr int kWidthRead = 10;
constexpr const char* kValues[] = {"elevation", "discharge", "storage", "surface area"};  // of a row

struct RatingField {
  std::size_t longerThan;  // characters that the line has to exceed
  int column;
  int width;
};
constexpr RatingField kRating[] = {{5, 5, 9}, {24, 24, 10}, {44, 44, 10}, {54, 54, 10}};  // in the order of a row

std::string trimmed(std::string_view line, int column, int width) {
  return std::string(trim(columns(line, column, width)));
}

StructureRow structureRow(std::string_view line) {
  StructureRow row;
  for (const StructureField& field : kFields) row[field.value] = trimmed(line, field.column, kWidthRead);
  return row;
}

bool isBlank(const StructureRow& row) {
  return std::all_of(row.begin(), row.end(), [](const std::string& text) { return trim(text).empty(); });
}

std::string faultIn(const StructureRow& row, std::size_t line) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (!isNumberOrBlank(row[i])) return fieldFault(line, row[i], kValues[i]);
  }
  return {};
}

StructureRow tabRow(std::string_view line) {
  StructureRow row;
  for (std::string& cell : row) cell = nextTabField(line);
  return row;
}

bool isHeading(const StructureRow& row) {
  return !isBlank(row) && std::none_of(row.begin(), row.end(), isMeantAsNumber);
}

StructureRow ratingRow(std::string_view line) {
  StructureRow row;
  const std::size_t length = charCount(line);
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (length > kRating[i].longerThan) row[i] = trimmed(line, kRating[i].column, kRating[i].width);
  }
  return row;
}

std::string structureLine(const StructureRow& row) {
  std::string line;
  std::size_t length = 0;
  for (const auto& [value, column, written] : kFields) {
    const std::string_view text = charsFrom(row[value], 0, written);
    if (text.empty()) continue;
    line.append(static_cast<std::size_t>(column - 1) - length, ' ').append(text);
    length = static_cast<std::size_t>(column - 1) + charCount(text);
  }
  return line;
}

bool skipTo(LineReader& lines, std::string_view anchor, int width) {
  std::string_view line;
  while (lines.next(line)) {
    if (trim(columns(line, 1, width)) == anchor) return true;
  }
  return false;
}

}  // namespace

std::optional<StructureFile> readStructureFile(std::string_view text) {
  LineReader lines(text);
  std::string_view line;
  if (!lines.next(line) || trim(columns(line, 1, 10)) != "STRUCTURE") return std::nullopt;
  StructureFile file;
  if (charCount(line) >= 11) file.identifier = trimmed(line, 11, 5);
  while (lines.next(line)) {
    file.ended = trim(columns(line, 1, 10)) == "ENDTABLE";
    if (file.ended) break;
    StructureRow row = structureRow(line);
    if (file.rows.size() == kRowsRead) {
      file.points += isBlank(row) ? 0U : 1U;
      continue;
    }
    file.fault = faultIn(row, lines.lineNumber());
    if (!file.fault.empty()) break;
    file.rows.push_back(std::move(row));
  }
  file.points += file.rows.size();
  return file;
}

std::string structureFileText(std::string_view identifier, const std::vector<StructureRow>& rows) {
  std::string text = "STRUCTURE";
  if (!identifier.empty()) text.append(" ").append(identifier);
  text += kCrLf;
  for (std::size_t i = 0; i < rows.size() && i < kRowsWritten; ++i) {
    if (!rows[i][0].empty()) text.append(structureLine(rows[i])).append(kCrLf);
  }
  return text.append("ENDTABLE").append(kCrLf);
}

std::string valuesTooLong(const std::vector<StructureRow>& rows) {
  std::string places;
  for (std::size_t i = 0; i < rows.size() && i < kRowsWritten; ++i) {
    if (rows[i][0].empty()) continue;
    for (std::size_t value = 0; value < rows[i].size(); ++value) {
      if (charCount(rows[i][value]) <= static_cast<std::size_t>(kWidthRead)) continue;
      places.append(places.empty() ? "" : ", ").append(kValues[value]).append(" in row ").append(std::to_string(i + 1));
    }
  }
  return places;
}

std::optional<std::vector<StructureRow>> readTorveRating(std::string_view text) {
  LineReader lines(text);
  if (!skipTo(lines, kRatingAnchor, 23)) return std::nullopt;
  std::string_view line;
  for (int skipped = 0; skipped < 3; ++skipped) lines.next(line);
  std::vector<StructureRow> rows;
  while (rows.size() < kRatingRows && lines.next(line) && trim(line) != kRatingEnd) {
    if (!trim(line).empty()) rows.push_back(ratingRow(line));
  }
  return rows;
}

std::vector<StructureRow> readStructureTabs(std::string_view text, std::size_t mostRows, std::string* fault,
                                            std::size_t* points) {
  std::vector<StructureRow> rows;
  std::size_t more = 0;
  LineReader lines(text);
  std::string_view line;
  while (lines.next(line)) {
    StructureRow row = tabRow(line);
    if (rows.size() >= mostRows) {
      more += isBlank(row) ? 0U : 1U;
      continue;
    }
    if (lines.lineNumber() == 1 && isHeading(row)) continue;
    std::string wrong = faultIn(row, lines.lineNumber());
    if (!wrong.empty()) {
      if (fault != nullptr) *fault = std::move(wrong);
      break;
    }
    rows.push_back(std::move(row));
  }
  if (points != nullptr) *points = rows.size() + more;
  return rows;
}

std::string structureTabsText(const std::vector<StructureRow>& rows) {
  std::string text;
  for (const StructureRow& row : rows) {
    if (row[0].empty()) continue;
    text.append(row[0]).append("\t").append(row[1]).append("\t").append(row[2]).append("\t").append(row[3]);
    text.append(kCrLf);
  }
  return text;
}

}  // namespace kestra
