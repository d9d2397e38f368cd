#include "run/error_rows.h"

#include <gtest/gtest.h>

#include "base/fields.h"
#include "platform/memory_file_system.h"
#include "run/finding_messages.h"

namespace kestra {
namespace {

constexpr const char* kHeading = "    9    9\r\n";

std::string right(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

// A finding as the checker of the dam writes it; that of the spillways leaves five columns more before the code.
std::string line(const std::string& mark, int screen, int tab, int element, int code, const std::string& values = "",
                 std::size_t codeWidth = 5) {
  return mark + right(std::to_string(screen), 5) + right(std::to_string(tab), 5) + right(std::to_string(element), 10) +
         right(std::to_string(code), codeWidth) + values + "\r\n";
}

struct ErrorRows : testing::Test {
  MemoryFileSystem files;
  ErrorRows() { files.putDirectory("/p"); }

  std::vector<ErrorRow> dam(const std::string& text) {
    files.put("/p/a.ERR0", text);
    return readDamFindings(files, "/p/a.ERR0");
  }
  std::vector<ErrorRow> spillway(const std::string& text) {
    files.put("/p/a.ERR2", text);
    return readSpillwayFindings(files, "/p/a.ERR2");
  }
};

TEST_F(ErrorRows, holdTheColumnsOfAFindingOfTheDam) {
  const std::string values = "1.5       2         3         ";
  EXPECT_EQ(dam(kHeading + line("F", 3, 2, 14, 21, values) + line("W", 12, 0, 0, 70, "7")),
            (std::vector<ErrorRow>{{21, 3, 2, 14, true, "1.5", "2", "3", 0}, {70, 12, 0, 0, false, "7", "", "", 0}}));
}

TEST_F(ErrorRows, holdTheColumnsOfAFindingOfASpillway) {
  constexpr std::size_t kWide = 10;
  const std::string values = "1.5       2         3         ";
  EXPECT_EQ(spillway(kHeading + line("F", 10, 2, 14, 67, values, kWide) + line(" ", 9, 0, 3, 5, "", kWide)),
            (std::vector<ErrorRow>{{67, 10, 2, 14, true, "1.5", "2", "3", 2}, {5, 9, 0, 3, false, "", "", "", 2}}));
}

TEST_F(ErrorRows, takeTheCodeOfASpillwayFromTheFrontOfItsFieldAsWell) {
  const auto rows = spillway(std::string(kHeading) + "F   10    1         112        4.5\r\n");
  EXPECT_EQ(rows, (std::vector<ErrorRow>{{12, 10, 1, 1, true, "4.5", "", "", 2}}));
}

TEST_F(ErrorRows, areWarningsUnlessTheyBeginWithF) {
  const std::pair<const char*, bool> table[] = {{"F", true}, {"W", false}, {"f", false}, {" ", false}, {"X", false}};
  for (const auto& [mark, isError] : table) {
    const auto rows = dam(kHeading + line(mark, 1, 1, 1, 1));
    ASSERT_EQ(rows.size(), 1U) << mark;
    EXPECT_EQ(rows[0].isError, isError) << mark;
  }
  EXPECT_EQ(dam(std::string(kHeading) + "WARNING\r\n"), std::vector<ErrorRow>{ErrorRow{}});
}

TEST_F(ErrorRows, endBeforeALineThatNoRowCanBeMadeOf) {
  const std::string good = line("F", 1, 1, 1, 70);
  for (const std::string& bad : {line("F", 1, 1, 1, 71), line("F", 1, 1, 1, -1), line("F", 13, 1, 1, 1),
                                 line("F", -1, 1, 1, 1), line("F", 1, 1, 70000, 1), line("F", 1, 1, 1, 99999)}) {
    EXPECT_EQ(dam(kHeading + good + bad + good).size(), 1U) << bad;
  }
  EXPECT_EQ(spillway(kHeading + line("F", 1, 1, 1, 68, "", 10)).size(), 0U);
}

TEST_F(ErrorRows, ofTheDateHaveNoMessage) {
  const auto rows =
      dam(kHeading + line("F", 1, 0, 0, kDateFinding) + line("F", 1, 0, 0, kGlobalFinding) + line("W", 0, 0, 0, 0));
  ASSERT_EQ(rows.size(), 3U);
  for (const ErrorRow& row : rows) EXPECT_EQ(messageOf(row), "") << row.code;
}

TEST_F(ErrorRows, areNoneInAFileThatIsMissingOrHasNoLines) {
  EXPECT_TRUE(readDamFindings(files, "/p/none.ERR0").empty());
  EXPECT_TRUE(readSpillwayFindings(files, "").empty());
  for (const char* nothing : {"", "\r\n", kHeading, "    9    9\r\n\r\n   \r\n"}) {
    EXPECT_TRUE(dam(nothing).empty()) << nothing;
  }
}

TEST(FindingMessages, areThoseOfTheirChecker) {
  EXPECT_EQ(damMessages().size(), 70U);
  EXPECT_EQ(spillwayMessages().size(), 67U);
  struct Row {
    int code;
    int spillway;
    std::string_view message;
  };
  const Row table[] = {{1, 0, "Invalid control word."},
                       {52, 0, "Length of conduit(s is required."},
                       {70, 0, "WARNING: OPTION: Drawdown elevation within 0.01 feet of low crest."},
                       {1, 1, "Watershed ID should not contain special characters."},
                       {57, 2, "Tin-In station outside of ASCOORD bounds."},
                       {67, 3, "Hydrograph Time Increment must be entered."}};
  for (const Row& row : table) {
    ErrorRow finding;
    finding.code = static_cast<std::int16_t>(row.code);
    finding.spillwayNumber = static_cast<std::int16_t>(row.spillway);
    EXPECT_EQ(messageOf(finding), row.message);
  }
}

TEST(ErrorRow, joinsTheValuesThatItWasGiven) {
  struct Row {
    std::array<const char*, 3> values;
    const char* text;
  };
  const Row table[] = {{{"", "", ""}, ""},
                       {{"1", "", ""}, "1"},
                       {{"1", "2", ""}, "1, 2"},
                       {{"1", "2", "3"}, "1, 2 to 3"},
                       {{"1", "", "3"}, "1 to 3"}};
  for (const Row& row : table) {
    ErrorRow finding;
    finding.value1 = row.values[0];
    finding.value2 = row.values[1];
    finding.value3 = row.values[2];
    EXPECT_EQ(valuesOf(finding), row.text);
  }
}

TEST(ErrorRow, namesItsScreen) {
  const std::pair<int, const char*> table[] = {{0, ""},
                                               {1, "Project Information"},
                                               {8, "Principal Spillway Rating Table"},
                                               {10, "Auxiliary Spillway Properties"},
                                               {12, "Home Screen"}};
  for (const auto& [number, name] : table) {
    ErrorRow finding;
    finding.screenNumber = static_cast<std::int16_t>(number);
    EXPECT_EQ(screenNameOf(finding), name);
  }
}

}  // namespace
}  // namespace kestra
