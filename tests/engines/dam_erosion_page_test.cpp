#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "engines/known_failures.h"

// docs/engines/dam-erosion.md shows what the model makes of known failures, as a table between two marks and as a
// picture. With KESTRA_REWRITE_PAGES set in the environment the test writes both anew instead of comparing them.
namespace kestra {
namespace {

constexpr const char* kPage = KESTRA_SOURCE_DIR "/docs/engines/dam-erosion.md";
constexpr const char* kPicture = KESTRA_SOURCE_DIR "/docs/engines/dam-failures.svg";
constexpr std::string_view kBegin = "<!-- failures: begin -->\n\n";
constexpr std::string_view kEnd = "<!-- failures: end -->";
constexpr double kSoils[] = {kToughest, kMiddling, kWeakest};

struct Comparison {
  const KnownFailure* failure;
  double peaks[2][3];  // cfs, by model and soil
  double width;        // ft, of the middling soil
};

const std::vector<Comparison>& comparisons() {
  static const std::vector<Comparison> kAll = [] {
    std::vector<Comparison> all;
    for (const KnownFailure& failure : kKnownFailures) {
      Comparison row{&failure, {}, 0};
      for (int model = 0; model < 2; ++model)
        for (int soil = 0; soil < 3; ++soil)
          row.peaks[model][soil] = failed(failure, kHeadcutModels[model], kSoils[soil]).peakBreachFlow;
      row.width = failed(failure, HeadcutModel::energy, kMiddling).last.headcut->width;
      all.push_back(row);
    }
    return all;
  }();
  return kAll;
}

// Two digits that count, thousands apart.
std::string shown(double value) {
  std::string text = decimalNumber(value, 2);
  for (std::size_t at = text.size(); at > 3; at -= 3)
    if (text.find('.') == std::string::npos) text.insert(at - 3, ",");
  return text;
}

std::string table() {
  std::string text =
      "| Dam | documented | Technical Release 60 | Froehlich 1995 | energy form: 0.06, 2, 20 | stress form: 0.06, 2, "
      "20 | "
      "width, Froehlich 2008 | width, energy form, 2 |\n|---|---|---|---|---|---|---|---|\n";
  for (const Comparison& row : comparisons()) {
    const BreachedDam dam = breachedDam(*row.failure);
    text += "| " + std::string(row.failure->name) + " | " + shown(row.failure->peak) + " | " + shown(tr60Peak(dam)) +
            " | " + shown(froehlichPeak(dam));
    for (const auto& peaks : row.peaks)
      text += " | " + shown(peaks[0]) + ", " + shown(peaks[1]) + ", " + shown(peaks[2]);
    text += " | " + shown(froehlichWidth(dam)) + " | " + shown(row.width) + " |\n";
  }
  return text + "\n";
}

// Discharges from 100 to 100 million cfs, from the left to the right.
std::string across(double discharge) {
  return decimalNumber(std::round(150 + 80 * (std::log10(std::max(discharge, 100.0)) - 2)), 4);
}

std::string textAt(const std::string& x, double y, const std::string& text) {
  return "<text x=\"" + x + "\" y=\"" + decimalNumber(y) + "\">" + text + "</text>\n";
}

std::string picture() {
  std::string svg =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 660 310\" font-family=\"sans-serif\" font-size=\"12\">\n"
      "<title>Peak flow of known failures, documented and computed</title>\n"
      "<rect width=\"660\" height=\"310\" fill=\"white\"/>\n";
  for (int power = 2; power <= 8; ++power) {
    const std::string x = across(std::pow(10, power));
    svg += "<path d=\"M" + x + " 20V260\" stroke=\"#ddd\"/>\n" + textAt(x, 275, "1E" + std::to_string(power));
  }
  double y = 40;
  for (const Comparison& row : comparisons()) {
    svg += textAt("10", y + 8, row.failure->name);
    for (int model = 0; model < 2; ++model) {
      const auto& peaks = row.peaks[model];
      const std::string level = decimalNumber(y + 8 * model);
      const std::string colour = model == 0 ? "#1f77b4" : "#ff7f0e";
      svg += "<path d=\"M" + across(peaks[0]) + " " + level + "H" + across(peaks[2]) + "\" stroke=\"" + colour +
             "\" stroke-width=\"5\"/>\n<circle cx=\"" + across(peaks[1]) + "\" cy=\"" + level +
             "\" r=\"3\" fill=\"white\" stroke=\"" + colour + "\"/>\n";
    }
    svg += "<path d=\"M" + across(row.failure->peak) + " " + decimalNumber(y - 8) + "v24\" stroke=\"black\" " +
           "stroke-width=\"2\"/>\n";
    y += 36;
  }
  return svg +
         textAt("10", 300, "cfs: documented (black), energy form (blue), stress form (orange); ring: middling soil") +
         "</svg>\n";
}

std::string readFile(const char* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool rewrites() {
  return std::getenv("KESTRA_REWRITE_PAGES") != nullptr;
}

TEST(DamErosionPage, showsTheComparisonWithKnownFailures) {
  std::string page = readFile(kPage);
  const std::size_t begin = page.find(kBegin);
  const std::size_t end = page.find(kEnd);
  ASSERT_TRUE(begin != std::string::npos && end != std::string::npos);
  const std::size_t from = begin + kBegin.size();
  if (rewrites()) {
    page.replace(from, end - from, table());
    std::ofstream(kPage, std::ios::binary) << page;
    return;
  }
  EXPECT_EQ(page.substr(from, end - from), table());
}

TEST(DamErosionPage, picturesTheComparison) {
  if (rewrites())
    std::ofstream(kPicture, std::ios::binary) << picture();
  else
    EXPECT_EQ(readFile(kPicture), picture());
}

}  // namespace
}  // namespace kestra
