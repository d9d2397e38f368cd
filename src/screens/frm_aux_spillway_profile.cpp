#include "screens/frm_aux_spillway_profile.h"

#include <algorithm>

#include "base/numbers.h"
#include "controls/screen_host.h"
#include "screens/frm_aux_spillways.h"
#include "screens/retardance.h"
#include "screens/show_controls.h"

namespace kestra {
namespace {

constexpr std::array<const char*, 6> kConditions = {"Reach Stn Beg",  "Reach Stn End", "Retrd Curve Indx",
                                                    "Veg Cov Factor", "Maint Code",    "Pot Root Depth"};
constexpr int kRetardance = 2;  // rows of grdCond
constexpr int kRootDepth = 5;

}  // namespace

frmAuxSpillwayProfile::frmAuxSpillwayProfile(InputContext& context)
    : InputScreen(context, "frmAuxSpillwayProfile", "Auxiliary Spillway Properties", "html\\AuxiliarySpillway.htm") {
  placeFields();
  prepareTables();
  prepareFields();
  prepareMaterials();
}

void frmAuxSpillwayProfile::placeFields() {
  grdProfile.standIn(frameSurfaceProfile);
  grdCond.standIn(frameSurfaceConditions);
  standIn(CrestBarrierFrame, {&chkCrest, &lblBreachDepth, &txtBreachDepth});
  standIn(BarrierFrame, {&chkBarrier, &lblBarrier, &txtBarrier});
  standIn(Frame4, {&lblNumber, &lblNo, &lblDescript, &txtDescript});
  standIn(Frame5, {&lblPlastic, &txtPlastic, &cmdPlastic, &lblDry, &txtDry, &cmdDry, &lblHead, &txtHead, &cmdHeadCut,
                   &lblRepresent, &txtRepresent, &cmdRep});
  standIn(Frame6, {&optPercent, &txtPercent, &cmdPercent, &optDetach, &txtDetach, &cmdDetach});
  standIn(frameTopsoilFill, {&optNone(0), &optIn(0), &optExternal(0), &lblNum1, &materNum(0)});
  standIn(frameGeneralFill, {&optNone(1), &optIn(1), &optExternal(1), &lblNum2, &materNum(1)});
  showControls(false, {&lblNum1, &lblNum2, &materNum(0), &materNum(1)});
}

void frmAuxSpillwayProfile::prepareTables() {
  grdProfile.onFocus = [this] {
    lastTable_ = &grdProfile;
    profileEditor_.cursorOnFirstCell();
  };
  grdCond.onFocus = [this] {
    lastTable_ = &grdCond;
    condEditor_.cursorOnFirstCell();
  };
  grdTable.onFocus = [this] { boundaryEditor_.cursorOnFirstCell(); };
  grdCond.onKeyPress = [this](const Key& key) { condKey(key); };
  condEditor_.accepts = [this](char32_t character) {
    return grdCond.cursor().row == kRetardance && !retardanceIndex(character).empty();
  };
  condEditor_.onEnter = [this] { return condEnter(); };
  grdCond.onCursorMoved = [this] {
    condEditor_.tempStr.clear();
    clipSelection();
  };
  for (Menu* menu : {&edit.mnuCopy, &edit.mnuCut, &edit.mnuPaste, &edit.mnuDelete, &edit.mnuSelectAll,
                     &edit.mnuInsertCell, &edit.mnuDeleteCell, &edit.mnuInsertPoint, &edit.mnuDeletePoint}) {
    const bool wholeTable = menu == &edit.mnuSelectAll || menu == &edit.mnuInsertPoint || menu == &edit.mnuDeletePoint;
    menu->onClick = [this, wholeTable, act = menu->onClick] {
      const Table* const table = editedTable();
      if (table == &grdCond) return editConditions(act, wholeTable);
      if (table != nullptr) act();
    };
  }
}

void frmAuxSpillwayProfile::prepareFields() {
  const auto check = [this](TextBox& box, std::size_t place, const char* message) {
    box.onChange = [this, place] { setChanged(place, true); };
    box.onLeave = [this, &box, place, message] {
      if (!changed_[place]) return;
      setChanged(place, false);
      checkNotNegative(box, message);
    };
  };
  check(txtBottom, 0, "Bottom Width must be greater than or equal to 0.");
  check(txtSide, 1, "Side Slope Ratio must be greater than or equal to 0.");
  for (int fill : {kTopsoil, kGeneral}) {
    for (auto* options : {&optNone, &optIn, &optExternal}) {
      (*options)(fill).onClick = [this, fill] { showFill(fill, materNum(fill).text()); };
    }
  }
}

void frmAuxSpillwayProfile::load() {
  setColNum();
  setColWidth();
  for (Table* table : {&grdProfile, &grdTable}) {
    const bool profile = table == &grdProfile;
    table->setCell(1, 0, profile ? "  Station, Ft.   " : "  Station, Ft   ");
    table->setCell(2, 0, profile ? "  Elev., Ft.   " : "  Elev. Ft   ");
  }
  refill();
}

void frmAuxSpillwayProfile::setColNum() {
  numberColumns(grdProfile);
  numberColumns(grdTable);
}

void frmAuxSpillwayProfile::setColWidth() {
  for (Table* table : {&grdProfile, &grdTable, &grdCond}) {
    table->setColumnWidth(0, 1250);
    for (int column = 1; column < table->columns(); ++column) {
      table->setColumnWidth(column, 1000);
      table->setCentred(column, true);
    }
  }
}

void frmAuxSpillwayProfile::activate() {
  const Gesture gesture(host().history(), nullptr);
  if (!showsCurrent()) {
    storeShown();
    setTableValues();
  }
  setFields();
  setNextCaption();
}

void frmAuxSpillwayProfile::undone() {
  const frmAuxSpillways& spillways = *context_.screens.auxSpillways;
  const int current = context_.base.state.curAuxSpillway;
  followUndo();
  if (!visible()) return;
  if (spillways.optRating(current).selected() && !spillways.analysed(current)) moveTo("frmAuxRatingTable");
}

void frmAuxSpillwayProfile::followUndo() {
  if (!loaded()) return;
  UndoHistory* const history = host().history();
  host().setHistory(nullptr);
  activate();
  host().setHistory(history);
}

// Whether the controls hold the spillway being edited, in the form that its analysis asks for.
bool frmAuxSpillwayProfile::showsCurrent() const {
  return shown_.spillway == context_.base.state.curAuxSpillway && shown_.rootDepth != stability();
}

bool frmAuxSpillwayProfile::integrity() const {
  return context_.screens.auxSpillways->optQUIL(context_.base.state.curAuxSpillway).selected();
}

bool frmAuxSpillwayProfile::stability() const {
  return context_.screens.auxSpillways->optStability(context_.base.state.curAuxSpillway).selected();
}

void frmAuxSpillwayProfile::setFields() {
  const std::string& label = context_.screens.auxSpillways->label(context_.base.state.curAuxSpillway);
  setTitle("Auxiliary Spillway Properties: " + label);
  showControls(integrity() || stability(), {&lblEnd, &txtEnd, &lblTopsoil, &txtTopsoil, &lblElevation, &txtElevation});
  showControls(integrity(), {&CrestBarrierFrame, &BarrierFrame});
  if (integrity()) lblTopsoil.setCaption("Topsoil Fill Depth, Feet:");
  if (stability()) lblTopsoil.setCaption("Diameter of Surface Material, In.:");
  showMaterialCommands();
  for (int row = 0; row < grdCond.rows(); ++row) grdCond.setRowShown(row, row <= lastCondition());
  if (grdCond.cursor().row > lastCondition()) grdCond.setCursor({lastCondition(), grdCond.cursor().column});
}

int frmAuxSpillwayProfile::lastCondition() const {
  return shown_.rootDepth ? kRootDepth : kRootDepth - 1;
}

void frmAuxSpillwayProfile::showConditions(const AuxProfile& profile) {
  for (int row = 0; row < grdCond.rows(); ++row) {
    const auto value = static_cast<std::size_t>(row);
    grdCond.setCell(row, 0, row <= lastCondition() ? kConditions[value] : "");
    for (std::size_t reach = 0; reach < kShownReaches; ++reach) {
      grdCond.setCell(row, static_cast<int>(reach) + 1, profile.reaches[reach][value]);
    }
  }
}

Table* frmAuxSpillwayProfile::editedTable() {
  if (SSTab1.index() == 0) return lastTable_;
  return SSTab1.index() == 2 ? &grdTable : nullptr;
}

// A selection that reaches into the row that is not shown ends before it.
void frmAuxSpillwayProfile::clipSelection() {
  if (grdCond.firstSelected().row > lastCondition() || grdCond.lastSelected().row <= lastCondition()) return;
  const auto shown = [this](CellPosition at) { return CellPosition{std::min(at.row, lastCondition()), at.column}; };
  grdCond.setSelection(shown(grdCond.cursor()), shown(grdCond.corner()));
}

// A command of the Edit menu on the surface conditions. Root depths that are not shown are neither read nor written;
// they only go along with their reaches.
void frmAuxSpillwayProfile::editConditions(const std::function<void()>& command, bool wholeTable) {
  if (shown_.rootDepth || wholeTable) return command();
  if (grdCond.firstSelected().row > lastCondition()) return;
  clipSelection();
  std::array<std::string, kShownReaches> depths;
  for (std::size_t i = 0; i < depths.size(); ++i) depths[i] = grdCond.cell(kRootDepth, static_cast<int>(i) + 1);
  command();
  for (std::size_t i = 0; i < depths.size(); ++i) grdCond.setCell(kRootDepth, static_cast<int>(i) + 1, depths[i]);
}

void frmAuxSpillwayProfile::setChanged(std::size_t place, bool changed) {
  keep(changed_[place], false);
  changed_[place] = changed;
}

void frmAuxSpillwayProfile::checkNotNegative(TextBox& box, const char* message) {
  if (lenientNumber(box.text()) >= 0) return;
  dataCheck(message);
  box.setText("");
  box.takeFocus();
}

// Keys of the surface conditions: none in a row that is not shown, and two characters at most for the retardance.
void frmAuxSpillwayProfile::condKey(const Key& key) {
  const int row = grdCond.cursor().row;
  const int lastRow = lastCondition();
  if ((key.name == "Down" || key.name == "PageDown") && row >= lastRow) return;
  const bool types = key.name.empty() && key.character != kBackspace && key.character != kEnter;
  const bool typing = condEditor_.tempStr == grdCond.currentText();  // else the next key begins a new text
  const bool full = row == kRetardance && typing && condEditor_.tempStr.size() >= 2;
  if (row > lastRow ? key.name.empty() : types && full) return context_.base.ports.beeper.beep();
  condEditor_.key(key);
  if (row <= lastRow && grdCond.cursor().row > lastRow) grdCond.setCursor({lastRow, grdCond.cursor().column});
}

// Puts the curve index in a retardance class's place; then goes on, behind the last row shown to the next reach, and
// behind the last reach to Next.
bool frmAuxSpillwayProfile::condEnter() {
  const CellPosition at = grdCond.cursor();
  std::string_view text = grdCond.currentText();
  if (at.row == kRetardance && text.size() == 1) {
    const std::string_view index = retardanceIndex(static_cast<unsigned char>(text.front()));
    if (!index.empty()) {
      grdCond.setCurrentText(std::string(index));
      grdCond.userEdited();
    }
  }
  if (at.row != lastCondition()) return false;
  if (at.column < grdCond.columns() - 1) {
    condEditor_.moveTo({0, at.column + 1});
  } else {
    condEditor_.tempStr.clear();
    cmdNext.takeFocus();
  }
  return true;
}

}  // namespace kestra
