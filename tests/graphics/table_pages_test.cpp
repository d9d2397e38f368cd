#include "graphics/table_pages.h"

#include <gtest/gtest.h>

#include "support/canvas_calls.h"

namespace kestra {
namespace {

struct FixedMetrics : TextMetrics {
  TextSize measure(std::string_view text, double, bool) const override { return fixedTextSize(text); }
};

// The texts of each page.
std::vector<std::vector<std::string>> pagesOf(int columns, const std::vector<std::string>& cells) {
  std::vector<std::vector<std::string>> pages;
  for (const CanvasLog& page : tablePages({"Runs", columns, cells}, FixedMetrics())) {
    RecordingCanvas canvas;
    canvas.show(page);
    pages.push_back(textsOn(canvas));
  }
  return pages;
}

using Texts = std::vector<std::string>;

TEST(TablePages, haveTitleAndHeadings) {
  const auto pages = pagesOf(2, {"Name", "Peak", "dam", "150", "pond", ""});
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages[0], (Texts{"Runs, page 1", "Name", "Peak", "dam", "150", "pond"}));
  EXPECT_EQ(pagesOf(1, {"Name"}), std::vector<Texts>{(Texts{"Runs, page 1", "Name"})});
  EXPECT_TRUE(pagesOf(0, {}).empty());
}

TEST(TablePages, repeatTheHeadingsWhereTheRowsGoOn) {
  Texts cells = {"Name"};
  for (int row = 0; row < 100; ++row) cells.push_back("dam" + std::to_string(row));
  const auto pages = pagesOf(1, cells);
  ASSERT_GT(pages.size(), 1U);
  std::size_t rows = 0;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    EXPECT_EQ(pages[i][0], "Runs, page " + std::to_string(i + 1));
    EXPECT_EQ(pages[i][1], "Name");
    rows += pages[i].size() - 2;
  }
  EXPECT_EQ(rows, 100U);
  EXPECT_EQ(pages.back().back(), "dam99");
}

TEST(TablePages, repeatTheNamesWhereTheColumnsGoOn) {
  Texts cells = {"Name"};
  for (int column = 1; column < 12; ++column) cells.push_back("Peak Outflow " + std::to_string(column));
  cells.emplace_back("dam");
  for (int column = 1; column < 12; ++column) cells.push_back(std::to_string(column));
  const auto pages = pagesOf(12, cells);
  ASSERT_GT(pages.size(), 1U);
  std::size_t columns = 0;
  for (const Texts& page : pages) {
    EXPECT_EQ(page[1], "Name");
    EXPECT_EQ(std::count(page.begin(), page.end(), "dam"), 1);
    columns += (page.size() - 3) / 2;
  }
  EXPECT_EQ(columns, 11U);
}

TEST(TablePages, showAColumnThatIsWiderThanThePageAllTheSame) {
  const auto pages = pagesOf(3, {"Name", std::string(300, 'x'), "Peak", "dam", "1", "2"});
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[1], (Texts{"Runs, page 2", "Name", "Peak", "dam", "2"}));
}

}  // namespace
}  // namespace kestra
