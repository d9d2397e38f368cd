#include "control/catalogue.h"

#include <algorithm>

#include "control/record_table.h"

namespace kestra {

std::span<const RecordLayout> recordsOf(RunKind run) {
  return run == RunKind::main ? mainRunRecords() : spillwayRunRecords();
}

std::span<const RecordLayout> layoutsOf(RunKind run, std::string_view keyword) {
  const auto records = recordsOf(run);
  const auto hasKeyword = [&](const RecordLayout& record) { return record.keyword == keyword; };
  const auto first = std::find_if(records.begin(), records.end(), hasKeyword);
  return {first, std::find_if_not(first, records.end(), hasKeyword)};
}

const RecordLayout* findRecord(std::string_view id, RunKind run) {
  const auto records = recordsOf(run);
  const auto found = std::ranges::find(records, id, &RecordLayout::id);
  return found == records.end() ? nullptr : &*found;
}

const FieldLayout* findField(std::span<const FieldLayout> fields, std::string_view name) {
  const auto found = std::ranges::find(fields, name, &FieldLayout::name);
  return found == fields.end() ? nullptr : &*found;
}

std::span<const Synonym> keywordSynonyms() {
  static constexpr std::array<Synonym, 4> kSynonyms = {
      {{"QUIL", "KESTRA"}, {"COMMENT", "*"}, {"HYDROGRAPH", "HYD"}, {"STROUTING", "STROUTE"}}};
  return kSynonyms;
}

std::string_view canonicalKeyword(std::string_view keyword) {
  const auto synonyms = keywordSynonyms();
  const auto found = std::ranges::find(synonyms, keyword, &Synonym::accepted);
  return found == synonyms.end() ? keyword : found->keyword;
}

}  // namespace kestra
