#include "screens/structure_files.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

using Rows = std::vector<StructureRow>;

const std::string kBlanks(20, ' ');

TEST(StructureFileText, putsTheAreaBeforeDischargeAndStorage) {
  EXPECT_EQ(structureFileText("POND1", {{"100.5", "20", "300", "40"}, {"101", "", "", "4"}}),
            "STRUCTURE POND1\r\n" + kBlanks + "100.5     40        20                  300\r\n" + kBlanks +
                "101       4\r\nENDTABLE\r\n");
}

TEST(StructureFileText, leavesOutRowsWithoutElevationAndRowsBehindTheTwentieth) {
  Rows rows(25, {"1", "", "", ""});
  rows[1][0] = "";
  rows[20] = {"9", "", "", ""};
  const std::string text = structureFileText("", rows);
  EXPECT_EQ(text.substr(0, 11), "STRUCTURE\r\n");
  EXPECT_EQ(readStructureFile(text)->rows.size(), 19U);
  EXPECT_EQ(text.find('9'), std::string::npos);
}

TEST(StructureFileText, cutsAValueWhereTheNextFieldBeginsAndTheLastOneNever) {
  struct Case {
    StructureRow row;
    std::string line;
  };
  const std::string eleven = "12345678901";
  const std::string long25 = "1234567890123456789012345";
  for (const auto& [row, line] : {Case{{eleven, "2", "3", "4"}, "12345678904         2                   3"},
                                  Case{{eleven, "", "", ""}, "1234567890"},
                                  Case{{"1", "2", "3", eleven}, "1         12345678902                   3"},
                                  Case{{"1", eleven, "3", "4"}, "1         4         12345678901         3"},
                                  Case{{"1", long25, "3", "4"}, "1         4         123456789012345678903"},
                                  Case{{"1", "2", eleven, "4"}, "1         4         2                   12345678901"},
                                  Case{{"1", "2", long25, "4"}, "1         4         2                   " + long25}}) {
    EXPECT_EQ(structureFileText("", {row}), "STRUCTURE\r\n" + kBlanks + line + "\r\nENDTABLE\r\n");
  }
}

TEST(ReadStructureFile, takesTenCharactersOfAField) {
  const std::string eleven = "12345678901";
  const auto file = readStructureFile(structureFileText("", {{eleven, eleven, eleven, eleven}}));
  EXPECT_EQ(file->rows, (Rows{{"1234567890", "1234567890", "1234567890", "1234567890"}}));
}

TEST(ReadStructureFile, readsBackWhatIsWritten) {
  const Rows rows = {{"100.5", "20", "300", "40"}, {"101", "", "310.25", ""}, {"102", "22", "", "44"}};
  const auto file = readStructureFile(structureFileText("POND1", rows));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->identifier, "POND1");
  EXPECT_EQ(file->rows, rows);
}

TEST(ReadStructureFile, takesFiveCharactersOfTheIdentifier) {
  EXPECT_EQ(readStructureFile("STRUCTURE RESERVOIR\n")->identifier, "RESER");
  EXPECT_EQ(readStructureFile("STRUCTURE  ab \n")->identifier, "ab");
  EXPECT_EQ(readStructureFile("STRUCTURE \n")->identifier, std::nullopt);
  EXPECT_EQ(readStructureFile(" STRUCTURE")->identifier, std::nullopt);
}

TEST(ReadStructureFile, refusesEveryOtherFile) {
  for (const char* text : {"", "\n", "STRUCTURES\n", "structure\n", "ENDTABLE\n", "\x01\x02\xff"}) {
    EXPECT_FALSE(readStructureFile(text)) << text;
  }
}

TEST(ReadStructureFile, readsTwentyOneRowsAtMost) {
  std::string text = "STRUCTURE A\n";
  for (int i = 1; i <= 25; ++i) text += kBlanks + std::to_string(i) + "\n";
  const auto file = readStructureFile(text + "ENDTABLE\n");
  ASSERT_EQ(file->rows.size(), 21U);
  EXPECT_EQ(file->rows.back()[0], "21");
}

TEST(ReadStructureFile, readsAFileThatIsCutOff) {
  EXPECT_EQ(readStructureFile("STRUCTURE A\n" + kBlanks + "10        2")->rows, (Rows{{"10", "", "", "2"}}));
}

const std::string kAnchor = " RATING TABLE NUMBER  2\n1\n2\n3\n";
// clang-format off
//                                 1         2         3         4         5         6
//                        123456789012345678901234567890123456789012345678901234567890123
const std::string kRow = "     100.50               12.5     x        300.25   40.75     \n";
// clang-format on

TEST(ReadTorveRating, takesElevationDischargeStorageAndArea) {
  const auto rows = readTorveRating("something\n" + kAnchor + kRow + "\n" + kRow + "*********************\n" + kRow);
  ASSERT_TRUE(rows);
  EXPECT_EQ(*rows, (Rows{{"100.50", "12.5", "300.25", "40.75"}, {"100.50", "12.5", "300.25", "40.75"}}));
}

TEST(ReadTorveRating, leavesWhatAShortLineDoesNotReachEmpty) {
  for (const auto& [length, wanted] :
       std::vector<std::pair<std::size_t, StructureRow>>{{5, {"", "", "", ""}},
                                                         {24, {"100.50", "", "", ""}},
                                                         {44, {"100.50", "12.5", "", ""}},
                                                         {54, {"100.50", "12.5", "300.25", ""}},
                                                         {57, {"100.50", "12.5", "300.25", "40.7"}}}) {
    std::string line = kRow.substr(0, length);
    if (length == 5) line[4] = '7';
    const auto rows = readTorveRating(kAnchor + line + "\n");
    ASSERT_EQ(rows->size(), 1U) << length;
    EXPECT_EQ(rows->front(), wanted) << length;
  }
}

TEST(ReadTorveRating, stopsAfterTwentyPointsWithoutALineOfAsterisks) {
  std::string text = kAnchor;
  for (int i = 0; i < 30; ++i) text += kRow;
  EXPECT_EQ(readTorveRating(text)->size(), 20U);
}

TEST(ReadTorveRating, wantsItsAnchorWithTwoBlanks) {
  EXPECT_FALSE(readTorveRating(""));
  EXPECT_FALSE(readTorveRating("RATING TABLE NUMBER 2\n" + kRow));
  EXPECT_FALSE(readTorveRating("RATING TABLE NUMBER  21\n" + kRow));
  EXPECT_TRUE(readTorveRating("RATING TABLE NUMBER  2 of 3\n")->empty());
}

TEST(StructureTabs, goInTheOrderOfTheColumns) {
  EXPECT_EQ(readStructureTabs("1\t2\t3\t4\r\n5\t\t7\n\n9\t1\t2\t3\t4\n", 50),
            (Rows{{"1", "2", "3", "4"}, {"5", "", "7", ""}, {"", "", "", ""}, {"9", "1", "2", "3"}}));
  EXPECT_EQ(readStructureTabs("1\n2\n3\n", 2).size(), 2U);
  EXPECT_EQ(structureTabsText({{"1", "2", "3", "4"}, {"", "2", "3", "4"}, {"5", "", "7", ""}}),
            "1\t2\t3\t4\r\n5\t\t7\t\r\n");
}

}  // namespace
}  // namespace kestra
