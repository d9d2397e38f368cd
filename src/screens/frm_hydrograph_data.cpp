#include "screens/frm_hydrograph_data.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "base/text.h"
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
      editMenu(*this, context.base.ports, PointDirection::downRows,
               [this]() -> Table& { return optConst.selected() ? grdTable : varTable; }),
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
  const frmProjectInformation* project = context_.screens.projectInformation;
  const bool breach = project == nullptr || project->optBreachAnalysis.selected();
  if (breach && chk10daydrawdown.checked()) chk10daydrawdown.setChecked(false);
  Frame3.setVisible(!breach);
  showDrawdown();
  txtTitle.takeFocus();
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
  const double dt = lenientNumber(txtConst.text());
  dt > 0 ? setRowNum(dt) : fillColumn(grdTable, kHydrographTime, {});
}

void frmHydrographData::setIncrement(std::string text) {
  setLastConst(text);
  txtConst.setText(std::move(text));
}

void frmHydrographData::setLastConst(const std::string& text) {
  if (UndoHistory* history = host().history()) history->keep(lastConst_, nullptr, Property::value, false);
  lastConst_ = text;
}

void frmHydrographData::refuse(TextBox& field, const std::string& text) {
  dataCheck(text);
  field.setText("");
  field.takeFocus();
}

void frmHydrographData::leaveIncrement() {
  if (txtConst.text().empty()) return;
  const double dt = lenientNumber(txtConst.text());
  const double before = lenientNumber(lastConst_);
  if (dt <= 0) return refuse(txtConst, "Constant time increment must greater than 0.");
  if (dt == before) return;
  if (before <= 0) {
    setRowNum(dt);
    setLastConst(txtConst.text());
  } else if (!retime(before, dt)) {
    txtConst.setText(lastConst_);
    txtConst.takeFocus();
  }
}

void frmHydrographData::leaveDesired() {
  if (txtDesired.text().empty() || lenientNumber(txtDesired.text()) > 0) return;
  refuse(txtDesired, "Time increment must greater than 0.");
}

void frmHydrographData::leaveTitle() {
  if (charCount(txtTitle.text()) <= kTitleLength) return;
  dataCheck("Title cannot exceed 40 characters.");
  txtTitle.setText(std::string(charsFrom(txtTitle.text(), 0, kTitleLength)));
}

void frmHydrographData::convert() {
  if (optConst.selected()) return convertToVariable(lenientNumber(txtConst.text()));
  const double dtNew = lenientNumber(txtDesired.text());
  if (dtNew <= 0 && !loadTiQiArrays(varTable).times.empty()) {
    return refuse(txtDesired, "Time increment must greater than 0.");
  }
  const double dtOld = trim(txtConst.text()).empty() ? dtNew : lenientNumber(txtConst.text());
  const double rows = std::nearbyint(1 + varTable.rows() * dtOld / dtNew);
  convertToConstant(dtNew, std::isfinite(rows) ? static_cast<int>(std::clamp<double>(rows, 0, kMostRows)) : 0);
}

void frmHydrographData::convertHydrograph(double dt, int mode) {
  if (mode != 1 && mode != 2) throw RuntimeFault("convertHydrograph: mode must be 1 or 2");
  mode == 1 ? convertToVariable(dt) : convertToConstant(dt, 0);
}

void frmHydrographData::convertToVariable(double dt) {
  const Gesture gesture(host().history(), nullptr);
  varTable.growTo(grdTable.rows());
  selectForm(false);
  txtDesired.setText(tenCharacters(dt));
  const double step = lenientNumber(txtDesired.text());
  std::vector<std::string> times;
  std::vector<std::string> flows;
  for (int row = 1; row < grdTable.rows(); ++row) {
    const std::string& flow = grdTable.cell(row, kHydrographFlow);
    const bool filled = !trim(flow).empty();
    times.push_back(filled ? decimalNumber((row - 1) * step) : "");
    flows.push_back(filled ? flow : "");
  }
  fillColumn(varTable, kHydrographTime, times);
  fillColumn(varTable, kHydrographFlow, flows);
  varTable.userEdited();
}

void frmHydrographData::convertToConstant(double dt, int rows) {
  const Gesture gesture(host().history(), nullptr);
  ResampledHydrograph resampled;
  if (!resample(dt, loadTiQiArrays(varTable), resampled)) return;
  grdTable.growTo(rows);
  selectForm(true);
  setIncrement(tenCharacters(resampled.step));
  takeFlows(resampled);
}

void frmHydrographData::retimeHydrograph(double oldDt, double newDt) {
  retime(oldDt, newDt);
}

bool frmHydrographData::retime(double oldDt, double newDt) {
  const Gesture gesture(host().history(), nullptr);
  ResampledHydrograph resampled;
  if (!resample(newDt, constantPoints(grdTable, oldDt), resampled)) return false;
  const bool shown = lenientNumber(txtConst.text()) == resampled.step;
  setIncrement(shown ? txtConst.text() : tenCharacters(resampled.step));
  takeFlows(resampled);
  return true;
}

bool frmHydrographData::resample(double dt, const HydrographPoints& points, ResampledHydrograph& result) {
  try {
    result = resampleHydrograph(dt, points);
    return true;
  } catch (const RuntimeFault& fault) {
    context_.base.ports.boxes.tell("Hydrograph Error", fault.what(), BoxIcon::warning);
    return false;
  }
}

// Fills the constant-time table; the times are those of the step that the user sees.
void frmHydrographData::takeFlows(const ResampledHydrograph& resampled) {
  if (resampled.flows.size() > static_cast<std::size_t>(kMostHydrographPoints)) {
    const std::string count = std::to_string(resampled.flows.size());
    context_.base.ports.boxes.tell("Hydrograph Error",
                                   "Too many points. Hydrograph truncated from " + count + " to 5000 points.",
                                   BoxIcon::warning);
  }
  fillFlows(grdTable, resampled.flows);
  setRowNum(lenientNumber(txtConst.text()));
  grdTable.userEdited();
}

}  // namespace kestra
