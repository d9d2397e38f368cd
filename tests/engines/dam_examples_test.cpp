// Every control file of examples/ is routed, and its key figures stay what they were.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "engines/close_to.h"
#include "kestrasim/build_routing.h"
#include "kestrasim/read_dam.h"

namespace kestra {
namespace {

struct KeyFigures {
  double highestPool;  // ft
  double peakOutflow;  // cfs
  double overtoppingHours;
  double breachWidth;  // ft
};

const std::map<std::string, KeyFigures> kStored = {{"stock-pond.KSC", {1024.722, 852.1, 2.08, 0}}};

std::string readFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::map<std::string, std::string> examples() {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(KESTRA_SOURCE_DIR "/examples")) {
    if (entry.path().extension() == ".KSC") files[entry.path().filename().string()] = readFile(entry.path());
  }
  return files;
}

TEST(Examples, areRoutedWithoutAnError) {
  const auto files = examples();
  ASSERT_FALSE(files.empty());
  for (const auto& [name, text] : files) {
    RunMessages messages;
    const DamModel dam = readDam(readControlRecords(text), messages);
    const std::optional<DamRun> run = buildRun(dam, messages);
    ASSERT_TRUE(run) << name;
    EXPECT_FALSE(messages.hasErrors()) << name;
    RoutingInput routing = run->routing;
    const RoutingResult whole = routeDam(routing);
    EXPECT_LT(whole.balanceError(), 1e-4) << name;
    routing.stepShare = 0.5;
    const RoutingResult halves = routeDam(routing);
    EXPECT_NEAR(whole.pool.value, halves.pool.value, 0.01) << name;
    EXPECT_TRUE(isClose(whole.outflow.value, halves.outflow.value, 0.005)) << name;
  }
}

TEST(Examples, giveTheFiguresThatAreStored) {
  const auto files = examples();
  for (const auto& [name, stored] : kStored) {
    RunMessages messages;
    const DamModel dam = readDam(readControlRecords(files.at(name)), messages);
    const std::optional<DamRun> run = buildRun(dam, messages);
    ASSERT_TRUE(run) << name;
    const RoutingResult result = routeDam(run->routing);
    EXPECT_NEAR(result.pool.value, stored.highestPool, 0.01) << name;
    EXPECT_TRUE(isClose(result.outflow.value, stored.peakOutflow)) << name;
    EXPECT_NEAR(result.overtoppingHours, stored.overtoppingHours, 0.02) << name;
    EXPECT_TRUE(isClose(result.breachWidth, stored.breachWidth, 0.02)) << name;
  }
}

}  // namespace
}  // namespace kestra
