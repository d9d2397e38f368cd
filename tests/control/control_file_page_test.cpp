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
constexpr std::string_view kBegin = "<!-- records: begin -->\n\n";
constexpr std::string_view kEnd = "<!-- records: end -->";

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

TEST(ControlFilePage, showsTheCatalogueAsItIs) {
  std::string page = readPage();
  const std::size_t begin = page.find(kBegin);
  const std::size_t end = page.find(kEnd);
  ASSERT_NE(begin, std::string::npos);
  ASSERT_NE(end, std::string::npos);
  const std::size_t from = begin + kBegin.size();
  ASSERT_LE(from, end);
  if (std::getenv("KESTRA_REWRITE_PAGES") != nullptr) {
    page.replace(from, end - from, describeCatalogue());
    std::ofstream(kPage, std::ios::binary) << page;
  }
  EXPECT_EQ(readPage().substr(from, readPage().find(kEnd) - from), describeCatalogue());
}

TEST(ControlFilePage, showsTheExampleAsItStandsInItsFile) {
  const std::string example = shown(readFile(KESTRA_SOURCE_DIR "/examples/stock-pond.KSC"));
  ASSERT_FALSE(example.empty());
  EXPECT_NE(readPage().find("```\n" + example + "```\n"), std::string::npos);
}

}  // namespace
}  // namespace kestra
