#pragma once

#include <string>

#include "run/run_context.h"

namespace kestra {

inline constexpr const char* kDamSolver = "KestraSim.exe";

// Runs the dam solver on a control file. Columns 41 and 42 of the HYD record tell how: without either flag on the file
// itself; with a variable time step ("V") on the same records with the hydrograph resampled, `filePath` without
// extension + ".V2D"; with time-step adjustment ("1") on such files again and again, the step halved each time, until
// the peak pool settles within 1 % of its head over the lowest crest, at most ten times. An attempt has the number of
// its points in its files' names, and the accepted one's output, breach and headcut histories are copied to the names
// of the control file. Ten attempts in vain are told in a box; any failure too, under "Computation Error: ". What is
// printed goes to the file's ".log". Throws RunStopped.
void RunDamSolver(RunContext& context, const std::string& filePath, bool showProgress);

}  // namespace kestra
