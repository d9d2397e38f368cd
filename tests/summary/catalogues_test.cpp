// The catalogues that stand beside the programs, and the page that tells of the digests.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "platform/memory_file_system.h"
#include "summary/summary_fields.h"

namespace kestra {
namespace {

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

FieldCatalogues installed() {
  MemoryFileSystem files;
  for (const std::string name : {"Summary.idt", "Summary.ids"}) {
    files.put("/app/" + name, contentOf(std::string(KESTRA_BIN_DIR) + "/" + name));
  }
  FieldCatalogues catalogues;
  catalogues.LoadFieldCatalogues(files, "/app");
  return catalogues;
}

TEST(Catalogues, standBesideTheProgramsWithATitleForEachField) {
  const FieldCatalogues catalogues = installed();
  ASSERT_EQ(catalogues.fieldTitles[0].size(), 40U);
  ASSERT_EQ(catalogues.fieldTitles[1].size(), 6U);
  EXPECT_EQ(catalogues.fieldTitles[0][12], "Peak Principal Spillway Discharge (cfs)");
  EXPECT_EQ(catalogues.fieldTitles[0][19], "Maximum Unit Discharge on Slope (cfs/ft)");
  EXPECT_EQ(catalogues.fieldTitles[0][39], "Warnings");
  EXPECT_EQ(catalogues.fieldTitles[1][2], "Duration of Flow (h)");
  for (const auto& titles : catalogues.fieldTitles) {
    EXPECT_EQ(std::set<std::string>(titles.begin(), titles.end()).size(), titles.size());
    for (const std::string& title : titles) EXPECT_EQ(trim(title), title);
  }
}

TEST(Catalogues, nameEveryFieldThatANewProjectSelects) {
  const FieldCatalogues catalogues = installed();
  const SummarySelection selection = defaultSummarySelection();
  for (std::size_t level = 0; level < 2; ++level) {
    for (const int field : selection.selectedFields[level]) {
      EXPECT_LE(static_cast<std::size_t>(field), catalogues.fieldTitles[level].size());
    }
  }
}

TEST(DigestsPage, tellsOfEachLineOnce) {
  const std::string page = contentOf(std::string(KESTRA_SOURCE_DIR) + "/docs/formats/digests.md");
  const std::size_t begin = page.find("<!-- lines: begin -->");
  const std::size_t end = page.find("<!-- lines: end -->");
  ASSERT_LT(begin, end);
  LineReader lines(std::string_view(page).substr(begin, end - begin));
  std::string_view line;
  long long next = 1;
  while (lines.next(line)) {
    const std::size_t bar = line.find('|', 1);
    const std::string_view cell = line.starts_with('|') ? trim(line.substr(1, bar - 1)) : std::string_view();
    const auto first = wholeNumber(cell.substr(0, cell.find('-')));
    if (!first) continue;
    EXPECT_EQ(*first, next);
    const std::size_t dash = cell.find('-');
    next = (dash == std::string_view::npos ? *first : wholeNumber(cell.substr(dash + 1)).value_or(0)) + 1;
  }
  EXPECT_EQ(next, 41);
}

}  // namespace
}  // namespace kestra
