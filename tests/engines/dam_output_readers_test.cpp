// What the system's own readers take from the files of the dam engine.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "base/numbers.h"
#include "base/text.h"
#include "engines/close_to.h"
#include "engines/dam_text.h"
#include "engines/examples.h"
#include "graphs/graph_catalogue.h"
#include "kestrasim/build_routing.h"
#include "kestrasim/dam_engine.h"
#include "kestrasim/read_dam.h"
#include "platform/memory_file_system.h"
#include "results/breach_history.h"
#include "results/dam_digest.h"
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

// What a run of an example leaves, in memory, with the figures that were computed.
struct ExampleRun {
  explicit ExampleRun(const std::string& text) : written(runDam(text)), result(route(text)) {
    files.put("/p/dam.KSC", text);
    files.put("/p/dam.OUT", written.report);
    if (written.breach) files.put("/p/dam.BRE", *written.breach);
    if (written.headcut) files.put("/p/dam.HCT", *written.headcut);
  }

  bool overtops() const { return result.overtoppingBegins.has_value(); }
  bool hasHeadcut() const { return result.events.headcutFormed.has_value(); }

  MemoryFileSystem files;
  DamFiles written;
  RoutingResult result;
};

TEST(Examples, areReadBackByTheDigest) {
  for (const auto& [name, text] : examples()) {
    SCOPED_TRACE(name);
    ExampleRun run(text);
    DigestFields digest;
    ASSERT_TRUE(ParseDamOutput(run.files, "/p/dam.KSC", digest));
    const RoutingResult& result = run.result;
    EXPECT_NE(line(digest, 1), "");
    EXPECT_NEAR(figure(digest, 11), result.pool.value, 0.001);
    EXPECT_NEAR(figure(digest, 12), result.outflow.value, 0.01);
    EXPECT_NEAR(figure(digest, 18), result.pool.value - figure(digest, 6), 0.006);
    EXPECT_NEAR(figure(digest, 19), result.overtoppingHours, 1e-4);
    EXPECT_NEAR(figure(digest, 29), result.events.slopeLost.value_or(0), 1e-4);
    EXPECT_NEAR(figure(digest, 36), result.events.breachInitiated.value_or(0), 1e-4);
    EXPECT_NEAR(figure(digest, 37), result.events.breachCompleted.value_or(0), 1e-4);
    EXPECT_NEAR(figure(digest, 38), result.breachWidth, 0.01);
    EXPECT_EQ(line(digest, 39), "0");
    double principal = 0;
    double overDam = 0;
    for (const RoutingRow& row : result.rows) {
      principal = std::max(principal, row.flows.principal);
      overDam = std::max(overDam, row.flows.overDam());
    }
    EXPECT_NEAR(figure(digest, 13), principal, 0.06);
    EXPECT_NEAR(figure(digest, 17), overDam, 0.06);
  }
}

TEST(Examples, leaveInTheDigestTheWholeFigures) {
  for (const auto& [name, text] : examples()) {
    ExampleRun run(text);
    DigestFields digest;
    ASSERT_TRUE(ParseDamOutput(run.files, "/p/dam.KSC", digest)) << name;
    // Ten columns of the line, blanks and all, hold the figure.
    for (const std::size_t field : {11U, 12U}) {
      EXPECT_EQ(lenientNumber(digest[field - 1].substr(0, 10)), figure(digest, field)) << name;
    }
  }
}

// Whether each graph of a dam finds what it draws; those of ratings where there is a spillway to rate.
TEST(Examples, areDrawnByEveryGraphOfADam) {
  for (const auto& [name, text] : examples()) {
    ExampleRun run(text);
    const bool hasAuxiliary =
        text.find("\nASSURFACE") != std::string::npos || text.find("\nASRATING") != std::string::npos;
    const std::map<int, bool> expected = {{9, hasAuxiliary},
                                          {4, run.overtops()},
                                          {11, run.overtops()},
                                          {18, run.hasHeadcut()},
                                          {19, run.written.breach.has_value()}};
    for (int number = 0; number < kGraphs; ++number) {
      const GraphEntry& graph = graphEntry(number);
      if (graph.read == nullptr) continue;
      SCOPED_TRACE(name + ": " + std::string(graph.title));
      const RunFiles runFiles(run.files, "/p/dam.KSC");
      SeriesStore series;
      View extents;
      const Reading reading = graph.read({runFiles, graph.column, series, extents});
      const auto found = expected.find(number);
      const bool drawn = found == expected.end() || found->second;
      EXPECT_EQ(reading.outcome == Reading::Outcome::drawn, drawn) << reading.reason;
    }
  }
}

}  // namespace
}  // namespace kestra
