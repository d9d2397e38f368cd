#include "kestrasim/report_tables.h"

#include <algorithm>

#include "hydraulics/units.h"

namespace kestra {
namespace {

constexpr int kRating = 12;  // width of a field of ratings, storage and slope
constexpr int kFlow = 10;    // width of a field of the routing

// Elevations at which the ratings are told: evenly spaced, and the rows and crests between.
std::vector<double> ratingElevations(const DamRun& run) {
  constexpr int kEven = 40;
  constexpr double kApart = 1e-6;
  const DamOutlets& outlets = run.routing.outlets;
  const std::vector<double> crests = outlets.crests();
  const double low = crests.front();
  const double high = std::max({run.routing.storage.highest(), run.highestCrest, crests.back()});
  std::vector<double> elevations = crests;
  for (int i = 0; i <= kEven; ++i) elevations.push_back(low + (high - low) * i / kEven);
  for (const StructureRow& row : run.reservoir.rows) {
    if (row.elevation > low && row.elevation < high) elevations.push_back(row.elevation);
  }
  std::ranges::sort(elevations);
  const auto close = [](double a, double b) { return b - a < kApart; };
  elevations.erase(std::unique(elevations.begin(), elevations.end(), close), elevations.end());
  return elevations;
}

void addGiven(ColumnLine& line, const Number& given) {
  if (given) {
    line.number(*given, kRating, 3);
  } else {
    line.blanks(kRating);
  }
}

}  // namespace

void writeRating(const DamRun& run, ReportText& out) {
  out.line("Spillway and Overtop Discharge Rating");
  out.line(ColumnLine()
               .text("Elevation", kRating)
               .text("Principal", kRating)
               .text("Auxiliary 1", kRating)
               .text("Auxiliary 2", kRating)
               .text("Auxiliary 3", kRating)
               .text("Overtopping", kRating)
               .text("Total", kRating));
  out.line(ColumnLine().text("(ft)", kRating).text("(cfs, at low tailwater)", 6 * kRating));
  const DamOutlets& outlets = run.routing.outlets;
  const DamErosion whole(run.routing.erosion);
  for (const double elevation : ratingElevations(run)) {
    const OutletFlows flows = outlets.flowsAt(elevation, outlets.tailwaterOf(0), whole);
    ColumnLine line;
    line.number(elevation, kRating, 3).number(flows.principal, kRating, 2);
    for (const double discharge : flows.auxiliary) line.number(discharge, kRating, 2);
    out.line(line.number(flows.crest, kRating, 2).number(flows.total(), kRating, 2));
  }
  out.blankLine();
}

void writeStorage(const DamRun& run, ReportText& out) {
  const bool generated = run.reservoir.basis == StorageBasis::areas;
  out.line(generated ? "Listing of Tabular Data-Generated Volume" : "Listing of Tabular Data-Expanded Volume");
  out.line(ColumnLine()
               .text("No.", 4)
               .text("Elevation", kRating)
               .text("Principal", kRating)
               .text("Volume", kRating)
               .text("Area", kRating)
               .text("Volume", kRating)
               .text("Area", kRating));
  out.line(ColumnLine()
               .blanks(4)
               .text("(ft)", kRating)
               .text("(cfs)", kRating)
               .text("given", kRating)
               .text("given", kRating)
               .text("(acre-ft)", kRating)
               .text("(acres)", kRating));
  const StageStorage& storage = run.routing.storage;
  int number = 0;
  for (const StructureRow& row : run.reservoir.rows) {
    ColumnLine line;
    line.text(std::to_string(++number), 4).number(row.elevation, kRating, 3);
    line.number(principalDischarge(run.routing.outlets.principal, row.elevation, -1e6), kRating, 2);
    addGiven(line, row.volume);
    addGiven(line, row.area);
    line.number(storage.volume(row.elevation) / kSquareFeetPerAcre, kRating, 3);
    out.line(line.number(storage.area(row.elevation) / kSquareFeetPerAcre, kRating, 3));
  }
  out.blankLine();
}

void writeRouting(const RoutingResult& result, ReportText& out) {
  out.line("Hydrograph Routing");
  const auto heading = [&](std::initializer_list<std::string_view> words) {
    ColumnLine line;
    for (const std::string_view word : words) line.text(word, kFlow);
    out.line(line);
  };
  heading({"", "Reservoir", "Principal", "Auxiliary", "Auxiliary", "Auxiliary", "Over the", "Total", "Pool",
           "Reservoir", "Tailwater"});
  heading({"Time", "inflow", "spillway", "spillway", "spillway", "spillway", "dam", "outflow", "elevation", "surface",
           "elevation"});
  heading({"", "", "", "1", "2", "3", "", "", "", "", ""});
  heading({"(hr)", "(cfs)", "(cfs)", "(cfs)", "(cfs)", "(cfs)", "(cfs)", "(cfs)", "(ft)", "(ft)", "(ft)"});
  out.line(std::string(110, '-'));
  for (const RoutingRow& row : result.rows) {
    ColumnLine line;
    line.number(row.hours, kFlow, 4).number(row.inflow, kFlow, 2).number(row.flows.principal, kFlow, 2);
    for (const double discharge : row.flows.auxiliary) line.number(discharge, kFlow, 2);
    line.number(row.flows.overDam(), kFlow, 2).number(row.flows.total(), kFlow, 2);
    out.line(line.number(row.pool, kFlow, 3).number(row.pool, kFlow, 3).number(row.flows.tailwater, kFlow, 3));
  }
  out.blankLine();
}

void writeSlopeStress(const RoutingResult& result, ReportText& out) {
  out.line(ColumnLine().blanks(19).words("Stress on Vegetated Embankment Slope"));
  const auto heading = [&](std::initializer_list<std::string_view> words) {
    ColumnLine line;
    int field = 0;
    for (const std::string_view word : words) line.text(word, ++field == 6 ? 13 : kRating);
    out.line(line);
  };
  heading({"", "Unit", "Gross", "Gross", "Effective", "Effective", "Effective"});
  heading({"Time", "discharge", "stress", "stress", "stress", "stress*time", "stress*time"});
  heading({"(hr)", "(cfs/ft)", "(lb/ft^2)", "(% allowed)", "(lb/ft^2)", "(lb hr/ft^2)", "(% allowed)"});
  out.line(std::string(85, '-'));
  const auto write = [&](double hours, double unitDischarge, const SlopeState& slope) {
    ColumnLine line;
    line.number(hours, kRating, 4).number(unitDischarge, kRating, 3).number(slope.grossStress, kRating, 3);
    line.number(slope.grossPercent, kRating, 2).number(slope.effectiveStress, kRating, 4);
    out.line(line.number(slope.stressTime, 13, 4).number(slope.stressTimePercent, kRating, 2));
  };
  write(*result.overtoppingBegins, 0, {});
  for (const ErosionRow& row : result.erosion) write(row.timeHours, row.unitDischarge, row.slope);
  out.blankLine();
}

void writeRiprap(const RoutingResult& result, ReportText& out) {
  out.line("Flow on Riprapped Embankment Slope");
  out.line(ColumnLine().text("Time", kRating).text("Unit discharge", 18).text("Part of allowable", 20));
  out.line(ColumnLine().text("(hr)", kRating).text("(cfs/ft)", 18).text("(%)", 20));
  const auto write = [&](double hours, double unitDischarge, double percent) {
    out.line(ColumnLine().number(hours, kRating, 4).number(unitDischarge, 18, 3).number(percent, 20, 2));
  };
  // Two rows of no flow: some readers skip the first rows.
  write(*result.overtoppingBegins, 0, 0);
  write(*result.overtoppingBegins, 0, 0);
  for (const ErosionRow& row : result.erosion) write(row.timeHours, row.unitDischarge, row.slope.dischargePercent);
  out.blankLine();
}

void writeDrawdown(const RoutingResult& result, ReportText& out) {
  const DrawdownResult& drawdown = *result.drawdown;
  out.line(ColumnLine().words("Drawdown computations began at").number(drawdown.beginHours, 12, 4).words(" hours"));
  out.line(ColumnLine().words("Elevation to be drawn down to").number(drawdown.targetElevation, 13, 3).words(" feet"));
  if (drawdown.reached) {
    out.line(ColumnLine()
                 .words("Reached at")
                 .number(*drawdown.reached, 12, 4)
                 .words(" hours, which is")
                 .number(*drawdown.reached - result.pool.hours, 12, 4)
                 .words(" hours after the highest pool"));
  } else {
    out.line("Not reached in the time that is allowed");
  }
  out.blankLine();
  out.line("Drawdown  Reservoir");
  out.line(ColumnLine().text("Time", 10).text("discharge", 20).text("Elevation", 64));
  out.line(ColumnLine().text("(hr)", 10).text("(cfs)", 20).text("(ft)", 64));
  for (const RoutingRow& row : drawdown.rows) {
    out.line(ColumnLine()
                 .number(row.hours, 10, 4)
                 .blanks(10)
                 .number(row.flows.total(), 10, 2)
                 .blanks(53)
                 .number(row.pool, 11, 3));
  }
  out.blankLine();
}

}  // namespace kestra
