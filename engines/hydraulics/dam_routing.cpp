#include "hydraulics/dam_routing.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/peak_finder.h"
#include "hydraulics/pool_march.h"
#include "hydraulics/roots.h"
#include "hydraulics/units.h"

namespace kestra {
namespace {

constexpr double kTailHours = 240;     // the longest that is routed behind the hydrograph
constexpr double kEndOfBreach = 0.01;  // of its peak, below which the flow of a breach is over
constexpr double kRising = 1e-4;       // ft from row to row
constexpr double kOvertopped = 1e-6;   // ft
constexpr double kLeastArea = 1.0;     // ft^2, of a pool
constexpr std::size_t kMostErosionRows = 15000;
constexpr double kErosionRowShare = 1.0 / 16;  // of the rows' spacing, between rows of a growing breach
constexpr double kStepsToBegin = 50000;
constexpr double kStepsAPoint = 20;
constexpr double kStepsARow = 4;

bool sameTime(double a, double b, double spacing) {
  return std::fabs(a - b) < 1e-6 * spacing;
}

int eventsOf(const ErosionEvents& events) {
  return events.slopeLost.has_value() + events.headcutFormed.has_value() + events.breachInitiated.has_value() +
         events.breachCompleted.has_value();
}

// What points and rows ask for, and some more.
long boundOnSteps(const RoutingInput& input) {
  const double hours = input.inflow.x().back() - input.inflow.x().front() + kTailHours;
  const double rows = std::min(hours / input.rowHours, static_cast<double>(kMostRoutingRows));
  const double steps = kStepsToBegin + kStepsAPoint * static_cast<double>(input.inflow.size()) + kStepsARow * rows;
  return static_cast<long>(steps / input.stepShare);
}

// Gathers a result while the pool is taken from moment to moment.
class Routing {
 public:
  explicit Routing(const RoutingInput& input)
      : input_(input),
        march_(input),
        state_(march_.start()),
        end_(input.inflow.x().back()),
        mostSteps_(boundOnSteps(input)) {}

  RoutingResult run() {
    notePeaks();
    addRow(result_.rows);
    while (!isOver()) {
      const double row = input_.inflow.x().front() + static_cast<double>(result_.rows.size()) * input_.rowHours;
      if (!marchTo(row)) break;
      addRow(result_.rows);
    }
    if (input_.drawdown && result_.end == RoutingEnd::complete) drawDown();
    finish();
    return std::move(result_);
  }

 private:
  // Up to that time, stopping at the points of the hydrograph on the way. False at the bound on steps.
  bool marchTo(double hours) {
    const auto& points = input_.inflow.x();
    while (state_.hours < hours) {
      if (march_.steps() > mostSteps_) {
        result_.end = RoutingEnd::stepLimit;
        return false;
      }
      const auto next = std::ranges::upper_bound(points, state_.hours);
      double limit = hours;
      if (next != points.end() && *next < hours && !sameTime(*next, hours, input_.rowHours)) limit = *next;
      const PoolState to = march_.step(state_, limit);
      noteErosion(to);
      noteTarget(to);
      state_ = to;
      notePeaks();
      noteTables();
    }
    return true;
  }

  void notePeaks() {
    const double gain = (march_.inflow(state_.hours) - state_.flows.total()) * kSecondsPerHour;  // ft^3/h
    pool_.take(state_.hours, state_.pool, gain / std::max(input_.storage.area(state_.pool), kLeastArea));
    outflow_.take(state_.hours, state_.flows.total());
    if (outflow_.peakIsNew()) result_.poolAtPeakOutflow = state_.pool;
    breach_.take(state_.hours, state_.flows.breach);
  }

  void noteTables() {
    if (!result_.leftStorageTable && state_.pool > input_.storage.highest()) result_.leftStorageTable = state_.hours;
    if (!result_.ranDry && state_.pool <= input_.storage.lowest() &&
        input_.outlets.flows(state_.pool, state_.erosion).total() > 0) {
      result_.ranDry = state_.hours;
    }
    const LinearTable& tailwater = input_.outlets.tailwater;
    if (!result_.leftTailwaterTable && tailwater.size() > 1 && state_.flows.total() > tailwater.x().back()) {
      result_.leftTailwaterTable = state_.hours;
    }
  }

  void noteErosion(const PoolState& to) {
    const double crest = input_.outlets.crest.lowest();
    if (std::max(state_.pool, to.pool) > crest + kOvertopped) {
      if (!result_.overtoppingBegins) result_.overtoppingBegins = state_.hours;
      result_.overtoppingHours += to.hours - state_.hours;
    }
    if (!result_.overtoppingBegins) return;
    const int events = eventsOf(to.erosion.events());
    const double since = result_.erosion.empty() ? input_.rowHours : to.hours - result_.erosion.back().timeHours;
    const bool moves = to.erosion.phase() != ErosionPhase::slopeStands && to.erosion.eroding();
    const bool due = since >= input_.rowHours * (moves ? kErosionRowShare : 1.0) * (1 - 1e-6);
    if (!due && events == events_) return;
    events_ = events;
    if (result_.erosion.size() >= kMostErosionRows) return;
    ErosionRow row = to.erosion.row();
    row.timeHours = to.hours;
    result_.erosion.push_back(row);
  }

  void addRow(std::vector<RoutingRow>& rows) {
    rows.push_back({state_.hours, march_.inflow(state_.hours), state_.pool, state_.flows});
  }

  bool isOver() {
    const double past = state_.hours - end_;
    if (past < -1e-6 * input_.rowHours) return atRowLimit();
    if (past >= kTailHours) return true;
    const auto& rows = result_.rows;
    const bool rises = rows.size() > 1 && state_.pool > rows[rows.size() - 2].pool + kRising;
    const bool overtops = state_.pool > input_.outlets.crest.lowest() + kOvertopped;
    if (!rises && !overtops && !breachRuns()) return true;
    return atRowLimit();
  }

  bool breachRuns() const {
    if (state_.erosion.breachWidth() <= 0 || state_.erosion.finished()) return false;
    return state_.flows.breach > kEndOfBreach * breach_.peak().value;
  }

  bool atRowLimit() {
    if (result_.rows.size() < kMostRoutingRows) return false;
    result_.end = RoutingEnd::rowLimit;
    return true;
  }

  double drawdownTarget() const {
    if (input_.drawdown->elevation) return *input_.drawdown->elevation;
    const StageStorage& storage = input_.storage;
    const double low = storage.volume(input_.outlets.lowestSpillwayCrest());
    const double high = storage.volume(pool_.peak().value);
    return storage.elevationOf(high - (high - low) * input_.drawdown->evacuatedPercent / 100);
  }

  // When the flood's own rows came down to the elevation, straight between them.
  std::optional<double> reachedBefore(double elevation) const {
    RoutingRow before{pool_.peak().hours, 0, pool_.peak().value, {}};
    for (const RoutingRow& row : result_.rows) {
      if (row.hours < before.hours) continue;
      if (row.pool <= elevation)
        return before.hours + passed(before.pool, row.pool, elevation) * (row.hours - before.hours);
      before = row;
    }
    return std::nullopt;
  }

  // Which part of the way from one level to another below it has been gone at a level between.
  static double passed(double from, double to, double level) {
    return from > to ? std::clamp((from - level) / (from - to), 0.0, 1.0) : 0.0;
  }

  // From the highest pool on; the flood's own rows are looked through first.
  void drawDown() {
    constexpr int kRows = 240;
    DrawdownResult& drawdown = result_.drawdown.emplace();
    drawdown.beginHours = state_.hours;
    drawdown.targetElevation = drawdownTarget();
    drawdown.reached = reachedBefore(drawdown.targetElevation);
    const double last = pool_.peak().hours + input_.drawdown->hours;
    const double spacing = std::max(input_.rowHours, input_.drawdown->hours / kRows);
    addRow(drawdown.rows);
    while (!drawdown.reached && state_.hours < last) {
      if (!marchTo(std::min(state_.hours + spacing, last))) return;
      addRow(drawdown.rows);
    }
  }

  void noteTarget(const PoolState& to) {
    if (!result_.drawdown || result_.drawdown->reached || to.pool > result_.drawdown->targetElevation) return;
    const double part = passed(state_.pool, to.pool, result_.drawdown->targetElevation);
    result_.drawdown->reached = state_.hours + part * (to.hours - state_.hours);
  }

  // Without a breach the outflow rises and falls with the pool; at the top it is what comes in. Of the two the lower
  // one counts: where the outlets are much too large for the reservoir, a trace of pool is a flood.
  void takeOutflowOfHighestPool() {
    const double ofPool = input_.outlets.flows(result_.pool.value, state_.erosion).total();
    const double ofInflow = march_.inflow(result_.pool.hours);
    result_.outflow = {result_.pool.hours, std::max(outflow_.greatest(), std::min(ofPool, ofInflow))};
    result_.poolAtPeakOutflow = result_.pool.value;
  }

  void finish() {
    result_.pool = pool_.peak();
    result_.outflow = outflow_.peak();
    if (breach_.peak().value <= 0) takeOutflowOfHighestPool();
    result_.breachOutflow = breach_.peak();
    result_.breachVolume = state_.throughBreach;
    result_.inflowVolume = state_.in;
    result_.outflowVolume = state_.out;
    result_.storageChange = input_.storage.volume(state_.pool) - input_.storage.volume(input_.startPool);
    result_.overtoppingVolume = state_.overCrest;
    result_.events = state_.erosion.events();
    result_.breachWidth = state_.erosion.breachWidth();
    result_.steps = march_.steps();
  }

  const RoutingInput& input_;
  PoolMarch march_;
  PoolState state_;
  double end_;
  long mostSteps_;
  LevelPeakFinder pool_;
  PeakFinder outflow_;
  PeakFinder breach_;
  int events_ = 0;
  RoutingResult result_;
};

}  // namespace

double RoutingResult::balanceError() const {
  constexpr double kLeast = 1.0;  // ft^3, next to nothing
  const double moved = std::max(kLeast, inflowVolume + std::max(0.0, -storageChange));
  return std::fabs(inflowVolume - outflowVolume - storageChange) / moved;
}

double poolOfOutflow(const DamOutlets& outlets, const StageStorage& storage, double outflow) {
  const DamErosion whole{DamErosionInput{}};
  // A trace more than asked for, so that of a flat part the upper end is found.
  const double wanted = outflow + 1e-9;
  const auto excess = [&](double above) { return outlets.flows(storage.lowest() + above, whole).total() - wanted; };
  const double range = storage.highest() - storage.lowest();
  return storage.lowest() + solveIncreasing(excess, 0.0, range, 1e-9);
}

RoutingResult routeDam(const RoutingInput& input) {
  return Routing(input).run();
}

}  // namespace kestra
