#pragma once

#include <string_view>
#include <vector>

#include "summary/entry_list.h"

namespace kestra {

enum class RowType { single, maximum, minimum, mean };
std::string_view captionOf(RowType type);  // "Single Instance", "Max.", "Min.", "Mean"

// A row of a summary table: an entry as it was when the table was made, and what it stands for.
struct ShownRow {
  SummaryEntry entry;
  RowType type = RowType::single;
  bool inputChanged = false;  // the control file of the run is not the one that the run was made from

  bool isCondensed() const { return type != RowType::single; }  // it stands for a whole run
};
using ShownRows = std::vector<ShownRow>;

// Adds the rows of a range: one for a single entry; for several, which are the instances of a run, those of the highest,
// the lowest and the mean measure.
void StoreValues(const EntryList& entries, EntryRange range, ShownRows& rows);

// The rows of a table, its entries being sorted first.
ShownRows ComputeTableValues(EntryList& entries);

// A row for each entry.
ShownRows rowsOfAll(const EntryList& entries);

// The names of all entries that belong to the run of `name`; that name alone where it is no instance.
std::vector<std::string> namesOfRun(const EntryList& entries, std::string_view name);

// A row for each of those entries.
ShownRows ComputeSumTableValues(const EntryList& entries, std::string_view name);

}  // namespace kestra
