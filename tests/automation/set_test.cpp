#include <gtest/gtest.h>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

constexpr const char* kDone = "{'ok':true,'value':null}";

std::string refused(const std::string& why) {
  return "{'ok':false,'error':'" + why + "'}";
}

class Set : public testing::Test {
 protected:
  std::string set(const std::string& control, const std::string& value) {
    return desk.tell("{'do':'set','screen':'gallery','control':'" + control + "','value':" + value + "}");
  }
  DriverDesk desk;
  Gallery& gallery = desk.gallery;
};

struct Setting {
  const char* control;
  const char* value;
  const char* log;  // of the handlers that ran
};

TEST_F(Set, runsTheHandlersOfEveryKindThatCanBeSet) {
  const Setting table[] = {
      {"text", "'1234567'", "focus change:12345"},
      {"text", "''", "change:"},
      {"optNone(2)", "true", "optNone(2)"},
      {"check", "true", "check"},
      {"combo", "'three'", "combo:three"},
      {"combo", "{'index':0}", "combo:one"},
      {"combo", "{'index':1.0}", "combo:two"},
      {"editable", "'y'", "editable:y"},
      {"editable", "'new'", "editable:new"},
      {"list", "{'index':1}", "list:b"},
      {"tabs", "1", "tab:0"},
      {"slider", "2.5", "slider"},
      {"slider", "99", "slider"},
      {"directory", "'/home'", "directory:/home"},
  };
  for (const auto& [control, value, log] : table) {
    EXPECT_EQ(set(control, value), kDone) << control << " " << value;
    EXPECT_EQ(gallery.takeLog(), log) << control << " " << value;
  }
  EXPECT_TRUE(gallery.optNone(2).selected());
  EXPECT_TRUE(gallery.check.checked());
  EXPECT_EQ(gallery.combo.index(), 1);
  EXPECT_EQ(gallery.editable.text(), "new");
  EXPECT_EQ(gallery.editable.index(), -1);
  EXPECT_EQ(gallery.tabs.index(), 1);
  EXPECT_EQ(gallery.slider.value(), 10);
  EXPECT_TRUE(desk.app.state.fileDirty);
}

TEST_F(Set, selectsOneOptionOfAGroup) {
  set("optNone(0)", "true");
  set("optNone(1)", "true");
  EXPECT_FALSE(gallery.optNone(0).selected());
  EXPECT_TRUE(gallery.optNone(1).selected());
}

TEST_F(Set, cutsATextByCharacters) {
  EXPECT_EQ(set("text", "'äöüßéx'"), kDone);
  EXPECT_EQ(gallery.text.text(), "äöüßé");
}

struct Refusal {
  const char* control;
  const char* value;
  const char* error;
};

TEST_F(Set, refusesWhatTheControlCannotTakeAndTouchesNothing) {
  const Refusal table[] = {
      {"text", "1", "gallery.text must be a text"},
      {"text", "null", "gallery.text must be a text"},
      {"optNone(0)", "false", "gallery.optNone(0) is cleared by selecting another option"},
      {"optNone(0)", "1", "gallery.optNone(0) must be true or false"},
      {"check", "'true'", "gallery.check must be true or false"},
      {"combo", "'four'", "gallery.combo has no entry \\'four\\'"},
      {"combo", "''", "gallery.combo has no entry \\'\\'"},
      {"combo", "2", "gallery.combo must be a text"},
      {"combo", "{}", "field \\'index\\' is missing"},
      {"combo", "{'index':'1'}", "field \\'index\\' must be a whole number"},
      {"combo", "{'index':0.5}", "field \\'index\\' must be a whole number"},
      {"combo", "{'index':3}", "gallery.combo has no entry {\\'index\\':3}"},
      {"list", "{'index':-1}", "gallery.list has no entry {\\'index\\':-1}"},
      {"list", "'A'", "gallery.list has no entry \\'A\\'"},
      {"editable", "{'index':2}", "gallery.editable has no entry {\\'index\\':2}"},
      {"tabs", "2", "gallery.tabs has no tab 2"},
      {"tabs", "-1", "gallery.tabs has no tab -1"},
      {"tabs", "'First'", "gallery.tabs must be a whole number"},
      {"tabs", "99999999999", "gallery.tabs must be a whole number"},
      {"slider", "'5'", "gallery.slider must be a number"},
      {"directory", "'/nowhere'", "gallery.directory cannot choose /nowhere: no such directory"},
      {"directory", "7", "gallery.directory must be a text"},
      {"press", "true", "gallery.press cannot be set: it is a button"},
      {"accept", "true", "gallery.accept cannot be set: it is a menu"},
      {"label", "'x'", "gallery.label cannot be set: it is a label"},
      {"border", "'x'", "gallery.border cannot be set: it is a frame"},
      {"table", "'x'", "gallery.table cannot be set: it is a table"},
      {"gauge", "5", "gallery.gauge cannot be set: it is a gauge"},
      {"canvas", "0", "gallery.canvas cannot be set: it is a canvas"},
  };
  desk.app.host.show(gallery);
  for (const auto& [control, value, error] : table) {
    EXPECT_EQ(set(control, value), refused(error)) << control << " " << value;
    EXPECT_EQ(gallery.takeLog(), "") << control << " " << value;
    EXPECT_EQ(desk.app.host.focus(), nullptr) << control << " " << value;
  }
  EXPECT_FALSE(desk.app.state.fileDirty);
}

TEST_F(Set, needsAValue) {
  EXPECT_EQ(desk.tell("{'do':'set','screen':'gallery','control':'text'}"), refused("field \\'value\\' is missing"));
}

TEST_F(Set, putsTheFocusOnTheControlAndLeaveRunsItsChecks) {
  desk.app.host.show(gallery);
  set("text", "'a'");
  EXPECT_EQ(desk.app.host.focus(), &gallery.text);
  gallery.takeLog();
  EXPECT_EQ(desk.tell("{'do':'leave','screen':'gallery','control':'text'}"), kDone);
  EXPECT_EQ(gallery.takeLog(), "leave");
  EXPECT_EQ(desk.app.host.focus(), nullptr);
}

TEST_F(Set, ofASecondControlLeavesTheChecksOfTheFirstToTheScript) {
  desk.app.host.show(gallery);
  set("text", "'a'");
  gallery.takeLog();
  set("check", "true");
  EXPECT_EQ(gallery.takeLog(), "check");
  EXPECT_EQ(desk.app.host.focus(), &gallery.check);
}

}  // namespace
}  // namespace kestra
