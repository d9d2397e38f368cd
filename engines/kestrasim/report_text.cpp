#include "kestrasim/report_text.h"

#include "base/fields.h"

namespace kestra {

void ReportText::line(std::string_view words) {
  text_ += words;
  text_ += kCrLf;
}

void ReportText::line(const ColumnLine& columns) {
  overflowed_ = overflowed_ || columns.overflowed();
  line(std::string_view(columns.line()));
}

}  // namespace kestra
