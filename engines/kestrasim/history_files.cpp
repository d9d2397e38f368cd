#include "kestrasim/history_files.h"

#include <initializer_list>
#include <string_view>

#include "kestrasim/report_text.h"

namespace kestra {
namespace {

// A field of twelve whose figure keeps to its last `figure` columns.
ColumnLine& within(ColumnLine& line, double value, int figure, int decimals) {
  return line.blanks(11 - figure).number(value, figure + 1, decimals);
}

void writeBreachRow(double hours, const BreachRow& row, ReportText& out) {
  ColumnLine line;
  line.number(hours, 10, 4).blanks(2).number(row.discharge, 12, 2).number(row.sill, 12, 3);
  line.number(row.baseStress, 12, 4);
  within(line, row.width, 10, 2);
  out.line(line.number(row.unitDischarge, 12, 3));
}

void writeHeadcutRow(double hours, const HeadcutRow& row, ReportText& out) {
  ColumnLine line;
  line.number(hours, 10, 4).blanks(2).number(row.brink, 12, 3);
  within(line, row.station, 6, 1);
  within(line, row.base, 8, 3);
  out.line(line.number(row.height, 12, 3).number(row.width, 12, 2));
}

void heading(std::string_view time, std::initializer_list<std::string_view> words, ReportText& out) {
  ColumnLine line;
  line.text(time, 10).blanks(2);
  for (const std::string_view word : words) line.text(word, 12);
  out.line(line);
}

}  // namespace

std::string breachHistory(const RoutingResult& result, double crest) {
  ReportText out;
  heading("Time", {"Discharge", "Sill", "Base stress", "Width", "Unit flow"}, out);
  heading("(hr)", {"(cfs)", "(ft)", "(lb/ft^2)", "(ft)", "(cfs/ft)"}, out);
  BreachRow start;
  start.sill = crest;
  for (int i = 0; i < 3; ++i) writeBreachRow(result.overtoppingBegins.value_or(0), start, out);
  for (const ErosionRow& row : result.erosion) writeBreachRow(row.timeHours, row.breach, out);
  return out.text();
}

std::string headcutHistory(const RoutingResult& result) {
  ReportText out;
  heading("Time", {"Brink", "Station", "Base", "Height", "Width"}, out);
  heading("(hr)", {"(ft)", "(ft)", "(ft)", "(ft)", "(ft)"}, out);
  for (const ErosionRow& row : result.erosion) {
    if (row.headcut) writeHeadcutRow(row.timeHours, *row.headcut, out);
  }
  return out.text();
}

}  // namespace kestra
