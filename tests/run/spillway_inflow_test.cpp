#include "run/spillway_inflow.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/runtime_fault.h"
#include "run/run_desk.h"

namespace kestra {
namespace {

class SpillwayInflow : public testing::Test, public RunDesk {
 protected:
  std::string extract(int spillway = 1) { return ExtractSpillwayInflow(files, "/p/dam.KSC", spillway); }
  std::string faultOf(int spillway = 1) {
    try {
      (void)extract(spillway);
    } catch (const RuntimeFault& fault) {
      return fault.what();
    }
    return "(none)";
  }
};

TEST_F(SpillwayInflow, isAConstantStepHydrographOfTheSpillwaysDischarge) {
  memory.put("/p/dam.OUT", damOutput({{"1.5", "100", {"0", "10", "20"}},
                                      {"1.6", "100", {"1", "11", "21"}},
                                      {"1.8", "100", {"2", "12", "22"}},
                                      {"1.9", "100", {"3", "13", "23"}},
                                      {"2.0", "100", {"4", "14", "24"}},
                                      {"2.166", "100", {"5", "15", "25"}}}));
  const auto table = [](const std::vector<std::string>& flows) {
    return lines({"HYD       9                   C", "                    0.133     1.5       ",
                  "                    " + record({flows[0], flows[1], flows[2], flows[3], flows[4]}),
                  "                    " + record({flows[5]}), "ENDTABLE"});
  };
  EXPECT_EQ(extract(1), table({"0", "1", "2", "3", "4", "5"}));
  EXPECT_EQ(extract(2), table({"10", "11", "12", "13", "14", "15"}));
  EXPECT_EQ(extract(3), table({"20", "21", "22", "23", "24", "25"}));
}

TEST_F(SpillwayInflow, standsBesideTheControlFileWhateverItsLetters) {
  EXPECT_EQ(damOutputOf("/p/a.b.KSC"), "/p/a.b.OUT");
  EXPECT_EQ(damOutputOf("/p/dam.OUT"), "/p/dam.OUT");
  memory.put("/p/DAM.out", damOutput({{"0", "1", {"7"}}, {"1", "1", {"8"}}}));
  EXPECT_NE(extract().find("7         8"), std::string::npos);
}

TEST_F(SpillwayInflow, countsADischargeThatIsNotPrintedAsNone) {
  memory.put("/p/dam.OUT", damOutput({{"0", "1", {""}}, {"1", "1", {"8"}}}));
  EXPECT_NE(extract().find("0         8         \r\n"), std::string::npos);
}

TEST_F(SpillwayInflow, takes5000DischargesAtMost) {
  std::vector<RoutingRow> rows;
  for (int i = 0; i < 5003; ++i) rows.push_back({std::to_string(i), "1", {"1"}});
  memory.put("/p/dam.OUT", damOutput(rows));
  const std::string text = extract();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2 + 1000 + 1);
  EXPECT_EQ(text.substr(33, 40), "                    1         0         ");
}

TEST_F(SpillwayInflow, needsAnOutputWithTwoRows) {
  EXPECT_EQ(faultOf(), "/p/dam.OUT: No such file or directory");
  for (const std::string& output : {std::string(), std::string("Error\r\n"), lines({"Hydrograph Routing"}),
                                    damOutput({}), damOutput({{"0", "1"}})}) {
    memory.put("/p/dam.OUT", output);
    EXPECT_EQ(faultOf(), "/p/dam.OUT: The routing table has fewer than two rows.");
  }
  EXPECT_EQ(faultOf(0), "There is no auxiliary spillway 0.");
  EXPECT_EQ(faultOf(4), "There is no auxiliary spillway 4.");
}

}  // namespace
}  // namespace kestra
