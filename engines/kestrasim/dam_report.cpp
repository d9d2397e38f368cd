#include "kestrasim/dam_report.h"

#include <array>
#include <cmath>
#include <set>

#include "base/lines.h"
#include "base/text.h"
#include "hydraulics/units.h"
#include "kestrasim/report_tables.h"
#include "kestrasim/report_text.h"

namespace kestra {
namespace {

constexpr std::array kTitle = {
    " Kestra B: flood through a reservoir, overtopping and breach of its dam",
    " Dam engine " KESTRA_VERSION "; ft, acres, acre-ft, cfs, hours, lb/ft^2",
    " Limits: one-dimensional, level pool, homogeneous cohesive embankment that breaches at the lowest point of its "
    "crest.",
    " No piping, no layers, no waves, no slide of a slope. Stress of an overfall, side erosion of a breach and the "
    "block",
    " that falls in headcut model 2 rest on forms whose constants are not confirmed by a published source.",
    " The judgement of an engineer who knows the dam comes before these figures.",
    "",
};

// Behind ASSURFACE the echo has the profile that was computed with, station and elevation.
void writeProfile(const DamModel& dam, std::size_t line, ReportText& out) {
  for (const auto& spillway : dam.auxiliary) {
    if (!spillway || spillway->line != line) continue;
    for (const TablePoint& point : spillway->profile) {
      out.line(ColumnLine().blanks(11).number(point.first, 10, 3).number(point.second, 10, 3));
    }
  }
}

void writeEcho(const DamResults& results, ReportText& out) {
  if (results.runs.empty()) return;
  const ControlRun& main = results.runs.front();
  std::set<std::size_t> reachRows;
  std::set<std::size_t> surfaces;
  for (const ControlRecord& record : main.records) {
    if (record.layout->keyword != "ASSURFACE") continue;
    surfaces.insert(record.lineNumber);
    LineReader rows(record.rows);
    std::string_view row;
    while (rows.next(row)) reachRows.insert(record.lineNumber + rows.lineNumber());
  }
  LineReader lines(main.text);
  std::string_view line;
  while (lines.next(line)) {
    if (trim(line).empty() || reachRows.contains(lines.lineNumber())) continue;
    out.line(ColumnLine().blanks(1).words(line));
    if (surfaces.contains(lines.lineNumber())) writeProfile(results.dam, lines.lineNumber(), out);
  }
  out.blankLine();
}

ColumnLine told(std::string_view words, double value, int lastColumn, int decimals) {
  ColumnLine line;
  line.words(words);
  return line.number(value, lastColumn - static_cast<int>(words.size()), decimals);
}

void writePeaks(const RoutingResult& result, ReportText& out) {
  out.line(ColumnLine()
               .words("Outflow peaked at")
               .number(result.outflow.hours, 11, 4)
               .words(" hr with")
               .number(result.outflow.value, 13, 2)
               .words(" cfs at elevation ")
               .number(result.poolAtPeakOutflow, 10, 3)
               .words(" feet."));
  out.line(told("Maximum pool elevation was", result.pool.value, 37, 3).words(" feet"));
  out.line(told("Highest pool at time", result.pool.hours, 41, 4).words(" hours"));
  out.line(told("Total duration of flow over top of dam:", result.overtoppingHours, 49, 4).words(" hours"));
}

void writeEvents(const RoutingResult& result, double crest, ReportText& out) {
  if (result.overtoppingBegins) {
    out.line(told("Flow over the dam began at", *result.overtoppingBegins, 41, 4).words(" hours"));
    out.line(told("Greatest depth over the lowest crest was", std::fmax(0.0, result.pool.value - crest), 52, 3)
                 .words(" feet"));
    out.line(told("Volume over the crest was", result.overtoppingVolume / kSquareFeetPerAcre, 41, 3).words(" acre-ft"));
  }
  const ErosionEvents& events = result.events;
  if (events.slopeLost) {
    out.line(told("Embankment slope stress or discharge exceeded 100% of allowable at", *events.slopeLost, 76, 4)
                 .words(" hours"));
  }
  if (events.headcutFormed) out.line(told("Headcut formed at", *events.headcutFormed, 41, 4).words(" hours"));
  if (!events.breachInitiated) return;
  out.line(told("Embankment breach initiated at", *events.breachInitiated, 41, 4).words(" hours"));
  if (events.breachCompleted) {
    out.line(told("Embankment breach completed at", *events.breachCompleted, 41, 4).words(" hours"));
  }
  out.line(told("Final breach width was", result.breachWidth, 31, 2).words(" feet"));
  out.line(ColumnLine()
               .words("Breach discharge peaked at")
               .number(result.breachOutflow.hours, 15, 4)
               .words(" hours with")
               .number(result.breachOutflow.value, 13, 2)
               .words(" cfs"));
  out.line(told("Volume through the breach was", result.breachVolume / kSquareFeetPerAcre, 45, 3).words(" acre-ft"));
}

void writeBalance(const RoutingResult& result, ReportText& out) {
  out.blankLine();
  out.line("Volume balance");
  const auto volume = [&](std::string_view words, double cubicFeet) {
    out.line(told(words, cubicFeet / kSquareFeetPerAcre, 36, 4).words(" acre-ft"));
  };
  volume("  inflow", result.inflowVolume);
  volume("  outflow", result.outflowVolume);
  volume("  stored", result.storageChange);
  volume("  difference", result.inflowVolume - result.outflowVolume - result.storageChange);
  out.line(told("  difference, part of the inflow", result.balanceError(), 52, 9));
  out.line(ColumnLine().words("Steps computed").text(std::to_string(result.steps), 22));
  out.blankLine();
}

void writeHalved(const HalvedSteps& halved, ReportText& out) {
  out.line(told("Half the steps change the highest pool by", halved.poolChange, 54, 5).words(" feet"));
  out.line(told("Half the steps change the peak outflow by", halved.outflowPercent, 54, 4).words(" percent"));
  out.blankLine();
}

void writeResults(const DamResults& results, ReportText& out) {
  const DamRun& run = *results.run;
  const RoutingResult& result = *results.result;
  writeRating(run, out);
  writeStorage(run, out);
  const double crest = run.routing.outlets.crest.lowest();
  out.line(told("DAM CREST ELEVATION", crest, 30, 3));
  out.blankLine();
  writeRouting(result, out);
  if (result.overtoppingBegins) {
    const bool riprap = run.routing.erosion.slope.surface == SlopeSurface::riprap;
    riprap ? writeRiprap(result, out) : writeSlopeStress(result, out);
  }
  writePeaks(result, out);
  writeEvents(result, crest, out);
  writeBalance(result, out);
  if (results.halved) writeHalved(*results.halved, out);
  if (result.drawdown) writeDrawdown(result, out);
}

}  // namespace

std::string damReport(const DamResults& results) {
  ReportText out;
  for (const std::string_view line : kTitle) out.line(line);
  writeEcho(results, out);
  for (const std::string& message : results.messages.lines()) out.line(std::string_view(message));
  out.blankLine();
  if (results.result != nullptr) writeResults(results, out);
  if (out.overflowed()) {
    out.line("***** WARNING - figures that are too long for their columns: nines stand in their places");
  }
  out.line("End of run");
  return out.text();
}

}  // namespace kestra
