#pragma once

#include "platform/ports.h"
#include "results/run_tables.h"
#include "run/programs.h"
#include "screens/frm_progress.h"
#include "shell/application_state.h"

namespace kestra {

class SummaryUpdates;

// What the operations of a run work with.
struct RunContext {
  Ports& ports;
  ApplicationState& state;
  RunTables& tables;
  frmProgress& progress;
  Programs& programs;
  SummaryUpdates& summary;
  bool silent = false;  // the build that runs leaves the gauge alone
};

// Sets the gauge and brings frmProgress to the front, unless the build is silent.
inline void showStep(RunContext& context, int value, const std::string& what) {
  if (!context.silent) context.progress.step(value, what);
}

}  // namespace kestra
