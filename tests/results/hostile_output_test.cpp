// Outputs of solvers that have gone wrong: the digest holds what the lines give, and "N/A" elsewhere.
#include <gtest/gtest.h>

#include "base/lines.h"
#include "results/dam_output_reader.h"
#include "support/dam_output.h"

namespace kestra {
namespace {

using Lines = std::vector<std::string>;

// A digest that holds nothing but the counts and, in the lines given, values.
std::string emptyDigest(const std::vector<std::pair<std::size_t, std::string>>& given = {}, const char* errors = "0",
                        const char* warnings = "0") {
  Lines lines(kDigestLines, "N/A");
  lines[38] = errors;
  lines[39] = warnings;
  for (const auto& [line, text] : given) lines[line - 1] = text;
  return joinLines(lines);
}

std::string digestOf(const std::string& output) {
  return damDigestText(readDamOutput(output));
}

TEST(HostileOutput, givesAnEmptyDigestWhereThereIsNothingInIt) {
  using namespace std::string_literals;
  for (const std::string& output : {""s, "\r\n"s, "\0\0\0\0"s, "x"s, "Hydrograph Routing"s, "Hydrograph Routing\n(hr)"s,
                                    "a\n\n\nb\r\n"s, " HYD\n"s, std::string(5000, ' '), std::string(5000, '*'),
                                    "\xff\xfe\x00K"s, "\x1a"s, "From: somebody\n\nnot an output at all\n"s}) {
    const bool named = output.starts_with(" HYD");
    EXPECT_EQ(digestOf(output), emptyDigest()) << output.substr(0, 40) << named;
  }
}

TEST(HostileOutput, passesOverFieldsThatAreNoNumbers) {
  const Lines table = routingTable({
      routingRow({"0.00", "NaN", "NaN", "NaN", "NaN", "NaN", "NaN", "NaN", "NaN"}),
      routingRow({"0.25", "**********", "**********", "**********", "**********", "**********", "**********"}),
      routingRow({"0.50", "inf", "-inf", "1E999", "x", "", "1e5"}),
      std::string("      0.75\0      8.0", 20),
  });
  Lines lines = {echo({"ASSURFACE", "1EAST"}), echo({"", "0", "**********"}), echo({"ENDTABLE"})};
  lines.insert(lines.end(), table.begin(), table.end());
  EXPECT_EQ(digestOf(joinLines(lines)), emptyDigest({{17, "100000"}}));
}

TEST(HostileOutput, readsNumbersAsFarAsTheyGo) {
  EXPECT_EQ(digestOf(joinLines(routingTable({routingRow({"0", "0", "12.5cfs", "0", "0", "0", "3.2.1"})}))),
            emptyDigest({{13, "12.5"}, {17, "3.2"}}));
}

TEST(HostileOutput, readsTheHalfOfATableThatIsThere) {
  const std::string whole = joinLines(routingTable({
      routingRow({"0.00", "1.0", "4.0", "0.0", "0.0", "0.0", "0.0"}),
      routingRow({"0.25", "1.0", "5.5", "0.0", "0.0", "0.0", "2.5"}),
  }));
  EXPECT_EQ(digestOf(whole), emptyDigest({{13, "5.5"}, {17, "2.5"}}));
  EXPECT_EQ(digestOf(whole.substr(0, whole.size() - 14)), emptyDigest({{13, "5.5"}, {17, "0.0"}}));
  EXPECT_EQ(digestOf(whole.substr(0, whole.find("      0.00"))), emptyDigest());
}

TEST(HostileOutput, isReadInOneGoHoweverOftenAnAnchorIsRepeated) {
  constexpr int kTimes = 200000;
  for (const char* anchor : {"Hydrograph Routing\n", " STRUCTURE\n", " CRESTPRFL\n", " ASRATING  1\n"}) {
    std::string output;
    for (int i = 0; i < kTimes; ++i) output += anchor;
    EXPECT_EQ(digestOf(output), emptyDigest()) << anchor;
  }
}

TEST(HostileOutput, isReadWithAMillionRowsAndMegabytesOfMessages) {
  std::string output = joinLines(routingTable({}));
  output.resize(output.size() - 2);
  const std::string row = routingRow({"0.00", "1.0", "4.0", "0.0", "0.0", "0.0", "0.0", "4.0", "1000.0"}) + "\r\n";
  for (int i = 0; i < 1000000; ++i) output += row;
  output += routingRow({"0.25", "1.0", "77.7", "0.0", "0.0", "0.0", "9.9", "4.0", "1000.0"}) + "\r\n\r\n";
  for (int i = 0; i < 50000; ++i) output += "***** WARNING - the time step is too long for what flows\r\n";
  EXPECT_EQ(digestOf(output), emptyDigest({{13, "77.7"}, {17, "9.9"}}, "0", "50000"));
}

}  // namespace
}  // namespace kestra
