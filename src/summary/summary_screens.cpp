#include "summary/summary_screens.h"

#include "controls/screen_host.h"

namespace kestra {

SummaryScreens::SummaryScreens(PictureDesk& desk, const LineSettings& lines, SummaryStore& store, RunKeeper& runs)
    : context{desk, lines, store, runs}, fields(desk.base, store) {
  fields.onAccepted = [this] {
    followStore();
    if (auxTable.loaded()) auxTable.BuildTable();
  };
  table.onViewSpillway = [this](const std::string& folder, int spillway) { viewSpillway(folder, spillway); };
  auxTable.onReturn = [this] {
    context.host().unload(auxTable);
    context.host().show(table);
  };
  auxTable.onDeleted = [this] { followStore(); };
  for (SummaryTableScreen* each :
       {static_cast<SummaryTableScreen*>(&table), static_cast<SummaryTableScreen*>(&auxTable)}) {
    each->onSummaryGraphs = [this, each] { select(*each); };
    each->onAllDeleted = [this] { graphics.forgetGraph(); };
  }
  graphics.rows = [this]() -> const ShownRows& { return rows(); };
  graphics.onSelections = [this] { context.host().show(selections); };
}

void SummaryScreens::enterAll(ScreenHost& host) {
  for (Screen* screen : std::initializer_list<Screen*>{&fields, &table, &auxTable, &selections, &graphics}) {
    host.enter(*screen);
  }
}

void SummaryScreens::closeAll() {
  source_ = nullptr;
  for (Screen* screen : std::initializer_list<Screen*>{&fields, &selections, &graphics, &auxTable, &table}) {
    context.host().unload(*screen);
  }
}

void SummaryScreens::followStore() {
  if (table.loaded()) table.BuildTable();
}

void SummaryScreens::followRun(int entry) {
  table.ModifyTable(static_cast<std::size_t>(entry));
  if (auxTable.loaded()) auxTable.followRun();
}

void SummaryScreens::followInputs() {
  for (SummaryTableScreen* each : std::initializer_list<SummaryTableScreen*>{&table, &auxTable}) {
    if (each->loaded()) each->followInputs();
  }
}

void SummaryScreens::viewSpillway(const std::string& folder, int spillway) {
  context.host().unload(auxTable);
  context.host().load(auxTable);
  if (!auxTable.LoadAuxSumDISFiles(folder, spillway)) {
    context.host().unload(auxTable);
    return;
  }
  auxTable.BuildTable();
  context.host().show(auxTable);
}

void SummaryScreens::select(SummaryTableScreen& from) {
  source_ = &from;
  context.host().show(selections);
}

// A table that is not open any more has no rows; those of the project can be had at any time.
const ShownRows& SummaryScreens::rows() {
  if (source_ != nullptr && source_->loaded()) return source_->rowsOnShow();
  if (!table.loaded()) table.ComputeTableValues();
  return table.rowsOnShow();
}

}  // namespace kestra
