#include <gtest/gtest.h>

#include <tuple>

#include "automation/driver_desk.h"

// The operations of the input screens that are no click of a command, as scripts call them.
namespace kestra {
namespace {

const std::string kDone = "{'ok':true,'value':null}";

struct InputOperations : testing::Test, DriverDesk {
  std::string call(const std::string& name, const std::string& arguments = "") {
    return tell("{'do':'call','name':'" + name + "','args':[" + arguments + "]}");
  }
  void callWithFile(const std::string& name, const std::string& path) {
    const std::string answer =
        tell("{'do':'call','name':'" + name + "','args':[],'answers':[{'file':'" + path + "'}]}");
    EXPECT_TRUE(answer.starts_with("{'ok':true,'value':null,'dialogs':[")) << answer;
  }
  void setColumn(const std::string& screen, const std::string& table, int column,
                 const std::vector<std::string>& texts) {
    std::string values;
    for (const std::string& text : texts) values += (values.empty() ? "['" : ",['") + text + "']";
    tell("{'do':'setcells','screen':'" + screen + "','control':'" + table +
         "','row':1,'column':" + std::to_string(column) + ",'values':[" + values + "]}");
  }
  std::string column(const std::string& screen, const std::string& table, int row, int column, int rows) {
    return tell("{'do':'cells','screen':'" + screen + "','control':'" + table + "','row':" + std::to_string(row) +
                ",'column':" + std::to_string(column) + ",'rows':" + std::to_string(rows) + ",'columns':1}");
  }
};

TEST_F(InputOperations, blankTheTablesThatHaveFiles) {
  for (const std::string screen : {"frmStructureTable", "frmHydrographData"}) {
    tell("{'do':'setcells','screen':'" + screen + "','control':'grdTable','row':1,'column':1,'values':[['5'],['6']]}");
    EXPECT_EQ(column(screen, "grdTable", 1, 1, 2), "{'ok':true,'value':[['5'],['6']]}");
    EXPECT_EQ(call(screen + ".clearTable"), kDone);
    EXPECT_EQ(column(screen, "grdTable", 1, 1, 2), "{'ok':true,'value':[[''],['']]}");
    tell("{'do':'click','screen':'" + screen + "','control':'mnuUndo'}");
    EXPECT_EQ(column(screen, "grdTable", 1, 1, 2), "{'ok':true,'value':[['5'],['6']]}");
  }
}

TEST_F(InputOperations, setTablesUpAnew) {
  app.host.load(app.shell.input.damSurface);
  app.shell.input.damSurface.grdTable.setCell(0, 2, "x");
  app.shell.input.damSurface.grdTable.setRowHeight(1, 1);
  EXPECT_EQ(call("frmDamSurface.setColNum") + call("frmDamSurface.setRowHeight"), kDone + kDone);
  EXPECT_EQ(app.shell.input.damSurface.grdTable.cell(0, 2), "2");
  EXPECT_EQ(app.shell.input.damSurface.grdTable.rowHeight(1), 300);
  struct Case {
    std::string screen;
    Table& table;
  };
  for (const auto& [screen, table] : {Case{"frmStructureTable", app.shell.input.structureTable.grdTable},
                                      Case{"frmPSRatingTable", app.shell.input.psRatingTable.grdTable}}) {
    app.host.load(table.screen());
    table.setCell(2, 0, "x");
    table.setColumnWidth(1, 1);
    table.setRowHeight(0, 1);
    for (const char* helper : {".setRowNum", ".setColWidth", ".setRowHeight"}) EXPECT_EQ(call(screen + helper), kDone);
    EXPECT_EQ(column(screen, "grdTable", 1, 0, 3), "{'ok':true,'value':[['1'],['2'],['3']]}");
    EXPECT_EQ(table.columnWidth(1), 1750);
    EXPECT_EQ(table.rowHeight(0), 560);
  }
}

TEST_F(InputOperations, tellWhetherTheStructureTableHasDischarges) {
  EXPECT_EQ(call("hasStructureDischarge"), "{'ok':true,'value':false}");
  for (const auto& [text, has] : {std::pair{"  ", "false"}, std::pair{"7", "true"}}) {
    tell(std::string("{'do':'setcells','screen':'frmStructureTable','control':'grdTable','row':25,'column':2,") +
         "'values':[['" + text + "']]}");
    EXPECT_EQ(call("hasStructureDischarge"), std::string("{'ok':true,'value':") + has + "}");
  }
}

TEST_F(InputOperations, numberConvertAndResampleTheHydrograph) {
  const std::string data = "frmHydrographData";
  EXPECT_EQ(call(data + ".setRowNum", "0.5"), kDone);
  EXPECT_EQ(column(data, "grdTable", 1, 0, 2), "{'ok':true,'value':[['0         '],['0.5       ']]}");
  setColumn(data, "grdTable", 1, {"0", "10"});
  EXPECT_EQ(call(data + ".retimeHydrograph", "1,0.5"), kDone);
  EXPECT_EQ(column(data, "grdTable", 1, 1, 4), "{'ok':true,'value':[['0'],['5'],['10'],['']]}");
  EXPECT_EQ(call(data + ".convertHydrograph", "0.5,1"), kDone);
  EXPECT_EQ(call(data + ".loadTiQiArrays"), "{'ok':true,'value':{'t':[0.0,0.5,1.0],'q':[0.0,5.0,10.0],'n':3}}");
  EXPECT_EQ(call(data + ".convertHydrograph", "1,2"), kDone);
  EXPECT_EQ(column(data, "grdTable", 1, 1, 3), "{'ok':true,'value':[['0'],['10'],['']]}");
  EXPECT_EQ(call(data + ".convertHydrograph", "1,3"), "{'ok':false,'error':'convertHydrograph: mode must be 1 or 2'}");
}

TEST_F(InputOperations, writeReadAndParseAHydrograph) {
  const std::string data = "frmHydrographData";
  memory.putDirectory("/p");
  tell("{'do':'set','screen':'frmHydrographData','control':'txtConst','value':'0.25'}");
  setColumn(data, "grdTable", 1, {"4", "6"});
  EXPECT_EQ(call(data + ".SaveTable", "'/p/a.THY'"), kDone);
  EXPECT_EQ(memory.content("/p/a.THY"),
            "HYD\r\n                    0.25\r\n                    4         6\r\nENDTABLE\r\n");
  EXPECT_EQ(call(data + ".clearTable"), kDone);
  EXPECT_EQ(call(data + ".LoadHydrographForms", "'/p/a.THY'"), kDone);
  EXPECT_EQ(column(data, "grdTable", 1, 1, 3), "{'ok':true,'value':[['4'],['6'],['']]}");
  EXPECT_EQ(call("ParseHydrographText", "'HYD\\n          0         5\\n          1.5       7\\n'"),
            "{'ok':true,'value':{'times':[0.0,1.5],'flows':[5.0,7.0],'count':2}}");
}

TEST_F(InputOperations, nameTheHydrographThatWasChosen) {
  memory.putDirectory("/p");
  memory.put("/p/a.txt", "INPUT HYDROGRAPH:\nA\n                    1\nINPUT HYDROGRAPH:\nB\n                    2\n");
  EXPECT_EQ(tell("{'do':'variable','name':'hydrographSelected'}"), "{'ok':true,'value':0}");
  tell(
      "{'do':'click','screen':'frmHydrographData','control':'mnuImportQT40','answers':[{'file':'/p/a.txt'},{'modal':["
      "{'do':'set','screen':'frmHydrographSelect','control':'List1','value':{'index':1}},"
      "{'do':'click','screen':'frmHydrographSelect','control':'cmdOK'}]}]}");
  EXPECT_EQ(tell("{'do':'variable','name':'hydrographSelected'}"), "{'ok':true,'value':1}");
  EXPECT_EQ(column("frmHydrographData", "grdTable", 1, 1, 1), "{'ok':true,'value':[['2']]}");
}

TEST_F(InputOperations, exchangeTheStructureTableInFiles) {
  const std::string table = "frmStructureTable";
  memory.putDirectory("/p");
  setColumn(table, "grdTable", 1, {"5", "6"});
  EXPECT_EQ(call(table + ".saveStructureTable", "'/p/a.STR'"), kDone);
  const std::string saved = "STRUCTURE\r\n                    5\r\n                    6\r\nENDTABLE\r\n";
  EXPECT_EQ(memory.content("/p/a.STR"), saved);
  callWithFile(table + ".mnuSave_Click", "/p/b.STR");
  EXPECT_EQ(memory.content("/p/b.STR"), saved);
  callWithFile(table + ".mnuExport_Click", "/p/c.txt");
  EXPECT_EQ(memory.content("/p/c.txt"), "5\t\t\t\r\n6\t\t\t\r\n");
  memory.put("/p/d.OUT", "RATING TABLE NUMBER  2\n1\n2\n3\n     9\n*********************\n");
  for (const auto& [command, path, first] :
       {std::tuple{".mnuImportTorve_Click", "/p/d.OUT", "9"}, std::tuple{".mnuOpen_Click", "/p/b.STR", "5"},
        std::tuple{".mnuImport_Click", "/p/c.txt", "5"}}) {
    call(table + ".clearTable");
    callWithFile(table + command, path);
    EXPECT_EQ(column(table, "grdTable", 1, 1, 1), std::string("{'ok':true,'value':[['") + first + "']]}") << command;
  }
}

TEST_F(InputOperations, layTheConduitOutForItsType) {
  EXPECT_EQ(call("frmPSConduit.Initialize", "5"), kDone);
  EXPECT_EQ(tell("{'do':'variable','name':'frmPSConduit.Caption'}"),
            "{'ok':true,'value':'Principal Spillway: Hood Inlet'}");
}

TEST_F(InputOperations, storeAndShowMaterials) {
  const std::string profile = "frmAuxSpillwayProfile";
  frmAuxSpillwayProfile& screen = app.shell.input.auxSpillwayProfile;
  for (const std::string helper : {"setTableValues", "setColNum", "setColWidth"}) {
    EXPECT_EQ(call(profile + "." + helper), kDone) << helper;
  }
  EXPECT_EQ(column(profile, "grdProfile", 0, 7, 1), "{'ok':true,'value':[['7']]}");
  EXPECT_EQ(screen.grdProfile.columnWidth(1), 1000);
  screen.txtDescript.setText("clay");
  EXPECT_EQ(call(profile + ".storeMaterial", "1"), kDone);
  EXPECT_EQ(call(profile + ".clearMaterial"), kDone);
  EXPECT_EQ(screen.txtDescript.text(), "");
  EXPECT_EQ(call(profile + ".showMaterial", "1"), kDone);
  EXPECT_EQ(screen.txtDescript.text(), "clay");
  EXPECT_EQ(call("ClearAuxData"), kDone);
  EXPECT_EQ(screen.txtDescript.text(), "");
}

TEST_F(InputOperations, setTheRatingTablesUpAnew) {
  Table& table = app.shell.input.auxRatingTable.grdTable(2);
  app.host.load(app.shell.input.auxRatingTable);
  table.setCell(2, 0, "x");
  table.setColumnWidth(1, 1);
  table.setRowHeight(0, 1);
  for (const std::string helper : {"setRowNum", "setColWidth", "setRowHeight"}) {
    EXPECT_EQ(call("frmAuxRatingTable." + helper), kDone) << helper;
  }
  EXPECT_EQ(table.cell(2, 0), "2");
  EXPECT_EQ(table.columnWidth(1), 1750);
  EXPECT_EQ(table.rowHeight(0), 560);
}

TEST_F(InputOperations, tellTheHydrographScreenWhichHydrographIsMeant) {
  const std::string row = "            0\n 0          ";
  memory.putDirectory("/p");
  memory.put("/p/a.VHY", "31\n" + row + "5\n 1          6\nENDTABLE\n33\n" + row + "7\n 1          8\nENDTABLE\n");
  tell(
      "{'do':'click','screen':'frmHydrographData','control':'mnuImportTorve','answers':[{'file':'/p/a.VHY'},"
      "{'modal':[{'do':'call','name':'frmHydrographData.setHydrographCode','args':['3']}]}]}");
  EXPECT_EQ(column("frmHydrographData", "grdTable", 1, 1, 2), "{'ok':true,'value':[['7'],['8']]}");
}

}  // namespace
}  // namespace kestra
