#pragma once

#include <string>

#include "kestrasim/build_routing.h"

namespace kestra {

// The text of the .BRE file, the history of the breach from the first flow over the dam: time, breach discharge, sill,
// stress at the base of the headcut, width, unit discharge. The state at the start stands three times.
std::string breachHistory(const RoutingResult& result, double crest);

// The text of the .HCT file, the history of the headcut: time, brink, station, base, height, width. Two heading lines
// alone where none formed.
std::string headcutHistory(const RoutingResult& result);

}  // namespace kestra
