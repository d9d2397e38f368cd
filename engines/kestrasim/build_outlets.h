#pragma once

#include "hydraulics/dam_outlets.h"
#include "hydraulics/earth_spillway.h"
#include "kestrasim/dam_model.h"
#include "kestrasim/run_messages.h"

// The ways out of the reservoir from what the records tell. What cannot be computed discharges nothing, and is told as
// an error.
namespace kestra {

PrincipalSpillway buildPrincipal(const DamModel& dam, RunMessages& messages);

// `top`: elevation up to which a spillway told by its profile is rated.
RatingCurve buildAuxiliary(const AuxiliaryRecord& spillway, int number, double top, RunMessages& messages);

// Rows of elevation and discharge, two at least, the discharges raised where they fall; with a foot of 0.01 ft below a
// first row that discharges already.
RatingCurve buildRating(const std::vector<TablePoint>& rows, const Place& place, RunMessages& messages);

// Elevation by outflow; one row at the base of the dam where no row is usable.
LinearTable buildTailwater(const DamModel& dam, double base, RunMessages& messages);

}  // namespace kestra
