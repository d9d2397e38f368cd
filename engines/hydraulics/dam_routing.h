#pragma once

#include <optional>
#include <vector>

#include "hydraulics/dam_erosion.h"
#include "hydraulics/dam_outlets.h"
#include "hydraulics/linear_table.h"
#include "hydraulics/stage_storage.h"

// A flood routed through a reservoir, level pool, with the erosion of the dam under it.
namespace kestra {

struct DrawdownRequest {
  std::optional<double> elevation;  // ft, or
  double evacuatedPercent = 0;      // of the storage between the lowest spillway crest and the highest pool
  double hours = 240;               // allowed, from the highest pool on
};

struct RoutingInput {
  StageStorage storage;
  DamOutlets outlets;
  LinearTable inflow;       // cfs by hours, two points at least; its ends hold before and after
  DamErosionInput erosion;  // its `breach` tells whether the dam may breach
  double startPool = 0;     // elevation, ft
  double rowHours = 0.1;    // between the rows, above 0
  std::optional<DrawdownRequest> drawdown;
  double stepShare = 1;  // of every step that accuracy allows: 0.5 for a proof by halved steps
};

struct RoutingRow {
  double hours = 0;
  double inflow = 0;  // cfs
  double pool = 0;    // elevation, ft
  OutletFlows flows;
};

// A greatest value and when it stood, from a parabola through the three steps around it.
struct RoutingPeak {
  double hours = 0;
  double value = 0;
};

struct DrawdownResult {
  double beginHours = 0;          // where the rows begin
  double targetElevation = 0;     // ft
  std::optional<double> reached;  // h
  std::vector<RoutingRow> rows;
};

enum class RoutingEnd { complete, rowLimit, stepLimit };

struct RoutingResult {
  std::vector<RoutingRow> rows;  // equally spaced
  RoutingPeak pool;              // ft
  RoutingPeak outflow;           // cfs
  double poolAtPeakOutflow = 0;
  RoutingPeak breachOutflow;
  double breachVolume = 0;  // ft^3, as all volumes

  double inflowVolume = 0;
  double outflowVolume = 0;
  double storageChange = 0;
  double balanceError() const;  // of the inflow and of what the reservoir held more at its start than at its end

  double overtoppingHours = 0;
  double overtoppingVolume = 0;             // over the crest, without the breach
  std::optional<double> overtoppingBegins;  // h

  std::vector<ErosionRow> erosion;  // from the first overtopping on
  ErosionEvents events;
  double breachWidth = 0;

  std::optional<double> leftStorageTable;    // h at which the pool rose above it
  std::optional<double> leftTailwaterTable;  // h at which the outflow rose beyond it
  std::optional<double> ranDry;              // h at which the pool came down to the lowest row
  std::optional<DrawdownResult> drawdown;
  RoutingEnd end = RoutingEnd::complete;
  long steps = 0;
};

// The pool at which the outlets together pass `outflow`, cfs: the highest that passes no more.
double poolOfOutflow(const DamOutlets& outlets, const StageStorage& storage, double outflow);

// Steps are cut at hydrograph points, at rows and at crests, and halved until one step and two halves of it differ by
// less than a thousandth of a foot and of the outflow. Within a step the dam erodes under its mean water, and its
// outflow at the end is that of the eroded dam. Goes on behind the hydrograph while the pool rises, stands over the
// crest or runs out through a growing breach, at most for ten days.
RoutingResult routeDam(const RoutingInput& input);

inline constexpr std::size_t kMostRoutingRows = 17000;  // of a table that readers take whole

}  // namespace kestra
