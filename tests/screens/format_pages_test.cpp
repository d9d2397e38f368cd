#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "screens/qt40_file.h"
#include "screens/structure_files.h"
#include "screens/tab_hydrographs.h"
#include "screens/thy_file.h"
#include "screens/vhy_file.h"

namespace kestra {
namespace {

using Texts = std::vector<std::string>;

// The examples of a page of docs/formats, in its order.
Texts examplesOf(const std::string& page) {
  std::ifstream file(std::string(KESTRA_SOURCE_DIR) + "/docs/formats/" + page, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  const std::string fence = "```\n";
  Texts examples;
  std::size_t at = text.find(fence);
  while (at != std::string::npos) {
    at += fence.size();
    const std::size_t end = text.find(fence, at);
    examples.push_back(text.substr(at, end - at));
    at = text.find(fence, end + fence.size());
  }
  return examples;
}

std::string withLineFeedsAlone(std::string text) {
  std::erase(text, '\r');
  return text;
}

TEST(StructureTablePage, showsAFileThatIsReadAndWrittenSo) {
  const Texts examples = examplesOf("structure-table.md");
  ASSERT_EQ(examples.size(), 1U);
  const auto file = readStructureFile(examples[0]);
  ASSERT_TRUE(file);
  EXPECT_EQ(file->rows, (std::vector<StructureRow>{
                            {"1004", "0", "3.5", "1.2"}, {"1008", "", "14.25", "4.6"}, {"1012", "120", "41", "9"}}));
  EXPECT_EQ(withLineFeedsAlone(structureFileText(*file->identifier, file->rows)), examples[0]);
}

TEST(HydrographsPage, showsFilesThatAreReadAsItSays) {
  const Texts examples = examplesOf("hydrographs.md");
  ASSERT_EQ(examples.size(), 6U);

  const auto thy = readThy(examples[0]);
  ASSERT_TRUE(thy);
  EXPECT_EQ(thy->title, "Storm of June");
  EXPECT_EQ(thy->flows, (Texts{"0", "12.5", "60", "148", "131", "90", "41", "0"}));
  EXPECT_EQ(withLineFeedsAlone(thyText(*thy)), examples[0]);

  const VhyHydrograph vhy = readVhy(examples[1], "1", 1, 100);
  EXPECT_EQ(vhy.startTime, "0.5");
  EXPECT_EQ(vhy.increment, "0.5");
  EXPECT_EQ(vhy.rows, (std::vector<HydrographRow>{{"0", "0"}, {"0.5", "42.5"}, {"1", "17"}}));

  EXPECT_EQ(readBasix(examples[2], 100)->rows,
            (std::vector<HydrographRow>{{"0", "12.5"}, {"0.25", "60"}, {"0.5", "148"}}));
  EXPECT_EQ(readRivex(examples[3], 100)->rows, (std::vector<HydrographRow>{{"0", "12.5"}, {"1", "60"}}));
  EXPECT_EQ(readTabRows(examples[4], 100),
            (std::vector<HydrographRow>{{"0", "12.5"}, {"0.25", "60"}, {"0.75", "148"}}));

  const Qt40Hydrograph qt40 = readQt40(examples[5], 0, 100);
  EXPECT_EQ(qt40.title, "STORM A");
  EXPECT_EQ(qt40.increment, "0.25");
  EXPECT_EQ(qt40.flows, (Texts{"10", "12.5", "60", "148", "131", "90", "41", "10"}));
}

}  // namespace
}  // namespace kestra
