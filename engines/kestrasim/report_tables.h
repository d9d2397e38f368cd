#pragma once

#include "kestrasim/dam_report.h"
#include "kestrasim/report_text.h"

// The tables of the .OUT file.
namespace kestra {

void writeRating(const DamRun& run, ReportText& out);
void writeStorage(const DamRun& run, ReportText& out);
void writeRouting(const RoutingResult& result, ReportText& out);
void writeSlopeStress(const RoutingResult& result, ReportText& out);  // of a vegetated or bare slope
void writeRiprap(const RoutingResult& result, ReportText& out);
void writeDrawdown(const RoutingResult& result, ReportText& out);

}  // namespace kestra
