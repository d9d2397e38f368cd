#include "results/dam_output_reader.h"

#include <gtest/gtest.h>

#include <map>

#include "support/dam_output.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;
using Given = std::map<int, std::string>;  // the lines of the digest that are not empty, counts of 0 aside

Given digestOf(const Lines& lines, std::string_view end = "\r\n") {
  const DigestFields fields = readDamOutput(joinLines(lines, end));
  Given given;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const bool usual = fields[i].empty() || (i >= 38 && fields[i] == "0") || (i == 5 && fields[i] == "N/A");
    if (!usual) given[static_cast<int>(i + 1)] = fields[i];
  }
  return given;
}

struct Case {
  const char* what;
  Lines lines;
  Given given;
};

void check(const std::vector<Case>& cases) {
  for (const Case& each : cases) EXPECT_EQ(digestOf(each.lines), each.given) << each.what;
}

const std::string kEnd = echo({"ENDTABLE"});

TEST(DamOutput, givesTheFieldsOfItsEchoedRecords) {
  check({
      {"title", {echo({"KESTRA", "01/01/2009"}) + "Larkmoor upper dam"}, {{1, "Larkmoor upper dam"}}},
      {"first title that is long enough",
       {" KESTRA", echo({"KESTRA", "01/01/2009"}) + "One", echo({"KESTRA", "01/01/2009"}) + "Two"},
       {{1, "One"}}},
      {"keyword anywhere in the first eleven columns", {"     KESTRA01/01/2009 One"}, {{1, " One"}}},
      {"principal spillway", {echo({"PSpINLET", "0.5", "12", "1004.25"})}, {{2, "1004.25   "}}},
      {"start of the routing", {echo({"STROUTE", "1003"}), echo({"STROUTE", "9"})}, {{10, "1003      "}}},
      {"downstream face",
       {echo({"DWNSTREAM", "3", "5.6", "0.87", "1"})},
       {{21, "5.6       "}, {22, "0.87      "}, {23, "1         "}}},
      {"riprap, in either order of the two records",
       {echo({"DWNSTREAM", "3", "1.75", "0.5", "2"}), echo({"OPTION", "SIMPLE", "RIPRAP"})},
       {{21, "1.75      "}, {22, "0.5       "}, {23, "2         "}, {24, "0.5       "}}},
      {"headcut model 1",
       {echo({"HCMODEL", "1", "", "0.4", "", "0.02", "7"})},
       {{30, "Temple/Hanson"}, {32, "0.4       "}, {34, "0.02      "}, {35, "7         "}}},
      {"headcut model 2",
       {echo({"HCMODEL", "2", "120", "0.4", "900", "0.02"})},
       {{30, "Hanson/Robinson"}, {31, "120       "}, {32, "0.4       "}, {33, "900       "}, {34, "0.02      "}}},
      {"headcut model that is none of the two", {echo({"HCMODEL", "3", "120"}), " HCMODEL"}, {}},
  });
}

TEST(DamOutput, givesTheCrestOfTheDamAndItsLength) {
  check({
      {"lowest elevation with a point, length as text",
       {echo({"CRESTPRFL"}), echo({"", "10.5", "1501"}), echo({"", "400", "1500"}), echo({"", "810.75", "1502"}), kEnd},
       {{6, "1500.0"}, {7, "800.25"}}},
      {"two decimals, halves to even",
       {echo({"CRESTPRFL"}), echo({"", "0", "1500.125"}), echo({"", "5", "1500.375"}), kEnd},
       {{6, "1500.12"}, {7, "5"}}},
      {"a table without a usable row", {echo({"CRESTPRFL"}), echo({""}), kEnd}, {}},
      {"rows without an elevation",
       {echo({"CRESTPRFL"}), echo({"", "0"}), echo({"", "30", "9.5"}), kEnd},
       {{6, "9.5"}, {7, "30"}}},
  });
}

TEST(DamOutput, givesTheCrestsOfTheAuxiliarySpillways) {
  check({
      {"by the surface: its highest point",
       {echo({"ASSURFACE", "2EAST", "3"}), echo({"", "0", "1008"}), echo({"", "60", "1010.5"}),
        echo({"", "90", "1001"}), kEnd},
       {{4, "1010.5"}}},
      {"by a rating: where nothing flows yet",
       {echo({"ASRATING", "3WEST"}), echo({"", "1007", "0"}), echo({"", "1009.25", "0"}), echo({"", "1011", "80"}),
        kEnd},
       {{5, "1009.25   "}}},
      {"no spillway of that number", {echo({"ASSURFACE", "4X"}), echo({"", "0", "1008"}), kEnd}, {}},
      {"no point", {echo({"ASSURFACE", "1X"}), kEnd}, {}},
  });
}

TEST(DamOutput, givesNameAndPeakOfTheFirstHydrograph) {
  check({
      {"constant time step",
       {echo({"HYD", "STORM A", "0.25"}), echo({"", "", "0", "12.5", "60", "148.26", "131"}),
        echo({"", "", "90", "41", "0"}), kEnd, echo({"HYD", "STORM B"}), echo({"", "", "999"}), kEnd},
       {{8, "STORM A   "}, {9, "148.3"}}},
      {"variable time step",
       {echo({"HYD", "STORM", "0.25", "0", "0V"}), echo({"", "0", "0"}), echo({"", "700", "148.25"}), kEnd},
       {{8, "STORM     "}, {9, "148.2"}}},
      {"a table that is cut off", {echo({"HYD", "STORM"}), echo({"", "", "7"})}, {{8, "STORM     "}, {9, "7"}}},
      {"a table that ends in the next record",
       {echo({"HYD", "STORM"}), echo({"", "", "7"}), echo({"STROUTE", "1003", "99"})},
       {{8, "STORM     "}, {9, "7"}, {10, "1003      "}}},
      {"a message between the rows",
       {echo({"HYD", "STORM"}), "***** WARNING        99        99", echo({"", "", "7"}), kEnd},
       {{8, "STORM     "}, {9, "7"}, {40, "1"}}},
  });
}

TEST(DamOutput, takesNoRowOfTheStructureTableForARecord) {
  check({{"keyword as a row's text", {echo({"STRUCTURE", "POND"}), " KESTR 01/01/2009    x", kEnd}, {}},
         {"search goes on behind the table",
          {echo({"STRUCTURE", "POND"}), kEnd, echo({"STROUTE", "1003"})},
          {{10, "1003      "}}},
         {"and behind the word where there is no table",
          {" STRUCTURE of the report", "Final breach width was   41.50 ft"},
          {{38, "  41.50 "}}}});
}

TEST(DamOutput, givesTheFiguresOfItsReportLines) {
  const std::string peaked = "Outflow peaked at   12.50 hr with  1234.5 cfs at elevation   1005.50 feet.";
  check({
      {"peak, its elevation for want of a better one", {peaked}, {{11, "   1005.50"}, {12, "  1234.5 "}}},
      {"blanks behind the peak's line", {peaked + "   "}, {{11, "   1005.50"}, {12, "  1234.5 "}}},
      {"maximum pool behind the peak",
       {peaked, "Maximum pool elevation was  1005.75 feet"},
       {{11, "  1005.75 "}, {12, "  1234.5 "}}},
      {"maximum pool before the peak",
       {"Maximum pool elevation was  1005.75 feet", peaked},
       {{11, "  1005.75 "}, {12, "  1234.5 "}}},
      {"the first discharge of several peaks, the last elevation",
       {peaked, "Outflow peaked at  1 hr with 9 cfs at elevation      7.00 feet."},
       {{11, "      7.00"}, {12, "  1234.5 "}}},
      {"freeboard",
       {echo({"CRESTPRFL"}), echo({"", "0", "1006"}), kEnd, "Maximum pool elevation was  1005.75 feet"},
       {{6, "1006.0"}, {7, "0"}, {11, "  1005.75 "}, {18, "-0.25"}}},
      {"a pool that is no number",
       {echo({"CRESTPRFL"}), echo({"", "0", "1006"}), kEnd, "Maximum pool elevation was  ******* feet"},
       {{6, "1006.0"}, {7, "0"}}},
      {"overtopping", {"Total duration of flow over top of dam:      3.25 hr"}, {{19, "      3.25"}}},
      {"full load of the slope",
       {leftIn(66, "Embankment slope stress or discharge exceeded 100% of allowable at") + "     11.75 hr"},
       {{29, "     11.75"}}},
      {"breach",
       {"Embankment breach initiated at      12.00 hr", "Embankment breach completed at      13.50 hr",
        "Final breach width was   41.50 ft"},
       {{36, "     12.00"}, {37, "     13.50"}, {38, "  41.50 "}}},
      {"words that begin elsewhere", {" " + peaked, " Final breach width was   41.50 ft"}, {}},
      {"peak lines that are too short",
       {"Outflow peaked at", "Outflow peaked at with", "Maximum pool elevation was"},
       {}},
      {"figures that are none",
       {"Final breach width was   ***** ft", "Outflow peaked at NaN hr with NaN cfs at elevation NaN feet."},
       {}},
  });
}

TEST(DamOutput, givesThePeaksOfTheRouting) {
  Lines lines = {echo({"ASSURFACE", "1EAST"}), kEnd, echo({"ASRATING", "3WEST"}), kEnd};
  const Lines table = routingTable({
      routingRow({"0.00", "1.0", "2.04", "0.005", "7.0", "1.255", "0.0", "3.0", "1000.0", "1000.0", "990.0"}),
      "***** WARNING 9999999999999999999999999999999999999999999999999999999999",
      routingRow({"0.25", "8.0", "5.26", "0.015", "9.0", "0.000", "0.0", "4.0", "1002.0", "1002.0", "990.0"}),
  });
  lines.insert(lines.end(), table.begin(), table.end());
  lines.push_back("Final breach width was   41.50 ft");
  EXPECT_EQ(digestOf(lines),
            (Given{{13, "5.3"}, {14, "0.02"}, {16, "1.25"}, {17, "0.0"}, {38, "  41.50 "}, {40, "1"}}));
}

TEST(DamOutput, givesTheHighestLoadsOfTheSlope) {
  check({
      {"vegetated or bare",
       {std::string(19, ' ') + "Stress on Vegetated Embankment Slope", "1", "2", "3", "4",
        fieldsOf({"1", "0.55", "1.125", "40.25", "0.5", ""}, 12, 12) + " " + rightIn(12, "9.375"),
        fieldsOf({"2", "0.65", "1.375", "50.35", "0.5", ""}, 12, 12) + " " + rightIn(12, "9.125"), "",
        fieldsOf({"3", "99"}, 12, 12)},
       {{20, "0.6"}, {25, "1.38"}, {26, "50.4"}, {27, "9.38"}}},
      {"riprap",
       {"Flow on Riprapped Embankment Slope", "1", "2", "3", "4", fieldsOf({"1", "", "123.456789012"}, 19, 12),
        rightIn(12, "1") + rightIn(18, "7.25") + rightIn(20, "88.125"), ""},
       {{20, "7.2"}, {28, "123.456789012"}}},
  });
}

TEST(DamOutput, countsEachLineWithErrorsAndWarningsOnce) {
  check({{"all spellings",
          {"***** ERROR ERROR Error", "an Error in a word: Errors", "error", "x WARNING", "Warning", "warning"},
          {{39, "2"}, {40, "2"}}},
         {"also inside of tables", routingTable({"***** ERROR", "***** WARNING"}), {{39, "1"}, {40, "1"}}},
         {"both in one line, the last without an end", {"ERROR WARNING\nWARNING ERROR"}, {{39, "2"}, {40, "2"}}}});
}

TEST(DamOutput, isReadWhateverEndsItsLines) {
  const Lines lines = {echo({"STROUTE", "1003"}), "", "Final breach width was   41.50 ft"};
  const Given given = {{10, "1003      "}, {38, "  41.50 "}};
  EXPECT_EQ(digestOf(lines, "\r\n"), given);
  EXPECT_EQ(digestOf(lines, "\n"), given);
}

TEST(DamOutput, countsColumnsInCharacters) {
  check({{"title and name with letters beyond ASCII",
          {" KESTRA    01/01/2009Mühlenteich", " HYD       Größe 1   0.25"},
          {{1, "Mühlenteich"}, {8, "Größe 1   "}}}});
}

}  // namespace
}  // namespace kestra
