#include "run/file_steps.h"

#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "run/run_desk.h"

namespace kestra {
namespace {

template <class Step>
std::string faultOf(Step step) {
  try {
    step();
  } catch (const RuntimeFault& fault) {
    return fault.what();
  }
  return "(none)";
}

TEST(FileSteps, cutExtensionsFromNamesOnly) {
  EXPECT_EQ(withoutExtension("/p.q/dam.KSC"), "/p.q/dam");
  EXPECT_EQ(withoutExtension("/p.q/a.b.KSC"), "/p.q/a.b");
  EXPECT_EQ(withoutExtension("/p.q/dam"), "/p.q/dam");
  EXPECT_EQ(withoutExtension("dam."), "dam");
  EXPECT_TRUE(hasExtension("/p/.x"));
  EXPECT_FALSE(hasExtension("/p.q/dam"));
  EXPECT_EQ(firstStem("/p.q/a.b.KSC"), "a");
  EXPECT_EQ(firstStem("/p.q/dam"), "dam");
}

TEST(FileSteps, knowTheInputOfRunsByItsExtension) {
  for (const char* name : {"a.KSC", "a.ksc", "a.b.Ksc", "a.V2C", "a.AS1", "a.as3", "a.x.AS2", "a.ksm"}) {
    EXPECT_TRUE(isInputOfRuns(name)) << name;
  }
  for (const char* name : {"a", "ksc", "a.OUT", "a.V2D", "as1", "a.kscx"}) EXPECT_FALSE(isInputOfRuns(name)) << name;
}

TEST(FileSteps, replaceAFileAndLeaveNoHalfOfOne) {
  RunDesk desk;
  desk.memory.put("/p/a", "old");
  writeText(desk.files, "/p/a", "new");
  EXPECT_EQ(desk.text("/p/a"), "new");
  desk.files.failEvery("write", FailureKind::full);
  EXPECT_EQ(faultOf([&] { writeText(desk.files, "/p/b", "new"); }), "/p/b: made to fail");
  EXPECT_FALSE(desk.has("/p/b"));
  desk.files.failNothing();
  desk.files.failEvery("rename", FailureKind::denied);
  EXPECT_EQ(faultOf([&] { writeText(desk.files, "/p/a", "newer"); }), "/p/a: made to fail");
  desk.files.failEvery("removeFile", FailureKind::denied);
  EXPECT_EQ(faultOf([&] { removeFound(desk.files, "/p/A"); }), "/p/a: made to fail");
  EXPECT_EQ(desk.text("/p/a"), "new");
}

TEST(FileSteps, tellWhatCannotBeReadByItsPath) {
  RunDesk desk;
  EXPECT_EQ(faultOf([&] { (void)readText(desk.files, "/p/a"); }), "/p/a: No such file or directory");
  EXPECT_EQ(faultOf([&] { copyFile(desk.files, "/p/a", "/p/b"); }), "/p/a: No such file or directory");
  EXPECT_EQ(faultOf([&] { (void)entriesOf(desk.files, "/none"); }), "/none: No such file or directory");
  EXPECT_EQ(faultOf([&] { removeFound(desk.files, "/p/a"); }), "(none)");
}

TEST(FileSteps, emptyADirectoryAsFarAsTheyCanAndTellTheFirstFailure) {
  RunDesk desk;
  for (const char* name : {"a", "b", "c", "own.KSC"}) desk.memory.put(std::string("/p/dam/") + name, "x");
  desk.files.failCall(2, FailureKind::denied);
  EXPECT_EQ(faultOf([&] { emptyDirectory(desk.files, "/p/dam"); }), "/p/dam/a: made to fail");
  EXPECT_TRUE(desk.has("/p/dam/a"));
  EXPECT_FALSE(desk.has("/p/dam/b"));
  EXPECT_FALSE(desk.has("/p/dam/c"));
  EXPECT_TRUE(desk.has("/p/dam/own.KSC"));
}

TEST(FileSteps, emptyNoDirectoryThroughALink) {
  RunDesk desk;
  desk.memory.put("/elsewhere/a", "x");
  desk.memory.putLink("/p/dam", "/elsewhere");
  EXPECT_NE(faultOf([&] { emptyDirectory(desk.files, "/p/dam"); }), "(none)");
  EXPECT_TRUE(desk.has("/elsewhere/a"));
}

TEST(FileSteps, knowTheDirectoryOfAFileWhateverLinksLeadThere) {
  RunDesk desk;
  desk.memory.put("/p/sub/a.KSC", "x");
  desk.memory.putLink("/link", "/p");
  EXPECT_TRUE(standsIn(desk.files, "/p/a.KSC", "/p"));
  EXPECT_TRUE(standsIn(desk.files, "/link/a.KSC", "/p"));
  EXPECT_FALSE(standsIn(desk.files, "/p/sub/a.KSC", "/p"));
  EXPECT_FALSE(standsIn(desk.files, "/a.KSC", "/p"));
}

}  // namespace
}  // namespace kestra
