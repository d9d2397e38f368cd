#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr const char* kQuestion =
    "Warning: Do you want to save changes to the current file before creating a new file?";

struct NewFile : testing::Test {
  WindowDesk desk;

  void expectNewFile() {
    EXPECT_TRUE(desk.state.fileIsNew);
    EXPECT_FALSE(desk.state.fileHasName || desk.state.fileDirty);
    EXPECT_EQ(desk.state.currentFile, "");
    EXPECT_EQ(desk.window.title(), "Kestra B - Input Interface (New File)");
    EXPECT_EQ(desk.front(), "frmKestra");
  }
};

TEST_F(NewFile, hasNoNameAndTheTitleOfANewOne) {
  desk.window.mnuNew.click();
  expectNewFile();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_TRUE(desk.window.mnuSaveAs.enabled());
}

TEST_F(NewFile, beginsWithTheUsualCoefficientsOfAConduit) {
  desk.window.mnuNew.click();
  EXPECT_TRUE(desk.shell.input.psType.optSingleCir.selected());
  const frmPSConduit& conduit = desk.shell.input.psConduit;
  const std::pair<const TextBox*, const char*> table[] = {{&conduit.txtEntranceLossCoefficient, "0.7"},
                                                          {&conduit.txtWeirInletCoefficient, "3.1"},
                                                          {&conduit.txtHighStageWeirCoefficient, "3.1"},
                                                          {&conduit.txtHoodWeirInletCoefficient, "0.6"},
                                                          {&conduit.txtConduitOrificeDischargeCoefficient, "0.61"},
                                                          {&conduit.txtFilletSize, "6"}};
  for (const auto& [box, text] : table) EXPECT_EQ(box->text(), text) << box->name();
  desk.app.host.show(desk.shell.input.psConduit);
  EXPECT_EQ(conduit.txtEntranceLossCoefficient.text(), "0.7");
  EXPECT_EQ(desk.shell.history.steps(), 0U);
}

TEST_F(NewFile, asksNothingAndForgetsTheTextsOfTheFileBefore) {
  ControlTexts& texts = desk.shell.controlFiles.texts;
  texts.controlText = texts.hydrographText = texts.auxRunText[0] = texts.auxRunText[100] = "x";
  desk.shell.output.Push(1);
  desk.window.mnuNew.click();
  EXPECT_EQ(texts.controlText + texts.hydrographText, "");
  for (const std::string& text : texts.auxRunText) EXPECT_EQ(text, "");
  EXPECT_EQ(desk.shell.output.Pop(), std::nullopt);
}

TEST_F(NewFile, clearsTheScreensOnNo) {
  desk.edit("Pond");
  desk.boxes.answers = {BoxButton::no};
  desk.window.mnuNew.click();
  ASSERT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.boxes.shown[0].buttons, (std::vector<BoxButton>{BoxButton::yes, BoxButton::no}));
  EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
  expectNewFile();
  EXPECT_EQ(desk.shownTitle(), "");
  EXPECT_FALSE(desk.shell.history.canUndo());
}

TEST_F(NewFile, isNotBegunWhenTheSaveDialogIsCancelledOrNamesNothing) {
  for (const bool cancelled : {true, false}) {
    desk.edit("Pond");
    desk.boxes.answers = {BoxButton::yes};
    if (cancelled) {
      desk.cancelDialog();
    } else {
      desk.choose("");
    }
    desk.window.mnuNew.click();
    EXPECT_EQ(desk.takeBoxes(), Boxes{kQuestion});
    EXPECT_EQ(desk.shownTitle(), "Pond");
    EXPECT_TRUE(desk.state.fileDirty);
    EXPECT_EQ(desk.state.currentFile, "");
  }
}

TEST_F(NewFile, comesAfterTheFileBeforeWasSaved) {
  desk.edit("Pond");
  desk.boxes.answers = {BoxButton::yes};
  desk.choose("/home/dam/pond.KSC");
  desk.window.mnuNew.click();
  expectNewFile();
  const std::string text = desk.memory.content("/home/dam/pond.KSC").value_or("");
  EXPECT_EQ(text.substr(20, 4), "Pond");
  ASSERT_EQ(desk.dialogs.shownFiles.size(), 1U);
  const FileDialog& dialog = desk.dialogs.shownFiles[0];
  EXPECT_EQ(dialog.kind, FileDialog::Kind::save);
  EXPECT_EQ(dialog.filter, "All Files (*.*)|*.*|KSC Files (*.KSC)|*.KSC");
  EXPECT_EQ(dialog.defaultName, "Kestra.KSC");
}

TEST_F(NewFile, isOfferedTheNameOfTheFileThatHasOne) {
  desk.edit("Pond");
  desk.saveAs("/home/dam/pond.KSC");
  desk.edit("Lake");
  desk.boxes.answers = {BoxButton::yes};
  desk.cancelDialog();
  desk.window.mnuNew.click();
  ASSERT_EQ(desk.dialogs.shownFiles.size(), 1U);
  EXPECT_EQ(desk.dialogs.shownFiles[0].defaultName, "/home/dam/pond.KSC");
}

TEST_F(NewFile, isNotBegunWhenTheFileBeforeCannotBeSaved) {
  desk.edit("Pond");
  desk.boxes.answers = {BoxButton::yes};
  desk.choose("/home/dam/pond.KSC");
  desk.files.failEvery("write", FailureKind::full);
  desk.window.mnuNew.click();
  EXPECT_EQ(desk.shownTitle(), "Pond");
  EXPECT_TRUE(desk.state.fileDirty);
  EXPECT_EQ(desk.memory.content("/home/dam/pond.KSC"), std::nullopt);
}

}  // namespace
}  // namespace kestra
