#include <gtest/gtest.h>

#include "graph_desk.h"

namespace kestra {
namespace {

struct AGraph : testing::Test, GraphDesk {
  void expectNotice(int number, const std::string& notice) {
    draw(number);
    EXPECT_EQ(texts(number), Lines{notice}) << number;
    EXPECT_EQ(takeBoxes(), Lines{}) << number;
    EXPECT_EQ(screen.savedWindow(number), View()) << number;
  }
};

TEST_F(AGraph, hasItsSeriesFromTheFilesOfTheRun) {
  const std::pair<int, Lines> cases[] = {
      {0,
       {"Inflow: 0,10 1.5,990 4,100", "PS: 0,1 1.5,60 4,50", "AS1: 0,0 1.5,20 4,10", "AS2: 0,0 1.5,5 4,0",
        "AS3: 0,0 1.5,0 4,0", "Overtop: 0,0 1.5,40 4,0", "Total: 0,1 1.5,125 4,60"}},
      {1, {"Head: 0,-8 1.5,0.5 4,-2"}},
      {2, {"Reservoir: 0,1016 1.5,1024.5 4,1022", "Breach: 2,1020 3,1004", "Dam Crest: 0,1024 4,1024"}},
      {3, {"Crest: 0,1026 100,1024 250,1025"}},
      {4, {"Gross: 0,0 1.5,80.5", "Effective*t: 0,0 1.5,120"}},
      {5, {"Dam: 0,1000 72,1024 82,1024 142,1000 0,1000"}},
      {6, {"Given: 0.5,1000 3,1010 16,1026", "Computed: 0.5,1000 16,1026"}},
      {7, {"Given: 0,1000 20,1010", "Computed: 0,1000 150,1026"}},
      {8, {"PS: 0,1000 150,1020 180,1026"}},
      {9, {"Aux. 1: 0,1000 40,1020 300,1026", "Aux. 2: 0,1000 20,1020 90,1026"}},
      {10,
       {"PS: 0,1000 150,1020 180,1026", "AS 1: 0,1000 40,1020 300,1026", "AS 2: 0,1000 20,1020 90,1026",
        "Overtop: 0,1000 0,1020 700,1026", "Total: 0,1000 210,1020 1270,1026"}},
      {11, {"Discharge: 0,0 1.5,12.5", "Breach: 2,25 3,21"}},
      {18, {"Position: 1.5,120.5 2,90"}},
      {19, {"Width: 1.5,0 1.5,0 1.5,0 2,15.5 3,42.5"}},
      {20, {"Tailwater: 0,1000 1.5,1002 4,1001.5"}},
      {21, {"Tailwater: 0,1000 400,1003"}},
  };
  for (const auto& [number, series] : cases) {
    draw(number);
    EXPECT_EQ(allSeries(), series) << number;
    EXPECT_EQ(texts(number).front(), graphEntry(number).title);
    EXPECT_EQ(texts(number)[texts(number).size() - (number == 10 ? 2 : 1)], "FILE = dam.KSC,  PROJECT ID = Larkmoor");
  }
  EXPECT_EQ(takeBoxes(), Lines{});
}

TEST_F(AGraph, fitsItsData) {
  const std::pair<int, View> cases[] = {{0, {0, 4, 0, 1000}},      {1, {0, 4, 0, 0.6}},       {2, {0, 4, 1000, 1025}},
                                        {3, {0, 250, 1024, 1026}}, {5, {0, 160, 1000, 1025}}, {8, {0, 180, 1000, 1030}},
                                        {11, {0, 3, 0, 25}},       {18, {0, 2, 90, 125}}};
  for (const auto& [number, fitting] : cases) {
    draw(number);
    const View& saved = screen.savedWindow(number);
    EXPECT_NEAR(saved.Xmin, fitting.Xmin, 1e-9) << number;
    EXPECT_NEAR(saved.Xmax, fitting.Xmax, 1e-9) << number;
    EXPECT_NEAR(saved.Ymin, fitting.Ymin, 1e-9) << number;
    EXPECT_NEAR(saved.Ymax, fitting.Ymax, 1e-9) << number;
  }
}

TEST_F(AGraph, ofARiprapRunShowsItsOwnTable) {
  run.makeRiprap();
  putRun();
  draw(4);
  EXPECT_EQ(allSeries(), Lines{"Allowable (%): 0,0 1.5,65 4,20"});
  draw(11);
  EXPECT_EQ(allSeries(), Lines{"Discharge (cfs/ft): 0,0 1.5,8 4,2"});
  run.riprap.clear();
  putRun();
  expectNotice(4, "Overtopping Stress Graph Not Available");
  expectNotice(11, "Max Overtopping/Breach Discharge Graph Not Available");
}

TEST_F(AGraph, ofARiprapRunBeginsWhereItsRowsDo) {
  run.makeRiprap();
  const std::string rows = SampleRun::riprapRow(1.5, 8, 65) + SampleRun::riprapRow(4, 2, 20);
  for (const char* headings : {"", " a\n", " a\n (hr)  65\n\n -----\n"}) {
    run.riprap = "Flow on Riprapped Embankment Slope\n" + std::string(headings) + rows + "\n";
    putRun();
    draw(4);
    EXPECT_EQ(allSeries(), Lines{"Allowable (%): 1.5,65 4,20"}) << headings;
    draw(11);
    EXPECT_EQ(allSeries(), Lines{"Discharge (cfs/ft): 1.5,8 4,2"}) << headings;
  }
  run.riprap = "Flow on Riprapped Embankment Slope\n a\n b\n\n c\n d\n" + rows;
  putRun();
  expectNotice(4, "Overtopping Stress Graph Not Available");
}

TEST_F(AGraph, ofTheHeadTakesNoRowWithoutAnElevationForTheCrest) {
  run.crest = echoed({"CRESTPRFL"}) + echoed({"", "0", "1026"}) + echoed({"", "50"}) + echoed({"", "100", "1024"}) +
              " ENDTABLE\n";
  putRun();
  draw(1);
  EXPECT_EQ(seriesText(0), "Head: 0,-8 1.5,0.5 4,-2");
  run.crest = echoed({"CRESTPRFL"}) + echoed({"", "50"}) + " ENDTABLE\n";
  putRun();
  expectNotice(1, "Maximum Overtopping Head Graph Not Available");
}

TEST_F(AGraph, ofTheWaterSurfaceGoesOnThroughTheDrawdown) {
  run.makeDrawdown();
  (void)files.removeFile("/p/dam.BRE");
  run.crestLine.clear();
  files.put("/p/dam.OUT", run.out());
  draw(2);
  EXPECT_EQ(allSeries(), Lines{"Reservoir: 0,1016 1.5,1024.5 4,1022 10,1020 100,1010"});
  draw(20);
  EXPECT_EQ(allSeries(), Lines{"Tailwater: 0,1000 1.5,1002 4,1001.5"});
}

TEST_F(AGraph, ofTheWaterSurfaceFindsTheDrawdownBehindAnyHeadings) {
  (void)files.removeFile("/p/dam.BRE");
  run.crestLine.clear();
  const std::string start = "Drawdown computations began at 4 hr\n\n  Drawdown     Reservoir\n";
  const std::string rows = SampleRun::drawdownRow(10, 1020) + SampleRun::drawdownRow(100, 1010);
  for (const char* headings : {"", "\n", " time  (hr)\n\n (cfs) 2\n -----\n\n"}) {
    run.drawdown = start + headings + rows + "\n" + rows;
    putRun();
    (void)files.removeFile("/p/dam.BRE");
    draw(2);
    EXPECT_EQ(allSeries(), Lines{"Reservoir: 0,1016 1.5,1024.5 4,1022 10,1020 100,1010"}) << headings;
  }
  run.drawdown = start;
  putRun();
  (void)files.removeFile("/p/dam.BRE");
  draw(2);
  EXPECT_EQ(allSeries(), Lines{"Reservoir: 0,1016 1.5,1024.5 4,1022"});
}

TEST_F(AGraph, withASingleSpillwayHasOneSeriesForIt) {
  run.spillways = echoed({"ASRATING", "1Bywash", "0"});
  putRun();
  draw(9);
  EXPECT_EQ(allSeries(), Lines{"Aux. 1: 0,1000 40,1020 300,1026"});
  draw(10);
  EXPECT_EQ(screen.series().SeriesCount, 4);
  run.spillways = echoed({"ASSURFACE", "2West", "3"});
  putRun();
  draw(9);
  EXPECT_EQ(allSeries(), Lines{"Aux. 2: 0,1000 20,1020 90,1026"});
  run.spillways = echoed({"ASRATING", "Bywash", "0"});
  putRun();
  draw(9);
  EXPECT_EQ(allSeries(), Lines{"Aux. 1: 0,1000 40,1020 300,1026"});
  run.spillways.clear();
  putRun();
  expectNotice(9, "Auxiliary Spillway Ratings Graph Not Available");
}

TEST_F(AGraph, ofAllRatingsHasItsNote) {
  draw(10);
  EXPECT_EQ(texts(10).back(), "* Note: Plot assumes low tailwater.");
}

TEST_F(AGraph, showsItsNoticeWhereASectionIsMissing) {
  run.routing.clear();
  run.ratings.clear();
  run.listing.clear();
  run.crest.clear();
  run.tailwater.clear();
  run.stress.clear();
  run.echo = echoed({"KESTRA", "01/01/2009", "Larkmoor"});
  run.bre = " Breach\n hr\n";
  putRun();
  expectNotice(0, "Hydrograph Graph Not Available");
  for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 19, 20, 21}) {
    expectNotice(n, std::string(graphEntry(n).title) + " Graph Not Available");
  }
}

TEST_F(AGraph, showsItsNoticeWhereThereIsNoFile) {
  for (const char* path : {"/p/dam.OUT", "/p/dam.BRE", "/p/dam.HCT"}) (void)files.removeFile(path);
  expectNotice(0, "Hydrograph Graph Not Available");
  for (int n = 1; n < kGraphs; ++n) expectNotice(n, std::string(graphEntry(n).title) + " Graph Not Available");
}

TEST_F(AGraph, ofAnOutputWithoutItsAnchorNamesItselfInTheNotice) {
  files.put("/p/dam.OUT", "nothing\n" + run.crest);
  expectNotice(0, "Hydrograph Graph Not Available");
  expectNotice(1, "Maximum Overtopping Head Graph Not Available");
}

TEST_F(AGraph, ofTheHeadcutTellsWhetherThereIsNone) {
  files.put("/p/dam.HCT", " Headcut\n hr\n");
  expectNotice(18, "No Headcut Formed");
  (void)files.removeFile("/p/dam.HCT");
  expectNotice(18, "Headcut Position Graph Not Available");
}

TEST_F(AGraph, ofTheDamTellsWhenItsFileCannotBeRead) {
  files.setMode("/p/dam.OUT", false, false);
  draw(5);
  EXPECT_EQ(texts(5), Lines{"Dam Graph Not Available"});
  EXPECT_EQ(takeBoxes(), Lines{"File Error: /p/dam.OUT: Permission denied"});
  (void)files.removeFile("/p/dam.OUT");
  EXPECT_TRUE(files.makeDirectory("/p/dam.OUT"));
  draw(5);
  EXPECT_EQ(takeBoxes(), Lines{"File Error: /p/dam.OUT: Is a directory"});
  draw(0);
  EXPECT_EQ(texts(0), Lines{"Hydrograph Graph Not Available"});
  EXPECT_EQ(takeBoxes(), Lines{});
}

TEST_F(AGraph, ofTheDamFollowsATemplateWhereThereIsOne) {
  run.echo += echoed({"TEMPLATE"}) + echoed({"", "0", "1000"}) + echoed({"", "50", "1020", "         X"}) +
              echoed({"", "120", "1000"}) + " ENDTABLE\n";
  putRun();
  draw(5);
  EXPECT_EQ(allSeries(), Lines{"Dam: 0,1000 50,1020 120,1000 0,1000"});
}

TEST_F(AGraph, ofOneRowIsTinyCircles) {
  run.routing.resize(1);
  putRun();
  draw(0);
  EXPECT_EQ(callsOf(screen.Pic1(0), "Circle").size(), 7U);
  EXPECT_EQ(screen.series()(0).PointCount(), 1);
}

TEST_F(AGraph, readsTwentyThousandRows) {
  const std::vector<double> row = run.routing[1];
  run.routing.assign(20001, row);
  run.routing.back()[1] = 99999;
  putRun();
  draw(0);
  EXPECT_EQ(screen.series()(0).PointCount(), 20000);
  EXPECT_EQ(screen.savedWindow(0).Ymax, 1000);
}

TEST_F(AGraph, takesWhatIsNoNumberAsZero) {
  std::string text = run.out();
  const std::size_t at = text.find("       990");
  text.replace(at, 10, "**********");
  files.put("/p/dam.OUT", text);
  draw(0);
  EXPECT_EQ(seriesText(0), "Inflow: 0,10 1.5,0 4,100");
  text.replace(at, 10, "       NaN");
  files.put("/p/dam.OUT", text);
  draw(0);
  EXPECT_EQ(seriesText(0), "Inflow: 0,10 1.5,0 4,100");
  text.replace(at, 10, "     1e999");
  files.put("/p/dam.OUT", text);
  draw(0);
  EXPECT_EQ(seriesText(0), "Inflow: 0,10 1.5,0 4,100");
}

TEST_F(AGraph, isDrawnAlikeWithOtherLineEnds) {
  std::string text = run.out();
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2) text.insert(at, "\r");
  draw(0);
  const Lines before = allSeries();
  files.put("/p/dam.OUT", text);
  draw(0);
  EXPECT_EQ(allSeries(), before);
}

TEST_F(AGraph, comesThroughAFileThatIsCutAnywhere) {
  const std::string text = run.out();
  for (std::size_t length = 0; length < text.size(); length += 37) {
    files.put("/p/dam.OUT", text.substr(0, length));
    open();
    for (int n = 0; n < kGraphs; ++n) {
      screen.ReDrawGraph(n);
      EXPECT_FALSE(texts(n).empty());
    }
  }
  EXPECT_EQ(takeBoxes(), Lines{});
}

// A run that is still being written, or begun anew: behind each look at a file stands another state of it.
struct ChangingFiles : MemoryFileSystem {
  Result<std::string> readStart(const std::string& path, std::uint64_t most) override {
    Result<std::string> now = MemoryFileSystem::readStart(path, most);
    if (now) put(path, now.value().substr(0, now.value().size() * 9 / 10));
    return now;
  }
};

TEST_F(AGraph, showsOneStateOfAFileThatChangesWhileItIsRead) {
  ChangingFiles changing;
  changing.put("/p/dam.OUT", run.out());
  changing.put("/p/dam.BRE", run.bre);
  changing.put("/p/dam.HCT", run.hct);
  const RunFiles seen(changing, "/p/dam.KSC");
  SeriesStore series;
  const auto readsFrom = [&](int number) {
    View extents;
    series.begin(0);
    const GraphEntry& entry = graphEntry(number);
    return entry.read({seen, entry.column, series, extents}).outcome;
  };
  EXPECT_EQ(readsFrom(11), Reading::Outcome::drawn);
  EXPECT_EQ(series(0).PlotY, (std::vector<float>{0, 12.5}));
  EXPECT_EQ(readsFrom(1), Reading::Outcome::drawn);
  EXPECT_EQ(series(0).PlotY, (std::vector<float>{-8, 0.5, -2}));
  for (int i = 0; i < 60; ++i) {
    for (int n = 0; n < kGraphs; ++n) {
      if (graphEntry(n).read == nullptr) continue;
      EXPECT_NE(readsFrom(n), Reading::Outcome::fileError) << n;
    }
  }
  EXPECT_EQ(readsFrom(0), Reading::Outcome::missing);
}

TEST_F(AGraph, passesOverACommentThatSpeaksOfItsTable) {
  run.echo += " *         Stress on Vegetated Embankment Slope\n";
  putRun();
  draw(4);
  EXPECT_EQ(seriesText(0), "Gross: 0,0 1.5,80.5");
}

}  // namespace
}  // namespace kestra
