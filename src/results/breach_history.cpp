#include "results/breach_history.h"

#include "results/field_number.h"
#include "results/output_line.h"

namespace kestra {

double highestUnitDischarge(std::string_view history) {
  LineReader lines(history);
  skipLines(lines, 5);
  Extremes discharges;
  std::string_view text;
  while (lines.next(text)) {
    const OutputLine line(text);
    if (line.length() > 60) discharges.add(line.columns(61, 12));
  }
  return discharges.highest().value_or(0.0);
}

}  // namespace kestra
