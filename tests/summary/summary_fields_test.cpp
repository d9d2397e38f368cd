#include "summary/summary_fields.h"

#include <gtest/gtest.h>

#include "platform/memory_file_system.h"

namespace kestra {
namespace {

using Titles = std::vector<std::string>;

TEST(FieldCatalogues, areReadFromTheApplicationDirectoryWhateverTheCaseOfTheNames) {
  MemoryFileSystem files;
  files.put("/app/SUMMARY.IDT", "\"Peak inflow, cfs\"\r\nCrest, Width\r\n");
  files.put("/app/Summary.ids", "\"One\"");
  FieldCatalogues catalogues;
  catalogues.LoadFieldCatalogues(files, "/app");
  EXPECT_EQ(catalogues.fieldTitles[0], (Titles{"Peak inflow, cfs", "Crest", "Width"}));
  EXPECT_EQ(catalogues.fieldTitles[1], Titles{"One"});
}

TEST(FieldCatalogues, takeFortyTitlesAtMostAndNoneFromAMissingFile) {
  MemoryFileSystem files;
  std::string text;
  for (int i = 1; i <= 41; ++i) text += "title " + std::to_string(i) + "\n";
  files.put("/app/Summary.idt", text);
  FieldCatalogues catalogues;
  catalogues.LoadFieldCatalogues(files, "/app");
  EXPECT_EQ(catalogues.fieldTitles[0].size(), 40U);
  EXPECT_EQ(catalogues.fieldTitles[0].back(), "title 40");
  EXPECT_TRUE(catalogues.fieldTitles[1].empty());
}

TEST(SummaryFile, holdsCountsNumbersAndQuotedNames) {
  EXPECT_EQ(summaryFileText({{{{3, 1}, {}}}}, {"dam", "dam1_0"}), "2\r\n3\r\n1\r\n0\r\n\"dam\"\r\n\"dam1_0\"\r\n");
}

TEST(SummaryFile, ofANewProjectSelectsTheDefaultFieldsAndNoEntry) {
  EXPECT_EQ(summaryFileText(defaultSummarySelection(), {}),
            "12\r\n1\r\n9\r\n11\r\n12\r\n17\r\n18\r\n19\r\n36\r\n37\r\n38\r\n39\r\n40\r\n"
            "6\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n");
}

}  // namespace
}  // namespace kestra
