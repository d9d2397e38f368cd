#pragma once

#include "screens/input_context.h"

namespace kestra {

enum class WalkEnd { run, inputWindow };

// Behind the last spillway: the headcut screen where the integrity of a spillway is analysed; else the input screens
// are hidden and the input window is shown, with or without the run.
void endSpillwayWalk(InputContext& context, WalkEnd end);

}  // namespace kestra
