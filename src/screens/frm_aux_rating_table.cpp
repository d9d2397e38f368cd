#include "screens/frm_aux_rating_table.h"

#include "screens/frm_aux_spillway_profile.h"
#include "screens/frm_aux_spillways.h"
#include "screens/spillway_walk.h"

namespace kestra {
namespace {

constexpr int kDischarge = 2;  // the last column that is entered

}  // namespace

frmAuxRatingTable::frmAuxRatingTable(InputContext& context)
    : InputScreen(context, "frmAuxRatingTable", "Auxiliary Spillway Rating Table",
                  "html\\AuxiliarySpillwayRatingTable.htm") {
  for (int i = 0; i < kAuxSpillways; ++i) {
    grdTable(i).standIn(Frame2);
    grdTable(i).onFocus = [this, i] { editors_[static_cast<std::size_t>(i)].cursorOnFirstCell(); };
    grdTable(i).onKeyPress = [this, i](const Key& pressed) { key(i, pressed); };
  }
}

void frmAuxRatingTable::load() {
  setRowNum();
  setColWidth();
  setRowHeight();
  for (Table& table : grdTable) {
    table.setCell(0, 1, "Elevation, ft");
    table.setCell(0, kDischarge, "Discharge, cfs ");
  }
  setTitle("Auxiliary Spillway: " + context_.screens.auxSpillways->label(context_.base.state.curAuxSpillway));
}

void frmAuxRatingTable::setRowNum() {
  for (Table& table : grdTable) numberRows(table);
}

void frmAuxRatingTable::setColWidth() {
  for (Table& table : grdTable) {
    table.setColumnWidth(0, 500);
    for (int column = 1; column < table.columns(); ++column) {
      table.setColumnWidth(column, 1750);
      table.setCentred(column, true);
    }
  }
}

void frmAuxRatingTable::setRowHeight() {
  for (Table& table : grdTable) table.setRowHeight(0, 560);
}

void frmAuxRatingTable::showCurrent() {
  const ApplicationState& state = context_.base.state;
  const bool any = state.numAuxSpillways >= 1;
  for (int i = 0; i < kAuxSpillways; ++i) grdTable(i).setVisible(any && i == state.curAuxSpillway);
  if (!any) return;
  setTitle("Auxiliary Spillway Rating Table: " + context_.screens.auxSpillways->label(state.curAuxSpillway));
}

void frmAuxRatingTable::key(int spillway, const Key& key) {
  const bool moves = !key.name.empty();
  const bool used = grdTable(spillway).cursor().column <= kDischarge;
  if (moves || used) return editors_[static_cast<std::size_t>(spillway)].key(key);
  context_.base.ports.beeper.beep();
}

void frmAuxRatingTable::goNext() {
  const frmAuxSpillways& spillways = *context_.screens.auxSpillways;
  frmAuxSpillwayProfile& profile = *context_.screens.auxSpillwayProfile;
  const ApplicationState& state = context_.base.state;
  if (spillways.analysed(state.curAuxSpillway)) return toProfile();
  if (state.curAuxSpillway + 1 >= state.numAuxSpillways) return endSpillwayWalk(context_, WalkEnd::inputWindow);
  profile.showSpillway(state.curAuxSpillway + 1);
  if (spillways.optProfile(state.curAuxSpillway).selected()) return moveTo(profile);
  showCurrent();
}

void frmAuxRatingTable::goPrevious() {
  const ApplicationState& state = context_.base.state;
  if (state.curAuxSpillway <= 0 || state.numAuxSpillways <= 1) return moveTo("frmAuxSpillways");
  frmAuxSpillwayProfile& profile = *context_.screens.auxSpillwayProfile;
  profile.showSpillway(state.curAuxSpillway - 1);
  if (context_.screens.auxSpillways->optProfile(state.curAuxSpillway).selected()) return moveTo(profile);
  showCurrent();
}

void frmAuxRatingTable::toProfile() {
  frmAuxSpillwayProfile& profile = *context_.screens.auxSpillwayProfile;
  profile.showSpillway(context_.base.state.curAuxSpillway);
  moveTo(profile);
}

void frmAuxRatingTable::undone() {
  const bool rated = context_.screens.auxSpillways->optRating(context_.base.state.curAuxSpillway).selected();
  if (rated || !visible()) return showCurrent();
  context_.screens.auxSpillwayProfile->followUndo();
  moveTo("frmAuxSpillwayProfile");
}

}  // namespace kestra
