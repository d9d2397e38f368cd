#include "summary/entry_list.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr std::size_t kMeasure = kInstanceOffset + 30 - 1;
constexpr std::size_t kFewestToSort = 3;

// For each entry the place of the first that belongs to the same run.
std::vector<std::size_t> leadersOf(const std::vector<SummaryEntry>& entries) {
  std::unordered_map<std::string_view, std::size_t> firsts;
  std::vector<std::size_t> leaders(entries.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const auto run = runOfInstance(entries[i].name);
    leaders[i] = run ? firsts.try_emplace(*run, i).first->second : i;
  }
  return leaders;
}

// The entry of a range whose measure comes before that of all others by `isBetter`.
template <class IsBetter>
std::size_t findBest(const EntryList& entries, EntryRange range, const IsBetter& isBetter) {
  std::optional<double> best;
  std::size_t found = range.first;
  for (std::size_t i = range.first; i <= range.last; ++i) {
    const auto measure = measureOf(entries[i]);
    if (!measure || (best && !isBetter(*measure, *best))) continue;
    best = measure;
    found = i;
  }
  return found;
}

}  // namespace

std::optional<std::size_t> EntryList::find(std::string_view name) const {
  const auto at = places_.find(toLower(name));
  if (at == places_.end()) return std::nullopt;
  return at->second;
}

SummaryEntry& EntryList::named(const std::string& name, std::size_t* place) {
  const auto [at, isNew] = places_.try_emplace(toLower(name), entries_.size());
  if (isNew) entries_.push_back({name, {}, false});
  if (place != nullptr) *place = at->second;
  return entries_[at->second];
}

void EntryList::clear() {
  entries_.clear();
  places_.clear();
}

void EntryList::discard(const std::vector<std::string>& names) {
  std::vector<bool> goes(entries_.size());
  for (const std::string& name : names) {
    if (const auto at = find(name)) goes[*at] = true;
  }
  std::vector<SummaryEntry> kept;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (!goes[i]) kept.push_back(std::move(entries_[i]));
  }
  entries_ = std::move(kept);
  indexNames();
}

void EntryList::SortEnteries() {
  if (entries_.size() < kFewestToSort) return;
  const std::vector<std::size_t> leaders = leadersOf(entries_);
  if (std::is_sorted(leaders.begin(), leaders.end())) return;
  std::vector<std::size_t> order(entries_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&leaders](std::size_t a, std::size_t b) { return leaders[a] < leaders[b]; });
  std::vector<SummaryEntry> sorted;
  sorted.reserve(entries_.size());
  for (const std::size_t i : order) sorted.push_back(std::move(entries_[i]));
  entries_ = std::move(sorted);
  indexNames();
}

void EntryList::UpdateEntryArray(std::size_t a, std::size_t b) {
  std::swap(entries_[a], entries_[b]);
  indexNames();
}

void EntryList::ModifyEntryArray(std::size_t first, std::size_t position) {
  const auto found = runOfInstance(entries_[first].name);
  if (!found) return;
  const std::string run(*found);
  std::stable_partition(entries_.begin() + static_cast<std::ptrdiff_t>(position), entries_.end(),
                        [&run](const SummaryEntry& entry) { return runOfInstance(entry.name) == run; });
  indexNames();
}

void EntryList::indexNames() {
  places_.clear();
  for (std::size_t i = 0; i < entries_.size(); ++i) places_.emplace(toLower(entries_[i].name), i);
}

std::optional<std::string_view> runOfInstance(std::string_view name) {
  const std::size_t mark = name.rfind('_');
  if (mark == std::string_view::npos || mark == 0) return std::nullopt;
  return name.substr(0, mark);
}

std::vector<EntryRange> groupsOf(const EntryList& entries) {
  std::vector<EntryRange> groups;
  std::optional<std::string_view> before;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const auto run = runOfInstance(entries[i].name);
    if (run && run == before) {
      groups.back().last = i;
    } else {
      groups.push_back({i, i});
    }
    before = run;
  }
  return groups;
}

std::optional<double> numberIn(std::string_view value) {
  const std::string_view text = trim(value);
  std::string_view digits = text;
  if (digits.starts_with('-') || digits.starts_with('+')) digits.remove_prefix(1);
  if (digits.starts_with('.')) digits.remove_prefix(1);
  if (digits.empty() || digits.front() < '0' || digits.front() > '9') return std::nullopt;
  const double number = lenientNumber(text);
  if (!std::isfinite(number)) return std::nullopt;
  return number;
}

std::optional<double> measureOf(const SummaryEntry& entry) {
  return numberIn(entry.values[kMeasure]);
}

std::size_t FindMaxFile(const EntryList& entries, EntryRange range) {
  return findBest(entries, range, [](double a, double b) { return a > b; });
}

std::size_t FindMinFile(const EntryList& entries, EntryRange range) {
  return findBest(entries, range, [](double a, double b) { return a < b; });
}

std::size_t FindMeanFile(const EntryList& entries, EntryRange range) {
  const auto valueAt = [&entries](std::size_t i) { return measureOf(entries[i]).value_or(0); };
  double sum = 0;
  for (std::size_t i = range.first; i <= range.last; ++i) sum += valueAt(i);
  const double mean = sum / static_cast<double>(range.last - range.first + 1);
  std::size_t nearest = range.first;
  for (std::size_t i = range.first; i <= range.last; ++i) {
    if (std::fabs(valueAt(i) - mean) < std::fabs(valueAt(nearest) - mean)) nearest = i;
  }
  return nearest;
}

}  // namespace kestra
