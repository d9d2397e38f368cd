#pragma once

#include "controls/table.h"
#include "screens/edit_menu.h"
#include "screens/input_screen.h"
#include "screens/table_editor.h"

namespace kestra {

// The tailwater rating: tailwater elevation (ft) by reservoir outflow (cfs), up to 50 points. The table has two columns
// more than are used; keys are refused there.
class frmPSRatingTable : public InputScreen {
 public:
  explicit frmPSRatingTable(InputContext& context);

  Button cmdPlot{*this, "cmdPlot", "P&lot"};

  Table grdTable{*this, "grdTable", {51, 5, 1, 1}};
  EditMenu edit{*this, context_.base.ports, PointDirection::downRows, [this]() -> Table& { return grdTable; }};

  void setRowNum();     // point numbers before the rows
  void setColWidth();   // 1750 twips and centred, 500 for the numbers
  void setRowHeight();  // 560 twips for the headings

 protected:
  void load() override;
  void goNext() override { moveTo("frmAuxSpillways"); }
  void goPrevious() override;

 private:
  void key(const Key& key);

  TableEditor editor_{grdTable, {PointDirection::downRows, 2, "0123456789.-", true}, context_.base.ports, cmdNext};
};

}  // namespace kestra
