#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr const char* kPath = "/home/dam/pond.KSC";
constexpr const char* kChecker = "/app/KestraIntCheck.exe";
constexpr const char* kQuestion = "Warning: Do you want to save changes to the current file before checking integrity?";
constexpr const char* kChoose = "Build: No file is opened or created, choose a file to check?";
constexpr const char* kView = "Integrity Check: Integrity check generated warnings. View?";
constexpr const char* kNone = "Integrity Check: No Errors or Warnings Found";
constexpr const char* kNoErrors = "Error Table: No Errors Found";

struct CheckFile : testing::Test {
  WindowDesk desk;
  Screen table{"frmErrorTable", "Errors"};

  CheckFile() {
    desk.window.mnuNew.click();
    desk.saveAs(kPath);
    finds("x\r\n");
  }
  void finds(const std::string& text) {
    desk.processes.effects[kChecker] = [this, text](const ProcessRequest& request) {
      const std::string& file = request.arguments.at(0);
      desk.memory.put(file.substr(0, file.size() - 3) + "ERR", text);
      return Exited{0};
    };
  }
  void check() { desk.window.mnuCheckFile.click(); }
};

TEST_F(CheckFile, startsTheCheckerOnTheOpenFile) {
  check();
  ASSERT_EQ(desk.processes.requests.size(), 1U);
  EXPECT_EQ(desk.processes.requests[0].arguments, std::vector<std::string>{kPath});
  EXPECT_EQ(desk.takeBoxes(), Boxes{kNone});
  EXPECT_EQ(desk.front(), "frmKestra");
}

TEST_F(CheckFile, showsTheTableOfErrorsAndOfWarningsOnYes) {
  desk.app.host.enter(table);
  finds("x\r\nW\r\nF\r\n");
  check();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(desk.front(), "frmErrorTable");
  finds("x\r\nW\r\n");
  desk.app.host.show(desk.window);
  desk.boxes.answers = {BoxButton::yes};
  check();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kView});
  EXPECT_EQ(desk.front(), "frmErrorTable");
  check();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kView});
  EXPECT_EQ(desk.front(), "frmKestra");
  finds("x\r\n");
  check();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kNone});
  EXPECT_FALSE(table.loaded());
}

TEST_F(CheckFile, countsTheFindingsWhereThereIsNoTable) {
  finds("x\r\nF\r\nF\r\nW\r\n");
  check();
  EXPECT_EQ(desk.takeBoxes(),
            Boxes{"Integrity Check: 2 errors and 1 warning were found. They stand in /home/dam/pond.ERR."});
}

TEST_F(CheckFile, findsNothingWhenTheCheckerWritesNoErrorFile) {
  finds("x\r\nF\r\n");
  check();
  desk.takeBoxes();
  desk.processes.effects[kChecker] = [](const ProcessRequest&) { return Exited{0}; };
  check();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kNone});
}

TEST_F(CheckFile, saysThatTheCheckerIsMissing) {
  desk.processes.effects.clear();
  check();
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Integrity Check: The checker could not be started. /app/KestraIntCheck.exe: No "
                                    "such file or directory"});
}

TEST_F(CheckFile, asksToSaveWhatWasEditedAndStopsOnCancel) {
  desk.edit("Lake");
  check();
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.boxes.shown[0].buttons, (std::vector<BoxButton>{BoxButton::yes, BoxButton::no, BoxButton::cancel}));
  EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
  EXPECT_TRUE(desk.processes.requests.empty());
  desk.boxes.answers = {BoxButton::no};
  check();
  EXPECT_EQ(desk.takeBoxes(), (Boxes{kQuestion, kNone}));
  EXPECT_TRUE(desk.state.fileDirty);
  desk.boxes.answers = {BoxButton::yes};
  desk.choose("/home/dam/lake.KSC");
  check();
  EXPECT_EQ(desk.takeBoxes(), (Boxes{kQuestion, kNone}));
  EXPECT_EQ(desk.processes.requests.back().arguments, std::vector<std::string>{"/home/dam/lake.KSC"});
  EXPECT_FALSE(desk.state.fileDirty);
}

TEST_F(CheckFile, letsAFileBeChosenWhereNoneIsOpen) {
  desk.window.mnuNew.click();
  check();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kChoose});
  desk.boxes.answers = {BoxButton::yes, BoxButton::yes, BoxButton::yes};
  desk.choose(kPath);
  check();
  EXPECT_EQ(desk.takeBoxes(), (Boxes{kChoose, kNone}));
  EXPECT_EQ(desk.dialogs.shownFiles.back().title, "Check File");
  EXPECT_EQ(desk.dialogs.shownFiles.back().filter, "All Files(*.*)|*.*|Kestra KSC Files Only|*.KSC");
  EXPECT_EQ(desk.state.currentFile, "");
  desk.choose("/home/dam/none.KSC");
  check();
  EXPECT_EQ(desk.takeBoxes(), (Boxes{kChoose, "Error Message: Invalid Filename"}));
  desk.cancelDialog();
  check();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kChoose});
  EXPECT_EQ(desk.processes.requests.size(), 1U);
}

TEST_F(CheckFile, leavesItsFindingsForTheErrorTable) {
  desk.window.mnuErrorTable.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes{kNoErrors});
  for (const char* nothing : {"", "x\r\n"}) {
    finds(nothing);
    check();
    desk.takeBoxes();
    desk.window.mnuErrorTable.click();
    EXPECT_EQ(desk.takeBoxes(), Boxes{kNoErrors});
  }
  desk.app.host.enter(table);
  finds("x\r\nF\r\n");
  check();
  desk.app.host.unload(table);
  desk.window.mnuErrorTable.click();
  EXPECT_EQ(desk.front(), "frmErrorTable");
}

TEST_F(CheckFile, keepsTheTableOfAChosenFile) {
  desk.app.host.enter(table);
  finds("x\r\nF\r\n");
  desk.window.mnuNew.click();
  desk.boxes.answers = {BoxButton::yes};
  desk.choose(kPath);
  check();
  desk.app.host.unload(table);
  desk.window.mnuErrorTable.click();
  EXPECT_EQ(desk.front(), "frmErrorTable");
}

}  // namespace
}  // namespace kestra
