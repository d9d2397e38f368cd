#pragma once

#include <span>

#include "control/catalogue.h"

namespace kestra {

// The records of the main run.
std::span<const RecordLayout> mainRunRecords();

// The records of a spillway run that are told apart: those that frame it. Its other lines are kept as they are.
std::span<const RecordLayout> spillwayRunRecords();

}  // namespace kestra
