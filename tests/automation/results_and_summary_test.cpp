#include <gtest/gtest.h>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

struct ResultsAndSummary : testing::Test {
  ResultsAndSummary() {
    desk.memory.put("/app/Summary.idt", "\"Title\",\"Crest\"");
    desk.app.shell.loadCatalogues();
    desk.memory.put("/p/owner", "");
    desk.memory.put("/p/run.OUT", " STROUTE   1003      \n");
    desk.app.state.projectDir = "/p";
  }
  std::string call(const std::string& operation, const std::string& arguments) {
    return desk.tell("{'do':'call','name':'" + operation + "','args':[" + arguments + "]}");
  }
  std::string variable(const std::string& name) { return desk.tell("{'do':'variable','name':'" + name + "'}"); }

  DriverDesk desk;
  const std::string done = "{'ok':true,'value':null}";
};

TEST_F(ResultsAndSummary, parsesTheOutputOfADam) {
  EXPECT_EQ(call("ParseDamOutput", "'/p/run.KSC'"), done);
  EXPECT_EQ(variable("digestFields(9)"), "{'ok':true,'value':'1003      '}");
  EXPECT_TRUE(desk.memory.content("/p/run.DIS"));
  EXPECT_EQ(call("ParseDamOutput", "'/p/gone.KSC'"), "{'ok':false,'error':'/p/gone.OUT: No such file or directory'}");
  EXPECT_EQ(variable("digestFields(9)"), "{'ok':true,'value':''}");
}

TEST_F(ResultsAndSummary, correctsTheDigestsOfSpillways) {
  desk.memory.put("/p/x.DIS", "a\n");
  EXPECT_EQ(call("InsertDigestPlaceholder", "'/p/x.DIS','EAST'"), done);
  EXPECT_EQ(desk.memory.content("/p/x.DIS")->substr(0, 9), "EAST\r\na\r\n");
  EXPECT_EQ(call("BuildSpillwayDigest", "' WEST ','/p/run','/p/x.DIS',2"), done);
  EXPECT_EQ(desk.memory.content("/p/x.DIS")->substr(0, 11), "WEST\r\nN/A\r\n");
  EXPECT_TRUE(desk.memory.content("/p/x.OUT"));
  EXPECT_EQ(call("BuildSpillwayDigest", "'WEST','/p/gone','/p/x.DIS',2"),
            "{'ok':false,'error':'/p/gone.OUT: No such file or directory'}");
  desk.app.runTables.spillwayRatingFlag[1] = true;
  EXPECT_EQ(variable("spillwayRatingFlag"), "{'ok':true,'value':[false,true,false]}");
  EXPECT_EQ(call("BuildSpillwayDigest", "'WEST','/p/gone','/p/x.DIS',2"), done);
}

TEST_F(ResultsAndSummary, filtersQuietly) {
  for (const char* filter : {"StripFalseStructure", "BlankFalseFields"}) {
    EXPECT_EQ(call(filter, "'/p/gone.V2D'"), done) << filter;
  }
  desk.memory.put("/p/x.DIS", "a\n");
  EXPECT_EQ(call("BlankFalseFields", "'/p/x.V2D'"), done);
  EXPECT_EQ(desk.memory.content("/p/x.DIS"), "a\r\n");
}

TEST_F(ResultsAndSummary, rounds) {
  EXPECT_EQ(call("RoundTo", "0.125,2"), "{'ok':true,'value':'0.12'}");
}

TEST_F(ResultsAndSummary, entersAndSavesDigests) {
  desk.memory.put("/p/run.DIS", "Larkmoor\n1004\n");
  EXPECT_EQ(call("LoadDigestEntry", "0,'/p/run.DIS','run'"), "{'ok':true,'value':1}");
  EXPECT_EQ(variable("entryCount"), "{'ok':true,'value':1}");
  EXPECT_EQ(variable("entryNames"), "{'ok':true,'value':['run']}");
  const Json values = Json::parse(desk.driver.answerTo("{\"do\":\"variable\",\"name\":\"entryValues(0)\"}"))["value"];
  ASSERT_EQ(values.size(), 65U);
  EXPECT_EQ(values[1], "1004");
  EXPECT_EQ(call("SaveSummaryStore", "'/p/SUMMARY.IDE'"), done);
  EXPECT_EQ(desk.memory.content("/p/SUMMARY.IDE"), "0\r\n0\r\n\"run\"\r\n");
  desk.memory.put("/p/SUMMARY.IDE", "2\n2\n1\n1\n6\n\"b\"\n");
  EXPECT_EQ(call("LoadSummaryStore", ""), done);
  EXPECT_EQ(variable("entryNames"), "{'ok':true,'value':['b']}");
  EXPECT_EQ(variable("selectedCount"), "{'ok':true,'value':[2,1]}");
  EXPECT_EQ(variable("selectedFields"), "{'ok':true,'value':[[2,1],[6]]}");
  EXPECT_EQ(variable("fieldSelected(0)"), "{'ok':true,'value':[true,false]}");
  EXPECT_EQ(variable("fieldSelected(5)"), "{'ok':true,'value':[false,true]}");
  EXPECT_EQ(variable("summaryOrder"), "{'ok':true,'value':'2'}");
  EXPECT_EQ(call("SaveSummaryStore", "'/gone/SUMMARY.IDE'"), "{'ok':false,'error':'/gone: No such file or directory'}");
  EXPECT_EQ(call("LoadDigestEntry", "-1,'/p/run.DIS','run'"),
            "{'ok':false,'error':'field offset -1 is outside 0 to 64'}");
}

}  // namespace
}  // namespace kestra
