#include "results/output_line.h"

#include <algorithm>

namespace kestra {

bool isMessage(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  return line.starts_with("***** ERROR") || line.starts_with("***** WARNING");
}

bool nextTableRow(LineReader& lines, OutputLine& row) {
  std::string_view text;
  while (lines.next(text)) {
    if (text.find_first_not_of(' ') == std::string_view::npos) return false;
    if (isMessage(text)) continue;
    row = OutputLine(text);
    return true;
  }
  return false;
}

void skipLines(LineReader& lines, int count) {
  std::string_view text;
  while (count > 0 && lines.next(text)) --count;
}

}  // namespace kestra
