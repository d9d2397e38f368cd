// The operations of scripts on the findings of the integrity checkers.
#include <gtest/gtest.h>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

class CheckOperations : public testing::Test {
 protected:
  CheckOperations() {
    desk.memory.putDirectory("/p");
    desk.memory.put("/p/a.ERR", "x\r\nF    1    0         7    5\r\nW    2    0         0    1\r\n");
    desk.memory.put("/p/a.ERR3", "x\r\nF   10    2         1        40 1.5\r\n");
  }
  void expect(const std::string& name, const std::string& arguments, const std::string& value) {
    EXPECT_EQ(desk.tell("{'do':'call','name':'" + name + "','args':[" + arguments + "]}"), value) << name;
  }
  static constexpr const char* kDone = "{'ok':true,'value':null}";
  DriverDesk desk;
};

TEST_F(CheckOperations, countReadAndClearTheFindings) {
  expect("CountFindings", "'/p/a.ERR'", "{'ok':true,'value':{'errorCount':2,'warningCount':1}}");
  expect("ReadDamFindings", "'/p/a.ERR',0", "{'ok':true,'value':2}");
  expect("ReadSpillwayFindings", "'/p/a.ERR3',1", "{'ok':true,'value':2}");
  EXPECT_EQ(desk.tell("{'do':'variable','name':'errorRows'}"),
            "{'ok':true,'value':[{'code':5,'screenNumber':1,'tabNumber':0,'elementNumber':7,'isError':true,"
            "'value1':'','value2':'','value3':'','spillwayNumber':0},"
            "{'code':40,'screenNumber':10,'tabNumber':2,'elementNumber':1,'isError':true,"
            "'value1':'1.5','value2':'','value3':'','spillwayNumber':3}]}");
  expect("frmErrorTable.BuildTable", "", kDone);
  EXPECT_EQ(desk.tell("{'do':'variable','name':'errorRows'}"), "{'ok':true,'value':[]}");
}

TEST_F(CheckOperations, runTheCheckers) {
  expect("RunIntegrityChecker", "'/p/a.KSC'",
         "{'ok':false,'error':'/app/KestraIntCheck.exe: No such file or directory'}");
  desk.processes.effects["/app/KestraIntCheck.exe"] = [this](const ProcessRequest&) {
    desk.memory.put("/p/a.ERR", "x\r\nW\r\n");
    return Exited{0};
  };
  expect("RunIntegrityChecker", "'/p/a.KSC'", kDone);
  EXPECT_EQ(desk.memory.content("/p/a.ERR0"), "x\r\nW\r\n");
}

TEST_F(CheckOperations, takeTheTableAwayWhereThereIsNothingToShow) {
  expect("ReadDamFindings", "'/p/a.ERR',0", "{'ok':true,'value':2}");
  EXPECT_TRUE(desk.app.shell.errorTable.loaded());
  expect("CountFindings", "'/p/none.ERR'", "{'ok':true,'value':{'errorCount':0,'warningCount':0}}");
  EXPECT_FALSE(desk.app.shell.errorTable.loaded());
}

}  // namespace
}  // namespace kestra
