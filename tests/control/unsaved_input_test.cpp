#include "control/unsaved_input.h"

#include <gtest/gtest.h>

#include "platform/faulty_file_system.h"
#include "platform/memory_file_system.h"

namespace kestra {
namespace {

const UnsavedInput kPond = {"pond.KSC", {"KESTRA    \r\nENDRUN\r\n", "{\"of\": \"pond.KSC\"}\n"}};

TEST(UnsavedInput, comesBackAsItWasKept) {
  const std::vector<UnsavedInput> all = {kPond, {}, {"", {"KESTRA\r\n", ""}}, {"t\xE4l.KSC", {"\xFF\x00\r\n", "\xC3"}}};
  for (const UnsavedInput& kept : all) {
    const auto back = parseUnsavedInput(composeUnsavedInput(kept));
    ASSERT_TRUE(back) << kept.name;
    EXPECT_EQ(back->name, kept.name);
    EXPECT_EQ(back->input, kept.input);
  }
}

TEST(UnsavedInput, isNothingWhereTheTextIsNotWhole) {
  const std::string whole = composeUnsavedInput(kPond);
  for (std::size_t size = 0; size + 2 < whole.size(); ++size) {
    EXPECT_FALSE(parseUnsavedInput(whole.substr(0, size))) << size;
  }
  const char* others[] = {"[]",
                          "7",
                          R"({"of":"a.KSC","file":"x"})",
                          R"({"of":"a.KSC","file":"x","companion":3})",
                          R"({"of":"../a.KSC","file":"x","companion":""})",
                          R"({"of":"/a.KSC","file":"x","companion":""})"};
  for (const char* other : others) EXPECT_FALSE(parseUnsavedInput(other)) << other;
}

TEST(UnsavedInput, isFoundInTheProjectTheNewestFirst) {
  MemoryFileSystem files;
  files.putDirectory("/dam");
  EXPECT_TRUE(unsavedInputNumbers(files, "/dam").empty());
  for (const std::uint64_t number : {2U, 10U, 9U}) ASSERT_TRUE(writeUnsavedInput(files, "/dam", number, kPond));
  for (const char* other : {"unsaved-.json", "unsaved-x.json", "unsaved-0.json", "unsaved--3.json", "unsaved-4.jso",
                            "unsaved-99999999999999999999.json", "pond.json"}) {
    files.put(std::string("/dam/.kestra/") + other, "x");
  }
  EXPECT_EQ(unsavedInputNumbers(files, "/dam"), (std::vector<std::uint64_t>{10, 9, 2}));
  EXPECT_EQ(readUnsavedInput(files, "/dam", 9)->input, kPond.input);
  EXPECT_FALSE(readUnsavedInput(files, "/dam", 3));
}

TEST(UnsavedInput, keepsTheOldOneWhereTheNewOneCannotBeWritten) {
  MemoryFileSystem memory;
  FaultyFileSystem files(memory);
  memory.putDirectory("/dam");
  ASSERT_TRUE(writeUnsavedInput(files, "/dam", 1, kPond));
  files.failEvery("write", FailureKind::full);
  EXPECT_FALSE(writeUnsavedInput(files, "/dam", 1, {"", {}}));
  EXPECT_EQ(readUnsavedInput(files, "/dam", 1)->name, "pond.KSC");
}

}  // namespace
}  // namespace kestra
