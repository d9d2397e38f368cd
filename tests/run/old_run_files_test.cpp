#include "run/old_run_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/run_desk.h"

namespace kestra {
namespace {

using testing::ElementsAre;

std::vector<std::string> below(const MemoryFileSystem& files, const std::string& directory) {
  std::vector<std::string> found;
  for (const std::string& path : files.paths()) {
    if (path.starts_with(directory + "/")) found.push_back(path.substr(directory.size() + 1));
  }
  return found;
}

TEST(DeleteOldRunFiles, deletesWhatARunHasLeftAndKeepsItsInput) {
  RunDesk desk;
  for (const char* name : {"dam.KSC", "dam.ksc", "dam.V2C", "dam.AS1", "dam.as2", "dam.AS", "dam.KSM", "dam.OUT",
                           "dam.dis", "dam.log", "dam.V2D", "dam.DG1", "dam", "dams.OUT", "dam2.OUT"}) {
    desk.memory.put(std::string("/p/") + name, "x");
  }
  DeleteOldRunFiles(desk.files, "/p", "dam");
  EXPECT_THAT(below(desk.memory, "/p"), ElementsAre("dam", "dam.AS", "dam.AS1", "dam.KSC", "dam.KSM", "dam.V2C",
                                                    "dam.as2", "dam.ksc", "dam2.OUT", "dams.OUT"));
}

TEST(DeleteOldRunFiles, knowsItsFilesWhateverTheirLettersButLeavesThoseOfAnotherControlFile) {
  RunDesk desk;
  for (const char* name : {"dam.KSC", "DAM.OUT", "DAM.KSM", "Dam.BRE", "Dam.ksc"}) {
    desk.memory.put(std::string("/p/") + name, "x");
  }
  DeleteOldRunFiles(desk.files, "/p", "dam");
  EXPECT_THAT(below(desk.memory, "/p"), ElementsAre("DAM.KSM", "Dam.BRE", "Dam.ksc", "dam.KSC"));
}

TEST(DeleteOldRunFiles, judgesAnExtensionFromTheFirstDotAndFromTheLast) {
  RunDesk desk;
  for (const char* name : {"dam.KSC", "dam.b.KSC", "dam.b.OUT", "dam.b.AS1", "dam.c.OUT", "dam.asx.tmp", "dam.b.V2C"}) {
    desk.memory.put(std::string("/p/") + name, "x");
  }
  DeleteOldRunFiles(desk.files, "/p", "dam");
  EXPECT_THAT(below(desk.memory, "/p"),
              ElementsAre("dam.KSC", "dam.asx.tmp", "dam.b.AS1", "dam.b.KSC", "dam.b.OUT", "dam.b.V2C"))
      << "dam.b.OUT is a result of the run of dam.b.KSC, dam.c.OUT of none";
}

TEST(DeleteOldRunFiles, leavesTheControlFileWhateverItsExtension) {
  for (const char* name : {"/p/dam.dat", "/p/dam.", "/p/dam.V2D", "/p/DAM.OUT"}) {
    RunDesk desk;
    desk.memory.put(name, "x");
    desk.memory.put("/p/dam.DIS", "x");
    DeleteOldRunFiles(desk.files, "/p", "dam", name);
    EXPECT_TRUE(desk.has(name));
    EXPECT_FALSE(desk.has("/p/dam.DIS")) << name;
    deleteFilesOfStems(desk.files, {"/p/dam"}, name);
    EXPECT_TRUE(desk.has(name));
  }
}

TEST(DeleteOldRunFiles, emptiesTheResultsDirectoryButForItsSubdirectories) {
  RunDesk desk;
  for (const char* name : {"dam1_0.V2D", "dam1_0.DIS", "noextension", "mine.KSC", "sub/kept.DIS"}) {
    desk.memory.put(std::string("/p/dam/") + name, "x");
  }
  DeleteOldRunFiles(desk.files, "/p", "dam");
  EXPECT_THAT(below(desk.memory, "/p/dam"), ElementsAre("mine.KSC", "sub", "sub/kept.DIS"));
}

TEST(DeleteOldRunFiles, looksForANameWithAnUnderscoreInTheFolderBeforeItsLast) {
  RunDesk desk;
  for (const char* name : {"/p/a_b.OUT", "/p/a_b_1.OUT", "/p/a_b/a_b_1.OUT", "/p/a_b/a_b_2.OUT", "/p/a/a_b.OUT"}) {
    desk.memory.put(name, "x");
  }
  DeleteOldRunFiles(desk.files, "/p", "a_b_1");
  EXPECT_THAT(below(desk.memory, "/p"), ElementsAre("a", "a/a_b.OUT", "a_b", "a_b.OUT", "a_b/a_b_2.OUT", "a_b_1.OUT"));
}

TEST(DeleteOldRunFiles, deletesNothingForANameThatIsNoneOrLeadsOut) {
  RunDesk desk;
  for (const char* path : {"/p/SUMMARY.IDE", "/p/.hidden", "/q/dam.OUT", "/q.OUT"}) desk.memory.put(path, "x");
  const auto before = desk.memory.paths();
  for (const char* name : {"", ".", "..", "../q", "../q/dam", "_", "..._x/../../../q", "/"}) {
    DeleteOldRunFiles(desk.files, "/p", name);
    EXPECT_EQ(desk.memory.paths(), before) << name;
  }
}

TEST(DeleteOldRunFiles, deletesNothingWithoutAProject) {
  RunDesk desk;
  for (const char* path : {"/dam.OUT", "/dam/a.OUT", "/p/dam.OUT", "/p/dam/a.OUT"}) desk.memory.put(path, "x");
  const auto before = desk.memory.paths();
  DeleteOldRunFiles(desk.files, "", "dam");
  EXPECT_EQ(desk.memory.paths(), before);
}

TEST(DeleteOldRunFiles, leavesWhatCannotBeDeletedWithoutAWord) {
  RunDesk desk;
  desk.memory.put("/p/dam.OUT", "x");
  desk.memory.put("/p/dam.DIS", "x");
  desk.files.failCall(3, FailureKind::denied);  // canonical, list, then the first removal
  DeleteOldRunFiles(desk.files, "/p", "dam");
  EXPECT_THAT(below(desk.memory, "/p"), ElementsAre("dam.DIS"));
  EXPECT_TRUE(desk.boxes.shown.empty());
  DeleteOldRunFiles(desk.files, "/gone", "dam");
}

}  // namespace
}  // namespace kestra
