#include "run/spillway_inflow.h"

#include "base/fields.h"
#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "results/result_files.h"
#include "results/round_to.h"
#include "results/routing_table.h"
#include "results/run_tables.h"
#include "run/file_steps.h"

namespace kestra {
namespace {

constexpr std::size_t kMostRows = 5000;
constexpr std::size_t kFlowsInRow = 5;
constexpr int kStepDecimals = 3;
constexpr const char* kHeader = "HYD       9                   C";

struct Inflow {
  double firstTime = 0;  // hours
  double lastTime = 0;
  std::string start;  // the first time as it is printed
  std::size_t count = 0;
  std::string rows;
};

bool findRoutingTable(LineReader& lines) {
  for (std::string_view line; lines.next(line);) {
    if (isRoutingTitle(line)) return enterRoutingTable(lines);
  }
  return false;
}

// A discharge that is not printed counts as none, so that those behind keep their times.
std::string discharge(const OutputLine& row, int column) {
  const std::string_view field = row.columns(column, kRoutingWidth);
  return trim(field).empty() ? PadField("0", kRoutingWidth) : PadField(field, kRoutingWidth);
}

Inflow readInflow(std::string_view output, int column) {
  Inflow inflow;
  LineReader lines(output);
  if (!findRoutingTable(lines)) return inflow;
  for (OutputLine row; inflow.count < kMostRows && nextTableRow(lines, row); ++inflow.count) {
    const std::string_view time = trim(row.columns(kRoutingTime, kRoutingWidth));
    inflow.lastTime = lenientNumber(time);
    if (inflow.count == 0) {
      inflow.start = time;
      inflow.firstTime = inflow.lastTime;
    }
    if (inflow.count % kFlowsInRow == 0) inflow.rows.append(kCrLf).append(2 * kRoutingWidth, ' ');
    inflow.rows += discharge(row, column);
  }
  return inflow;
}

}  // namespace

std::string damOutputOf(const std::string& damFile) {
  return withoutExtension(damFile) + ".OUT";
}

std::string ExtractSpillwayInflow(FileSystem& files, const std::string& damFile, int hydrographColumn) {
  if (hydrographColumn < 1 || hydrographColumn > static_cast<int>(kSpillways)) {
    throw RuntimeFault("There is no auxiliary spillway " + std::to_string(hydrographColumn) + ".");
  }
  const std::string path = presentPath(files, damOutputOf(damFile));
  const Inflow inflow = readInflow(readText(files, path, kResultLimit), routingSpillway(hydrographColumn));
  if (inflow.count < 2) throw RuntimeFault(path + ": The routing table has fewer than two rows.");
  const double step = (inflow.lastTime - inflow.firstTime) / static_cast<double>(inflow.count - 1);
  std::string text(kHeader);
  text.append(kCrLf).append(2 * kRoutingWidth, ' ');
  text += PadField(RoundTo(step, kStepDecimals), kRoutingWidth) + PadField(inflow.start, kRoutingWidth);
  return text + inflow.rows + std::string(kCrLf) + "ENDTABLE" + std::string(kCrLf);
}

}  // namespace kestra
