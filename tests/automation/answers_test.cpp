#include <gtest/gtest.h>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

class Answers : public testing::Test {
 protected:
  std::string click(const std::string& command, const std::string& answers) {
    const std::string given = answers.empty() ? "" : ",'answers':[" + answers + "]";
    return desk.tell("{'do':'click','screen':'asker','control':'" + command + "'" + given + "}");
  }
  std::string got() const { return desk.asker.got.caption(); }
  DriverDesk desk;
};

struct Case {
  const char* command;
  const char* answers;
  const char* got;     // what the system was given
  const char* report;  // what the answer holds behind ok and value
};

#define CONFIRM(answer) \
  "{'title':'Title','text':'Go on?','icon':'question','buttons':['Yes','No'],'answer':'" answer "'}"
#define SAVE(answer) \
  "{'title':'Save','text':'Save it?','icon':'warning','buttons':['Yes','No','Cancel'],'answer':'" answer "'}"
#define CHOICE(answer) "{'title':'Choice','text':'Which?','icon':'none','buttons':['OK','Yes'],'answer':'" answer "'}"

TEST_F(Answers, chooseTheButtonOfABox) {
  const Case table[] = {
      {"confirm", "'Yes'", "Yes", "'boxes':[" CONFIRM("Yes") "]"},
      {"confirm", "'No'", "No", "'boxes':[" CONFIRM("No") "]"},
      {"confirm", "{'cancel':true}", "No", "'boxes':[" CONFIRM("No") "]"},
      {"confirm", "", "No", "'boxes':[" CONFIRM("No") "],'unanswered':1"},
      {"confirm", "'Cancel'", "No", "'boxes':[" CONFIRM("No") "],'unanswered':1"},
      {"confirm", "'yes'", "No", "'boxes':[" CONFIRM("No") "],'unanswered':1"},
      {"confirm", "{'file':'a'}", "No", "'boxes':[" CONFIRM("No") "],'unanswered':1"},
      {"confirm", "'No','Yes'", "No", "'boxes':[" CONFIRM("No") "]"},
      {"three", "'Cancel'", "Cancel", "'boxes':[" SAVE("Cancel") "]"},
      {"three", "'No'", "No", "'boxes':[" SAVE("No") "]"},
      {"three", "{'cancel':true}", "Cancel", "'boxes':[" SAVE("Cancel") "]"},
      {"three", "", "Cancel", "'boxes':[" SAVE("Cancel") "],'unanswered':1"},
      {"choice", "'Yes'", "Yes", "'boxes':[" CHOICE("Yes") "]"},
      {"choice", "", "OK", "'boxes':[" CHOICE("OK") "],'unanswered':1"},
  };
  for (const auto& [command, answers, expected, report] : table) {
    EXPECT_EQ(click(command, answers), "{'ok':true,'value':null," + std::string(report) + "}") << answers;
    EXPECT_EQ(got(), expected) << answers;
  }
}

#define DIALOG(kind, title, filter, index, start, answer)                                                            \
  "'dialogs':[{'kind':'" kind "','title':'" title "','filter':'" filter "','filterIndex':" index ",'default':" start \
  ",'answer':" answer "}]"
#define OPEN(answer) DIALOG("open", "Open it", "All (*.*)|*.*", "2", "'a.KSC'", answer)
#define SEVERAL(answer) DIALOG("open", "Open them", "", "1", "''", answer)
#define PLAIN(kind, title, start, answer) DIALOG(kind, title, "", "0", start, answer)

TEST_F(Answers, fillTheDialogs) {
  const Case table[] = {
      {"open", "{'file':'/a/b.KSC'}", "</a/b.KSC>", OPEN("{'file':'/a/b.KSC'}")},
      {"open", "{'file':''}", "<>", OPEN("{'file':''}")},
      {"open", "{'files':['a','b']}", "<a>", OPEN("{'files':['a','b']}")},
      {"open", "{'cancel':true}", "cancelled", OPEN("{'cancel':true}")},
      {"open", "", "cancelled", OPEN("{'cancel':true}") ",'unanswered':1"},
      {"open", "'Yes'", "cancelled", OPEN("{'cancel':true}") ",'unanswered':1"},
      {"open", "{'directory':'a'}", "cancelled", OPEN("{'cancel':true}") ",'unanswered':1"},
      {"openSeveral", "{'files':['a','b']}", "<a><b>", SEVERAL("{'files':['a','b']}")},
      {"openSeveral", "{'file':'a'}", "<a>", SEVERAL("{'file':'a'}")},
      {"openSeveral", "{'files':[]}", "<>", SEVERAL("{'files':[]}")},
      {"save", "{'file':'c'}", "<c>", DIALOG("save", "Save it", "KSC|*.KSC", "1", "'b.KSC'", "{'file':'c'}")},
      {"directory", "{'directory':'/x'}", "/x", PLAIN("directory", "Where", "'/start'", "{'directory':'/x'}")},
      {"directory", "{'cancel':true}", "cancelled", PLAIN("directory", "Where", "'/start'", "{'cancel':true}")},
      {"color", "{'color':16711680}", "16711680", PLAIN("color", "", "255", "{'color':16711680}")},
      {"color", "", "cancelled", PLAIN("color", "", "255", "{'cancel':true}") ",'unanswered':1"},
      {"font", "{'font':{'name':'Wide','size':12.5,'bold':true,'italic':false}}", "Wide 12 bold",
       PLAIN("font", "", "'Plain'", "{'font':{'name':'Wide','size':12.5,'bold':true,'italic':false}}")},
      {"font", "{'font':{}}", "Plain 10 italic", PLAIN("font", "", "'Plain'", "{'font':{}}")},
      {"font", "{'cancel':true}", "cancelled", PLAIN("font", "", "'Plain'", "{'cancel':true}")},
      {"print", "{'print':true}", "printed", PLAIN("print", "", "'LPT1'", "{'print':true}")},
      {"print", "{'print':false}", "cancelled", PLAIN("print", "", "'LPT1'", "{'print':false}")},
      {"print", "", "cancelled", PLAIN("print", "", "'LPT1'", "{'cancel':true}") ",'unanswered':1"},
  };
  for (const auto& [command, answers, expected, report] : table) {
    EXPECT_EQ(click(command, answers), "{'ok':true,'value':null," + std::string(report) + "}") << answers;
    EXPECT_EQ(got(), expected) << answers;
  }
}

TEST_F(Answers, areNotSpentOnABoxWithOneButtonOrABeep) {
  EXPECT_EQ(click("tell", ""),
            "{'ok':true,'value':null,'boxes':[{'title':'Title','text':'Done.','icon':'information','buttons':['OK'],"
            "'answer':'OK'}]}");
  EXPECT_EQ(click("beep", ""), "{'ok':true,'value':null,'beeps':1}");
}

TEST_F(Answers, areTakenInTheOrderInWhichTheSystemAsks) {
  EXPECT_EQ(click("everything", "'Yes',{'file':'f'},{'modal':[]},'No'"),
            "{'ok':true,'value':null,'boxes':[" CONFIRM("Yes")
            ",{'title':'Title','text':'Done.','icon':'information','buttons':['OK'],'answer':'OK'}," SAVE("No")
            "]," OPEN("{'file':'f'}") ",'modals':[{'screen':'first','replies':[]}],'beeps':2}");
  EXPECT_EQ(got(), "No");
}

TEST_F(Answers, thatAreTooFewLeaveTheRestRefused) {
  EXPECT_EQ(click("everything", "'Yes'"),
            "{'ok':true,'value':null,'boxes':[" CONFIRM("Yes")
            ",{'title':'Title','text':'Done.','icon':'information','buttons':['OK'],'answer':'OK'}," SAVE("Cancel")
            "]," OPEN("{'cancel':true}") ",'modals':['first'],'beeps':2,'unanswered':3}");
}

struct Shape {
  const char* answer;
  const char* error;
};

TEST_F(Answers, ofNoKnownShapeRefuseTheRequestBeforeAnythingHappens) {
  const Shape table[] = {
      {"1", "answer 1 is neither a button nor the answer of a dialog or screen"},
      {"null", "answer 1 is neither a button nor the answer of a dialog or screen"},
      {"true", "answer 1 is neither a button nor the answer of a dialog or screen"},
      {"{}", "answer 1 is neither a button nor the answer of a dialog or screen"},
      {"['Yes']", "answer 1 is neither a button nor the answer of a dialog or screen"},
      {"{'File':'a'}", "answer 1 is neither a button nor the answer of a dialog or screen"},
      {"{'file':1}", "answer 1 \\'file\\' must be a text"},
      {"{'files':'a'}", "answer 1 \\'files\\' must be a list"},
      {"{'files':['a',null]}", "an entry of answer 1 \\'files\\' must be a text"},
      {"{'directory':[]}", "answer 1 \\'directory\\' must be a text"},
      {"{'color':'red'}", "answer 1 \\'color\\' must be a whole number"},
      {"{'color':1.5}", "answer 1 \\'color\\' must be a whole number"},
      {"{'color':-1}", "answer 1 \\'color\\' must be from 0 to 16777215"},
      {"{'color':16777216}", "answer 1 \\'color\\' must be from 0 to 16777215"},
      {"{'font':'Wide'}", "answer 1 \\'font\\' must be an object"},
      {"{'font':{'name':1}}", "answer 1 \\'font\\': \\'name\\' must be a text"},
      {"{'font':{'size':'1'}}", "answer 1 \\'font\\': \\'size\\' must be a number"},
      {"{'font':{'bold':1}}", "answer 1 \\'font\\': \\'bold\\' must be true or false"},
      {"{'font':{'italic':null}}", "answer 1 \\'font\\': \\'italic\\' must be true or false"},
      {"{'print':1}", "answer 1 \\'print\\' must be true or false"},
      {"{'cancel':1}", "answer 1 \\'cancel\\' must be true or false"},
      {"{'cancel':false}", "answer 1 \\'cancel\\' must be true"},
      {"{'modal':{}}", "answer 1 \\'modal\\' must be a list"},
      {"'Yes',{'modal':null}", "answer 2 \\'modal\\' must be a list"},
  };
  for (const auto& [answer, error] : table) {
    EXPECT_EQ(click("everything", answer), "{'ok':false,'error':'" + std::string(error) + "'}") << answer;
    EXPECT_EQ(got(), "");
  }
}

TEST_F(Answers, ofAFailingRequestAreReportedAllTheSame) {
  EXPECT_EQ(click("fault", "'Yes'"), "{'ok':false,'error':'Type mismatch'}");
  desk.asker.fault.onClick = [this] {
    desk.asker.confirm.click();
    throw RuntimeFault("Overflow");
  };
  EXPECT_EQ(click("fault", "'Yes'"), "{'ok':false,'error':'Overflow','boxes':[" CONFIRM("Yes") "]}");
}

TEST_F(Answers, doNotLastBeyondTheirRequest) {
  click("tell", "'Yes','Yes'");
  click("confirm", "");
  EXPECT_EQ(got(), "No");
}

TEST_F(Answers, areNotThereOutsideARequest) {
  EXPECT_EQ(desk.conversation.show({"Title", "Text", BoxIcon::none, {BoxButton::yes, BoxButton::no}}), BoxButton::no);
  EXPECT_EQ(desk.conversation.chooseDirectory("Where", "/"), std::nullopt);
  desk.conversation.beep();
  desk.app.host.showModal(desk.asker.first);
  EXPECT_FALSE(desk.asker.first.visible());
  EXPECT_EQ(desk.outside.str(), "Title: Text\ncancelled: directory dialog Where\n");
}

class Modal : public Answers {};

constexpr const char* kSure =
    "{'title':'Title of first','text':'Sure?','icon':'question','buttons':['Yes','No'],'answer':'";

TEST_F(Modal, screenIsCancelledWithoutAnAnswer) {
  EXPECT_EQ(click("modal", ""), "{'ok':true,'value':null,'modals':['first'],'unanswered':1}");
  EXPECT_EQ(click("modal", "{'cancel':true}"), "{'ok':true,'value':null,'modals':['first']}");
  EXPECT_EQ(click("modal", "'OK'"), "{'ok':true,'value':null,'modals':['first'],'unanswered':1}");
  EXPECT_FALSE(desk.asker.first.visible());
}

TEST_F(Modal, screenCarriesOutItsRequestsWhileItIsShown) {
  EXPECT_EQ(click("modal",
                  "{'modal':[{'id':1,'do':'set','screen':'first','control':'text','value':'x'},"
                  "{'do':'clipboard'},{'do':'get','screen':'first','control':'nothing'},7]}"),
            "{'ok':true,'value':null,'modals':[{'screen':'first','replies':[{'id':1,'ok':true,'value':null},"
            "{'ok':true,'value':''},{'ok':false,'error':'first has no control named \\'nothing\\''},"
            "{'ok':false,'error':'a request must be a JSON object'}]}]}");
  EXPECT_FALSE(desk.asker.first.visible());
  EXPECT_EQ(desk.asker.first.text.text(), "x");
}

TEST_F(Modal, requestsHaveAnswersOfTheirOwn) {
  const std::string ask = "{'do':'click','screen':'first','control':'cmdAsk'";
  EXPECT_EQ(click("modal", "{'modal':[" + ask + ",'answers':['Yes']}," + ask + "}]},'Yes'"),
            "{'ok':true,'value':null,'modals':[{'screen':'first','replies':[{'ok':true,'value':null,'boxes':[" +
                std::string(kSure) + "Yes'}]},{'ok':true,'value':null,'boxes':[" + kSure + "No'}],'unanswered':1}]}]}");
}

TEST_F(Modal, screenThatItsOwnRequestClosesTakesNoMore) {
  EXPECT_EQ(
      click("modal", "{'modal':[{'do':'click','screen':'first','control':'cmdClose'},{'do':'state'},{'do':'state'}]}"),
      "{'ok':true,'value':null,'modals':[{'screen':'first','replies':[{'ok':true,'value':null},"
      "{'ok':false,'error':'first is no longer shown'},{'ok':false,'error':'first is no longer shown'}]}]}");
  EXPECT_FALSE(desk.asker.first.loaded());
}

TEST_F(Modal, screenMayBeClosedByItsFrame) {
  EXPECT_EQ(click("modal", "{'modal':[{'do':'close','screen':'first'}]}"),
            "{'ok':true,'value':null,'modals':[{'screen':'first','replies':[{'ok':true,'value':null}]}]}");
  EXPECT_FALSE(desk.asker.first.loaded());
}

TEST_F(Modal, screenMayShowAnother) {
  const std::string next = "{'do':'click','screen':'first','control':'cmdNext'";
  EXPECT_EQ(click("modal", "{'modal':[" + next +
                               ",'answers':[{'modal':[{'do':'variable','name':'second.Caption'}]}]}," + next + "}]}"),
            "{'ok':true,'value':null,'modals':[{'screen':'first','replies':[{'ok':true,'value':null,'modals':["
            "{'screen':'second','replies':[{'ok':true,'value':'Title of second'}]}]},"
            "{'ok':true,'value':null,'modals':['second'],'unanswered':1}]}]}");
}

TEST_F(Modal, screenIsInFrontWhileItsRequestsRun) {
  desk.tell("{'do':'activate','screen':'asker'}");
  const std::string answer = click("modal", "{'modal':[{'do':'state'}]}");
  EXPECT_NE(answer.find("'visible':['first','asker','frmTopScreen']"), std::string::npos) << answer;
  const std::string later = desk.tell("{'do':'state'}");
  EXPECT_NE(later.find("'visible':['asker','frmTopScreen']"), std::string::npos) << later;
}

TEST_F(Modal, requestMayQuit) {
  EXPECT_EQ(click("modal", "{'modal':[{'do':'quit'}]}"),
            "{'ok':true,'value':null,'modals':[{'screen':'first','replies':[{'ok':true,'value':null}]}]}");
  EXPECT_TRUE(desk.driver.finished());
}

}  // namespace
}  // namespace kestra
