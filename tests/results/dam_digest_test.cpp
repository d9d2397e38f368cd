#include "results/dam_digest.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "base/text.h"
#include "platform/faulty_file_system.h"
#include "platform/memory_file_system.h"
#include "results/dam_output_reader.h"
#include "support/dam_output.h"
#include "support/result_matchers.h"

namespace kestra {
namespace {

TEST(DigestLine, isTheFieldCutToTenCharacters) {
  const struct {
    const char* field;
    const char* line;
  } kCases[] = {{"", "N/A"},
                {"   ", "N/A"},
                {"12.5", "12.5"},
                {"12.5      ", "12.5      "},
                {"     12.50", "     12.50"},
                {"Larkmoor upper dam", "Larkmoor u"},
                {"     1234567.25 ", "1234567.25"},
                {"Größenklasse 12", "Größenklas"}};
  for (const auto& each : kCases) EXPECT_EQ(digestLine(each.field), each.line) << each.field;
}

TEST(DigestsPage, beginsItsExampleAsTheOutputGivesIt) {
  const std::string output =
      joinLines({echo({"KESTRA", "01/01/2009"}) + "Larkmoor upper dam", echo({"PSpINLET", "0.5", "12", "1004"}),
                 echo({"ASSURFACE", "2EAST"}), echo({"", "60", "1010.5"}), echo({"ENDTABLE"}), echo({"CRESTPRFL"}),
                 echo({"", "10.5", "1012"}), echo({"", "810.75", "1013"}), echo({"ENDTABLE"}), echo({"HYD", "STORM A"}),
                 echo({"", "", "12.5", "148.26"}), echo({"ENDTABLE"}), echo({"STROUTE", "1003"})});
  std::string lines;
  const DigestFields fields = readDamOutput(output);
  for (std::size_t i = 0; i < 10; ++i) lines.append(trim(digestLine(fields[i]))).append("\n");
  std::ifstream file(std::string(KESTRA_SOURCE_DIR) + "/docs/formats/digests.md", std::ios::binary);
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  EXPECT_NE(page.find("```\n" + lines + "```\n"), std::string::npos) << lines;
}

struct ParseDamOutputTest : testing::Test {
  MemoryFileSystem memory;
  FaultyFileSystem files{memory};
  DigestFields fields;
  const std::string output = joinLines({echo({"STROUTE", "1003"}), "Final breach width was   41.50 ft"});

  std::string digestWith(const std::string& slope) const {
    std::vector<std::string> lines(kDigestLines, "N/A");
    lines[9] = "1003      ";
    lines[19] = slope;
    lines[37] = "  41.50 ";
    lines[38] = lines[39] = "0";
    return joinLines(lines);
  }
};

TEST_F(ParseDamOutputTest, writesTheFortyLinesOfTheDigestBesideTheOutput) {
  memory.put("/dam/run.OUT", output);
  EXPECT_TRUE(succeeded(ParseDamOutput(files, "/dam/run.KSC", fields)));
  EXPECT_EQ(memory.content("/dam/run.DIS"), digestWith("N/A"));
  EXPECT_EQ(fields[9], "1003      ");
  EXPECT_EQ(fields[5], "N/A");
  EXPECT_EQ(fields[0], "");
}

TEST_F(ParseDamOutputTest, findsTheFilesWhateverTheirLetterCase) {
  memory.put("/dam/RUN.out", output);
  memory.put("/dam/run.bre", joinLines({"1", "2", "3", "4", "5", std::string(60, ' ') + rightIn(12, "12.25")}));
  memory.put("/dam/run.dis", "old");
  EXPECT_TRUE(succeeded(ParseDamOutput(files, "/dam/run.V2D", fields)));
  EXPECT_EQ(memory.content("/dam/run.dis"), digestWith("12.2"));
  EXPECT_FALSE(memory.content("/dam/run.DIS"));
}

TEST_F(ParseDamOutputTest, takesTheSlopesDischargeFromAnyBreachHistory) {
  memory.put("/dam/run.OUT", output);
  for (const char* history : {"", "1\n2\n3\n4\n", "a\nb\nc\nd\ne\nshort\n"}) {
    memory.put("/dam/run.BRE", history);
    EXPECT_TRUE(succeeded(ParseDamOutput(files, "/dam/run.KSC", fields)));
    EXPECT_EQ(memory.content("/dam/run.DIS"), digestWith("0")) << history;
  }
}

TEST_F(ParseDamOutputTest, readsLinesThatEndInCarriageReturnsAlone) {
  memory.put("/dam/run.OUT", joinLines({echo({"STROUTE", "1003"}), "Final breach width was   41.50 ft"}, "\r"));
  EXPECT_TRUE(succeeded(ParseDamOutput(files, "/dam/run.KSC", fields)));
  EXPECT_EQ(memory.content("/dam/run.DIS"), digestWith("N/A"));
}

TEST_F(ParseDamOutputTest, takesARelativePath) {
  memory.put("/dam/run.OUT", output);
  (void)memory.changeDirectory("/dam");
  EXPECT_TRUE(succeeded(ParseDamOutput(files, "run.KSC", fields)));
  EXPECT_EQ(memory.content("/dam/run.DIS"), digestWith("N/A"));
}

TEST_F(ParseDamOutputTest, ofAMissingOutputFailsAndEmptiesTheFields) {
  memory.put("/dam/run.DIS", "old");
  fields[3] = "left over";
  EXPECT_TRUE(
      failed(ParseDamOutput(files, "/dam/run.KSC", fields), FailureKind::notFound, "No such file or directory"));
  EXPECT_EQ(fields, DigestFields());
  EXPECT_EQ(memory.content("/dam/run.DIS"), "old");
  for (const char* path : {"", "a", "KSC"}) {
    EXPECT_FALSE(ParseDamOutput(files, path, fields)) << path;
  }
}

TEST_F(ParseDamOutputTest, leavesTheOldDigestWhenTheNewOneCannotBeWritten) {
  memory.put("/dam/run.OUT", output);
  memory.put("/dam/run.DIS", "old");
  for (const char* operation : {"read", "createNew", "write", "close", "rename"}) {
    files.failEvery(operation, FailureKind::full);
    EXPECT_FALSE(ParseDamOutput(files, "/dam/run.KSC", fields)) << operation;
    EXPECT_EQ(memory.content("/dam/run.DIS"), "old") << operation;
    files.failNothing();
  }
}

TEST_F(ParseDamOutputTest, failsForABreachHistoryThatCannotBeRead) {
  memory.put("/dam/run.OUT", output);
  memory.put("/dam/run.BRE", "");
  memory.setMode("/dam/run.BRE", false, true);
  EXPECT_TRUE(failed(ParseDamOutput(files, "/dam/run.KSC", fields), FailureKind::denied, "Permission denied"));
  EXPECT_FALSE(memory.content("/dam/run.DIS"));
}

}  // namespace
}  // namespace kestra
