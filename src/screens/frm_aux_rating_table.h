#pragma once

#include "controls/control_array.h"
#include "controls/table.h"
#include "screens/aux_store.h"
#include "screens/edit_menu.h"
#include "screens/input_screen.h"
#include "screens/table_editor.h"

namespace kestra {

// The ratings of the auxiliary spillways: discharge (cfs) by elevation (ft), up to 50 points each. The table of the
// spillway being edited is on show. The tables have two columns more than are used; keys are refused there.
class frmAuxRatingTable : public InputScreen {
 public:
  explicit frmAuxRatingTable(InputContext& context);

  Button cmdPlot{*this, "cmdPlot", "P&lot"};
  Frame Frame2{*this, "Frame2", "Rating Table"};
  ControlArray<Table> grdTable{*this, "grdTable", 0, kAuxSpillways, Table::Size{51, 5, 1, 1}};
  EditMenu edit{*this, context_.base.ports, PointDirection::downRows, [this]() -> Table& { return current(); }};

  void setRowNum();     // point numbers before the rows
  void setColWidth();   // 1750 twips and centred, 500 for the numbers
  void setRowHeight();  // 560 twips for the headings

 protected:
  void load() override;
  void activate() override { showCurrent(); }
  void goNext() override;
  void goPrevious() override;
  void undone() override;

 private:
  Table& current() { return grdTable(context_.base.state.curAuxSpillway); }
  void showCurrent();
  void toProfile();  // the first material of the spillway, on the first page
  void key(int spillway, const Key& key);
  TableEditor editorOf(int spillway) { return {grdTable(spillway), TableRules{}, context_.base.ports, cmdNext}; }

  std::array<TableEditor, kAuxSpillways> editors_ = {editorOf(0), editorOf(1), editorOf(2)};
};

}  // namespace kestra
