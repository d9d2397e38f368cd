// The operations of scripts on the control file.
#include <gtest/gtest.h>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

class ControlFileOperations : public testing::Test {
 protected:
  void expect(std::initializer_list<std::pair<const char*, const char*>> requests) {
    for (const auto& [request, answer] : requests) EXPECT_EQ(desk.tell(request), answer) << request;
  }
  static constexpr const char* kDone = "{'ok':true,'value':null}";
  DriverDesk desk;
};

TEST_F(ControlFileOperations, buildWriteCompareAndReadAFile) {
  expect({{"{'do':'set','screen':'frmDamSurface','control':'txtCrestWidth','value':'12'}", kDone},
          {"{'do':'call','name':'BuildControlText','args':['/home/dam.KSC']}", "{'ok':true,'value':-1}"},
          {"{'do':'call','name':'WriteControlFiles','args':['/home/dam.KSC']}", kDone},
          {"{'do':'call','name':'WriteControlFiles','args':['/home/copy.KSC']}", kDone},
          {"{'do':'call','name':'SameControlFiles','args':['/home/dam.KSC','/home/copy.KSC']}",
           "{'ok':true,'value':true}"},
          {"{'do':'call','name':'ControlFileUnchanged','args':[]}", "{'ok':true,'value':false}"},
          {"{'do':'call','name':'UnloadAllScreens','args':[]}", kDone},
          {"{'do':'call','name':'ReadControlFile','args':['/home/dam.KSC']}", kDone}});
  desk.app.state.currentFile = "/home/dam.KSC";
  expect({{"{'do':'call','name':'ControlFileUnchanged','args':[]}", "{'ok':true,'value':true}"}});
  EXPECT_NE(desk.tell("{'do':'get','screen':'frmDamSurface','control':'txtCrestWidth'}").find("'value':'12'"),
            std::string::npos);
  EXPECT_NE(desk.tell("{'do':'variable','name':'controlText'}").find("DAMCREST  12 "), std::string::npos);
}

TEST_F(ControlFileOperations, buildAndReadTheRunOfASpillway) {
  expect(
      {{"{'do':'call','name':'ReadSpillwayRun','args':['BTMWIDTH  FEET      50\\r\\n',1]}", kDone},
       {"{'do':'call','name':'BuildAuxRunText','args':[1,'dam.KSC']}", kDone},
       {"{'do':'call','name':'WriteSpillwayRun','args':[0,'dam.KSC']}", kDone},
       {"{'do':'call','name':'BuildAuxRunText','args':[3,'dam.KSC']}", "{'ok':false,'error':'subscript out of range'}"},
       {"{'do':'variable','name':'auxRunText(2)'}", "{'ok':true,'value':''}"},
       {"{'do':'variable','name':'workText'}", "{'ok':true,'value':''}"}});
  EXPECT_NE(desk.tell("{'do':'variable','name':'auxRunText(1)'}").find("BTMWIDTH  FEET      50"), std::string::npos);
  EXPECT_NE(desk.tell("{'do':'variable','name':'auxRunText(0)'}").find("QUIL      02/09/20021"), std::string::npos);
}

TEST_F(ControlFileOperations, buildTheHydrographAndParseTheTexts) {
  expect({{"{'do':'set','screen':'frmHydrographData','control':'txtTitle','value':'Storm'}", kDone},
          {"{'do':'call','name':'BuildHydrographText','args':[]}", kDone},
          {"{'do':'variable','name':'hydrographText'}",
           "{'ok':true,'value':'HYD       Storm                         0C        \\r\\nENDTABLE'}"},
          {"{'do':'call','name':'ParseControlText','args':[]}", kDone}});
}

}  // namespace
}  // namespace kestra
