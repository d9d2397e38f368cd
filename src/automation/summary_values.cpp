#include "automation/summary_values.h"

#include <algorithm>

namespace kestra {

Json describeEntryValues(const SummaryStore& store) {
  Json list = Json::array();
  for (const SummaryEntry& entry : store.entries()) list.push_back(entry.values);
  return list;
}

Json describeSelectedCount(const SummaryStore& store) {
  const auto& [dam, instance] = store.selection().selectedFields;
  return {dam.size(), instance.size()};
}

Json describeSelectedFields(const SummaryStore& store) {
  return store.selection().selectedFields;
}

Json describeFieldSelected(const SummaryStore& store) {
  const auto selects = [](const std::vector<int>& fields, int field) {
    return std::find(fields.begin(), fields.end(), field) != fields.end();
  };
  const auto& [dam, instance] = store.selection().selectedFields;
  Json list = Json::array();
  for (int field = 1; field <= static_cast<int>(kMostSummaryFields); ++field) {
    list.push_back(Json::array({selects(dam, field), selects(instance, field)}));
  }
  return list;
}

Json describeFieldTitles(const FieldCatalogues& catalogues) {
  const auto& [dam, instance] = catalogues.fieldTitles;
  Json titles = Json::array();
  for (std::size_t i = 0; i < std::max(dam.size(), instance.size()); ++i) {
    titles.push_back(Json::array({i < dam.size() ? dam[i] : "", i < instance.size() ? instance[i] : ""}));
  }
  return titles;
}

Json describeFieldCount(const FieldCatalogues& catalogues) {
  return {catalogues.fieldTitles[0].size(), catalogues.fieldTitles[1].size()};
}

Json describeShownNames(const SummaryTableScreen& table) {
  Json list = Json::array();
  for (const ShownRow& row : table.shownRows()) list.push_back(row.entry.name);
  return list;
}

Json describeShownValues(const SummaryTableScreen& table) {
  Json list = Json::array();
  for (const ShownRow& row : table.shownRows()) list.push_back(row.entry.values);
  return list;
}

Json describeShownIsCondensed(const SummaryTableScreen& table) {
  Json list = Json::array();
  for (const ShownRow& row : table.shownRows()) list.push_back(row.isCondensed());
  return list;
}

}  // namespace kestra
