#pragma once

#include "automation/json.h"
#include "summary/summary_store.h"

// The summary store as scripts see it. Lists count from 0: entry 1 is the first.
namespace kestra {

Json describeEntryValues(const SummaryStore& store);          // by entry, a text a position
Json describeSelectedCount(const SummaryStore& store);        // by level
Json describeSelectedFields(const SummaryStore& store);       // by level, field numbers in the order of display
Json describeFieldSelected(const SummaryStore& store);        // by field, 1 to 40, and level: whether it is selected
Json describeFieldTitles(const FieldCatalogues& catalogues);  // by field and level; empty where a level has no more
Json describeFieldCount(const FieldCatalogues& catalogues);   // by level

}  // namespace kestra
