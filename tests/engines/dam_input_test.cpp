// What the engine says of input that it cannot take as it stands.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engines/dam_messages.h"
#include "kestrasim/dam_engine.h"

namespace kestra {
namespace {

TEST(DamInput, ofAWholeDamGivesNoMessage) {
  EXPECT_EQ(messagesOf(DamText().text()), Lines{});
  EXPECT_EQ(messagesOf(breachText().text()), Lines{});
}

struct MessageCase {
  const char* name;
  DamText dam;
  Lines messages;
};

class DamMessages : public testing::TestWithParam<MessageCase> {};

TEST_P(DamMessages, tellWhatWasWrongWhereAndWhatWasDone) {
  EXPECT_EQ(messagesOf(GetParam().dam.text()), GetParam().messages);
}

DamText without(std::string_view keyword) {
  DamText dam;
  dam.without(keyword);
  return dam;
}

std::vector<MessageCase> messageCases() {
  return {
      {"noHydrograph",
       without("HYD"),
       {"***** ERROR - the hydrograph has fewer than two values (HYD): nothing is routed"}},
      {"oneOrdinate",
       with("HYD", {"HYD       Flood     0.5       0         0C        ", "                    5", "ENDTABLE"}),
       {"***** ERROR - the hydrograph has fewer than two values (HYD, line 3): nothing is routed"}},
      {"endsHigh",
       with("HYD",
            {"HYD       Flood     0.5       0         0C        ", "                    0         5", "ENDTABLE"}),
       {"***** WARNING - the hydrograph ends with 5 cfs (HYD, line 4): where the routing goes on behind it, this "
        "inflow "
        "stays"}},
      {"noStep",
       with("HYD", {"HYD       Flood     ", "                    0         5         0", "ENDTABLE"}),
       {"***** WARNING - there is no time increment above 0 (HYD, line 3): 1 hour is taken"}},
      {"timesFall",
       with("HYD", {"HYD       Flood     0.5       0         0V        ", "          0         0",
                    "          1         50", "          0.5       60", "          2         0", "ENDTABLE"}),
       {"***** WARNING - the time 0.5 does not rise (HYD, line 6): the row is left out"}},
      {"negativeFlow",
       with("HYD", {"HYD       Flood     0.5       0         0C        ", "                    0         -5        0",
                    "ENDTABLE"}),
       {"***** WARNING - discharge 2 -5 is out of range (HYD, line 4): 0 is taken"}},
      {"noNumber",
       with("DAMCREST", {"DAMCREST  12ft      5.6       x"}),
       {"***** WARNING - width \"12ft\" is no number (DAMCREST, line 15): 12 is taken",
        "***** WARNING - coefficient \"x\" is no number (DAMCREST, line 15): 0.1 is taken"}},
      {"noStructure",
       without("STRUCTURE"),
       {"***** ERROR - fewer than two rows with a volume or an area (STRUCTURE): nothing is routed"}},
      {"oneStructureRow",
       with("STRUCTURE", {"STRUCTURE Test", "                    100                 0         0", "ENDTABLE"}),
       {"***** ERROR - fewer than two rows with a volume or an area (STRUCTURE, line 8): nothing is routed"}},
      {"elevationsFall",
       with("STRUCTURE", {"STRUCTURE Test", "                    100                           1",
                          "                    130                           5",
                          "                    120                           4", "ENDTABLE"}),
       {"***** WARNING - the elevation 120 does not rise (STRUCTURE, line 11): the row is left out"}},
      {"negativeAreas",
       with("STRUCTURE", {"STRUCTURE Test", "                    100                           -1",
                          "                    110                           -4",
                          "                    130                           5", "ENDTABLE"}),
       {"***** WARNING - area -1 is out of range (STRUCTURE, line 9): 0 is taken",
        "***** WARNING - area -4 is out of range (STRUCTURE, line 10): 0 is taken",
        "***** WARNING - the volume is that of the next row (STRUCTURE, line 9): the row is left out"}},
      {"emptyStructure",
       with("STRUCTURE", {"STRUCTURE Test", "ENDTABLE"}),
       {"***** ERROR - fewer than two rows with a volume or an area (STRUCTURE, line 8): nothing is routed"}},
      {"emptyHydrograph",
       with("HYD", {"HYD       Flood     0.5       0         0C        ", "ENDTABLE"}),
       {"***** ERROR - the hydrograph has fewer than two values (HYD, line 3): nothing is routed"}},
      {"emptyCrest",
       with("CRESTPRFL", {"CRESTPRFL", "ENDTABLE"}),
       {"***** ERROR - the crest has no two points apart (CRESTPRFL, line 17): nothing is routed"}},
      {"oneCrestPoint",
       with("CRESTPRFL", {"CRESTPRFL", "          0         125", "ENDTABLE"}),
       {"***** ERROR - the crest has no two points apart (CRESTPRFL, line 17): nothing is routed"}},
      {"stationsFall",
       with("CRESTPRFL", {"CRESTPRFL", "          0         127", "          250       125", "          50        125",
                          "          300       127", "ENDTABLE"}),
       {"***** WARNING - the station 50 does not rise (CRESTPRFL, line 20): the row is left out"}},
      {"oneRatingRow",
       with("ASRATING", {"ASRATING  1Bywash   0", "          122       0", "ENDTABLE"}),
       {"***** ERROR - a rating has fewer than two rows (ASRATING, line 31): it discharges nothing"}},
      {"emptyTailwater",
       with("TAILWATER", {"TAILWATER", "ENDTABLE"}),
       {"***** WARNING - no tailwater is given (TAILWATER, line 26): it is taken at the base of the dam"}},
      {"zeroSlopes",
       with("DWNSTREAM", {"DWNSTREAM 0         5.6       0.75      2         10        0.01"})
           .with("UPSTREAM", {"UPSTREAM  0         5.6"}),
       {"***** WARNING - upstream slope 0 is beyond computing (UPSTREAM, line 14): 0.05 is taken",
        "***** WARNING - downstream slope 0 is beyond computing (DWNSTREAM, line 16): 0.05 is taken"}},
      {"absurdMagnitudes",
       with("DAMCREST", {"DAMCREST  1E30      5.6       1E9"}),
       {"***** WARNING - width 1E30 is out of range (DAMCREST, line 15): 10000 is taken",
        "***** WARNING - coefficient 1E9 is out of range (DAMCREST, line 15): 10 is taken"}},
      {"noName", without("KESTRA"), {"***** WARNING - the record is missing (KESTRA): the dam has no name"}},
      {"noOption",
       without("OPTION"),
       {"***** WARNING - the record is missing (OPTION): SIMPLE, EARTH and no breach are taken"}},
      {"noFaces",
       without("UPSTREAM").without("DWNSTREAM"),
       {"***** WARNING - slope of the upstream face is not given (UPSTREAM): 3 is taken",
        "***** WARNING - slope of the downstream face is not given (DWNSTREAM): 3 is taken",
        "***** WARNING - retardance is not given (DWNSTREAM): 0.02 is taken",
        "***** WARNING - vegetal cover factor is not given (DWNSTREAM): 0 is taken",
        "***** WARNING - maintenance code is not given (DWNSTREAM): 2 is taken",
        "***** WARNING - plasticity index is not given (DWNSTREAM): 0 is taken"}},
      {"noUpstreamRoughness",
       with("OPTION", {"OPTION    SIMPLE    EARTH               NOBREACH"}).with("UPSTREAM", {"UPSTREAM  3"}),
       {"***** WARNING - retardance of the upstream face is not given (UPSTREAM, line 14): 5.6 is taken"}},
      {"detailed",
       with("OPTION", {"OPTION    DETAILED  EARTH               NOBREACH"}),
       {"***** WARNING - a DETAILED surface is not computed (OPTION, line 2): SIMPLE is taken"}},
      {"startAtTooMuch",
       with("STROUTE", {"STROUTE   99999     100       CFS"}),
       {"***** WARNING - the outlets pass no 99999 cfs below the top of the storage table (STROUTE, line 7): the pool "
        "of 130 is taken"}},
      {"startBelowNothing",
       with("STROUTE", {"STROUTE   -5        100       CFS"}),
       {"***** WARNING - the outflow -5 of the start is below 0 (STROUTE, line 7): 0 is taken"}},
      {"volumeMissing",
       with("STRUCTURE", {"STRUCTURE Test", "                    100                 0", "                    110",
                          "                    130                 90", "ENDTABLE"}),
       {"***** WARNING - neither a volume nor the areas for one are given (STRUCTURE, line 10): the row is left out"}},
      {"areasDisagree",
       with("STRUCTURE", {"STRUCTURE Test", "                    100                 0         0",
                          "                    130                 90        10", "ENDTABLE"}),
       {"***** WARNING - the areas make a volume that differs by 66.7 percent (STRUCTURE, line 10): the volumes given "
        "are taken"}},
      {"emptyFloor",
       with("STRUCTURE",
            {"STRUCTURE Test", "                    100                 0", "                    110                 0",
             "                    120                 40", "                    125                 40",
             "                    130                 90", "ENDTABLE"}),
       {"***** WARNING - the volume is that of the next row (STRUCTURE, line 9): the row is left out",
        "***** WARNING - the volume 40 does not rise (STRUCTURE, line 12): the row is left out"}},
      {"noStorage",
       with("STRUCTURE", {"STRUCTURE Test", "                    100                 7         0",
                          "                    130                 7         0", "ENDTABLE"}),
       {"***** WARNING - the volume is that of the next row (STRUCTURE, line 9): the row is left out",
        "***** ERROR - fewer than two rows with a volume or an area (STRUCTURE, line 8): nothing is routed"}},
      {"noCrest",
       without("CRESTPRFL"),
       {"***** ERROR - the crest has no two points apart (CRESTPRFL): nothing is routed"}},
      {"crestBelowFloor",
       with("CRESTPRFL", {"CRESTPRFL", "          0         127", "          50        99", "ENDTABLE"}),
       {"***** ERROR - the crest at 99 is not above the floor of the reservoir at 100 (CRESTPRFL, line 17): nothing is "
        "routed"}},
      {"noCoefficient",
       with("DAMCREST", {"DAMCREST  12        5.6       "}),
       {"***** WARNING - discharge coefficient is not given (DAMCREST, line 15): 2.8 is taken"}},
      {"noPrincipal",
       without("PSpINLET"),
       {"***** ERROR - no principal spillway is told, nor that there is none (PSpINLET): the principal spillway "
        "discharges nothing"}},
      {"unknownConduit",
       with("PSpDATA", {"PSpDATA   1    150  24                  0.013     104       101       XY"}),
       {"***** ERROR - the spillway type \"XY\" is not known (PSpDATA, line 24): the principal spillway discharges "
        "nothing"}},
      {"noDiameter",
       with("PSpDATA", {"PSpDATA   1    150  0                   0.013     104       101       SC"}),
       {"***** ERROR - the diameter is not above 0 (PSpDATA, line 24): the principal spillway discharges nothing"}},
      {"noTailwater",
       without("TAILWATER"),
       {"***** WARNING - no tailwater is given (TAILWATER): it is taken at the base of the dam"}},
      {"tailwaterFalls",
       with("TAILWATER",
            {"TAILWATER", "          103       0", "          102       500", "          108       400", "ENDTABLE"}),
       {"***** WARNING - the elevation 102 falls (TAILWATER, line 28): 103 is taken",
        "***** WARNING - the outflow 400 does not rise (TAILWATER, line 29): the row is left out"}},
      {"ratingFalls",
       with("ASRATING", {"ASRATING  1Bywash   0", "          122       5", "          124       200",
                         "          128       90", "ENDTABLE"}),
       {"***** WARNING - the first discharge of a rating is above 0 (ASRATING, line 32): it is dry 0.01 ft below",
        "***** WARNING - the discharge 90 falls (ASRATING, line 34): 200 is taken"}},
      {"ratingEmpty",
       with("ASRATING", {"ASRATING  1Bywash   0", "ENDTABLE"}),
       {"***** ERROR - a rating has fewer than two rows (ASRATING, line 31): it discharges nothing"}},
      {"noProfile",
       surface({}),
       {"***** ERROR - auxiliary spillway 1 has no run with its ASSPRFL profile behind the main run (ASSURFACE, line "
        "31): the spillway discharges nothing"}},
      {"startBelow",
       with("STROUTE", {"STROUTE   90        100       FEET"}),
       {"***** WARNING - the start 90 is below the storage table (STROUTE, line 7): 100 is taken"}},
      {"noStart",
       with("STROUTE", {"STROUTE             100       FEET"}),
       {"***** WARNING - start of the routing is not given (STROUTE, line 7): 118 is taken"}},
      {"noSoil",
       with("OPTION", {"OPTION    COEFF     EARTH     "}),
       {"***** ERROR - a breach is asked for, and the record of the soil is missing (HCMODEL): no breach is computed"}},
      {"unknownOption",
       with("OPTION", {"OPTION    HARD      MARBLE              NOBREACH"}),
       {"***** WARNING - the surface model \"HARD\" is not known (OPTION, line 2): SIMPLE is taken",
        "***** WARNING - the downstream surface \"MARBLE\" is not known (OPTION, line 2): EARTH is taken"}},
      {"strayLine",
       with("COLOUR", {"COLOUR    green"}),
       {"***** WARNING - the line is no record (line 36): it is passed over"}},
      {"twice",
       with("STROUTE", {"STROUTE   110       100       FEET", "STROUTE   118       100       FEET"}),
       {"***** WARNING - the record stands more than once (STROUTE, line 8): the last one counts"}},
      {"noEnd",
       without("ENDRUN"),
       {"***** WARNING - the run has no end (ENDRUN): the end of the file is taken for it"}},
      {"unknownModel",
       with("OPTION", {"OPTION    COEFF     EARTH     "})
           .with("HCMODEL", {"HCMODEL   3         120       2         500       0.01"}),
       {"***** ERROR - the headcut model \"3\" is neither 1 nor 2 (HCMODEL, line 36): no breach is computed"}},
      {"unknownModelWithoutABreach", with("HCMODEL", {"HCMODEL   3         120       2         500       0.01"}), {}},
      {"partOfAConduit",
       with("PSpDATA", {"PSpDATA   2.5  150  24                  0.013     104       101       SC"}),
       {"***** WARNING - number of conduits 2.5 is not whole (PSpDATA, line 24): 2 is taken"}},
      {"maintenanceBetweenTwoCodes",
       with("DWNSTREAM", {"DWNSTREAM 2.5       5.6       0.75      1.5       10        0.01"}),
       {"***** WARNING - maintenance code 1.5 is not whole (DWNSTREAM, line 16): 1 is taken"}},
      {"filletThatFillsTheConduit",
       with("PSpDATA", {"PSpDATA   1    150  2         3         0.013     104       101       SR"})
           .with("PSpCOEFFS", {"PSpCOEFFS 0.6       5                             3.1       60"}),
       {"***** WARNING - a fillet of 60 inches fills the conduit (PSpCOEFFS, line 25): 12 is taken"}},
      {"dischargesOfZero",
       with("STRUCTURE", {"STRUCTURE Test", "                    100       0         0         0",
                          "                    130       0         190       12.667", "ENDTABLE"})
           .without("PSpINLET")
           .without("PSpDATA")
           .without("PSpCOEFFS"),
       {}},
      {"tailwaterBeginsAbove",
       with("TAILWATER", {"TAILWATER", "          101       50", "          103       500", "ENDTABLE"}),
       {"***** WARNING - the first outflow 50 is above 0 (TAILWATER, line 27): its elevation counts below it"}},
      {"noDrawdownTime",
       with("OPTION", {"OPTION    COEFF     EARTH               DRAWDOWN  119       FEET"}),
       {"***** WARNING - drawdown time is not given (OPTION, line 2): 240 is taken"}},
      {"noIncrementOfAVariableStep",
       with("HYD", {"HYD       Flood               0         0V        ", "          0         0",
                    "          1         50", "          2         0", "ENDTABLE"}),
       {"***** WARNING - there is no time increment above 0 (HYD, line 3): a row stands every 0.01 h"}},
      {"template",
       with("TEMPLATE", {"TEMPLATE", "          1         2         3", "ENDTABLE"}),
       {"***** WARNING - a cross section by stations is not computed with (TEMPLATE, line 36): the section of "
        "UPSTREAM, "
        "DAMCREST and DWNSTREAM is taken"}},
  };
}

INSTANTIATE_TEST_SUITE_P(Cases, DamMessages, testing::ValuesIn(messageCases()),
                         [](const auto& tested) { return std::string(tested.param.name); });

// Loss and coefficient of a hood stand in two records each: where one of them is blank, the other counts.
TEST(DamInput, takesLossAndCoefficientOfAHoodFromEitherRecord) {
  DamText dam;
  dam.with("PSpINLET", {"PSpINLET                      118"});
  dam.with("PSpDATA", {"PSpDATA   1         24                  0.013                         HD"});
  dam.with("PSpHOOD", {"PSpHOOD   130                           101       0.7       0.9       S"});
  dam.with("PSpCOEFFS", {"PSpCOEFFS "});
  RunMessages messages;
  const std::optional<DamRun> run = buildRun(readDam(readControlRecords(dam.text()), messages), messages);
  ASSERT_TRUE(run);
  EXPECT_EQ(messages.lines(), Lines{});
  const auto& hood = std::get<HoodSpillway>(run->routing.outlets.principal);
  EXPECT_EQ(hood.conduits.entranceLoss, 0.9);
  EXPECT_EQ(hood.inlet.weirCoefficient, dimensionalWeirCoefficient(0.7));
}

TEST(DamInput, withoutAnOptionIsNotBreached) {
  DamText dam = breachText();
  dam.without("OPTION");
  const DamFiles files = runDam(dam.text());
  EXPECT_FALSE(files.breach);
  EXPECT_FALSE(files.headcut);
}

TEST(DamInput, tellsNoMoreThanSomeOfOneRecord) {
  Lines rows{"HYD       Flood     0.5       0         0V        "};
  for (int i = 0; i < 60; ++i) rows.push_back("          5         5");
  rows.push_back("          9         0");
  rows.push_back("ENDTABLE");
  const Lines messages = messagesOf(with("HYD", rows).text());
  ASSERT_EQ(messages.size(), 26U);
  EXPECT_EQ(messages.back(), "***** WARNING - 34 more findings (HYD): they are not listed");
}

TEST(DamInput, readsTheDownstreamFaceByAnOptionThatStandsBehindIt) {
  RunMessages messages;
  const std::string text =
      "DWNSTREAM 2.5       1.75      1.2       2.4       0.4\r\nOPTION    COEFF     RIPRAP\r\nENDRUN\r\n";
  const DamModel dam = readDam(readControlRecords(text), messages);
  EXPECT_EQ(dam.downstream.d50, 1.2);
  EXPECT_EQ(dam.downstream.porosity, 0.4);
}

TEST(DamInput, readsTheHeadcutModelAsANumber) {
  struct Case {
    const char* record;
    int model;
  };
  const Case cases[] = {{"HCMODEL   1.0                 8         0         0.01      16", 1},
                        {"HCMODEL    1                  8", 1},
                        {"HCMODEL   2", 2},
                        {"HCMODEL", 2},
                        {"HCMODEL             120", 0},
                        {"HCMODEL   12", 0}};
  for (const Case& tested : cases) {
    RunMessages messages;
    const DamModel dam = readDam(readControlRecords(with("HCMODEL", {tested.record}).text()), messages);
    EXPECT_EQ(dam.headcut->model, tested.model) << tested.record;
  }
}

TEST(DamInput, takesTheVolumeOfTheFirstRowForTheBeginningOfTheAreas) {
  RunMessages messages;
  const DamText text = with("STRUCTURE", {"STRUCTURE Test", "                    100                 3         0",
                                          "                    130                           14", "ENDTABLE"});
  const std::optional<DamRun> run = buildRun(readDam(readControlRecords(text.text()), messages), messages);
  ASSERT_TRUE(run);
  EXPECT_EQ(run->reservoir.basis, StorageBasis::areas);
  EXPECT_NEAR(run->routing.storage.volume(130) / 43560, 3 + 0.5 * 14 * 30, 1e-9);
}

TEST(DamInput, startsAtAnOutflow) {
  RunMessages messages;
  const DamModel dam =
      readDam(readControlRecords(with("STROUTE", {"STROUTE   30        100       CFS"}).text()), messages);
  const std::optional<DamRun> run = buildRun(dam, messages);
  ASSERT_TRUE(run);
  const RoutingResult result = routeDam(run->routing);
  EXPECT_NEAR(result.rows.front().flows.total(), 30, 1e-3);
}

}  // namespace
}  // namespace kestra
