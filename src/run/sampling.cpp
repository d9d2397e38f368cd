#include "run/sampling.h"

#include "base/fields.h"
#include "base/lines.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr std::string_view kEnds[] = {"ENDJOB", "ENDRUN"};

std::string_view keyOf(std::string_view line) {
  return trim(columns(line, 1, 10));
}

}  // namespace

bool holdsSamplingBlock(std::string_view records) {
  LineReader lines(records);
  for (std::string_view line; lines.next(line);) {
    if (keyOf(line) != "LHS") continue;
    return lines.next(line) && keyOf(line) != "ENDTABLE";
  }
  return false;
}

std::string singleInstance(std::string_view records) {
  std::string text;
  LineReader lines(records);
  for (std::string_view line; lines.next(line);) {
    if (keyOf(line) != kEnds[0] && keyOf(line) != kEnds[1]) text.append(line).append(kCrLf);
  }
  for (const std::string_view end : kEnds) text.append(end).append(kCrLf);
  return text;
}

}  // namespace kestra
