// What the system's own readers take from the files of the dam engine.
#include <gtest/gtest.h>

#include <string>

#include "base/numbers.h"
#include "base/text.h"
#include "engines/close_to.h"
#include "engines/dam_text.h"
#include "kestrasim/build_routing.h"
#include "kestrasim/dam_engine.h"
#include "kestrasim/read_dam.h"
#include "results/breach_history.h"
#include "results/dam_output_reader.h"

namespace kestra {
namespace {

RoutingResult route(const std::string& text) {
  RunMessages messages;
  const DamModel dam = readDam(readControlRecords(text), messages);
  return routeDam(buildRun(dam, messages).value().routing);
}

// Line of a digest, from 1, without blanks.
std::string line(const DigestFields& digest, std::size_t number) {
  return std::string(trim(digest[number - 1]));
}

double figure(const DigestFields& digest, std::size_t number) {
  return lenientNumber(line(digest, number));
}

TEST(DigestOfTheDamEngine, holdsTheInput) {
  const DigestFields digest = readDamOutput(runDam(breachText().text()).report);
  const std::pair<std::size_t, const char*> expected[] = {
      {1, "Test dam"}, {2, "118"},  {3, "122"},  {4, ""},     {6, "125.0"}, {7, "300"},
      {8, "Flood"},    {9, "4000"}, {10, "118"}, {21, "5.6"}, {22, "0.75"}, {23, "3"},
      {32, "8"},       {34, "0"},   {35, "16"},  {39, "0"},   {40, "1"},    {30, "Temple/Hanson"}};
  for (const auto& [number, text] : expected) EXPECT_EQ(line(digest, number), text) << number;
}

TEST(DigestOfTheDamEngine, holdsTheResultsOfABreach) {
  const std::string text = breachText().text();
  const RoutingResult result = route(text);
  const DamFiles files = runDam(text);
  const DigestFields digest = readDamOutput(files.report);
  EXPECT_NEAR(figure(digest, 11), result.pool.value, 0.001);
  EXPECT_NEAR(figure(digest, 12), result.outflow.value, 0.01);
  EXPECT_NEAR(figure(digest, 18), result.pool.value - 125, 0.006);
  EXPECT_NEAR(figure(digest, 19), result.overtoppingHours, 1e-4);
  EXPECT_NEAR(figure(digest, 29), *result.events.slopeLost, 1e-4);
  EXPECT_NEAR(figure(digest, 36), *result.events.breachInitiated, 1e-4);
  EXPECT_NEAR(figure(digest, 37), *result.events.breachCompleted, 1e-4);
  EXPECT_NEAR(figure(digest, 38), result.breachWidth, 0.01);
  EXPECT_GT(figure(digest, 26), 100);
  EXPECT_GT(figure(digest, 27), 100);
  double highest = 0;
  for (const ErosionRow& row : result.erosion) highest = std::max(highest, row.breach.unitDischarge);
  EXPECT_NEAR(highestUnitDischarge(*files.breach), highest, 0.001);
}

TEST(DigestOfTheDamEngine, holdsTheFlowOnRiprap) {
  DamText dam = breachText();
  dam.with("OPTION", {"OPTION    COEFF     RIPRAP    "});
  dam.with("DWNSTREAM", {"DWNSTREAM 2.5       1.75      0.8       1.6       0.4"});
  const DigestFields digest = readDamOutput(runDam(dam.text()).report);
  EXPECT_EQ(line(digest, 24), "0.8");
  EXPECT_GT(figure(digest, 20), 1);
  EXPECT_GT(figure(digest, 28), 50);
}

TEST(DigestOfTheDamEngine, findsTheCrestOfASpillwayInItsProfile) {
  DamText dam;
  dam.with("ASRATING", {"ASSURFACE 2Earth    3         60       110        900",
                        "          0         400       5.6       0.7       1         1", "ENDTABLE"});
  dam.behind({"QUIL      02/09/20022         Earth", "ASSPRFL   41",
              "          0         118       50        122       100       122", "          300       110", "ENDTABLE",
              "ENDRUN"});
  const DigestFields digest = readDamOutput(runDam(dam.text()).report);
  EXPECT_EQ(figure(digest, 4), 122);
  EXPECT_GT(figure(digest, 15), 10);
}

TEST(DigestOfTheDamEngine, countsItsMessages) {
  DamText dam;
  dam.without("TAILWATER").with("ASSURFACE", {"ASSURFACE 2Earth    3         60       110        900", "ENDTABLE"});
  const DigestFields digest = readDamOutput(runDam(dam.text()).report);
  EXPECT_EQ(line(digest, 39), "1");
  EXPECT_EQ(line(digest, 40), "1");
  EXPECT_EQ(line(digest, 5), "");
}

}  // namespace
}  // namespace kestra
