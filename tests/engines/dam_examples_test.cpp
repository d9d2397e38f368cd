// Every control file of examples/ is routed, and its key figures stay what they were.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "engines/close_to.h"
#include "engines/examples.h"
#include "kestrasim/build_routing.h"
#include "kestrasim/dam_engine.h"
#include "kestrasim/read_dam.h"

namespace kestra {
namespace {

struct KeyFigures {
  double highestPool;  // ft
  double peakOutflow;  // cfs
  double overtoppingHours;
  double breachWidth;      // ft
  double breachInitiated;  // h; 0 for a dam that stands
};

const std::map<std::string, KeyFigures> kStored = {
    {"alder-carr.KSC", {421.277, 74.59, 0, 0, 0}},
    {"castlewood-1933.KSC", {171.005, 129890, 1.1435, 245.0, 4.5376}},
    {"fell-tarn.KSC", {894.606, 93.60, 246, 0, 0}},
    {"gorse-pit.KSC", {112.634, 2475.3, 0.5144, 48.17, 1.9648}},
    {"granite-head.KSC", {1586.496, 62795, 0, 0, 0}},
    {"heron-mere.KSC", {1215.963, 221.39, 0, 0, 0}},
    {"marsh-bank.KSC", {15.445, 1416.9, 280.695, 0, 0}},
    {"quarry-lane.KSC", {734.733, 1334.3, 2.333, 0, 0}},
    {"south-fork-1889.KSC", {172.932, 176990, 1.5316, 414.0, 10.4609}},
    {"stock-pond.KSC", {1024.722, 852.1, 2.083, 0, 0}},
    {"thornbeck.KSC", {660.214, 2074.6, 0, 0, 0}},
    {"three-forks.KSC", {388.691, 27121, 0, 0, 0}},
    {"willow-bend.KSC", {267.433, 238.83, 0, 0, 0}},
};

RoutingInput inputOf(const std::string& text) {
  RunMessages messages;
  const DamModel dam = readDam(readControlRecords(text), messages);
  std::optional<DamRun> run = buildRun(dam, messages);
  EXPECT_FALSE(messages.hasErrors());
  return run.value().routing;
}

class Example : public testing::TestWithParam<std::string> {
 protected:
  RoutingInput routing_ = inputOf(examples().at(GetParam()));
};

TEST_P(Example, hardlyChangesByHalfTheSteps) {
  const RoutingResult whole = routeDam(routing_);
  EXPECT_EQ(whole.end, RoutingEnd::complete);
  EXPECT_LT(whole.balanceError(), 1e-4);
  routing_.stepShare = 0.5;
  const RoutingResult halves = routeDam(routing_);
  EXPECT_LT(halves.balanceError(), 1e-4);
  EXPECT_GT(halves.steps, whole.steps);
  EXPECT_NEAR(whole.pool.value, halves.pool.value, 0.01);
  EXPECT_TRUE(isClose(whole.outflow.value, halves.outflow.value, 0.005));
}

TEST_P(Example, givesTheFiguresThatAreStored) {
  const KeyFigures& stored = kStored.at(GetParam());
  const RoutingResult result = routeDam(routing_);
  EXPECT_NEAR(result.pool.value, stored.highestPool, 0.01);
  EXPECT_TRUE(isClose(result.outflow.value, stored.peakOutflow));
  EXPECT_NEAR(result.overtoppingHours, stored.overtoppingHours, 0.02);
  EXPECT_TRUE(isClose(result.breachWidth, stored.breachWidth, 0.02));
  EXPECT_NEAR(result.events.breachInitiated.value_or(0), stored.breachInitiated, 0.02);
}

std::vector<std::string> names() {
  std::vector<std::string> all;
  for (const auto& [name, stored] : kStored) all.push_back(name);
  return all;
}

std::string testName(const testing::TestParamInfo<std::string>& tested) {
  std::string name = tested.param.substr(0, tested.param.find('.'));
  std::ranges::replace(name, '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Dams, Example, testing::ValuesIn(names()), testName);

TEST(Examples, haveEachTheirFigures) {
  for (const auto& [name, text] : examples()) EXPECT_TRUE(kStored.contains(name)) << name;
  EXPECT_EQ(examples().size(), kStored.size());
}

// Nothing in a whole example is told as wrong; what leaves a table may be.
TEST(Examples, giveReportsWithoutAnError) {
  for (const auto& [name, text] : examples()) {
    const DamFiles files = runDam(text, StepCheck::halved);
    EXPECT_EQ(files.report.find("***** ERROR"), std::string::npos) << name;
    EXPECT_EQ(files.report.find("half the steps change"), std::string::npos) << name;
    EXPECT_EQ(files.report.find("nines stand"), std::string::npos) << name;
    EXPECT_TRUE(files.report.ends_with("End of run\r\n")) << name;
  }
}

}  // namespace
}  // namespace kestra
