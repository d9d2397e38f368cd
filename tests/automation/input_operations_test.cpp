#include <gtest/gtest.h>

#include "automation/driver_desk.h"

// The operations of the input screens that are no click of a command, as scripts call them.
namespace kestra {
namespace {

const std::string kDone = "{'ok':true,'value':null}";

struct InputOperations : testing::Test, DriverDesk {
  std::string call(const std::string& name, const std::string& arguments = "") {
    return tell("{'do':'call','name':'" + name + "','args':[" + arguments + "]}");
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
