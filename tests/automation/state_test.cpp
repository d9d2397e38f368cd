#include <gtest/gtest.h>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

class State : public testing::Test {
 protected:
  void expect(std::initializer_list<std::pair<const char*, const char*>> requests) {
    for (const auto& [request, answer] : requests) EXPECT_EQ(desk.tell(request), answer) << request;
  }
  DriverDesk desk;
};

TEST_F(State, isWholeAtTheStart) {
  expect({{"{'do':'state'}",
           "{'ok':true,'value':{'projectDir':'','currentFile':'','fileDirty':false,'fileIsNew':true,"
           "'fileHasName':false,'bExiting':false,'windowOpen':[false,false,false,false,false,false],"
           "'numAuxSpillways':0,'curAuxSpillway':0,'totalInstances':'1','lhsSeed':'1','bRandomSample':false,"
           "'recentProjects':[],'visible':['frmTopScreen'],'titles':{'frmTopScreen':'Kestra B'},'focus':null}}"}});
}

TEST_F(State, followsAProjectThatIsMade) {
  makeProject(desk.app.shell, "/home", "dam");
  desk.gallery.text.takeFocus();
  desk.app.host.show(desk.gallery);
  expect({{"{'do':'state'}",
           "{'ok':true,'value':{'projectDir':'/home/dam','currentFile':'','fileDirty':false,'fileIsNew':false,"
           "'fileHasName':false,'bExiting':false,'windowOpen':[true,false,false,false,false,false],"
           "'numAuxSpillways':0,'curAuxSpillway':0,'totalInstances':'1','lhsSeed':'1','bRandomSample':false,"
           "'recentProjects':['/home/dam'],'visible':['gallery','frmKestra','frmTopScreen'],"
           "'titles':{'frmTopScreen':'Kestra B [ Project  /home/dam]','frmKestra':'Kestra B - Input Interface',"
           "'gallery':'Gallery'},'focus':{'screen':'gallery','control':'text'}}}"}});
  desk.app.host.hide(desk.gallery);
  EXPECT_NE(desk.tell("{'do':'state'}").find("'focus':null"), std::string::npos);
}

TEST_F(State, hasScreensThatAreShownAndClosed) {
  expect({
      {"{'do':'activate','screen':'frmAbout'}", "{'ok':true,'value':null}"},
      {"{'do':'close','screen':'frmAbout'}", "{'ok':true,'value':null}"},
      {"{'do':'close','screen':'frmAbout'}", "{'ok':true,'value':null}"},
  });
  EXPECT_FALSE(desk.app.shell.about.loaded());
  const std::string screens = desk.tell("{'do':'screens'}");
  EXPECT_TRUE(
      screens.starts_with("{'ok':true,'value':['frmTopScreen','frmKestra','frmNewProject','frmOpenProject',"
                          "'frmDeleteProject','frmAbout','frmDisclaimer','frmProjectInformation',"));
  EXPECT_TRUE(screens.ends_with("'asker','first','second','gallery']}"));
}

TEST_F(State, isNotChangedByLookingNorByARefusedRequest) {
  const std::string before = desk.tell("{'do':'state'}");
  for (const char* request :
       {"{'do':'get','screen':'frmKestra','control':'mnuNew'}",
        "{'do':'click','screen':'frmKestra','control':'mnuNew'}", "{'do':'controls','screen':'frmKestra'}"}) {
    desk.tell(request);
    EXPECT_EQ(desk.tell("{'do':'state'}"), before) << request;
  }
}

TEST_F(State, namesTheInputScreensOnceTheInputWindowIsThere) {
  EXPECT_EQ(desk.tell("{'do':'variable','name':'inputScreens'}"), "{'ok':true,'value':[]}");
  desk.tell("{'do':'activate','screen':'frmKestra'}");
  EXPECT_EQ(desk.tell("{'do':'variable','name':'inputScreens(1)'}"), "{'ok':true,'value':'frmProjectInformation'}");
}

TEST_F(State, readsOneElementOfAList) {
  expect({
      {"{'do':'variable','name':'ColorList(2)'}", "{'ok':true,'value':255}"},
      {"{'do':'variable','name':'windowOpen(6)'}", "{'ok':true,'value':false}"},
      {"{'do':'variable','name':'windowOpen(0)'}", "{'ok':false,'error':'no variable named \\'windowOpen(0)\\''}"},
      {"{'do':'variable','name':'ColorList(110)'}", "{'ok':false,'error':'no variable named \\'ColorList(110)\\''}"},
      {"{'do':'variable','name':'ColorList(x)'}", "{'ok':false,'error':'no variable named \\'ColorList(x)\\''}"},
      {"{'do':'variable','name':'crlf(0)'}", "{'ok':false,'error':'no variable named \\'crlf(0)\\''}"},
  });
}

TEST_F(State, hasVariables) {
  desk.gallery.setBackColor(0xFF);
  expect({
      {"{'do':'variable','name':'projectDir'}", "{'ok':true,'value':''}"},
      {"{'do':'variable','name':'crlf'}", "{'ok':true,'value':'\\r\\n'}"},
      {"{'do':'variable','name':'solverPath'}", "{'ok':true,'value':'/app/QUIL.exe'}"},
      {"{'do':'variable','name':'currentSpillwayNumber'}", "{'ok':true,'value':'1'}"},
      {"{'do':'variable','name':'projectReadOnly'}", "{'ok':true,'value':false}"},
      {"{'do':'variable','name':'windowOpen'}", "{'ok':true,'value':[false,false,false,false,false,false]}"},
      {"{'do':'variable','name':'fieldTitles'}", "{'ok':true,'value':[]}"},
      {"{'do':'variable','name':'fieldCount'}", "{'ok':true,'value':[0,0]}"},
      {"{'do':'variable','name':'frmTopScreen.Caption'}", "{'ok':true,'value':'Kestra B'}"},
      {"{'do':'variable','name':'frmTopScreen.Width'}", "{'ok':true,'value':11600}"},
      {"{'do':'variable','name':'frmTopScreen.Height'}", "{'ok':true,'value':7605}"},
      {"{'do':'variable','name':'gallery.BackColor'}", "{'ok':true,'value':255}"},
      {"{'do':'variable','name':'gallery.Depth'}", "{'ok':false,'error':'no variable named \\'gallery.Depth\\''}"},
      {"{'do':'variable','name':'none.Width'}", "{'ok':false,'error':'no variable named \\'none.Width\\''}"},
      {"{'do':'variable','name':'PROJECTDIR'}", "{'ok':false,'error':'no variable named \\'PROJECTDIR\\''}"},
  });
}

TEST_F(State, hasTheListsOfColoursAndLinesInTheirLengths) {
  const auto length = [this](const std::string& name) {
    const Json answer = Json::parse(desk.driver.answerTo(R"({"do":"variable","name":")" + name + "\"}"));
    return answer["value"].size();
  };
  EXPECT_EQ(length("ColorList"), 110U);
  EXPECT_EQ(length("ComboList"), 14U);
  EXPECT_EQ(length("WidthList"), 14U);
}

TEST_F(State, hasAClipboard) {
  expect({
      {"{'do':'clipboard'}", "{'ok':true,'value':''}"},
      {"{'do':'clipboard','text':'a\\tb\\r\\nä'}", "{'ok':true,'value':'a\\tb\\r\\nä'}"},
      {"{'do':'clipboard'}", "{'ok':true,'value':'a\\tb\\r\\nä'}"},
      {"{'do':'clipboard','text':''}", "{'ok':true,'value':''}"},
  });
}

TEST_F(State, hasOperations) {
  expect({
      {"{'do':'call','name':'PadField','args':['abc',5]}", "{'ok':true,'value':'abc  '}"},
      {"{'do':'call','name':'PadField','args':['abc',2]}", "{'ok':true,'value':'ab'}"},
      {"{'do':'call','name':'PopLine','args':['a\\r\\nb']}", "{'ok':true,'value':{'line':'a','rest':'b'}}"},
      {"{'do':'call','name':'nextTabField','args':['a\\tb\\tc']}", "{'ok':true,'value':{'field':'a','rest':'b\\tc'}}"},
      {"{'do':'call','name':'ParsePathName','args':['/a/b.KSC']}", "{'ok':true,'value':'b.KSC'}"},
      {"{'do':'call','name':'frmTopScreen.ParsePathName','args':['/']}", "{'ok':true,'value':''}"},
      {"{'do':'call','name':'IsAvailable','args':[2]}", "{'ok':true,'value':false}"},
      {"{'do':'call','name':'AddData','args':[2]}", "{'ok':true,'value':null}"},
      {"{'do':'call','name':'IsAvailable','args':[2]}", "{'ok':true,'value':true}"},
      {"{'do':'call','name':'RemoveData','args':[2.0]}", "{'ok':true,'value':null}"},
      {"{'do':'call','name':'AddData','args':[7]}", "{'ok':false,'error':'window slot 7 is outside 1 to 6'}"},
      {"{'do':'call','name':'UpdateRecentProjects','args':['/p']}", "{'ok':true,'value':null}"},
      {"{'do':'variable','name':'recentProjects'}", "{'ok':true,'value':['/p']}"},
      {"{'do':'call','name':'RemoveRecentProject','args':['/p']}", "{'ok':true,'value':null}"},
      {"{'do':'variable','name':'recentProjects'}", "{'ok':true,'value':[]}"},
      {"{'do':'call','name':'InitLines'}", "{'ok':true,'value':null}"},
      {"{'do':'call','name':'gallery.shut_Click','args':[]}", "{'ok':true,'value':null}"},
  });
  EXPECT_EQ(desk.gallery.log, "shut");
}

TEST_F(State, refusesCallsWithUnfitArguments) {
  expect({
      {"{'do':'call','name':'PadField'}", "{'ok':false,'error':'PadField(text, width) takes 2 arguments, not 0'}"},
      {"{'do':'call','name':'PadField','args':['a',1,2]}",
       "{'ok':false,'error':'PadField(text, width) takes 2 arguments, not 3'}"},
      {"{'do':'call','name':'PadField','args':[1,1]}",
       "{'ok':false,'error':'PadField: argument \\'text\\' must be a text'}"},
      {"{'do':'call','name':'PadField','args':['a','1']}",
       "{'ok':false,'error':'PadField: argument \\'width\\' must be a whole number'}"},
      {"{'do':'call','name':'PadField','args':['a',1e10]}",
       "{'ok':false,'error':'PadField: argument \\'width\\' must be a whole number'}"},
      {"{'do':'call','name':'gallery.press_Click','args':[1]}",
       "{'ok':false,'error':'gallery.press_Click() takes 0 arguments, not 1'}"},
      {"{'do':'call','name':'gallery.idle_Click'}",
       "{'ok':false,'error':'no operation named \\'gallery.idle_Click\\''}"},
      {"{'do':'call','name':'gallery.text_Click'}",
       "{'ok':false,'error':'no operation named \\'gallery.text_Click\\''}"},
      {"{'do':'call','name':'gallery._Click'}", "{'ok':false,'error':'no operation named \\'gallery._Click\\''}"},
      {"{'do':'call','name':'._Click'}", "{'ok':false,'error':'no operation named \\'._Click\\''}"},
      {"{'do':'call','name':'_Click.'}", "{'ok':false,'error':'no operation named \\'_Click.\\''}"},
  });
}

TEST_F(State, namesEveryOperationThatCanBeCalledOnce) {
  const Json list = Json::parse(desk.driver.answerTo(R"({"do":"operations"})"))["value"];
  std::map<std::string, Json> named;
  for (const Json& entry : list) {
    EXPECT_TRUE(named.emplace(entry["name"].get<std::string>(), entry["arguments"]).second) << entry;
    const std::string call =
        Json{{"do", "call"}, {"name", entry["name"]}, {"args", Json::array({1, 2, 3, 4, 5, 6, 7, 8, 9, 10})}}.dump();
    EXPECT_NE(desk.driver.answerTo(call).find(" arguments, not 10"), std::string::npos) << entry;
  }
  EXPECT_EQ(named["PadField"], Json::parse(R"(["text","width"])"));
  EXPECT_EQ(named["frmTopScreen.AddData"], Json::parse(R"(["slot"])"));
  EXPECT_EQ(named["gallery.press_Click"], Json::array());
  EXPECT_FALSE(named.contains("gallery.idle_Click"));
}

TEST_F(State, composesNoRecordWithoutTheWordThatMakesIt) {
  expect({
      {"{'do':'call','name':'ComposeRecord','args':['OPTION NOBREACH',['SIMPLE','EARTH']]}",
       "{'ok':false,'error':'the record takes 3 values at least'}"},
      {"{'do':'call','name':'ComposeRecord','args':['OPTION NOBREACH',['SIMPLE','EARTH','']]}",
       "{'ok':true,'value':'OPTION    SIMPLE    EARTH               NOBREACH'}"},
      {"{'do':'call','name':'ComposeRow','args':['STRUCTURE',[' 1 ',' 2','3 ','4']]}",
       "{'ok':true,'value':'                    1         2         3         4         '}"},
  });
}

TEST_F(State, readsTheIdentifierAndCommentsWithTheirBlanks) {
  desk.memory.put("/home/a.KSC", "KESTRA    01/01/2009  lead\r\n*           indented\r\n");
  EXPECT_EQ(
      desk.tell("{'do':'call','name':'ReadRecords','args':['/home/a.KSC']}"),
      "{'ok':true,'value':[{'run':'main','ended':false,'records':[{'line':1,'record':'KESTRA','fields':{'project':"
      "'  lead'}},{'line':2,'record':'COMMENT','fields':{'comment':'  indented'}}],'unknown':[]}]}");
}

}  // namespace
}  // namespace kestra
