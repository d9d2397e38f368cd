#include "summary/shown_rows.h"

namespace kestra {
namespace {

bool belongsToRunOf(std::string_view name, std::string_view other) {
  const auto run = runOfInstance(name);
  return run ? runOfInstance(other) == run : name == other;
}

}  // namespace

std::string_view captionOf(RowType type) {
  constexpr std::string_view kCaptions[] = {"Single Instance", "Max.", "Min.", "Mean"};
  return kCaptions[static_cast<int>(type)];
}

void StoreValues(const EntryList& entries, EntryRange range, ShownRows& rows) {
  if (range.first == range.last) {
    rows.push_back({entries[range.first], RowType::single, false});
    return;
  }
  rows.push_back({entries[FindMaxFile(entries, range)], RowType::maximum, false});
  rows.push_back({entries[FindMinFile(entries, range)], RowType::minimum, false});
  rows.push_back({entries[FindMeanFile(entries, range)], RowType::mean, false});
}

ShownRows ComputeTableValues(EntryList& entries) {
  ShownRows rows;
  entries.SortEnteries();
  for (const EntryRange& group : groupsOf(entries)) StoreValues(entries, group, rows);
  return rows;
}

ShownRows rowsOfAll(const EntryList& entries) {
  ShownRows rows;
  rows.reserve(entries.size());
  for (const SummaryEntry& entry : entries.all()) rows.push_back({entry, RowType::single, false});
  return rows;
}

std::vector<std::string> namesOfRun(const EntryList& entries, std::string_view name) {
  std::vector<std::string> names;
  for (const SummaryEntry& entry : entries.all()) {
    if (belongsToRunOf(name, entry.name)) names.push_back(entry.name);
  }
  return names;
}

ShownRows ComputeSumTableValues(const EntryList& entries, std::string_view name) {
  ShownRows rows;
  for (const SummaryEntry& entry : entries.all()) {
    if (belongsToRunOf(name, entry.name)) rows.push_back({entry, RowType::single, false});
  }
  return rows;
}

}  // namespace kestra
