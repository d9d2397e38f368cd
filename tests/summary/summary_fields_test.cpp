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

}  // namespace
}  // namespace kestra
