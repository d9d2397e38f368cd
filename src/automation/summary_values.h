#pragma once

#include "automation/json.h"
#include "summary/summary_store.h"
#include "summary/summary_table_screen.h"

// The summary store as scripts see it. Lists count from 0: entry 1 is the first.
namespace kestra {

Json describeEntryValues(const SummaryStore& store);          // by entry, a text a position
Json describeSelectedCount(const SummaryStore& store);        // by level
Json describeSelectedFields(const SummaryStore& store);       // by level, field numbers in the order of display
Json describeFieldSelected(const SummaryStore& store);        // by field, 1 to 40, and level: whether it is selected
Json describeFieldTitles(const FieldCatalogues& catalogues);  // by field and level; empty where a level has no more
Json describeFieldCount(const FieldCatalogues& catalogues);   // by level

// The rows of the table of the project's runs: names, all values by position, whether they stand for a whole run.
Json describeShownNames(const SummaryTableScreen& table);
Json describeShownValues(const SummaryTableScreen& table);
Json describeShownIsCondensed(const SummaryTableScreen& table);

}  // namespace kestra
