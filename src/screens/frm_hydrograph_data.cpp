#include "screens/frm_hydrograph_data.h"

#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "controls/screen_host.h"
#include "controls/undo_history.h"
#include "screens/frm_project_information.h"

namespace kestra {
namespace {

constexpr const char* kToVariable = "Convert from Constant Time to Variable Time";
constexpr const char* kToConstant = "Convert from Variable Time to Constant Time";
constexpr std::size_t kTitleLength = 40;

TableRules rules(int values) {
  TableRules rules;
  rules.values = values;
  rules.characters = "0123456789.";
  rules.checksOnEnter = false;
  return rules;
}

}  // namespace

frmHydrographData::frmHydrographData(InputContext& context)
    : InputScreen(context, "frmHydrographData", "Reservoir Inflow Hydrograph Data Table",
                  "html\\HydrographDataTable.htm"),
      editMenu(*this, context.base.ports, PointDirection::downRows, [this]() -> Table& { return tableOnShow(); }),
      files(*this, context),
      constantEditor_(grdTable, rules(1), context.base.ports, cmdNext),
      variableEditor_(varTable, rules(2), context.base.ports, cmdNext) {
  cmdConvert.standIn(frameConversion);
  chkAdjustTimeIncrement.standIn(frameAdjust);
  for (Control* control :
       std::initializer_list<Control*>{&chk10daydrawdown, &lblDrawdownTime, &txtDrawdownTime, &lblDrawdownElevation,
                                       &txtDrawdownElevation, &optPercent, &optFeet}) {
    control->standIn(Frame3);
  }
  for (Table* table : {&grdTable, &varTable}) {
    table->onFocus = [this, table] { intoData(*table); };
  }
  optConst.onClick = [this] {
    showForm();
    txtConst.takeFocus();
  };
  optVariable.onClick = [this] {
    showForm();
    txtDesired.takeFocus();
  };
  txtConst.onChange = [this] { bConstChanged = true; };
  txtTitle.onChange = [this] { bTitleChanged = true; };
  txtConst.onLeave = [this] { leaveIncrement(); };
  txtDesired.onLeave = [this] { leaveDesired(); };
  txtTitle.onLeave = [this] { leaveTitle(); };
  chk10daydrawdown.onClick = [this] { showDrawdown(); };
  cmdConvert.onClick = [this] { convert(); };
  showForm();
  showDrawdown();
}

void frmHydrographData::load() {
  setHeadings();
  for (const int column : {kHydrographTime, kHydrographFlow}) varTable.setRightAligned(column, false);
}

void frmHydrographData::unload() {
  lastConst.clear();
  bConstChanged = bTitleChanged = bConverted = false;
  hydrographSelected = 0;
}

void frmHydrographData::clearTable() {
  const Gesture gesture(host().history(), nullptr);
  Table& table = tableOnShow();
  table.clearData();
  table.userEdited();
}

void frmHydrographData::setHeadings() {
  for (Table* table : {&grdTable, &varTable}) {
    table->setCell(0, kHydrographTime, " Time, hrs");
    table->setCell(0, kHydrographFlow, " Discharge, cfs");
  }
}

void frmHydrographData::activate() {
  setTitle("Hydrograph Data Table");
  showForm();
  const double dt = lenientNumber(txtConst.text());
  if (optConst.selected() && dt > 0) {
    setRowNum(dt);
    setLastConst(txtConst.text());
  }
  Frame3.setVisible(!breach());
  if (breach() && chk10daydrawdown.checked()) chk10daydrawdown.setChecked(false);
  showDrawdown();
  txtTitle.takeFocus();
}

bool frmHydrographData::breach() const {
  const frmProjectInformation* project = context_.screens.projectInformation;
  return project == nullptr || project->optBreachAnalysis.selected();
}

// Texts have changed too, so that leaving their fields checks them.
void frmHydrographData::undone() {
  showForm();
  Frame3.setVisible(!breach());
  showDrawdown();
  bConstChanged = txtConst.text() != lastConst;
  bTitleChanged = true;
}

void frmHydrographData::goNext() {
  moveTo(hasStructureDischarge(context_) ? "frmPSRatingTable" : "frmPSType");
}

void frmHydrographData::showForm() {
  const bool constant = optConst.selected();
  grdTable.setVisible(constant);
  txtConst.setVisible(constant);
  varTable.setVisible(!constant);
  Label3.setVisible(!constant);
  txtDesired.setVisible(!constant);
  cmdConvert.setCaption(constant ? kToVariable : kToConstant);
}

void frmHydrographData::selectForm(bool constant) {
  OptionButton& option = constant ? optConst : optVariable;
  if (!option.selected()) option.setSelected(true);
  showForm();
}

void frmHydrographData::showDrawdown() {
  for (Control* control : std::initializer_list<Control*>{&lblDrawdownTime, &txtDrawdownTime, &lblDrawdownElevation,
                                                          &txtDrawdownElevation, &optPercent, &optFeet}) {
    control->setEnabled(chk10daydrawdown.checked());
  }
}

// A cursor on the headings goes to the first discharge; the window scrolls to where it stands.
void frmHydrographData::intoData(Table& table) {
  const CellPosition at = table.cursor();
  if (at.row < table.fixedRows() || at.column < table.fixedColumns()) table.setCursor({1, 1});
}

void frmHydrographData::setRowNum(double dt) {
  numberTimes(grdTable, dt);
}

void frmHydrographData::renumber() {
  txtConst.text().empty() ? fillColumn(grdTable, kHydrographTime, {}) : setRowNum(lenientNumber(txtConst.text()));
}

void frmHydrographData::setIncrement(std::string text) {
  setLastConst(text);
  txtConst.setText(std::move(text));
}

void frmHydrographData::setLastConst(const std::string& text) {
  if (UndoHistory* history = host().history()) history->keep(lastConst, nullptr, Property::value, false);
  lastConst = text;
  bConstChanged = false;
}

void frmHydrographData::refuse(TextBox& field, const std::string& text) {
  dataCheck(text);
  field.setText("");
  field.takeFocus();
}

void frmHydrographData::leaveIncrement() {
  const bool changed = std::exchange(bConstChanged, false);
  if (txtConst.text().empty()) return;
  const double dt = lenientNumber(txtConst.text());
  const double before = lenientNumber(lastConst);
  if (dt <= 0) return refuse(txtConst, kConstantStep);
  if (!changed || dt == before) return;
  if (before <= 0) {
    setRowNum(dt);
    setLastConst(txtConst.text());
  } else {
    resampleAsTyped(before, dt);
  }
}

// The increment that was typed and the discharges at its steps are undone together: neither fits without the other.
void frmHydrographData::resampleAsTyped(double before, double dt) {
  UndoHistory* const history = host().history();
  const std::string typed = txtConst.text();
  host().setHistory(nullptr);
  txtConst.setText(lastConst);  // what the resampling is undone to, whatever was done since the typing
  host().setHistory(history);
  if (history != nullptr) history->continueStepOf(txtConst);
  if (!retime(before, dt, typed)) txtConst.takeFocus();
}

void frmHydrographData::leaveDesired() {
  if (txtDesired.text().empty() || lenientNumber(txtDesired.text()) > 0) return;
  refuse(txtDesired, kFinalStep);
}

void frmHydrographData::leaveTitle() {
  const bool changed = std::exchange(bTitleChanged, false);
  if (!changed || charCount(txtTitle.text()) <= kTitleLength) return;
  dataCheck("Title cannot exceed 40 characters.");
  txtTitle.setText(std::string(charsFrom(txtTitle.text(), 0, kTitleLength)));
}

}  // namespace kestra
