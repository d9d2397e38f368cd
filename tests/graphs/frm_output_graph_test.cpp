#include "graphs/frm_output_graph.h"

#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "graph_desk.h"
#include "graphs/series_csv.h"

namespace kestra {
namespace {

struct TheGraphScreen : testing::Test, GraphDesk {};

TEST_F(TheGraphScreen, opensOnTheHydrographsOfARun) {
  open();
  EXPECT_EQ(front(), "frmOutputGraph");
  EXPECT_EQ(screen.title(), "Graphics [ /p/dam.KSC ]");
  EXPECT_EQ(screen.GraphTab.index(), 0);
  EXPECT_EQ(texts(0).front(), "Hydrographs");
  EXPECT_TRUE(state.windowOpen[3]);
  EXPECT_EQ(screen.width(), 10320);
  EXPECT_EQ(screen.height(), 6600);
  for (int n = 0; n < kGraphs; ++n) EXPECT_EQ(screen.Pic1(n).visible(), n == 0);
  EXPECT_TRUE(screen.tools.BandArmed);
  EXPECT_TRUE(screen.mnuZoomIn.checked());
}

TEST_F(TheGraphScreen, opensOnTheSpillwayForASpillwayAnalysis) {
  screen.OpenFile("/p/dam.KSC", true);
  EXPECT_EQ(screen.GraphTab.index(), 12);
  EXPECT_EQ(texts(12), Lines{"Spillway Geology Graph Not Available"});
}

TEST_F(TheGraphScreen, showsTheOpenControlFileWhenItIsOpenedWithoutOne) {
  state.currentFile = "/p/dam.KSC";
  host.show(screen);
  EXPECT_EQ(screen.title(), "Graphics [ /p/dam.KSC ]");
  EXPECT_EQ(texts(0).front(), "Hydrographs");
}

TEST_F(TheGraphScreen, showsNothingWithoutAFile) {
  host.show(screen);
  EXPECT_EQ(screen.title(), "Graphics [ Untitled ]");
  EXPECT_EQ(texts(0), Lines{"Hydrograph Graph Not Available"});
  EXPECT_TRUE(host.unload(screen));
  EXPECT_FALSE(state.windowOpen[3]);
}

TEST_F(TheGraphScreen, namesItsTabsAfterItsGraphs) {
  const auto& captions = screen.GraphTab.captions();
  ASSERT_EQ(captions.size(), 22U);
  EXPECT_EQ(captions[0], "Hydrographs");
  EXPECT_EQ(captions[5], "Dam Cross-Section");
  EXPECT_EQ(captions[21], "Tailwater Rating");
}

TEST_F(TheGraphScreen, drawsAGraphInAFixedOrder) {
  draw(3);
  const Lines calls = callsOf(screen.Pic1(3));
  std::vector<std::size_t> scales;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    if (calls[i].starts_with("Scale")) scales.push_back(i);
  }
  EXPECT_EQ(calls.front(), "Visible 1");
  ASSERT_EQ(scales.size(), 5U);
  EXPECT_EQ(calls[scales[0]], "Scale 0 0 100 100");
  EXPECT_EQ(calls[scales[1]], "Scale -60 1023.78947368421 275 1026.72");
  EXPECT_EQ(calls[scales[2]], calls[scales[1]]);
  EXPECT_EQ(calls[scales[3]], "Scale 0 0 100 200");
  EXPECT_EQ(calls.back(), calls[scales[1]]);
  EXPECT_EQ(screen.Pic1(3).state().scale[0], -60);
}

TEST_F(TheGraphScreen, hasTheUsersColoursAtItsNextDrawing) {
  open();
  lines.ColorList[0] = 77;
  lines.ColorList[2] = 99;
  screen.ReDrawGraph(0);
  EXPECT_EQ(screen.Pic1(0).log().start().backColor, 77U);
  const Lines colors = callsOf(screen.Pic1(0), "ForeColor");
  EXPECT_NE(std::find(colors.begin(), colors.end(), "ForeColor 99"), colors.end());
}

TEST_F(TheGraphScreen, showsTheDischargeOverTheDamByTheMenuAndTheHeadWhenDrawnAgain) {
  open();
  screen.mnuGraph(1).click();
  EXPECT_EQ(seriesText(0), "Head: 0,-1024 1.5,-984 4,-1024");
  screen.ReDrawGraph(1);
  EXPECT_EQ(seriesText(0), "Head: 0,-8 1.5,0.5 4,-2");
}

TEST_F(TheGraphScreen, showsOneCanvasAtATime) {
  open();
  screen.mnuGraph(6).click();
  EXPECT_EQ(screen.GraphTab.index(), 6);
  EXPECT_FALSE(screen.Pic1(0).visible());
  EXPECT_TRUE(screen.Pic1(6).visible());
  screen.GraphTab.userSelect(17);
  EXPECT_TRUE(screen.Pic1(17).visible());
  EXPECT_TRUE(screen.Pic1A(17).visible());
  EXPECT_EQ(textsOn(screen.Pic1A(17)), Lines{"Headcut Advance Graph Not Available"});
  EXPECT_EQ(screen.Pic1(17).state().scale[3], 50);
  EXPECT_THROW(screen.mnuGraph_Click(22), RuntimeFault);
  EXPECT_THROW(screen.ReDrawGraph(-1), RuntimeFault);
}

TEST_F(TheGraphScreen, turnsItsPagesByKeysRoundAllGraphs) {
  open();
  screen.Pic1(0).takeFocus();
  screen.Pic1(0).userKey({0, "PageDown"});
  EXPECT_EQ(screen.shownGraph(), 1);
  EXPECT_EQ(host.focus(), &screen.Pic1(1));
  screen.Pic1(1).userKey({0, "PageUp"});
  screen.Pic1(0).userKey({0, "PageUp"});
  EXPECT_EQ(screen.shownGraph(), 21);
  screen.Pic1(21).userKey({0, "Left"});
  EXPECT_EQ(screen.shownGraph(), 21);
  screen.Pic1(21).userKey({0, "PageDown"});
  EXPECT_EQ(screen.shownGraph(), 0);
}

TEST_F(TheGraphScreen, keepsTheWindowOfEachGraph) {
  open();
  screen.savedWindow(0) = {1, 2, 0, 500};
  screen.mnuGraph(3).click();
  screen.mnuGraph(0).click();
  EXPECT_EQ(screen.savedWindow(0), (View{1, 2, 0, 500}));
  screen.mnuFrame.click();
  EXPECT_EQ(screen.savedWindow(0), (View{0, 4, 0, 1000}));
}

TEST_F(TheGraphScreen, keepsAPannedWindowThroughAVisitToAnotherGraph) {
  open();
  View& panned = screen.savedWindow(0);
  panned = {0.3, 4.3, -7, 993};
  screen.ReDrawGraph(0);
  EXPECT_EQ(panned, (View{0.3, 4.3, -7, 993}));
  screen.ReDrawGraph(3);
  screen.ReDrawGraph(0);
  EXPECT_EQ(panned, (View{0.3, 4.3, -7, 993}));
}

TEST_F(TheGraphScreen, forgetsTheWindowsOfTheRunBefore) {
  open();
  screen.savedWindow(0) = {1, 2, 0, 500};
  open();
  EXPECT_EQ(screen.savedWindow(0), (View{0, 4, 0, 1000}));
}

TEST_F(TheGraphScreen, isDrawnAnewAfterARun) {
  open();
  run.routing[1][1] = 1900;
  putRun();
  screen.savedWindow(0) = {};
  screen.GetGraphToOpen();
  EXPECT_EQ(screen.savedWindow(0).Ymax, 2000);
}

TEST_F(TheGraphScreen, tellsWhenThereIsNoScale) {
  open();
  const Steps steps = screen.Scaling({0, 1e308, 0, 1});
  EXPECT_GT(steps.XStep, 0);
  EXPECT_EQ(screen.Scaling({-1.7e308, 1.7e308, 0, 1}).XStep, 0);
  EXPECT_EQ(takeBoxes(), Lines{"Warning: Scaling error, unable to draw graph."});
  screen.savedWindow(0) = {-1.7e308, 1.7e308, 0, 1};
  screen.ReDrawGraph(0);
  EXPECT_EQ(takeBoxes(), Lines{"Warning: Scaling error, unable to draw graph."});
  EXPECT_EQ(texts(0), Lines{"Hydrographs"});
}

TEST_F(TheGraphScreen, isDrawnAgainWhenItsSizeChanges) {
  open();
  screen.Pic1(0).Cls();
  screen.Form_Resize(15000, 9000);
  EXPECT_EQ(screen.width(), 15000);
  EXPECT_EQ(texts(0).front(), "Hydrographs");
}

TEST_F(TheGraphScreen, leadsToTheColoursAndBack) {
  open();
  mouse(0, MouseEvent::Type::doubleClick, 1, 1);
  EXPECT_EQ(front(), "frmUpdateColors");
  EXPECT_FALSE(screen.visible());
  screen.Pic1(0).Cls();
  graphs.updateColors.mnuExit.click();
  EXPECT_EQ(front(), "frmOutputGraph");
  EXPECT_EQ(texts(0).front(), "Hydrographs");
}

TEST_F(TheGraphScreen, closesByItsCommand) {
  open();
  screen.mnuExit.click();
  EXPECT_FALSE(screen.loaded());
}

TEST_F(TheGraphScreen, printsTheShownGraph) {
  open();
  screen.mnuPrint.click();
  EXPECT_EQ(printer.printed, "");
  PrintChoice two;
  two.copies = 2;
  dialogs.prints = {two};
  screen.mnuPrint.click();
  EXPECT_EQ(printer.printed, "form 2, 688x440, 1: Hydrographs 0 100 20, copies 2");
  EXPECT_EQ(takeBoxes(), Lines{});
}

TEST_F(TheGraphScreen, tellsWhenItCannotPrint) {
  const Lines box = {"Printer Error: Unable to print graph, check printer."};
  open();
  dialogs.prints = {PrintChoice(), PrintChoice(), PrintChoice(), PrintChoice()};
  printer.jammed = true;
  screen.mnuPrint.click();
  EXPECT_EQ(takeBoxes(), box);
  pictures.fails = true;
  screen.mnuPrint.click();
  EXPECT_EQ(takeBoxes(), box);
  graphs.context.pictures = nullptr;
  screen.mnuPrint.click();
  EXPECT_EQ(takeBoxes(), box);
  graphs.context.printer = nullptr;
  screen.mnuPrint.click();
  EXPECT_EQ(takeBoxes(), box);
}

TEST_F(TheGraphScreen, previewsItsPage) {
  draw(3);
  screen.mnuPrintPreview.click();
  EXPECT_EQ(front(), "frmGraphPP");
  EXPECT_EQ(graphs.preview.title(), "Dam Crest Profile Print Preview");
  EXPECT_EQ(callsOf(graphs.preview.GraphicsPicture), callsOf(screen.Pic1(3)));
  EXPECT_EQ(callsOf(graphs.preview.GraphicsPicture2), callsOf(screen.Pic1(3)));
  graphs.preview.mnuExit.click();
  EXPECT_EQ(front(), "frmOutputGraph");
}

TEST_F(TheGraphScreen, copiesItsPictureToTheClipboard) {
  clipboard.setText("text");
  draw(3);
  screen.mnuCopyToClipboard.click();
  EXPECT_TRUE(clipboard.picture().starts_with("form 3, 688x440, 1: Dam Crest Profile"));
  EXPECT_EQ(clipboard.text(), "");
  pictures.fails = true;
  screen.mnuCopyToClipboard.click();
  EXPECT_EQ(takeBoxes(), Lines{"Error Message: no colours left"});
}

TEST_F(TheGraphScreen, savesItsPictureAsABitmap) {
  draw(3);
  dialogs.files = {std::nullopt, std::vector<std::string>{""}, std::vector<std::string>{"/p/a.bmp"}};
  screen.mnuSaveAs.click();
  screen.mnuSaveAs.click();
  EXPECT_EQ(files.content("/p/a.bmp"), std::nullopt);
  screen.mnuSaveAs.click();
  EXPECT_TRUE(files.content("/p/a.bmp")->starts_with("form 3, 688x440, 1: Dam Crest Profile"));
  EXPECT_EQ(dialogs.shownFiles[0].filter, "All Files (*.*)|*.*|Bitmap Files (*.bmp)|*.bmp");
  EXPECT_EQ(dialogs.shownFiles[0].filterIndex, 2);
}

TEST_F(TheGraphScreen, takesThePictureOfTheFirstCanvasForGraphFourteen) {
  open();
  screen.mnuGraph(14).click();
  dialogs.files = {std::vector<std::string>{"/p/a.bmp"}};
  screen.mnuSaveAs.click();
  EXPECT_TRUE(files.content("/p/a.bmp")->starts_with("form 3, 688x440, 1: Hydrographs"));
}

TEST_F(TheGraphScreen, leavesAnOldFileWhereAPictureCannotBeWritten) {
  open();
  files.put("/q/a.bmp", "old");
  files.setMode("/q/a.bmp", true, false);
  dialogs.files = {std::vector<std::string>{"/q/a.bmp"}, std::vector<std::string>{"/q/b.bmp"}};
  screen.mnuSaveAs.click();
  EXPECT_EQ(takeBoxes(), Lines{"Error Message: /q/a.bmp: The file is read-only"});
  EXPECT_EQ(files.content("/q/a.bmp"), "old");
  graphs.context.pictures = nullptr;
  screen.mnuSaveAs.click();
  EXPECT_EQ(takeBoxes(), Lines{"Error Message: This program was built without the picture renderer"});
}

TEST_F(TheGraphScreen, exportsTheDataOfAGraph) {
  draw(3);
  dialogs.files = {std::vector<std::string>{"/p/a.csv"}};
  screen.mnuExportData.click();
  EXPECT_EQ(files.content("/p/a.csv"), "Station (ft),Crest: Elevation (ft)\r\n0,1026\r\n100,1024\r\n250,1025\r\n");
  draw(13);
  dialogs.files = {std::vector<std::string>{"/p/b.csv"}};
  screen.mnuExportData.click();
  EXPECT_EQ(takeBoxes(), Lines{"Error Message: Spillway Erosion Graph Not Available"});
  EXPECT_EQ(files.content("/p/b.csv"), std::nullopt);
}

TEST(SeriesAsColumns, shareTheColumnOfTheirXWhereItIsTheSame) {
  SeriesStore store;
  store.begin(0);
  for (const char* name : {"a", "b, \"c\"", "d"}) store.addSeries(name);
  for (const int series : {0, 1}) {
    store.add(series, 0, 0.1);
    store.add(series, 1e-9, -2);
  }
  store.add(2, 5, 6);
  EXPECT_EQ(seriesCsv(store, "Time", "Q"),
            "Time,a: Q,\"b, \"\"c\"\": Q\",Time,d: Q\r\n0,0.1,0.1,5,6\r\n1e-09,-2,-2,,\r\n");
}

}  // namespace
}  // namespace kestra
