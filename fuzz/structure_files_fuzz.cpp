// Any bytes as a side file of the structure table: reading never fails, no reader gives more rows than the table takes,
// and what was read is written and read back as it was.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz_target.h"
#include "screens/structure_files.h"

namespace kestra {
namespace {

constexpr std::size_t kTableRows = 50;
constexpr std::size_t kWrittenRows = 20;

std::vector<StructureRow> withElevation(std::vector<StructureRow> rows) {
  std::erase_if(rows, [](const StructureRow& row) { return row[0].empty(); });
  return rows;
}

// Neighbouring fields of stray bytes could join to characters that neither of them holds.
bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void checkStructureFile(std::string_view text) {
  const auto file = readStructureFile(text);
  if (!file) return;
  fuzzRequire(file->rows.size() <= kWrittenRows + 1, "a structure file gives 21 rows at most");
  std::vector<StructureRow> rows = file->rows;
  if (rows.size() > kWrittenRows) rows.resize(kWrittenRows);
  const auto again = readStructureFile(structureFileText(file->identifier.value_or(""), rows));
  fuzzRequire(again.has_value(), "a written structure file can be read");
  if (isAscii(text)) fuzzRequire(again->rows == withElevation(rows), "the rows are read back");
}

void checkTabs(std::string_view text) {
  const auto rows = readStructureTabs(text, kTableRows);
  fuzzRequire(rows.size() <= kTableRows, "a text gives no more rows than the table has");
  const auto again = readStructureTabs(structureTabsText(rows), kTableRows);
  fuzzRequire(again == withElevation(rows), "the rows of a text are read back");
}

}  // namespace

std::vector<std::string> fuzzSeeds() {
  const std::vector<StructureRow> rows = {{"100.5", "20", "300", "40"}, {"101", "", "310.25", ""}};
  return {structureFileText("POND1", rows), structureTabsText(rows), "STRUCTURE\nENDTABLE",
          "RATING TABLE NUMBER  2\n1\n2\n3\n     100.5               12.5              300.25    40.75\n\n"
          "*********************\n"};
}

}  // namespace kestra

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kestra;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  checkStructureFile(text);
  checkTabs(text);
  if (const auto rating = readTorveRating(text)) {
    fuzzRequire(rating->rows.size() <= 20, "a rating has 20 rows at most");
    fuzzRequire(rating->points >= rating->rows.size(), "the rows that are taken count as points");
  }
  return 0;
}
