#include <gtest/gtest.h>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

struct Row {
  const char* control;
  const char* answer;
  const char* log;
};
constexpr const char* kDone = "{'ok':true,'value':null}";

class Click : public testing::Test {
 protected:
  void expect(const char* verb, std::initializer_list<Row> rows) {
    for (const auto& [control, answer, log] : rows) {
      EXPECT_EQ(desk.tell("{'do':'" + std::string(verb) + "','screen':'gallery','control':'" + control + "'}"), answer)
          << control;
      EXPECT_EQ(desk.gallery.takeLog(), log) << control;
    }
  }
  DriverDesk desk;
};

TEST_F(Click, runsWhatCanBeClickedAndRefusesTheRest) {
  expect("click",
         {
             {"press", kDone, "press"},
             {"inner", kDone, "inner"},
             {"accept", kDone, "accept"},
             {"optNone(1)", kDone, "optNone(1)"},
             {"check", kDone, "check"},
             {"shut", "{'ok':false,'error':'gallery.shut is disabled'}", ""},
             {"gone", "{'ok':false,'error':'gallery.gone is hidden'}", ""},
             {"idle", "{'ok':false,'error':'gallery.idle has no action'}", ""},
             {"text", "{'ok':false,'error':'gallery.text cannot be clicked: it is a text'}", ""},
             {"combo", "{'ok':false,'error':'gallery.combo cannot be clicked: it is a combo'}", ""},
             {"list", "{'ok':false,'error':'gallery.list cannot be clicked: it is a list'}", ""},
             {"label", "{'ok':false,'error':'gallery.label cannot be clicked: it is a label'}", ""},
             {"border", "{'ok':false,'error':'gallery.border cannot be clicked: it is a frame'}", ""},
             {"table", "{'ok':false,'error':'gallery.table cannot be clicked: it is a table'}", ""},
             {"tabs", "{'ok':false,'error':'gallery.tabs cannot be clicked: it is a tabs'}", ""},
             {"slider", "{'ok':false,'error':'gallery.slider cannot be clicked: it is a slider'}", ""},
             {"gauge", "{'ok':false,'error':'gallery.gauge cannot be clicked: it is a gauge'}", ""},
             {"canvas", "{'ok':false,'error':'gallery.canvas cannot be clicked: it is a canvas'}", ""},
             {"directory", "{'ok':false,'error':'gallery.directory cannot be clicked: it is a directory'}", ""},
         });
  EXPECT_TRUE(desk.gallery.check.checked());
}

TEST_F(Click, isRefusedInAHiddenFrame) {
  desk.gallery.border.setVisible(false);
  expect("click", {{"inner", "{'ok':false,'error':'gallery.inner is hidden'}", ""}});
}

TEST_F(Click, givesAButtonTheFocusAndAMenuNot) {
  desk.app.host.show(desk.gallery);
  expect("click", {{"press", kDone, "press"}, {"accept", kDone, "accept"}});
  EXPECT_EQ(desk.app.host.focus(), &desk.gallery.press);
}

TEST_F(Click, twiceReachesListsTablesAndCanvases) {
  expect("dblclick", {
                         {"combo", kDone, "combo twice"},
                         {"list", kDone, "list twice"},
                         {"table", kDone, "table twice"},
                         {"canvas", kDone, "twice1"},
                         {"press", "{'ok':false,'error':'gallery.press cannot be double-clicked: it is a button'}", ""},
                         {"text", "{'ok':false,'error':'gallery.text cannot be double-clicked: it is a text'}", ""},
                     });
}

struct Keys {
  const char* control;
  const char* keys;
  const char* answer;
  const char* log;
};

TEST_F(Click, andKeysReachTheControlOneByOne) {
  const Keys table[] = {
      {"text", "'d'", kDone, "focus change:abcd"},
      {"text", "'\\b\\b'", kDone, "change:abc change:ab"},
      {"text", "['x',{'key':'PageDown'},'\\r','ä']", kDone, "change:abx change:abxä"},
      {"text", "''", kDone, ""},
      {"text", "[]", kDone, ""},
      {"table", "'1\\r\\b'", kDone, "table:49 table:13 table:8"},
      {"table", "{'key':'Down'}", kDone, "table:Down"},
      {"table", "[{'key':'Enter'},{'key':'Return'},{'key':'Backspace'}]", kDone, "table:13 table:13 table:8"},
      {"table", "['€',{'key':'Home'}]", kDone, "table:8364 table:Home"},
      {"canvas", "'\\u001b'", kDone, "canvas:27"},
      {"press", "'x'", kDone, ""},
      {"table", "['1',2]", "{'ok':false,'error':'keys must be texts or {\\'key\\': NAME}'}", ""},
      {"table", "7", "{'ok':false,'error':'keys must be texts or {\\'key\\': NAME}'}", ""},
      {"table", "[['1']]", "{'ok':false,'error':'keys must be texts or {\\'key\\': NAME}'}", ""},
      {"table", "['1',{'Key':'Home'}]", "{'ok':false,'error':'field \\'key\\' is missing'}", ""},
      {"table", "{'key':5}", "{'ok':false,'error':'field \\'key\\' must be a text'}", ""},
      {"label", "'x'", "{'ok':false,'error':'gallery.label takes no keys: it is a label'}", ""},
      {"border", "'x'", "{'ok':false,'error':'gallery.border takes no keys: it is a frame'}", ""},
      {"accept", "'x'", "{'ok':false,'error':'gallery.accept takes no keys: it is a menu'}", ""},
      {"gauge", "'x'", "{'ok':false,'error':'gallery.gauge takes no keys: it is a gauge'}", ""},
  };
  for (const auto& [control, keys, answer, log] : table) {
    EXPECT_EQ(
        desk.tell("{'do':'type','screen':'gallery','control':'" + std::string(control) + "','keys':" + keys + "}"),
        answer)
        << control << " " << keys;
    EXPECT_EQ(desk.gallery.takeLog(), log) << control << " " << keys;
  }
}

TEST_F(Click, andKeysNeedTheirField) {
  EXPECT_EQ(desk.tell("{'do':'type','screen':'gallery','control':'text'}"),
            "{'ok':false,'error':'field \\'keys\\' is missing'}");
}

TEST_F(Click, enterBreaksTheLineOfAFieldOfSeveralLines) {
  EXPECT_EQ(desk.tell("{'do':'type','screen':'gallery','control':'several','keys':'a\\rb\\nc\\tä\\b'}"), kDone);
  EXPECT_EQ(desk.gallery.several.text(), "a\r\nbc");
}

}  // namespace
}  // namespace kestra
