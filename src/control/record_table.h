#pragma once

#include <span>

#include "control/catalogue.h"

namespace kestra {

// The records of the main run.
std::span<const RecordLayout> mainRunRecords();

// The records of the run of an auxiliary spillway.
std::span<const RecordLayout> spillwayRunRecords();

}  // namespace kestra
