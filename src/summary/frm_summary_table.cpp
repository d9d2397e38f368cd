#include "summary/frm_summary_table.h"

namespace kestra {
namespace {

constexpr int kSlot = static_cast<int>(WindowSlot::summaryTable);

}  // namespace

frmSummaryTable::frmSummaryTable(SummaryContext& context)
    : SummaryTableScreen(context, "frmSummaryTable", "Summary Table", "Summary Table") {
  for (int spillway = cmdView.first(); spillway <= cmdView.last(); ++spillway) {
    cmdView(spillway).setCaption("View Aux. Spillway " + std::to_string(spillway));
    cmdView(spillway).onClick = [this, spillway] { ComputeAuxTableValues(spillway); };
  }
  for (Menu& entry : mnuWindowsArray) entry.setVisible(false);
}

void frmSummaryTable::load() {
  context_.state().window(kSlot) = true;
  opening_ = true;
  SummaryTableScreen::load();
}

// What an operation entered before the window came on show stays until then.
void frmSummaryTable::activate() {
  if (!opening_) return;
  opening_ = false;
  if (context_.state().projectDir.empty()) return;
  context_.store.LoadSummaryStore();
  BuildTable();
}

void frmSummaryTable::unload() {
  SummaryTableScreen::unload();
  context_.state().window(kSlot) = false;
}

void frmSummaryTable::viewAll() {
  const ShownRow* row = selectedRow();
  if (row == nullptr || !row->isCondensed()) return;
  lbl_Header.setCaption("Summary Table - One Run - All Instances");
  ComputeSumTableValues();
  BuildAuxTable();
}

void frmSummaryTable::ComputeAuxTableValues(int spillway) {
  const ShownRow* row = selectedRow();
  if (row == nullptr || !onViewSpillway) return;
  const std::string folder = placeOf(row->entry.name).run;
  if (!folder.empty()) onViewSpillway(folder, spillway);
}

}  // namespace kestra
