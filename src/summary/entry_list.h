#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "summary/summary_fields.h"

namespace kestra {

// Positions of an entry's values: the lines of the dam's digest from the first on, those of an instance's digest behind
// them. A dam has more lines than that; an instance takes the first 25 of them, so that its own stand.
inline constexpr std::size_t kInstanceOffset = 25;
inline constexpr std::size_t kEntryPositions = kInstanceOffset + kMostSummaryFields;
using EntryValues = std::array<std::string, kEntryPositions>;

struct SummaryEntry {
  std::string name;  // of the run; no two of a list differ in letter case alone
  EntryValues values;
  bool ofInstance = false;  // the positions behind the 25th hold the digest of an instance
};

// Entries from the first to the last, both included, counted from 0.
struct EntryRange {
  std::size_t first = 0;
  std::size_t last = 0;
};

// The runs of a table in their order, found by name.
class EntryList {
 public:
  const std::vector<SummaryEntry>& all() const { return entries_; }
  std::size_t size() const { return entries_.size(); }
  const SummaryEntry& operator[](std::size_t index) const { return entries_[index]; }

  // Place of the entry of that name, whatever its letter case, from 0.
  std::optional<std::size_t> find(std::string_view name) const;
  // The entry of that name; a new one at the end where there is none. Holds until the next change of the list.
  SummaryEntry& named(const std::string& name, std::size_t* place = nullptr);

  void clear();
  void reserve(std::size_t count) { entries_.reserve(count); }
  // Takes entries out. A name that is not there is passed over.
  void discard(const std::vector<std::string>& names);
  // Brings the instances of each run together, behind the first of them; the order is otherwise kept. Fewer than three
  // entries stay as they are.
  void SortEnteries();
  // Exchanges two entries, counted from 0.
  void UpdateEntryArray(std::size_t a, std::size_t b);
  // Brings the instances of the run of entry `first` that stand at `position` or behind it to that place; the order is
  // otherwise kept.
  void ModifyEntryArray(std::size_t first, std::size_t position);

 private:
  void indexNames();

  std::vector<SummaryEntry> entries_;
  std::unordered_map<std::string, std::size_t> places_;  // by name in lower case
};

// What stands before the last "_" of an instance's name, which is its run; nothing for a name without one, or with one
// in first place alone.
std::optional<std::string_view> runOfInstance(std::string_view name);

// Neighbours that are instances of one run belong together; any other entry stands alone.
std::vector<EntryRange> groupsOf(const EntryList& entries);

// The number that orders instances: position 55, which is line 30 of an instance's digest. Nothing where that holds no
// number, such as "N/A".
std::optional<double> measureOf(const SummaryEntry& entry);

// The entry of a range with the highest and with the lowest measure; the first of the range where none has one. Of
// equal ones the earlier.
std::size_t FindMaxFile(const EntryList& entries, EntryRange range);
std::size_t FindMinFile(const EntryList& entries, EntryRange range);
// The entry whose measure is nearest to the sum of all divided by the number of entries, those without a measure
// included, which count as 0. Of equally near ones the earlier.
std::size_t FindMeanFile(const EntryList& entries, EntryRange range);

// The number at the front of a value, blanks aside; nothing where there is none or it is not finite.
std::optional<double> numberIn(std::string_view value);

}  // namespace kestra
