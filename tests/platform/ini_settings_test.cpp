#include "platform/ini_settings.h"

#include <gtest/gtest.h>

#include "platform/faulty_file_system.h"
#include "platform/memory_file_system.h"
#include "platform/scripted.h"
#include "support/contracts/settings_contract.h"

namespace kestra {
namespace {

constexpr const char* kPath = "/home/ann/.config/kestra/settings.ini";

struct MemoryScene {
  SettingsStore& settings() { return store; }
  MemorySettings store;
};
struct IniScene {
  SettingsStore& settings() { return store; }
  MemoryFileSystem files;
  IniSettings store{files, kPath};
};
// What is set is asked of another store on the same file.
class ReopeningSettings : public SettingsStore {
 public:
  std::string get(const std::string& section, const std::string& key, const std::string& otherwise) override {
    return IniSettings(files_, kPath).get(section, key, otherwise);
  }
  Status set(const std::string& section, const Entries& entries) override {
    return IniSettings(files_, kPath).set(section, entries);
  }

 private:
  MemoryFileSystem files_;
};
struct ReopenedScene {
  SettingsStore& settings() { return store; }
  ReopeningSettings store;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, SettingsContract, MemoryScene);
INSTANTIATE_TYPED_TEST_SUITE_P(Ini, SettingsContract, IniScene);
INSTANTIATE_TYPED_TEST_SUITE_P(Reopened, SettingsContract, ReopenedScene);

TEST(IniSettings, writesAFileThatAnEditorCanChange) {
  MemoryFileSystem files;
  IniSettings settings(files, kPath);
  ASSERT_TRUE(succeeded(settings.set("Window", {{"Left", "120"}, {"Title", " blank"}})));
  ASSERT_TRUE(succeeded(settings.set("Paths", {{"Solver", "C:\\new\\solver.exe"}})));
  EXPECT_EQ(files.content(kPath),
            "[Window]\r\nLeft=120\r\nTitle=\" blank\"\r\n\r\n[Paths]\r\nSolver=C:\\new\\solver.exe\r\n");
}

TEST(IniSettings, readsTheFileAtTheFirstUseAndNotAgain) {
  MemoryFileSystem files;
  files.put(kPath, "[S]\nk=1\n");
  IniSettings settings(files, kPath);
  EXPECT_TRUE(files.log.empty());
  EXPECT_EQ(settings.get("S", "k", ""), "1");
  EXPECT_EQ(settings.get("S", "other", "otherwise"), "otherwise");
  EXPECT_EQ(files.log, (std::vector<std::string>{std::string("read ") + kPath}));
}

TEST(IniSettings, leavesWhatAnotherProgramHasWrittenMeanwhile) {
  MemoryFileSystem files;
  IniSettings settings(files, kPath);
  ASSERT_TRUE(succeeded(settings.set("S", {{"mine", "1"}})));
  files.put(kPath, "; by another\n[S]\nmine=1\ntheirs=2\n");
  ASSERT_TRUE(succeeded(settings.set("S", {{"mine", "3"}})));
  EXPECT_EQ(files.content(kPath), "; by another\n[S]\nmine=3\r\ntheirs=2\n");
}

TEST(IniSettings, writesNothingWhenNothingChanges) {
  MemoryFileSystem files;
  files.put(kPath, "[S]\r\nk=1\r\n");
  files.setMode("/home/ann/.config/kestra", true, false);
  IniSettings settings(files, kPath);
  EXPECT_TRUE(succeeded(settings.set("S", {{"k", "1"}})));
  EXPECT_TRUE(settings.set("S", {{"k", "2"}}).failedAs(FailureKind::denied));
}

TEST(IniSettings, neitherGivesValuesOutOfAFileThatCannotBeReadNorTouchesIt) {
  for (const FailureKind kind : {FailureKind::denied, FailureKind::tooLarge, FailureKind::other}) {
    MemoryFileSystem memory;
    memory.put(kPath, "[S]\nk=1\n");
    FaultyFileSystem files(memory);
    files.failEvery("read", kind);
    IniSettings settings(files, kPath);
    EXPECT_EQ(settings.get("S", "k", "otherwise"), "otherwise");
    EXPECT_TRUE(failed(settings.set("S", {{"k", "2"}}), kind, "made to fail"));
    EXPECT_EQ(memory.content(kPath), "[S]\nk=1\n");
    EXPECT_EQ(settings.get("S", "k", "otherwise"), "2") << "holds for this run";
  }
}

TEST(IniSettings, failsWhereADirectoryHasTheNameOfTheFile) {
  MemoryFileSystem files;
  files.putDirectory(kPath);
  IniSettings settings(files, kPath);
  EXPECT_EQ(settings.get("S", "k", "otherwise"), "otherwise");
  EXPECT_TRUE(failed(settings.set("S", {{"k", "2"}}), FailureKind::wrongType, "Is a directory"));
}

TEST(IniSettings, leavesTheOldFileAndNoStrayWhicheverStepOfSettingFails) {
  const std::string old = "[S]\nk=1\nother=2\n";
  for (const bool over : {false, true}) {
    for (std::size_t step = 2;; ++step) {
      MemoryFileSystem memory;
      if (over) memory.put(kPath, old);
      FaultyFileSystem files(memory);
      IniSettings settings(files, kPath);
      (void)settings.get("S", "k", "");
      files.failCall(step, FailureKind::full);
      const Status status = settings.set("S", {{"k", "new"}, {"more", "3"}});
      EXPECT_EQ(settings.get("S", "k", ""), "new") << "holds for this run";
      if (files.calls().size() < step) {  // every step has failed in its turn
        EXPECT_TRUE(succeeded(status));
        EXPECT_GT(step, 8U);
        break;
      }
      // A question whether a directory is there that fails is made up for by the next step.
      if (status) continue;
      SCOPED_TRACE(files.calls()[step - 1] + (over ? " over an old file" : " of a new file"));
      EXPECT_EQ(status.failure().kind, FailureKind::full);
      const bool renamed = files.calls().back() == "syncDirectory";
      const std::string head = over ? "[S]\nk=new\r\nother=2\nmore=3\r\n" : "[S]\r\nk=new\r\nmore=3\r\n";
      if (renamed) {
        EXPECT_EQ(memory.content(kPath), head);
      } else {
        EXPECT_EQ(memory.content(kPath), over ? std::optional<std::string>(old) : std::nullopt);
      }
      for (const std::string& path : memory.paths()) EXPECT_EQ(path.find(".tmp"), std::string::npos) << path;
    }
  }
}

}  // namespace
}  // namespace kestra
