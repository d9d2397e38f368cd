#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "controls/undo_history.h"
#include "screens/frm_hydrograph_data.h"

// How the two tables of the hydrograph screen become each other.
namespace kestra {

void frmHydrographData::convert() {
  if (optConst.selected()) {
    const double dt = lenientNumber(txtConst.text());
    return dt > 0 ? convertToVariable(dt) : refuse(txtConst, kConstantStep);
  }
  const double dtNew = lenientNumber(txtDesired.text());
  if (dtNew <= 0 && !loadTiQiArrays(varTable).times.empty()) {
    return refuse(txtDesired, kFinalStep);
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
  bConverted = true;
}

void frmHydrographData::convertToConstant(double dt, int rows) {
  const Gesture gesture(host().history(), nullptr);
  const HydrographPoints points = loadTiQiArrays(varTable);
  if (const auto fall = std::is_sorted_until(points.times.begin(), points.times.end()); fall != points.times.end()) {
    return warn("Times must be increasing: " + decimalNumber(*fall) + " follows " + decimalNumber(*std::prev(fall)) +
                ".");
  }
  ResampledHydrograph resampled;
  if (!resample(dt, points, resampled)) return;
  grdTable.growTo(rows);
  selectForm(true);
  setIncrement(tenCharacters(resampled.step));
  takeFlows(resampled);
  bConverted = true;
}

void frmHydrographData::retimeHydrograph(double oldDt, double newDt) {
  retime(oldDt, newDt, txtConst.text());
}

bool frmHydrographData::retime(double oldDt, double newDt, const std::string& shown) {
  const Gesture gesture(host().history(), nullptr);
  ResampledHydrograph resampled;
  if (!resample(newDt, constantPoints(grdTable, oldDt), resampled)) return false;
  setIncrement(lenientNumber(shown) == resampled.step ? shown : tenCharacters(resampled.step));
  takeFlows(resampled);
  return true;
}

bool frmHydrographData::resample(double dt, const HydrographPoints& points, ResampledHydrograph& result) {
  try {
    result = resampleHydrograph(dt, points);
    return true;
  } catch (const RuntimeFault& fault) {
    warn(fault.what());
    return false;
  }
}

void frmHydrographData::warn(const std::string& text) {
  context_.base.ports.boxes.tell("Hydrograph Error", text, BoxIcon::warning);
}

// Fills the constant-time table; the times are those of the step that was used, of which the user sees ten characters.
void frmHydrographData::takeFlows(const ResampledHydrograph& resampled) {
  if (resampled.flows.size() > static_cast<std::size_t>(kMostHydrographPoints)) {
    const std::string count = std::to_string(resampled.flows.size());
    warn("Too many points. Hydrograph truncated from " + count + " to 5000 points.");
  }
  fillFlows(grdTable, resampled.flows);
  setRowNum(resampled.step);
  grdTable.userEdited();
}

}  // namespace kestra
