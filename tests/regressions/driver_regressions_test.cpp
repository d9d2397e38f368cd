#include <gtest/gtest.h>

#include <sstream>

#include "automation/driver_desk.h"

namespace kestra {
namespace {

struct DriverRegressions : testing::Test {
  DriverDesk desk;
};

// The handler of an empty entry read behind the end of the list.
TEST_F(DriverRegressions, anEmptyRecentProjectThatIsCalledDoesNothing) {
  EXPECT_EQ(desk.tell("{'do':'call','name':'frmTopScreen.mnuRecentProject(10)_Click'}"), "{'ok':true,'value':null}");
}

// The row number was counted beyond the largest integer.
TEST_F(DriverRegressions, emptyRowsBelowTheLastRowNumberAreRefused) {
  EXPECT_EQ(desk.tell("{'do':'setcells','screen':'gallery','control':'table','row':2147483647,'column':0,"
                      "'values':[[],[],[]]}"),
            "{'ok':false,'error':'gallery.table does not hold this block'}");
}

// The refused request had taken the focus from where it was.
TEST_F(DriverRegressions, aRefusedValueLeavesTheFocusWhereItWas) {
  desk.app.host.show(desk.gallery);
  desk.gallery.text.takeFocus();
  desk.tell("{'do':'set','screen':'gallery','control':'label','value':'x'}");
  desk.tell("{'do':'set','screen':'gallery','control':'combo','value':'x'}");
  EXPECT_EQ(desk.app.host.focus(), &desk.gallery.text);
}

// The keys in front of the unfit one were typed.
TEST_F(DriverRegressions, keysAreCheckedBeforeTheFirstIsPressed) {
  desk.tell("{'do':'type','screen':'gallery','control':'text','keys':['x',5]}");
  EXPECT_EQ(desk.gallery.text.text(), "abc");
}

// The fault ran through the screen that had asked and left a modal screen on show.
TEST_F(DriverRegressions, anUnfitAnswerIsFoundBeforeTheSystemAsks) {
  desk.tell("{'do':'click','screen':'asker','control':'modal','answers':[{'modal':5}]}");
  EXPECT_FALSE(desk.asker.first.visible());
}

// What was kept of the line was blank, so that it passed for a blank line.
TEST_F(DriverRegressions, aLineThatIsTooLongIsAnsweredHoweverManyBlanksItBeginsWith) {
  std::istringstream in(std::string(Driver::kLongestLine + 1, ' ') + "{\"do\":\"state\"}\n");
  std::ostringstream out;
  desk.driver.run(in, out);
  EXPECT_EQ(out.str(), "{\"ok\":false,\"error\":\"the request is longer than 64 MiB\"}\n");
}

// A dialog confirmed without any name gave a list without a first entry.
TEST_F(DriverRegressions, aFileDialogThatIsConfirmedHasAtLeastAnEmptyName) {
  desk.tell("{'do':'click','screen':'asker','control':'open','answers':[{'files':[]}]}");
  EXPECT_EQ(desk.asker.got.caption(), "<>");
}

}  // namespace
}  // namespace kestra
