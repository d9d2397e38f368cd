#include <gtest/gtest.h>

#include "shell/import_command.h"
#include "support/window_desk.h"

namespace kestra {
namespace {

using Files = std::vector<std::string>;

constexpr const char* kText = "KESTRA    01/01/2009Pond\r\nENDRUN\r\n";
const Boxes kInvalid = {"Error Message: Invalid Import File"};

struct Import : testing::Test {
  WindowDesk desk;

  void import(const Files& sources) {
    desk.dialogs.files.emplace_back(sources);
    desk.window.mnuImport.click();
  }
  std::optional<std::string> content(const std::string& name) { return desk.memory.content("/home/dam/" + name); }
  void put(const std::string& name, const std::string& text) { desk.memory.put("/home/dam/" + name, text); }
};

TEST_F(Import, offersSeveralFilesAndCopiesEachIntoTheProject) {
  desk.memory.put("/src/a.KSC", kText);
  desk.memory.put("/src/b.txt", "QUIL\nx\n");
  import({"/src/a.KSC", "/src/b.txt"});
  EXPECT_EQ(desk.takeBoxes(), Boxes());
  EXPECT_EQ(content("a.KSC"), kText);
  EXPECT_EQ(content("b.txt"), "QUIL\r\nx\r\n");
  ASSERT_EQ(desk.dialogs.shownFiles.size(), 1U);
  const FileDialog& dialog = desk.dialogs.shownFiles[0];
  EXPECT_EQ(dialog.title, "Import File");
  EXPECT_EQ(dialog.filter, "All Files(*.*)|*.*|Kestra KSC Files Only|*.KSC");
  EXPECT_TRUE(dialog.several);
  EXPECT_EQ(desk.state.currentFile, "");
  EXPECT_EQ(desk.memory.content("/src/a.KSC"), kText);
}

TEST_F(Import, stopsQuietlyWhenItsDialogIsCancelled) {
  desk.cancelDialog();
  desk.window.mnuImport.click();
  EXPECT_EQ(desk.takeBoxes(), Boxes());
}

TEST_F(Import, tellsOfAnEmptyChoice) {
  for (const Files& nothing : {Files(), Files{""}}) {
    import(nothing);
    EXPECT_EQ(desk.takeBoxes(), Boxes{"Error Message: File Import Error"});
  }
}

TEST_F(Import, passesOverAFileOfTheProjectItself) {
  put("a.KSC", kText);
  desk.memory.putLink("/link", "/home/dam");
  desk.memory.put("/src/b.KSC", kText);
  const std::string told =
      "Import Error: The selected file cannot be imported. The source file is the same as the destination file.";
  import({"/home/dam/a.KSC", "/link/a.KSC", "/src/b.KSC"});
  EXPECT_EQ(desk.takeBoxes(), (Boxes{told, told}));
  EXPECT_EQ(content("b.KSC"), kText);
}

TEST_F(Import, asksBeforeItReplacesAFileAndSkipsItOnNo) {
  put("a.KSC", "old");
  put("a.OUT", "old");
  desk.memory.put("/src/a.KSC", kText);
  desk.memory.put("/src/b.KSC", kText);
  desk.boxes.answers = {BoxButton::no};
  import({"/src/a.KSC", "/src/b.KSC"});
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Import Files: The file a.KSC already exists. Do you want to replace it?"});
  EXPECT_EQ(content("a.KSC"), "old");
  EXPECT_EQ(content("a.OUT"), "old");
  EXPECT_EQ(content("b.KSC"), kText);
}

TEST_F(Import, takesTheResultsOfAReplacedFileAwayAndNothingElse) {
  for (const char* name : {"a.KSC", "a.OUT", "a.DIS", "a_1.LSP", "a2_0.V2D", "a/a2_0.DG1", "ab.KSC", "ab.OUT",
                           "a.b.KSC", "a.b.OUT", "SUMMARY.IDE"}) {
    put(name, "old");
  }
  desk.memory.put("/src/a.KSC", kText);
  desk.boxes.answers = {BoxButton::yes};
  import({"/src/a.KSC"});
  Files left;
  const auto entries = desk.memory.list("/home/dam");
  for (const DirectoryEntry& entry : entries.value()) left.push_back(entry.name);
  EXPECT_EQ(left, (Files{"SUMMARY.IDE", "a.KSC", "a.b.KSC", "a.b.OUT", "ab.KSC", "ab.OUT", "owner"}));
  EXPECT_EQ(content("a.KSC"), kText);
}

TEST_F(Import, endsAtAFileThatDoesNotBeginLikeAControlFileAndRemovesNothing) {
  put("a.KSC", "old");
  put("a.OUT", "old");
  desk.memory.put("/src/b.KSC", kText);
  for (const char* text : {"", "\r\nKESTRA\r\n", "KESTRAL\r\n", "kestra\r\n", "OPTION\r\n", "TORVEX    \r\n"}) {
    desk.memory.put("/src/a.KSC", text);
    desk.boxes.answers = {BoxButton::yes};
    import({"/src/a.KSC", "/src/b.KSC"});
    EXPECT_EQ(desk.takeBoxes(),
              (Boxes{"Import Files: The file a.KSC already exists. Do you want to replace it?", kInvalid[0]}));
    EXPECT_EQ(content("a.KSC"), "old");
    EXPECT_EQ(content("a.OUT"), "old");
    EXPECT_EQ(content("b.KSC"), std::nullopt);
  }
}

TEST_F(Import, takesWhateverControlFileTheSpillwayProgramHasToo) {
  for (const char* word : {"TORVE", "VERN2", "QUIL", "KESTRA", "  QUIL    rest"})
    EXPECT_TRUE(beginsLikeControlFile(word));
}

TEST_F(Import, saysWhyAFileCannotBeReadOrWritten) {
  import({"/src/none.KSC"});
  EXPECT_EQ(desk.takeBoxes(), Boxes{"Error Message: File Import Error\r\n/src/none.KSC: No such file or directory"});
  put("a.KSC", "old");
  put("a.OUT", "old");
  desk.memory.put("/src/a.KSC", kText);
  desk.files.failEvery("write", FailureKind::full);
  desk.boxes.answers = {BoxButton::yes};
  import({"/src/a.KSC"});
  const Boxes told = desk.takeBoxes();
  ASSERT_EQ(told.size(), 2U);
  EXPECT_TRUE(told[1].starts_with("Error Message: File Import Error\r\n/home/dam/a.KSC: ")) << told[1];
  EXPECT_EQ(content("a.KSC"), "old");
  EXPECT_EQ(content("a.OUT"), "old");
}

TEST(ImportedText, keepsEveryLineButTheLinksToTheDamsRun) {
  const std::string first = "KESTRA    01/01/2009Pond\r\n";
  const std::pair<std::string, std::string> table[] = {
      {first, first},
      {first + "\r\n\r\n*  a  \r\n", first + "\r\n\r\n*  a  \r\n"},
      {"QUIL\n\nx", "QUIL\r\n\r\nx\r\n"},
      {first + "KESTRA    1         /far/dam.OUT\r\n", first + "KESTRA    1         /p/new.b.OUT\r\n"},
      {first + "  KESTRA  2         x", first + "  KESTRA  2         /p/new.b.OUT\r\n"},
      {first + "KESTRA    1         \r\n", first + "KESTRA    1         \r\n"},
      {first + "KESTRAL   1         x\r\n", first + "KESTRAL   1         x\r\n"},
      {first + "KESTRA    \xc3\xa4         x\r\n", first + "KESTRA    \xc3\xa4         /p/new.b.OUT\r\n"},
  };
  for (const auto& [source, imported] : table) EXPECT_EQ(importedText(source, "/p/new.b.KSC"), imported) << source;
}

}  // namespace
}  // namespace kestra
