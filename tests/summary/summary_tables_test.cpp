#include <gtest/gtest.h>

#include "base/runtime_fault.h"
#include "results/input_digest.h"
#include "support/summary_screens_desk.h"

namespace kestra {
namespace {

struct SummaryTables : testing::Test, SummaryScreensDesk {
  ~SummaryTables() override { history.clear(); }
};

using Texts = std::vector<std::string>;

TEST_F(SummaryTables, showARowForADamAndThreeForARun) {
  putSamples();
  open();
  EXPECT_EQ(rowsOf(table.metaSum), (Texts{"Name|Type|Input", "dam|Single Instance|", "dam1_1|Max.|", "dam1_0|Min.|",
                                          "dam1_3|Mean|", "pond|Single Instance|"}));
  EXPECT_EQ(rowsOf(table.sumTable), (Texts{"Name|Stress", "dam|", "dam1_1|0.2", "dam1_0|0.1", "dam1_3|0.4", "pond|"}));
  EXPECT_EQ(rowsOf(table.damSum),
            (Texts{"Name|Peak", "dam|150.5", "dam1_1|150.5", "dam1_0|150.5", "dam1_3|150.5", "pond|80"}));
  EXPECT_EQ(table.metaSum.fontName(), "Courier New");
  EXPECT_TRUE(state.window(2));
}

TEST_F(SummaryTables, areTurnedByTheOrderOfTheSettings) {
  (void)settings.set("SummaryFields", {{"summaryOrder", "2"}});
  putEntries({"dam", "pond"});
  putDam("dam", "150.5");
  putDam("pond", "80");
  open();
  EXPECT_EQ(rowsOf(table.metaSum), (Texts{"Name|dam|pond", "Type|Single Instance|Single Instance", "Input||"}));
  EXPECT_EQ(rowsOf(table.damSum), (Texts{"Name|dam|pond", "Peak|150.5|80"}));
}

TEST_F(SummaryTables, areTheSameHoweverTheyWereMade) {
  putSamples();
  open();
  table.BuildTable();
  const Texts built = rowsOf(table.metaSum);
  table.ModifyTable(6);
  EXPECT_EQ(rowsOf(table.metaSum), built);
  for (const std::size_t entry : {0, 7}) EXPECT_THROW(table.ModifyTable(entry), RuntimeFault) << entry;
}

TEST_F(SummaryTables, showAllInstancesOfASelectedRunAndTheListAgain) {
  putSamples();
  open();
  select(table, 1);
  table.cmdViewAll.click();
  EXPECT_EQ(table.lbl_Header.caption(), "Summary Table");
  select(table, 2);
  table.cmdViewAll.click();
  EXPECT_EQ(table.lbl_Header.caption(), "Summary Table - One Run - All Instances");
  EXPECT_EQ(table.allInstancesCount(), 4U);
  EXPECT_EQ(rowsOf(table.sumTable), (Texts{"Name|Stress", "dam1_0|0.1", "dam1_1|0.2", "dam1_2|0.3", "dam1_3|0.4"}));
  table.cmdViewDam.click();
  EXPECT_EQ(table.lbl_Header.caption(), "Summary Table");
  EXPECT_EQ(table.metaSum.rows(), 6);
}

TEST_F(SummaryTables, leadToTheTextAndTheGraphsOfARow) {
  putSamples();
  open();
  select(table, 1);
  table.cmdText.click();
  table.mnuGraph.click();
  select(table, 2);
  table.cmdGraph.click();
  EXPECT_EQ(keeper.takeCalls(), (Texts{"text /p/dam.OUT", "graphs /p/dam.KSC", "spillway graphs /p/dam/dam1_1.V2D"}));
}

TEST_F(SummaryTables, deleteACondensedRowWithAllInstances) {
  putSamples();
  open();
  select(table, 3);
  boxes.answers = {BoxButton::no, BoxButton::yes};
  table.cmdDelete.click();
  EXPECT_EQ(takeBoxes(), Texts{"Delete All: Do you really want to delete the selected entry and all the corresponding "
                               "files?"});
  EXPECT_EQ(store.entries().size(), 6U);
  table.mnuDelete.click();
  EXPECT_EQ(keeper.takeCalls(),
            (Texts{"delete /p/dam/dam1_0", "delete /p/dam/dam1_1", "delete /p/dam/dam1_2", "delete /p/dam/dam1_3"}));
  EXPECT_EQ(files.content("/p/SUMMARY.IDE"), "1\r\n3\r\n1\r\n2\r\n\"dam\"\r\n\"pond\"\r\n");
  EXPECT_EQ(table.metaSum.rows(), 3);
}

TEST_F(SummaryTables, deleteAllEntriesAndForgetWhatWasShown) {
  putSamples();
  open();
  boxes.answers = {BoxButton::yes};
  table.mnuDeleteAll.click();
  EXPECT_EQ(takeBoxes(), Texts{"Delete All: Do you really want to delete all entries and corresponding output files?"});
  EXPECT_EQ(keeper.calls.back(), "forget");
  EXPECT_EQ(graphics.title(), "Summary Graphics [ No Data ]");
  EXPECT_TRUE(store.entries().empty());
  for (Command* command : {&table.cmdDelete, &table.cmdDelAll}) command->click();
  EXPECT_EQ(takeBoxes(), Texts{});
}

TEST_F(SummaryTables, neverDeleteOutsideOfTheProject) {
  files.put("/secret.DIS", "x\n");
  putEntries({"../secret", "."});
  open();
  boxes.answers = {BoxButton::yes};
  table.cmdDelAll.click();
  EXPECT_EQ(keeper.takeCalls(), Texts{"forget"});
  EXPECT_TRUE(files.content("/secret.DIS"));
}

TEST_F(SummaryTables, areExportedWithTabsWholeOrNotAtAll) {
  putSamples();
  open();
  choose("");
  table.mnuExport.click();
  EXPECT_EQ(takeBoxes(), Texts{"Select a File: No filename is provided"});
  files.put("/home/out.txt", "old");
  choose("/home/out.txt");
  table.mnuExport.click();
  EXPECT_EQ(takeBoxes(),
            Texts{"Export Summary File: The file /home/out.txt already exists. Do you want to replace it?"});
  EXPECT_EQ(files.content("/home/out.txt"), "old");
  choose("/home/out.txt");
  boxes.answers = {BoxButton::yes};
  table.mnuExport.click();
  EXPECT_EQ(files.content("/home/out.txt"),
            "Name\tType\tInput\tPeak\tStress\r\ndam\tSingle Instance\t\t150.5\t\r\n"
            "dam1_1\tMax.\t\t150.5\t0.2\r\ndam1_0\tMin.\t\t150.5\t0.1\r\n"
            "dam1_3\tMean\t\t150.5\t0.4\r\npond\tSingle Instance\t\t80\t\r\n");
}

TEST_F(SummaryTables, areExportedInTheFormThatTheNameTells) {
  putSamples();
  open();
  const std::pair<const char*, const char*> cases[] = {
      {"/p/a.csv", "Name,Type,Input"}, {"/p/a.json", "[\n  {\n    \"name\""}, {"/p/a.XLSX", "PK\3\4"}};
  for (const auto& [path, beginning] : cases) {
    choose(path);
    table.mnuExport.click();
    EXPECT_EQ(files.content(path).value_or("none").substr(0, std::string(beginning).size()), beginning) << path;
  }
  choose("/none/a.csv");
  table.mnuExport.click();
  EXPECT_EQ(takeBoxes(), Texts{"Error Message: /none: No such file or directory"});
}

TEST_F(SummaryTables, arePrintedWithTheirTitle) {
  putSamples();
  open();
  table.mnuPrint.click();
  EXPECT_EQ(printer.printed, "");
  dialogs.prints = {PrintChoice()};
  table.mnuPrint.click();
  EXPECT_EQ(printer.printed, "form 2, 1123x794, 1: Summary Table, page, copies 1");
  printer.jammed = true;
  dialogs.prints = {PrintChoice()};
  table.mnuPrint.click();
  EXPECT_EQ(takeBoxes(), Texts{"Printer Error: Unable to print the table, check printer."});
}

TEST_F(SummaryTables, sayWhereTheInputHasChangedSinceTheRun) {
  putEntries({"dam", "pond"});
  putDam("dam", "1");
  putDam("pond", "2");
  files.put("/p/dam.KSC", "KESTRA\n");
  files.put("/p/pond.KSC", "KESTRA\n");
  (void)keepInputDigest(files, "/p/dam.KSC");
  files.put("/p/dam.KSC", "KESTRA\nHYD\n");
  open();
  EXPECT_EQ(rowsOf(table.metaSum),
            (Texts{"Name|Type|Input", "dam|Single Instance|input changed since this run", "pond|Single Instance|"}));
  files.put("/p/dam.KSC", "KESTRA\n");
  keeper.edited = "/p/pond.KSC";
  screens.followInputs();
  EXPECT_EQ(rowsOf(table.metaSum),
            (Texts{"Name|Type|Input", "dam|Single Instance|", "pond|Single Instance|input changed since this run"}));
}

TEST_F(SummaryTables, ofASpillwayShowTheDigestsOnDisk) {
  putSamples();
  putInstance("dam/dam1_10", "0.9", "1");
  putInstance("dam/dam2_0", "0.8", "1");
  open();
  select(table, 1);
  table.cmdView(1).click();
  EXPECT_EQ(front(), "frmAuxSummaryTable");
  EXPECT_EQ(aux.title(), "Auxiliary Summary Table");
  EXPECT_EQ(aux.lbl_Header.caption(), "Summary Table - Aux. Spillway, One Run - All Instances");
  EXPECT_EQ(rowsOf(aux.metaSum), (Texts{"Name|Type|Input", "dam1_1|Max.|", "dam1_10|Min.|", "dam1_3|Mean|"}));
  aux.cmdViewAll.click();
  EXPECT_EQ(rowsOf(aux.sumTable),
            (Texts{"Name|Stress", "dam1_0|0.1", "dam1_1|0.2", "dam1_2|0.3", "dam1_3|0.4", "dam1_10|0.9"}));
  EXPECT_EQ(aux.find("damSum"), nullptr);
  choose("/p/out.csv");
  aux.mnuExport.click();
  EXPECT_EQ(files.content("/p/out.csv")->substr(0, 66),
            "Name,Type,Input,Stress\r\ndam1_0,Single Instance,,0.1\r\ndam1_1,Single");
  aux.cmdViewDam.click();
  EXPECT_EQ(front(), "frmSummaryTable");
}

TEST_F(SummaryTables, ofASpillwayFollowARunThatIsEntered) {
  putSamples();
  open();
  select(table, 1);
  table.cmdView(1).click();
  for (const int k : {0, 1, 2}) (void)files.removeFile("/p/dam/dam1_" + std::to_string(k) + ".DIS");
  putInstance("dam/dam1_3", "0.7", "1");
  screens.followRun(1);
  EXPECT_EQ(rowsOf(aux.sumTable), (Texts{"Name|Stress", "dam1_3|0.7"}));
  aux.mnuExit.click();
  screens.followRun(6);
  EXPECT_FALSE(aux.loaded());
  EXPECT_EQ(table.metaSum.cursor().row, 5);
}

TEST_F(SummaryTables, ofASpillwayAreFoundHoweverTheirDirectoryIsWritten) {
  putSamples();
  host.load(aux);
  for (const char* folder : {"/p/dam", "/p/dam/", "/p/x/../dam"}) {
    EXPECT_TRUE(aux.LoadAuxSumDISFiles(folder, 1)) << folder;
    EXPECT_EQ(aux.entries().size(), 4U) << folder;
  }
}

TEST_F(SummaryTables, ofBothKindsTakeUpTheOrderThatIsChosen) {
  putSamples();
  open();
  select(table, 1);
  table.cmdView(1).click();
  host.show(screens.fields);
  screens.fields.optColumn.userSelect();
  screens.fields.cmdOK.click();
  EXPECT_EQ(rowsOf(table.sumTable)[1], "Stress||0.2|0.1|0.4|");
  EXPECT_EQ(rowsOf(aux.sumTable), (Texts{"Name|dam1_1|dam1_0|dam1_3", "Stress|0.2|0.1|0.4"}));
}

}  // namespace
}  // namespace kestra
