#include <gtest/gtest.h>

#include "support/window_desk.h"

namespace kestra {
namespace {

constexpr const char* kUnderscore =
    "Save As...: Filenames cannot contain an underscore, _ , please enter a different filename.";

std::string replaces(const std::string& path) {
  return "Save As...: The file " + path + " already exists. Do you want to replace it?";
}
std::string changed(const std::string& path) {
  return "Save As...: Another program has changed the file " + path +
         " since it was opened here. Do you want to replace it?";
}

struct SaveAs : testing::Test {
  WindowDesk desk;

  SaveAs() {
    desk.window.mnuNew.click();
    desk.edit("Pond");
  }
  void save(const std::string& path) {
    desk.choose(path);
    desk.window.mnuSaveAs.click();
  }
  std::string content(const std::string& path) { return desk.memory.content(path).value_or(""); }
};

TEST_F(SaveAs, writesTheScreensAndMakesTheFileTheOpenOne) {
  desk.app.host.show(desk.shell.input.damSurface);
  save("/home/dam/pond.KSC");
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(content("/home/dam/pond.KSC").substr(0, 24), "KESTRA    01/01/2009Pond");
  EXPECT_EQ(desk.state.currentFile, "/home/dam/pond.KSC");
  EXPECT_TRUE(desk.state.fileHasName);
  EXPECT_FALSE(desk.state.fileIsNew || desk.state.fileDirty);
  EXPECT_EQ(desk.window.title(), "Kestra B [ /home/dam/pond.KSC ]");
  EXPECT_FALSE(desk.shell.input.damSurface.visible());
  EXPECT_EQ(desk.front(), "frmKestra");
  ASSERT_EQ(desk.dialogs.shownFiles.size(), 1U);
  const FileDialog& dialog = desk.dialogs.shownFiles[0];
  EXPECT_EQ(dialog.kind, FileDialog::Kind::save);
  EXPECT_EQ(dialog.title, "Save File");
  EXPECT_EQ(dialog.filter, "All Files (*.*)|*.*|KSC Files (*.KSC)|*.KSC");
  EXPECT_EQ(dialog.defaultName, "Kestra.KSC");
}

TEST_F(SaveAs, offersThePresentNameOfAFileThatHasOne) {
  save("/home/dam/pond.KSC");
  desk.cancelDialog();
  desk.window.mnuSaveAs.click();
  EXPECT_EQ(desk.dialogs.shownFiles.back().defaultName, "/home/dam/pond.KSC");
  desk.window.mnuNew.click();
  desk.cancelDialog();
  desk.window.mnuSaveAs.click();
  EXPECT_EQ(desk.dialogs.shownFiles.back().defaultName, "Kestra.KSC");
}

TEST_F(SaveAs, takesARelativeNameFromTheProject) {
  save("pond.KSC");
  EXPECT_EQ(desk.state.currentFile, "/home/dam/pond.KSC");
}

TEST_F(SaveAs, stopsQuietlyWithoutAName) {
  desk.cancelDialog();
  desk.window.mnuSaveAs.click();
  save("");
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(desk.state.currentFile, "");
  EXPECT_TRUE(desk.state.fileDirty && desk.state.fileIsNew);
}

TEST_F(SaveAs, asksBeforeItReplacesAFile) {
  desk.memory.put("/home/dam/old.KSC", "old");
  desk.boxes.answers = {BoxButton::no};
  save("/home/dam/old.KSC");
  EXPECT_EQ(desk.takeBoxes(), Boxes{replaces("/home/dam/old.KSC")});
  EXPECT_EQ(content("/home/dam/old.KSC"), "old");
  EXPECT_EQ(desk.state.currentFile, "");
  desk.boxes.answers = {BoxButton::yes};
  save("/home/dam/old.KSC");
  EXPECT_EQ(desk.takeBoxes(), Boxes{replaces("/home/dam/old.KSC")});
  EXPECT_NE(content("/home/dam/old.KSC"), "old");
  EXPECT_EQ(desk.state.currentFile, "/home/dam/old.KSC");
}

TEST_F(SaveAs, refusesAnUnderscoreInNameOrDirectoryAndAsksAgain) {
  desk.memory.putDirectory("/home/my_dams");
  desk.choose("/home/dam/my_pond.KSC");
  desk.choose("/home/my_dams/pond.KSC");
  save("/home/dam/pond.KSC");
  EXPECT_EQ(desk.boxes.shown[0].icon, BoxIcon::critical);
  EXPECT_EQ(desk.takeBoxes(), (Boxes{kUnderscore, kUnderscore}));
  EXPECT_EQ(desk.dialogs.shownFiles.size(), 3U);
  EXPECT_EQ(desk.state.currentFile, "/home/dam/pond.KSC");
  EXPECT_EQ(desk.memory.content("/home/dam/my_pond.KSC"), std::nullopt);
}

TEST_F(SaveAs, asksAboutReplacingBeforeItLooksForAnUnderscore) {
  desk.memory.put("/home/dam/a_b.KSC", "old");
  desk.boxes.answers = {BoxButton::yes};
  save("/home/dam/a_b.KSC");
  EXPECT_EQ(desk.takeBoxes(), (Boxes{replaces("/home/dam/a_b.KSC"), kUnderscore}));
  EXPECT_EQ(content("/home/dam/a_b.KSC"), "old");
}

TEST_F(SaveAs, asksOnceMoreWhenAnotherProgramHasChangedTheFile) {
  const std::string path = "/home/dam/pond.KSC";
  save(path);
  desk.memory.put(path, "changed");
  desk.boxes.answers = {BoxButton::yes, BoxButton::no};
  save(path);
  EXPECT_EQ(desk.takeBoxes(), (Boxes{replaces(path), changed(path)}));
  EXPECT_EQ(content(path), "changed");
  desk.boxes.answers = {BoxButton::yes, BoxButton::yes};
  save(path);
  EXPECT_EQ(desk.takeBoxes(), (Boxes{replaces(path), changed(path)}));
  EXPECT_NE(content(path), "changed");
  desk.boxes.answers = {BoxButton::yes};
  save(path);
  EXPECT_EQ(desk.takeBoxes(), Boxes{replaces(path)});
}

TEST_F(SaveAs, doesNotAskWhenTheFileWasOnlyTouchedOrIsGone) {
  const std::string path = "/home/dam/pond.KSC";
  save(path);
  const std::string text = content(path);
  desk.memory.clockNs = 5;
  desk.memory.put(path, text);
  desk.boxes.answers = {BoxButton::yes};
  save(path);
  EXPECT_EQ(desk.takeBoxes(), Boxes{replaces(path)});
  (void)desk.memory.removeFile(path);
  save(path);
  EXPECT_EQ(desk.takeBoxes(), Boxes());
}

TEST_F(SaveAs, tellsOnceWhatIsTooLongForItsColumns) {
  desk.edit(std::string(60, 'x'));
  save("/home/dam/pond.KSC");
  EXPECT_EQ(desk.takeBoxes().size(), 1U);
  EXPECT_EQ(desk.state.currentFile, "/home/dam/pond.KSC");
}

TEST_F(SaveAs, asksBeforeACommandTooWhenAnotherProgramHasChangedTheFile) {
  const std::string path = "/home/dam/pond.KSC";
  save(path);
  desk.edit("Lake");
  desk.memory.put(path, "changed");
  desk.boxes.answers = {BoxButton::yes, BoxButton::no};
  desk.choose(path);
  desk.window.mnuNew.click();
  EXPECT_EQ(desk.takeBoxes(),
            (Boxes{"Warning: Do you want to save changes to the current file before creating a new file?",
                   "Warning: Another program has changed the file " + path +
                       " since it was opened here. Do you want to replace it?"}));
  EXPECT_EQ(content(path), "changed");
  EXPECT_EQ(desk.shownTitle(), "Lake");
}

TEST_F(SaveAs, leavesTheOldFileAndTheStateWhenItCannotWrite) {
  const std::string path = "/home/dam/pond.KSC";
  save(path);
  const std::string text = content(path);
  desk.edit("Lake");
  desk.files.failEvery("write", FailureKind::full);
  desk.boxes.answers = {BoxButton::yes};
  save(path);
  EXPECT_EQ(desk.boxes.shown.size(), 2U);
  EXPECT_EQ(content(path), text);
  EXPECT_TRUE(desk.state.fileDirty);
  EXPECT_EQ(desk.shownTitle(), "Lake");
}

TEST_F(SaveAs, writesNothingIntoAProjectThatAnotherProgramHas) {
  desk.state.projectReadOnly = true;
  save("/home/dam/pond.KSC");
  EXPECT_EQ(desk.boxes.shown.size(), 1U);
  EXPECT_EQ(desk.memory.content("/home/dam/pond.KSC"), std::nullopt);
  EXPECT_TRUE(desk.state.fileDirty);
}

}  // namespace
}  // namespace kestra
