#pragma once

#include <optional>
#include <string_view>

#include "base/lines.h"

namespace kestra {

inline constexpr int kMostRows = 20000;  // of a table that a graph reads

// A line of a run's text file, cut by columns, which count from 1.
class RunRow {
 public:
  explicit RunRow(std::string_view line);

  std::string_view text(int first, int width) const;
  // The number at the front of the columns; 0 where there is none, or none of single precision.
  double number(int first, int width) const;

 private:
  std::string_view line_;
  bool ascii_ = true;
};

// Walks a run's text file: to an anchor, over headings, then row by row.
class RunReader {
 public:
  explicit RunReader(std::string_view text) : lines_(text) {}

  // Goes behind the next line that `isAnchor` takes and gives it; nothing at the end of the file.
  template <class Anchor>
  std::optional<std::string_view> find(const Anchor& isAnchor) {
    std::string_view line;
    while (lines_.next(line)) {
      if (isAnchor(line)) return line;
    }
    return std::nullopt;
  }
  bool findLine(std::string_view text);       // a line of just that text, blanks around it aside
  bool findPart(std::string_view text);       // a line that holds the text; comments of the echo are passed over
  bool findRecord(std::string_view keyword);  // a record of the echo, by its first 11 columns
  void skip(int lines);
  // Goes over headings, at most so many lines, to the first row whose columns 1 to `width` are a number; false when
  // there is none.
  bool skipHeadings(int most, int width);

  // Calls `take` for each row up to a blank line, the end of the file, or kMostRows rows; how many there were.
  template <class Take>
  int rows(const Take& take) {
    return rowsUntil([](std::string_view line) { return line.empty(); }, take);
  }
  // The same for the rows of an echoed table, which ENDTABLE closes.
  template <class Take>
  int tableRows(const Take& take) {
    return rowsUntil([](std::string_view line) { return line == "ENDTABLE"; }, take);
  }

 private:
  template <class IsEnd, class Take>
  int rowsUntil(const IsEnd& isEnd, const Take& take) {
    int count = 0;
    std::string_view line;
    while (count < kMostRows && lines_.next(line) && !isEnd(trimmed(line))) {
      take(RunRow(line));
      ++count;
    }
    return count;
  }
  static std::string_view trimmed(std::string_view line);

  LineReader lines_;
};

// Columns of a record's field as the echo shows it: behind a blank, so one further on than in the record.
inline constexpr int kEchoWidth = 10;
inline double echoField(const RunRow& row, int recordColumn) {
  return row.number(recordColumn + 1, kEchoWidth);
}

}  // namespace kestra
