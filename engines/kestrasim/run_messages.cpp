#include "kestrasim/run_messages.h"

#include <fmt/format.h>

namespace kestra {

void RunMessages::error(const Place& place, const std::string& what, const std::string& done) {
  ++errors_;
  add("ERROR", place, what, done);
}

void RunMessages::add(const std::string& severity, const Place& place, const std::string& what,
                      const std::string& done) {
  if (++ofRecord_[place.record] > kMostOfARecord) return;
  std::string where = place.record;
  if (place.line > 0) where += fmt::format("{}line {}", where.empty() ? "" : ", ", place.line);
  if (!where.empty()) where = " (" + where + ")";
  lines_.push_back(fmt::format("***** {} - {}{}: {}", severity, what, where, done));
}

std::vector<std::string> RunMessages::lines() const {
  std::vector<std::string> all = lines_;
  for (const auto& [record, count] : ofRecord_) {
    if (count <= kMostOfARecord) continue;
    all.push_back(
        fmt::format("***** WARNING - {} more findings ({}): they are not listed", count - kMostOfARecord, record));
  }
  return all;
}

}  // namespace kestra
