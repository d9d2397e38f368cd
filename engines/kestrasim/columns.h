#pragma once

#include <string>
#include <string_view>

// Figures in fixed columns.
namespace kestra {

// A text of fixed columns: fields follow one another, each right-justified in its width. A figure too long for its
// field loses decimals, and one whose whole part is too long stands as nines, which is remembered; the first column of
// a field stays blank, so that no two figures touch.
class ColumnLine {
 public:
  ColumnLine& number(double value, int width, int decimals);
  ColumnLine& text(std::string_view words, int width);  // right-justified
  ColumnLine& words(std::string_view words);            // as they are
  ColumnLine& blanks(int count);

  const std::string& line() const { return line_; }
  bool overflowed() const { return overflowed_; }

 private:
  std::string line_;
  bool overflowed_ = false;
};

// A value with that many decimals, never with an exponent, and never "-0.0".
std::string fixedNumber(double value, int decimals);

}  // namespace kestra
