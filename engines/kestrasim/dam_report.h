#pragma once

#include <optional>
#include <string>
#include <vector>

#include "control/record_reader.h"
#include "kestrasim/build_routing.h"
#include "kestrasim/dam_model.h"
#include "kestrasim/run_messages.h"

namespace kestra {

// What routing by half steps changed.
struct HalvedSteps {
  double poolChange = 0;      // ft, of the highest pool
  double outflowPercent = 0;  // of the peak outflow
};

// What a run leaves to be told: input, messages, and, where there was enough to compute with, the results.
struct DamResults {
  const std::vector<ControlRun>& runs;
  const DamModel& dam;
  const RunMessages& messages;
  const DamRun* run = nullptr;
  const RoutingResult* result = nullptr;
  std::optional<HalvedSteps> halved = {};
};

// The text of the .OUT file: title and limits, echo of the main run behind one blank, messages, ratings, storage,
// routing, slope, report lines, drawdown. Columns are those that the system's readers look for; see
// docs/engines/dam.md.
std::string damReport(const DamResults& results);

}  // namespace kestra
