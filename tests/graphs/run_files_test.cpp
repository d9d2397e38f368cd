#include "graphs/run_files.h"

#include <gtest/gtest.h>

#include "graphs/run_rows.h"
#include "platform/memory_file_system.h"

namespace kestra {
namespace {

TEST(TheFilesOfARun, areNamedAfterItsControlFile) {
  const std::pair<const char*, const char*> cases[] = {{"/p/dam.KSC", "/p/dam.OUT"},
                                                       {"/p/dam.ksc", "/p/dam.OUT"},
                                                       {"/p/dam1_2.V2D", "/p/dam1_2.OUT"},
                                                       {"/p/dam.v2d", "/p/dam.OUT"},
                                                       {"/p/dam.KSM", "/p/dam.OUT"},
                                                       {"/p/a.KSC.KSC", "/p/a.KSC.OUT"},
                                                       {"/p/dam.v1.KSC", "/p/dam.v1.OUT"},
                                                       {"/p/dam.Ksc", "/p/dam.OUT"},
                                                       {"/p/dam", "/p/dam.OUT"},
                                                       {"/old.KSC/dam", "/old.KSC/dam.OUT"},
                                                       {"/old.KSC/a.b", "/old.KSC/a.OUT"},
                                                       {"dam.ksm", "dam.OUT"},
                                                       {"", ""}};
  for (const auto& [control, output] : cases) EXPECT_EQ(runFilePath(control, "OUT"), output) << control;
}

TEST(TheFilesOfARun, areFoundWhateverTheirLetterCase) {
  MemoryFileSystem files;
  files.put("/p/DAM.out", "text");
  (void)files.changeDirectory("/p");
  EXPECT_EQ(RunFiles(files, "/p/dam.KSC").read("OUT").value(), "text");
  EXPECT_EQ(RunFiles(files, "dam.KSC").read("OUT").value(), "text");
  EXPECT_TRUE(RunFiles(files, "/p/dam.KSC").read("BRE").failedAs(FailureKind::notFound));
  EXPECT_TRUE(RunFiles(files, "").read("OUT").failedAs(FailureKind::notFound));
}

TEST(TheFilesOfARun, areReadAsFarAsTheLimit) {
  MemoryFileSystem files;
  files.put("/p/dam.OUT", std::string(kReadLimit + 5, 'x'));
  EXPECT_EQ(RunFiles(files, "/p/dam.KSC").read("OUT").value().size(), kReadLimit);
}

TEST(ARow, isReadByItsColumns) {
  const RunRow row("      1.5*****   NaN  2e3    1e39");
  EXPECT_EQ(row.number(1, 9), 1.5);
  EXPECT_EQ(row.number(10, 5), 0);
  EXPECT_EQ(row.number(15, 6), 0);
  EXPECT_EQ(row.number(21, 5), 2000);
  EXPECT_EQ(row.number(26, 8), 0);
  EXPECT_EQ(row.number(90, 5), 0);
  EXPECT_EQ(row.text(10, 5), "*****");
  EXPECT_EQ(RunRow("ä  7").number(2, 3), 7);
}

TEST(ATable, endsAtABlankLineOrAtItsRowLimit) {
  const auto count = [](const std::string& text) {
    RunReader reader(text);
    return reader.rows([](const RunRow&) {});
  };
  EXPECT_EQ(count("1\r\n2\r\n  \r\n3\r\n"), 2);
  EXPECT_EQ(count("1\n2"), 2);
  EXPECT_EQ(count(""), 0);
  std::string many;
  for (int i = 0; i < 20002; ++i) many += "1\n";
  EXPECT_EQ(count(many), 20000);
}

}  // namespace
}  // namespace kestra
