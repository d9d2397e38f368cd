#include "summary/frm_summary_fields.h"

#include <gtest/gtest.h>

#include "support/summary_desk.h"

namespace kestra {
namespace {

using Texts = std::vector<std::string>;
using Fields = std::vector<int>;

struct SummaryFields : testing::Test, SummaryDesk {
  frmSummaryFields screen{base, store};
  int accepted = 0;

  SummaryFields() {
    titles.fieldTitles[0] = {"Title", "Crest", "Peak", "Freeboard"};
    putSummary("2\n3\n1\n1\n2\n\"run\"\n");
    store.LoadSummaryStore();
    host.enter(screen);
    screen.onAccepted = [this] { ++accepted; };
    host.show(screen);
  }
  void choose(const char* path) { dialogs.files.push_back(std::vector<std::string>{path}); }
};

TEST_F(SummaryFields, listsTheFieldsToChooseFromAndThoseChosen) {
  EXPECT_EQ(screen.lblAvailable(0).caption(), "Top-Level Available");
  EXPECT_EQ(screen.lblSelected(1).caption(), "Second-Level Selected");
  EXPECT_EQ(screen.lstAvailable(0).items(), (Texts{"Crest", "Freeboard"}));
  EXPECT_EQ(screen.lstSelected(0).items(), (Texts{"Peak", "Title"}));
  EXPECT_EQ(screen.lstAvailable(1).items(), Texts{"Name"});
  EXPECT_EQ(screen.lstSelected(1).items(), Texts{"Stress"});
  EXPECT_TRUE(screen.optColumn.selected());
}

TEST_F(SummaryFields, insertsBehindTheMarkedFieldAndMarksWhatItInserts) {
  screen.lstSelected(0).userSelect(0);
  screen.lstAvailable(0).userSelect(0);
  screen.cmdTransfer(0).click();
  screen.cmdTransfer(0).click();
  EXPECT_EQ(screen.lstSelected(0).items(), (Texts{"Peak", "Crest", "Freeboard", "Title"}));
  EXPECT_EQ(screen.lstSelected(0).index(), 2);
  EXPECT_EQ(screen.lstAvailable(0).items(), Texts{});
  screen.cmdTransfer(0).click();
  EXPECT_EQ(screen.lstSelected(0).items().size(), 4U);
}

TEST_F(SummaryFields, insertsAtTheEndWhereNoneIsMarked) {
  screen.lstAvailable(0).userSelect(1);
  screen.lstAvailable(0).userDoubleClick();
  EXPECT_EQ(screen.lstSelected(0).items(), (Texts{"Peak", "Title", "Freeboard"}));
  EXPECT_EQ(screen.lstAvailable(0).index(), 0);
}

TEST_F(SummaryFields, removesTheMarkedFieldOrAllOfALevel) {
  screen.cmdDelete(0).click();
  EXPECT_EQ(screen.lstSelected(0).items().size(), 2U);
  screen.lstSelected(0).userSelect(0);
  screen.cmdDelete(0).click();
  EXPECT_EQ(screen.lstSelected(0).items(), Texts{"Title"});
  EXPECT_EQ(screen.lstAvailable(0).items(), (Texts{"Crest", "Peak", "Freeboard"}));
  screen.cmdClear(1).click();
  EXPECT_EQ(screen.lstSelected(1).items(), Texts{});
  EXPECT_EQ(screen.lstAvailable(1).items(), (Texts{"Name", "Stress"}));
  EXPECT_EQ(screen.lstSelected(0).items(), Texts{"Title"});
}

TEST_F(SummaryFields, findsItsButtonsWithoutAnIndexByTheListTouchedLast) {
  EXPECT_EQ(screen.find("cmdTransfer"), &screen.cmdTransfer(0));
  screen.lstAvailable(1).userSelect(0);
  for (const char* name : {"cmdTransfer", "cmdDelete", "cmdClear"}) {
    EXPECT_EQ(screen.find(name), screen.find(std::string(name) + "(1)"));
  }
  screen.lstSelected(0).userFocus();
  EXPECT_EQ(screen.find("cmdDelete"), &screen.cmdDelete(0));
}

TEST_F(SummaryFields, savesTheChoiceWithOk) {
  screen.cmdClear(0).click();
  screen.lstAvailable(0).userSelect(3);
  screen.cmdTransfer(0).click();
  screen.optRow.userSelect();
  screen.cmdOK.click();
  EXPECT_EQ(files.content("/p/SUMMARY.IDE"), "1\r\n4\r\n1\r\n2\r\n\"run\"\r\n");
  EXPECT_EQ(store.selection().selectedFields[0], Fields{4});
  EXPECT_EQ(settings.get("SummaryFields", "summaryOrder", ""), "1");
  EXPECT_EQ(accepted, 1);
  EXPECT_FALSE(screen.loaded());
  EXPECT_FALSE(state.fileDirty);
  host.show(screen);
  EXPECT_TRUE(screen.optRow.selected());
  EXPECT_EQ(screen.lstSelected(0).items(), Texts{"Freeboard"});
}

TEST_F(SummaryFields, forgetsTheChoiceWithCancelAndWhenItsWindowIsClosed) {
  const auto leaveBy = [this](const std::function<void()>& way) {
    screen.cmdClear(0).click();
    screen.optRow.userSelect();
    EXPECT_EQ(store.summaryOrder(), "1");
    way();
    EXPECT_FALSE(screen.loaded());
    EXPECT_EQ(store.summaryOrder(), "2");
    EXPECT_EQ(store.selection().selectedFields[0], (Fields{3, 1}));
    host.show(screen);
    EXPECT_EQ(screen.lstSelected(0).items(), (Texts{"Peak", "Title"}));
  };
  leaveBy([this] { screen.cmdCancel.click(); });
  leaveBy([this] { host.closeByFrame(screen); });
  EXPECT_EQ(accepted, 0);
  EXPECT_EQ(files.content("/p/SUMMARY.IDE"), "2\n3\n1\n1\n2\n\"run\"\n");
}

TEST_F(SummaryFields, savesTheOrderThatItShowsThoughTheStoreWasReadMeanwhile) {
  screen.optRow.userSelect();
  store.LoadSummaryStore();
  EXPECT_EQ(store.summaryOrder(), kByColumn);
  screen.cmdOK.click();
  EXPECT_EQ(store.summaryOrder(), kByRow);
  EXPECT_EQ(settings.get("SummaryFields", "summaryOrder", ""), "1");
}

TEST_F(SummaryFields, tellsOfAChoiceThatCouldNotBeSaved) {
  files.setMode("/p", true, false);
  screen.cmdOK.click();
  EXPECT_EQ(takeBoxes(), Texts{"Error Message: Unable to save Summary File. /p/SUMMARY.IDE: Permission denied"});
}

TEST_F(SummaryFields, opensTheSelectionOfAnotherFile) {
  files.put("/other.IDE", "1\n2\n2\n2\n1\n\"elsewhere\"\n");
  choose("/other.IDE");
  screen.mnuSummaryLoad.click();
  const FileDialog& dialog = dialogs.shownFiles.at(0);
  EXPECT_EQ(dialog.kind, FileDialog::Kind::open);
  EXPECT_EQ(dialog.filter, "All Files (*.*)|*.*|IDE Files (*.IDE)|*.IDE");
  EXPECT_EQ(screen.lstSelected(0).items(), Texts{"Crest"});
  EXPECT_EQ(screen.lstSelected(1).items(), (Texts{"Stress", "Name"}));
  EXPECT_EQ(store.selection().selectedFields[0], (Fields{3, 1}));
  screen.cmdOK.click();
  EXPECT_EQ(files.content("/p/SUMMARY.IDE"), "1\r\n2\r\n2\r\n2\r\n1\r\n\"run\"\r\n");
}

TEST_F(SummaryFields, namesFieldsThatTheCatalogueDoesNotKnowByTheirNumbers) {
  files.put("/other.IDE", "2\n40\n1\n");
  choose("/other.IDE");
  screen.mnuSummaryLoad.click();
  EXPECT_EQ(screen.lstSelected(0).items(), (Texts{"Field 40", "Title"}));
}

TEST_F(SummaryFields, keepsTheChoiceWhenAFileHoldsNone) {
  files.put("/bad.IDE", "this is no summary");
  for (const char* path : {"/bad.IDE", "/gone.IDE"}) {
    choose(path);
    screen.mnuSummaryLoad.click();
    EXPECT_EQ(takeBoxes(), Texts{"Error Message: Unable to load Summary File"}) << path;
  }
  screen.mnuSummaryLoad.click();  // cancelled
  choose("");
  screen.mnuSummaryLoad.click();
  EXPECT_EQ(takeBoxes(), Texts{"Open File: No filename provided."});
  EXPECT_EQ(screen.lstSelected(0).items(), (Texts{"Peak", "Title"}));
}

TEST_F(SummaryFields, savesTheSelectionUnderAnotherName) {
  screen.cmdClear(1).click();
  choose("/copy.IDE");
  screen.mnuSummarySaveAs.click();
  EXPECT_EQ(dialogs.shownFiles.at(0).defaultName, "/p/Summary.IDE");
  EXPECT_EQ(dialogs.shownFiles.at(0).title, "Save As...");
  EXPECT_EQ(files.content("/copy.IDE"), "2\r\n3\r\n1\r\n0\r\n\"run\"\r\n");
  EXPECT_EQ(takeBoxes(), Texts{});
  EXPECT_TRUE(screen.visible());
}

TEST_F(SummaryFields, asksBeforeItReplacesAFileAndKeepsTheProjectsEntries) {
  const Texts question = {"Save As...: The file /p/Summary.IDE already exists. Do you want to replace it?"};
  screen.cmdClear(0).click();
  boxes.answers = {BoxButton::no};
  choose("/p/Summary.IDE");
  screen.mnuSummarySaveAs.click();
  EXPECT_EQ(takeBoxes(), question);
  EXPECT_EQ(files.content("/p/SUMMARY.IDE"), "2\n3\n1\n1\n2\n\"run\"\n");
  boxes.answers = {BoxButton::yes};
  choose("/p/Summary.IDE");
  screen.mnuSummarySaveAs.click();
  EXPECT_EQ(takeBoxes(), question);
  EXPECT_EQ(files.content("/p/SUMMARY.IDE"), "0\r\n1\r\n2\r\n\"run\"\r\n");
  EXPECT_FALSE(files.content("/p/Summary.IDE"));
}

}  // namespace
}  // namespace kestra
