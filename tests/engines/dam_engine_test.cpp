#include "kestrasim/dam_engine.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "control/catalogue.h"
#include "engines/close_to.h"
#include "engines/dam_text.h"

namespace kestra {
namespace {

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  LineReader reader(text);
  std::string_view line;
  while (reader.next(line)) lines.emplace_back(line);
  return lines;
}

// The rows of a table from so many lines behind the line that trims to `anchor`, to a blank line.
std::vector<std::string> rowsBehind(const std::string& text, std::string_view anchor, std::size_t skip) {
  const std::vector<std::string> lines = linesOf(text);
  std::vector<std::string> rows;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (trim(lines[i]) != anchor) continue;
    for (i += skip; i < lines.size() && !trim(lines[i]).empty(); ++i) rows.push_back(lines[i]);
    return rows;
  }
  return rows;
}

double figure(std::string_view row, int first, int width) {
  return lenientNumber(columns(row, first, width));
}

std::string lineThatBegins(const std::string& text, std::string_view begin) {
  for (const std::string& line : linesOf(text)) {
    if (line.starts_with(begin)) return line;
  }
  return {};
}

TEST(Report, echoesTheMainRunBehindOneBlank) {
  const std::string text = DamText().text();
  const std::vector<std::string> given = linesOf(text);
  const std::vector<std::string> lines = linesOf(runDam(text).report);
  std::size_t at = 0;
  while (at < lines.size() && lines[at] != " " + given[0]) ++at;
  ASSERT_LT(at + given.size(), lines.size());
  for (std::size_t i = 0; i < given.size(); ++i) EXPECT_EQ(lines[at + i], " " + given[i]);
}

TEST(Report, hasAllTablesInTheirColumns) {
  const std::string report = runDam(DamText().text()).report;
  const auto rating = rowsBehind(report, "Spillway and Overtop Discharge Rating", 3);
  ASSERT_GT(rating.size(), 40U);
  EXPECT_EQ(figure(rating.front(), 1, 12), 118);
  EXPECT_EQ(figure(rating.back(), 1, 12), 130);
  for (const std::string& row : rating) {
    double sum = 0;
    for (int field = 1; field < 6; ++field) sum += figure(row, 1 + 12 * field, 12);
    EXPECT_NEAR(sum, figure(row, 73, 12), 0.03);
  }
  const auto storage = rowsBehind(report, "Listing of Tabular Data-Expanded Volume", 3);
  ASSERT_EQ(storage.size(), 4U);
  EXPECT_EQ(figure(storage[2], 1, 4), 3);
  EXPECT_EQ(figure(storage[2], 5, 12), 120);
  EXPECT_EQ(figure(storage[2], 29, 12), 80);
  EXPECT_EQ(figure(storage[2], 41, 12), 8);
  EXPECT_EQ(figure(storage[2], 53, 12), 80);
  EXPECT_EQ(figure(lineThatBegins(report, "DAM CREST ELEVATION"), 21, 10), 125);
}

TEST(Report, routesInRowsOfTenColumns) {
  const std::string report = runDam(DamText().text()).report;
  const auto headings = rowsBehind(report, "Hydrograph Routing", 0);
  EXPECT_TRUE(trim(headings[4]).starts_with("(hr)"));
  const auto rows = rowsBehind(report, "Hydrograph Routing", 6);
  ASSERT_GE(rows.size(), 10U);
  EXPECT_EQ(figure(rows[0], 81, 10), 118);
  EXPECT_EQ(figure(rows[3], 1, 10), 1.5);
  EXPECT_EQ(figure(rows[3], 11, 10), 1200);
  double highest = 0;
  for (const std::string& row : rows) {
    double sum = 0;
    for (int field = 2; field < 7; ++field) sum += figure(row, 1 + 10 * field, 10);
    EXPECT_NEAR(sum, figure(row, 71, 10), 0.03);
    EXPECT_EQ(figure(row, 81, 10), figure(row, 91, 10));
    highest = std::max(highest, figure(row, 81, 10));
  }
  EXPECT_GT(highest, 124);
  const std::string maximum = lineThatBegins(report, "Maximum pool elevation was");
  EXPECT_GE(figure(maximum, 27, 11), highest);
  EXPECT_LT(figure(maximum, 27, 11), highest + 0.2);
}

TEST(Report, tellsItsFiguresWhereReadersLook) {
  const std::string report = runDam(breachText().text()).report;
  const std::string peak = lineThatBegins(report, "Outflow peaked at");
  const std::size_t with = peak.find("with");
  const std::size_t cfs = peak.find("cfs");
  ASSERT_NE(cfs, std::string::npos);
  const double discharge = lenientNumber(peak.substr(with + 4, cfs - with - 4));
  EXPECT_GT(discharge, 4000);
  EXPECT_TRUE(peak.ends_with(" feet."));
  EXPECT_GT(lenientNumber(peak.substr(peak.size() - 16, 10)), 105);
  const double lost =
      figure(lineThatBegins(report, "Embankment slope stress or discharge exceeded 100% of allowable at"), 67, 10);
  const double initiated = figure(lineThatBegins(report, "Embankment breach initiated at"), 32, 10);
  const double completed = figure(lineThatBegins(report, "Embankment breach completed at"), 32, 10);
  EXPECT_GT(lost, 0);
  EXPECT_GT(initiated, lost);
  EXPECT_GT(completed, initiated);
  EXPECT_GT(figure(lineThatBegins(report, "Final breach width was"), 24, 8), 10);
  EXPECT_GT(figure(lineThatBegins(report, "Total duration of flow over top of dam:"), 40, 10), 0.1);
}

TEST(Report, tellsTheStressOnTheSlopeInItsColumns) {
  const std::string report = runDam(breachText().text()).report;
  const std::vector<std::string> lines = linesOf(report);
  const auto rows = rowsBehind(report, "Stress on Vegetated Embankment Slope", 5);
  ASSERT_GT(rows.size(), 4U);
  for (const std::string& line : lines) {
    if (trim(line) != "Stress on Vegetated Embankment Slope") continue;
    EXPECT_EQ(columns(line, 20, 36), trim(line));
  }
  EXPECT_EQ(rows[0].size(), 85U);
  EXPECT_GT(figure(rows.back(), 74, 12), 100);
  EXPECT_GT(figure(rows[2], 25, 12), 0);
}

TEST(Report, tellsTheFlowOnRiprapBehindTwoRowsOfNone) {
  DamText dam = breachText();
  dam.with("OPTION", {"OPTION    COEFF     RIPRAP    "});
  dam.with("DWNSTREAM", {"DWNSTREAM 2.5       1.75      0.8       1.6       0.4"});
  const std::string report = runDam(dam.text()).report;
  const auto rows = rowsBehind(report, "Flow on Riprapped Embankment Slope", 3);
  ASSERT_GT(rows.size(), 4U);
  EXPECT_EQ(figure(rows[0], 13, 18), 0);
  EXPECT_EQ(figure(rows[1], 31, 20), 0);
  double highest = 0;
  for (const std::string& row : rows) highest = std::max(highest, figure(row, 31, 20));
  EXPECT_GT(highest, 50);
  EXPECT_EQ(report.find("Stress on Vegetated"), std::string::npos);
}

TEST(Report, tellsTheDrawdown) {
  DamText dam;
  dam.with("OPTION", {"OPTION    COEFF     EARTH               DRAWDOWN  85        PERCENT   240"});
  const std::string report = runDam(dam.text()).report;
  EXPECT_GT(lenientNumber(lineThatBegins(report, "Drawdown computations began at").substr(30)), 4);
  const auto rows = rowsBehind(report, "Drawdown  Reservoir", 3);
  ASSERT_GT(rows.size(), 3U);
  EXPECT_GT(figure(rows.front(), 85, 10), figure(rows.back(), 85, 10));
  EXPECT_GT(figure(rows.front(), 21, 10), 0);
  EXPECT_NE(lineThatBegins(report, "Reached at"), "");
}

TEST(Report, echoesTheProfileInPlaceOfTheReaches) {
  DamText dam;
  dam.with("ASRATING", {"ASSURFACE 1Earth    3         60       110        900",
                        "          0         400       5.6       0.7       1         1", "ENDTABLE"});
  dam.behind({"QUIL      02/09/20022         Earth", "ASSPRFL   41",
              "          0         118       50        122       100       122", "          300       110", "ENDTABLE",
              "ENDRUN"});
  const std::vector<std::string> lines = linesOf(runDam(dam.text()).report);
  std::size_t at = 0;
  while (at < lines.size() && !lines[at].starts_with(" ASSURFACE")) ++at;
  ASSERT_LT(at + 5, lines.size());
  EXPECT_EQ(lines[at + 1], "                0.000   118.000");
  EXPECT_EQ(figure(lines[at + 2], 12, 10), 50);
  EXPECT_EQ(figure(lines[at + 2], 22, 10), 122);
  EXPECT_EQ(lines[at + 5], " ENDTABLE");
}

TEST(Histories, haveTheirColumns) {
  const DamFiles files = runDam(breachText().text());
  ASSERT_TRUE(files.breach);
  ASSERT_TRUE(files.headcut);
  const std::vector<std::string> breach = linesOf(*files.breach);
  ASSERT_GT(breach.size(), 20U);
  EXPECT_EQ(breach[2], breach[4]);
  EXPECT_EQ(figure(breach[2], 25, 12), 125);
  EXPECT_EQ(figure(breach.back(), 25, 12), 100);
  EXPECT_EQ(columns(breach.back(), 11, 2), "  ");
  EXPECT_EQ(columns(breach.back(), 49, 2), "  ");
  EXPECT_GT(figure(breach.back(), 51, 10), 10);
  EXPECT_EQ(breach.back().size(), 72U);
  const std::vector<std::string> headcut = linesOf(*files.headcut);
  ASSERT_GT(headcut.size(), 10U);
  // From the downstream edge of the crest upstream: 75 ft of upstream slope and 12 ft of crest.
  EXPECT_LE(figure(headcut[2], 31, 6), 87);
  EXPECT_EQ(figure(headcut.back(), 31, 6), 0);
  EXPECT_EQ(columns(headcut[2], 37, 4), "    ");
  EXPECT_EQ(figure(headcut.back(), 41, 8), 100);
  EXPECT_EQ(headcut[2].size(), 72U);
}

TEST(Histories, areLeftOutWithoutABreachAnalysis) {
  const DamFiles files = runDam(DamText().text());
  EXPECT_FALSE(files.breach);
  EXPECT_FALSE(files.headcut);
}

TEST(Histories, ofADryDamAreHeadingsAlone) {
  DamText dam = breachText();
  dam.with("HYD", {"HYD       Flood     0.5       0         0C        ", "                    0         10        0",
                   "ENDTABLE"});
  const DamFiles files = runDam(dam.text());
  EXPECT_FALSE(files.breach);
  EXPECT_EQ(linesOf(files.headcut.value()).size(), 2U);
  EXPECT_EQ(files.report.find("Stress on"), std::string::npos);
}

// No line outside the echo may be taken for a record, and words that are counted stand in messages alone.
TEST(Report, holdsNoKeywordOutsideItsEcho) {
  const std::string text = breachText().text();
  const std::vector<std::string> given = linesOf(text);
  bool behindEcho = false;
  for (const std::string& line : linesOf(runDam(text).report)) {
    if (line == " ENDRUN") {
      behindEcho = true;
      continue;
    }
    if (!behindEcho) continue;
    EXPECT_EQ(line.find("rror"), std::string::npos) << line;
    EXPECT_EQ(line.find("ERROR"), std::string::npos) << line;
    const std::string_view key = columns(line, 1, 11);
    for (const RunKind kind : {RunKind::main, RunKind::spillway}) {
      for (const RecordLayout& record : recordsOf(kind)) {
        if (record.keyword == "*") continue;
        EXPECT_EQ(key.find(record.keyword), std::string_view::npos) << line;
      }
    }
  }
  EXPECT_TRUE(behindEcho);
}

TEST(RunDam, ofATextWithoutADamGivesItsMessages) {
  for (const char* text : {"", "\r\n", "ENDRUN\r\n", "KESTRA\r\nENDRUN\r\n", "\xFF\xFE\x00", "HYD\r\n"}) {
    const DamFiles files = runDam(text);
    EXPECT_NE(files.report.find("***** ERROR - "), std::string::npos);
    EXPECT_FALSE(files.breach);
  }
}

struct AbsurdCase {
  const char* name;
  DamText dam;
};

class Absurd : public testing::TestWithParam<AbsurdCase> {};

TEST_P(Absurd, damIsRoutedToAnEndWithoutASingleNoNumber) {
  const DamFiles files = runDam(GetParam().dam.text());
  for (const std::string& text : {files.report, files.breach.value_or(""), files.headcut.value_or("")}) {
    std::istringstream words(text);
    for (std::string word; words >> word;) {
      EXPECT_TRUE(word != "nan" && word != "-nan" && word != "inf" && word != "-inf");
    }
  }
  EXPECT_NE(files.report.find("\r\nEnd of run\r\n"), std::string::npos);
}

DamText changed(std::string_view keyword, std::vector<std::string> lines) {
  DamText dam = breachText();
  dam.with(keyword, std::move(lines));
  return dam;
}

DamText noise() {
  std::vector<std::string> lines{"HYD       Flood     0.01      0         0C        "};
  unsigned state = 1;
  for (int i = 0; i < 1000; ++i) {
    std::string line(20, ' ');
    for (int j = 0; j < 5; ++j) {
      state = state * 1664525U + 1013904223U;
      line += PadField(std::to_string(state % 90000U), 10);
    }
    lines.push_back(line);
  }
  lines.emplace_back("ENDTABLE");
  return changed("HYD", lines);
}

INSTANTIATE_TEST_SUITE_P(
    Dams, Absurd,
    testing::Values(
        AbsurdCase{"noise", noise()},
        AbsurdCase{"hugeFlood", changed("HYD", {"HYD       Flood     0.5       0         0C",
                                                "                    0         1E99      1E300", "ENDTABLE"})},
        AbsurdCase{"tinyReservoir",
                   changed("STRUCTURE", {"STRUCTURE Test", "                    100                 0",
                                         "                    130                 0.000001", "ENDTABLE"})},
        AbsurdCase{"flatReservoir", changed("STRUCTURE", {"STRUCTURE Test", "                    100                 0",
                                                          "                    120                 0",
                                                          "                    130                 50", "ENDTABLE"})},
        AbsurdCase{"floorWithoutArea", changed("STROUTE", {"STROUTE   100       100       FEET"})},
        AbsurdCase{"zeroSlopes",
                   changed("DWNSTREAM", {"DWNSTREAM 0         0         0         0         0         0"})},
        AbsurdCase{"zeroCrestWidth", changed("DAMCREST", {"DAMCREST  0         0         0"})},
        AbsurdCase{"crestBelowBase", changed("STROUTE", {"STROUTE   118       500       FEET"})},
        AbsurdCase{"crestAtOnePoint", changed("CRESTPRFL", {"CRESTPRFL", "          0         125",
                                                            "          0.0001    125", "ENDTABLE"})},
        AbsurdCase{"drownedValley", changed("TAILWATER", {"TAILWATER", "          200       0", "ENDTABLE"})},
        AbsurdCase{"endlessErosion",
                   changed("HCMODEL", {"HCMODEL   1                   1E9                 0         1E9"})},
        AbsurdCase{"weakBank", changed("HCMODEL", {"HCMODEL   2         0         50        0         0"})},
        AbsurdCase{"hugePipe",
                   changed("PSpDATA", {"PSpDATA   9999 99999999999                0.013     104       101       SC"})},
        AbsurdCase{"simpleWithoutSlope", changed("OPTION", {"OPTION    SIMPLE    BARESOIL  "})}),
    [](const auto& tested) { return std::string(tested.param.name); });

std::string conduitReport(std::vector<std::string> data, std::vector<std::string> inlet,
                          std::vector<std::string> hood = {}) {
  DamText dam;
  dam.with("PSpINLET", std::move(inlet)).with("PSpDATA", std::move(data));
  dam.with("PSpCOEFFS", {"PSpCOEFFS 0.6       3.1416    3.1       0.6       3.1       6"});
  if (!hood.empty()) dam.with("PSpHOOD", std::move(hood));
  return runDam(dam.text()).report;
}

TEST(RunDam, routesThroughConduitsOfAllFiveTypes) {
  const char* const plain = "PSpINLET  0.8       10        118";
  const char* const twoStage = "PSpINLET  0.8       10        121       118       1         2";
  const std::string reports[] = {
      conduitReport({"PSpDATA   1    150  24                  0.013     104       101       SC"}, {plain}),
      conduitReport({"PSpDATA   1    150  2         2         0.013     104       101       SR"}, {plain}),
      conduitReport({"PSpDATA   1    150  24                  0.013     104       101       TC"}, {twoStage}),
      conduitReport({"PSpDATA   1    150  2         2         0.013     104       101       TR"}, {twoStage}),
      conduitReport({"PSpDATA   1         24                  0.013                         HD"}, {plain},
                    {"PSpHOOD   130                           101       0.6       0.8       S"}),
  };
  for (const std::string& report : reports) {
    EXPECT_EQ(report.find("*****"), std::string::npos);
    const auto rating = rowsBehind(report, "Spillway and Overtop Discharge Rating", 3);
    EXPECT_EQ(figure(rating.front(), 13, 12), 0);
    // A pipe of two feet under some 25 ft of head.
    EXPECT_GT(figure(rating.back(), 13, 12), 55);
    EXPECT_LT(figure(rating.back(), 13, 12), 100);
  }
}

TEST(RunDam, givesTheSameForLineFeedsAlone) {
  std::string text = breachText().text();
  const DamFiles before = runDam(text);
  std::erase(text, '\r');
  EXPECT_EQ(runDam(text).report, before.report);
}

}  // namespace
}  // namespace kestra
