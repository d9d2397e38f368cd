#include "results/spillway_digest.h"

#include <gtest/gtest.h>

#include "platform/faulty_file_system.h"
#include "platform/memory_file_system.h"
#include "support/dam_output.h"
#include "support/result_matchers.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kTitle = "   Erosionally Effective Stress for Stability Analysis  of Aux. Exit Channel  ";

// `text` with its first character in that column of an otherwise blank line.
std::string at(std::size_t column, const std::string& text) {
  return std::string(column - 1, ' ') + text;
}

std::string stabilityLine(const std::string& attack, const std::string& ratio) {
  return leftIn(75, at(45, rightIn(8, attack))) + rightIn(6, ratio);
}

Lines stabilityTable(const Lines& rows) {
  Lines lines = {kTitle, "one", "two", stabilityLine("0.52", "1.75"), "three", "four"};
  lines.insert(lines.end(), rows.begin(), rows.end());
  lines.emplace_back();
  return lines;
}

// Time and discharge of spillway 2, in a routing row of 61 columns and more.
std::string flowRow(const std::string& time, const std::string& flow) {
  return routingRow({time, "5.0", "1.0", "0.0", flow, "0.0", "0.0", "1.0"});
}

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

TEST(SpillwayOutput, givesStabilityAndFlowDuration) {
  const Lines table = stabilityTable({leftIn(82, "station") + "   12.25  ", at(83, "    9.75 max.")});
  const Lines routing = routingTable({flowRow("0.0", "0.0"), flowRow("1.25", "3.0"), flowRow("2.00", "0.5"),
                                      "***** WARNING - between", flowRow("3.5005", "0.0"), flowRow("4.0", "7.0")});
  const SpillwayValues expected = {"N/A", "    0.52", "2.25", "N/A", "  1.75", "9.75"};
  EXPECT_EQ(readSpillwayOutput(joinLines(table + routing), 2), expected);
  EXPECT_EQ(readSpillwayOutput(joinLines(routing + table, "\n"), 2), expected);
}

TEST(SpillwayOutput, takesTheHighestValueOfTheRowBeforeWhereTheMarkedOneIsBlank) {
  const Lines table = stabilityTable({at(83, "   12.25 "), leftIn(92, "  ") + "max."});
  EXPECT_EQ(readSpillwayOutput(joinLines(table), 1)[5], "12.25");
  EXPECT_EQ(readSpillwayOutput(joinLines(stabilityTable({at(83, "   12.25 "), at(81, "max.")})), 1)[5], "12.25");
  EXPECT_EQ(readSpillwayOutput(joinLines(stabilityTable({at(83, "   12.25 "), "   max."})), 1)[5], "N/A");
}

TEST(SpillwayOutput, takesTheLastOfSeveralTables) {
  const Lines second = {kTitle, "", "", stabilityLine("0.75", "2.5")};
  EXPECT_EQ(readSpillwayOutput(joinLines(stabilityTable({}) + second), 1),
            (SpillwayValues{"N/A", "    0.75", "N/A", "N/A", "   2.5", "N/A"}));
}

TEST(SpillwayOutput, givesTheDurationAsZeroWhereTheFlowHasNoEnd) {
  const struct {
    const char* what;
    Lines rows;
    const char* duration;
  } kCases[] = {
      {"no flow", {flowRow("0.0", "0.0"), flowRow("1.0", "0.0")}, "0"},
      {"no end", {flowRow("0.0", "0.0"), flowRow("1.0", "4.0")}, "0"},
      {"no rows", {}, "0"},
      {"rows that are too short", {"       1.0", "       2.0"}, "0"},
      {"a row that is no number tells nothing",
       {flowRow("1.0", "4.0"), flowRow("2.0", "**********"), flowRow("5.0", "0.0")},
       "4"},
      {"tiny spans are no powers", {flowRow("1.0", "4.0"), flowRow("1.00100", "0.0")}, "0.001"},
  };
  for (const auto& each : kCases) {
    EXPECT_EQ(readSpillwayOutput(joinLines(routingTable(each.rows)), 2)[2], each.duration) << each.what;
  }
}

TEST(SpillwayOutput, withoutItsLinesGivesNothing) {
  SpillwayValues nothing;
  nothing.fill("N/A");
  for (const std::string& output : {std::string(), joinLines({kTitle}), joinLines({kTitle, "", "", "short"}),
                                    std::string("foreign\0text", 12), joinLines({"Hydrograph"})}) {
    EXPECT_EQ(readSpillwayOutput(output, 2), nothing) << output;
  }
  const std::string routed = joinLines(routingTable({flowRow("1.0", "4.0"), flowRow("2.0", "0.0")}));
  for (const int number : {-1, 0, 4, 2147483647}) EXPECT_EQ(readSpillwayOutput(routed, number), nothing) << number;
}

struct SpillwayDigest : testing::Test {
  MemoryFileSystem memory;
  FaultyFileSystem files{memory};
  const std::string output =
      joinLines(stabilityTable({}) + routingTable({flowRow("1.0", "4.0"), flowRow("2.5", "0.0")}));
  SpillwayCase spillway{" EAST ", "/dam/run", "/dam/run2/run2_0.DIS", 2, false};

  SpillwayDigest() {
    memory.put("/dam/run.OUT", output);
    memory.put("/dam/run.DIS", "title\r\n1004\r\n1008\r\n  1010.5 \r\nN/A\r\n");
    memory.put("/dam/run2/run2_0.DIS", "the solver's own");
    memory.put("/dam/run2/run2_0.OUT", "the solver's own output");
  }
  static std::string digest(const Lines& values) {
    Lines lines = values;
    lines.resize(35, "N/A");
    return joinLines(lines);
  }
};

TEST_F(SpillwayDigest, replacesTheSolversOwn) {
  EXPECT_TRUE(succeeded(BuildSpillwayDigest(files, spillway)));
  EXPECT_EQ(memory.content("/dam/run2/run2_0.DIS"), digest({"EAST", "    0.52", "1.5", "1010.5", "  1.75", "N/A"}));
  EXPECT_EQ(memory.content("/dam/run2/run2_0.OUT"), output);
}

TEST_F(SpillwayDigest, ofASpillwayGivenByItsRatingHoldsTheNameAlone) {
  spillway.byRating = true;
  EXPECT_TRUE(succeeded(BuildSpillwayDigest(files, spillway)));
  EXPECT_EQ(memory.content("/dam/run2/run2_0.DIS"), digest({"EAST"}));
  EXPECT_EQ(memory.content("/dam/run2/run2_0.OUT"), "the solver's own output");
}

TEST_F(SpillwayDigest, hasNoCrestWithoutTheDamsDigestOrANumber) {
  spillway.spillwayNumber = 0;
  EXPECT_TRUE(succeeded(BuildSpillwayDigest(files, spillway)));
  EXPECT_EQ(memory.content("/dam/run2/run2_0.DIS"), digest({"EAST", "    0.52", "N/A", "N/A", "  1.75"}));
  spillway.spillwayNumber = 2;
  memory.put("/dam/run.DIS", "title\r\n1004\r\n1008\r\n");
  EXPECT_TRUE(succeeded(BuildSpillwayDigest(files, spillway)));
  EXPECT_EQ(memory.content("/dam/run2/run2_0.DIS"), digest({"EAST", "    0.52", "1.5", "N/A", "  1.75"}));
  (void)memory.removeFile("/dam/run.DIS");
  EXPECT_TRUE(succeeded(BuildSpillwayDigest(files, spillway)));
  EXPECT_EQ(memory.content("/dam/run2/run2_0.DIS"), digest({"EAST", "    0.52", "1.5", "N/A", "  1.75"}));
}

TEST_F(SpillwayDigest, takesNoValuesForAPathWithoutRoomForAnExtension) {
  (void)memory.changeDirectory("/dam");
  spillway.digestPath = "a.D";
  EXPECT_TRUE(succeeded(BuildSpillwayDigest(files, spillway)));
  EXPECT_EQ(memory.content("/dam/a.D"), digest({"EAST"}));
}

TEST_F(SpillwayDigest, neverWritesOverTheOutputThatItReads) {
  spillway.digestPath = "/dam/run.DIS";
  memory.put("/dam/run.OUT", output + "last\n");
  EXPECT_TRUE(succeeded(BuildSpillwayDigest(files, spillway)));
  EXPECT_EQ(memory.content("/dam/run.OUT"), output + "last\n");
}

TEST_F(SpillwayDigest, staysAsItIsWhenTheOutputIsMissingOrTheDiskFull) {
  files.failEvery("write", FailureKind::full);
  EXPECT_FALSE(BuildSpillwayDigest(files, spillway));
  files.failNothing();
  (void)memory.removeFile("/dam/run.OUT");
  EXPECT_TRUE(failed(BuildSpillwayDigest(files, spillway), FailureKind::notFound, "No such file or directory"));
  EXPECT_EQ(memory.content("/dam/run2/run2_0.DIS"), "the solver's own");
  EXPECT_EQ(memory.content("/dam/run2/run2_0.OUT"), "the solver's own output");
}

TEST_F(SpillwayDigest, takesAPlaceholder) {
  const struct {
    const char* old;
    Lines lines;
  } kCases[] = {{"a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n", {"EAST", "a", "b", "c", "d", "N/A", "e", "f"}},
                {"a\nb\nc\nd\n", {"EAST", "a", "b", "c", "d", "N/A"}},
                {"a\nb", {"EAST", "a", "b", "N/A", "N/A", "N/A"}},
                {"", {"EAST", "N/A", "N/A", "N/A", "N/A", "N/A"}}};
  for (const auto& each : kCases) {
    memory.put("/dam/x.DIS", each.old);
    EXPECT_TRUE(succeeded(InsertDigestPlaceholder(files, "/dam/x.DIS", "EAST")));
    EXPECT_EQ(memory.content("/dam/x.DIS"), joinLines(each.lines));
    EXPECT_EQ(memory.content("/dam/x.DIS~"), each.old);
  }
}

TEST_F(SpillwayDigest, thatIsMissingTakesNoPlaceholder) {
  EXPECT_TRUE(
      failed(InsertDigestPlaceholder(files, "/dam/x.DIS", "EAST"), FailureKind::notFound, "No such file or directory"));
  EXPECT_FALSE(memory.content("/dam/x.DIS"));
  EXPECT_FALSE(memory.content("/dam/x.DIS~"));
}

}  // namespace
}  // namespace kestra
