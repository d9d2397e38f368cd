#pragma once

#include <string>
#include <string_view>

#include "kestrasim/columns.h"

namespace kestra {

// A file that is put together line by line, each ended by CR LF.
class ReportText {
 public:
  void line(std::string_view words);
  void line(const ColumnLine& columns);
  void blankLine() { line(std::string_view()); }

  const std::string& text() const { return text_; }
  bool overflowed() const { return overflowed_; }  // a figure did not fit its column

 private:
  std::string text_;
  bool overflowed_ = false;
};

}  // namespace kestra
