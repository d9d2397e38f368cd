// What the engine says of a routing.
#include <gtest/gtest.h>

#include "base/lines.h"
#include "engines/dam_messages.h"
#include "kestrasim/dam_engine.h"

namespace kestra {
namespace {

// The messages of a whole run.
Lines messagesOfRun(const DamText& dam) {
  Lines found;
  const std::string report = runDam(dam.text()).report;
  LineReader lines(report);
  std::string_view line;
  while (lines.next(line)) {
    if (line.starts_with("*****")) found.emplace_back(line);
  }
  return found;
}

TEST(DamRuns, tellThatThePoolLeavesItsTables) {
  DamText dam;
  dam.with("HYD", {"HYD       Flood     1         0         0C        ", "                    0         60000     0",
                   "ENDTABLE"});
  const Lines messages = messagesOfRun(dam);
  ASSERT_EQ(messages.size(), 3U);
  EXPECT_TRUE(messages[0].starts_with("***** WARNING - the pool rose above the storage table at 0."));
  EXPECT_TRUE(messages[0].ends_with(" hours (STRUCTURE, line 7): the last area goes on above it"));
  EXPECT_TRUE(messages[1].starts_with("***** WARNING - the outflow rose beyond the table at 0."));
  EXPECT_TRUE(messages[1].ends_with(" hours (TAILWATER, line 25): the last elevation stays"));
  EXPECT_EQ(messages[2],
            "***** WARNING - the pool rose above the rating of auxiliary spillway 1 (ASRATING, line 30): its last two "
            "rows are carried on");
}

TEST(DamRuns, tellThatThePoolLeavesTheDischargesOfTheStructureTable) {
  DamText dam;
  dam.with("STRUCTURE", {"STRUCTURE Test", "                    100       0         0         0",
                         "                    110       0         20        4",
                         "                    120       30        80        8",
                         "                    130                 190       14", "ENDTABLE"});
  const Lines messages = messagesOfRun(dam);
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0],
            "***** WARNING - the pool rose above the discharges of the principal spillway (STRUCTURE, line 8): the "
            "last two are carried on");
}

TEST(DamRuns, tellThatAFloodIsTooLongToBeRouted) {
  DamText dam;
  std::vector<std::string> rows{"HYD       Flood     90000     0         0C        "};
  for (int i = 0; i < 30; ++i) rows.emplace_back("                    0         3000      0         3000      0");
  rows.emplace_back("ENDTABLE");
  dam.with("HYD", rows);
  EXPECT_EQ(messagesOfRun(dam).back(), "***** ERROR - the routing takes too many steps: it ends where the table ends");
}

// The base of a headcut that follows the tailwater keeps the steps short.
TEST(DamRuns, routeASlowBreachUnderALongIncrementToItsEnd) {
  DamText dam;
  for (const char* spillway : {"PSpINLET", "PSpDATA", "PSpCOEFFS", "ASRATING"}) dam.without(spillway);
  dam.with("OPTION", {"OPTION    SIMPLE    BARESOIL  NOPS"});
  dam.with("HCMODEL", {"HCMODEL   1                   0.3                 1         55.3"});
  dam.with("HYD", {"HYD       Flood     1.24      0         0C",
                   "                    0         165       329       494       658",
                   "                    823       987       1152      1317      1481",
                   "                    1646      1810      1975      2030      1865",
                   "                    1701      1536      1371      1207      1042",
                   "                    878       713       549       384       219",
                   "                    55        0         0         0         0",
                   "                    0         0         0         0         0",
                   "                    0         0         0", "ENDTABLE"});
  dam.with("STROUTE", {"STROUTE   98.91     80        FEET"});
  dam.with("STRUCTURE", {"STRUCTURE Test", "                    80                  0         0",
                         "                    83.98               44.14     22.2",
                         "                    91.86               362.64    58.6",
                         "                    98.58               860.56    89.61",
                         "                    105                 1608.42   143.39",
                         "                    111.02              2637.17   198.12", "ENDTABLE"});
  dam.with("DAMCREST", {"DAMCREST  0         5.6"});
  dam.with("DWNSTREAM", {"DWNSTREAM 4.2       0.025"});
  dam.with("CRESTPRFL", {"CRESTPRFL", "          0         108.46", "          30        103.46",
                         "          400       103.46", "          430       108.46", "ENDTABLE"});
  dam.with("TAILWATER",
           {"TAILWATER", "          80        0", "          89.8      1000", "          97.9      50000", "ENDTABLE"});
  EXPECT_EQ(messagesOfRun(dam), Lines{});
}

}  // namespace
}  // namespace kestra
