#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "base/lines.h"
#include "describe_catalogue.h"

// docs/formats/control-file.md holds the catalogue between two marks. With KESTRA_REWRITE_PAGES set in the environment
// the test writes the page anew instead of comparing it.
namespace kestra {
namespace {

constexpr const char* kPage = KESTRA_SOURCE_DIR "/docs/formats/control-file.md";

std::string readFile(const char* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string readPage() {
  return readFile(kPage);
}

// As a page shows a file: line feeds alone, no blanks at the ends of lines.
std::string shown(const std::string& text) {
  std::string result;
  LineReader lines(text);
  std::string_view line;
  while (lines.next(line)) result.append(line.substr(0, line.find_last_not_of(' ') + 1)).append("\n");
  return result;
}

struct PagePart {
  const char* name;
  RunKind run;
};

class ControlFilePage : public testing::TestWithParam<PagePart> {};

TEST_P(ControlFilePage, showsTheCatalogueAsItIs) {
  const std::string wanted = describeCatalogue(GetParam().run);
  std::string page = readPage();
  const std::string begin = "<!-- " + std::string(GetParam().name) + ": begin -->\n\n";
  const std::string end = "<!-- " + std::string(GetParam().name) + ": end -->";
  const std::size_t from = page.find(begin) + begin.size();
  ASSERT_NE(page.find(begin), std::string::npos);
  ASSERT_NE(page.find(end, from), std::string::npos);
  if (std::getenv("KESTRA_REWRITE_PAGES") != nullptr) {
    page.replace(from, page.find(end, from) - from, wanted);
    std::ofstream(kPage, std::ios::binary) << page;
  }
  EXPECT_EQ(readPage().substr(from, readPage().find(end) - from), wanted);
}

INSTANTIATE_TEST_SUITE_P(Parts, ControlFilePage,
                         testing::Values(PagePart{"records", RunKind::main},
                                         PagePart{"spillway records", RunKind::spillway}));

TEST(ControlFilePageExample, standsAsInItsFile) {
  const std::string example = shown(readFile(KESTRA_SOURCE_DIR "/examples/stock-pond.KSC"));
  ASSERT_FALSE(example.empty());
  EXPECT_NE(readPage().find("```\n" + example + "```\n"), std::string::npos);
}

}  // namespace
}  // namespace kestra
