#include "screens/frm_ps_rating_table.h"

#include "screens/frm_ps_type.h"

namespace kestra {
namespace {

constexpr int kOutflow = 2;  // the last column that is entered

}  // namespace

frmPSRatingTable::frmPSRatingTable(InputContext& context)
    : InputScreen(context, "frmPSRatingTable", "Tailwater Rating Table", "html\\TailwaterRatingTable.htm") {
  grdTable.onFocus = [this] { editor_.cursorOnFirstCell(); };
  grdTable.onKeyPress = [this](const Key& pressed) { key(pressed); };
}

void frmPSRatingTable::load() {
  setRowNum();
  setColWidth();
  setRowHeight();
  grdTable.setCell(0, 1, "Tailwater Elevation, ft");
  grdTable.setCell(0, kOutflow, "Reservoir Outflow, cfs");
}

void frmPSRatingTable::setRowNum() {
  numberRows(grdTable);
}

void frmPSRatingTable::setColWidth() {
  grdTable.setColumnWidth(0, 500);
  for (int column = 1; column < grdTable.columns(); ++column) {
    grdTable.setColumnWidth(column, 1750);
    grdTable.setCentred(column, true);
  }
}

void frmPSRatingTable::setRowHeight() {
  grdTable.setRowHeight(0, 560);
}

void frmPSRatingTable::key(const Key& key) {
  const bool moves = !key.name.empty();
  if (moves || grdTable.cursor().column <= kOutflow) return editor_.key(key);
  context_.base.ports.beeper.beep();
}

void frmPSRatingTable::goPrevious() {
  if (hasStructureDischarge(context_)) return moveTo("frmHydrographData");
  moveTo(context_.screens.psType->optNone.selected() ? "frmPSType" : "frmPSConduit");
}

}  // namespace kestra
