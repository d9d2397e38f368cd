#include "run/dam_solver.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/lines.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "platform/files.h"
#include "results/dam_digest.h"
#include "results/result_files.h"
#include "results/routing_table.h"
#include "run/dam_records.h"
#include "run/file_steps.h"
#include "run/hydrograph_table.h"
#include "screens/hydrograph_block.h"

namespace kestra {
namespace {

constexpr int kMostAttempts = 10;
constexpr double kSettled = 0.01;           // change of the peak pool, of its head over the lowest crest
constexpr double kNoHead = 0.001;           // ft
constexpr double kFirstMoment = 100.0;      // hours, of a drawdown
constexpr std::size_t kPrincipalCrest = 1;  // of the digest, from 0; the auxiliary spillways' follow
constexpr std::array<const char*, 3> kResults = {".OUT", ".BRE", ".HCT"};

// The crest over which water leaves first: the principal spillway's, or that of an auxiliary one below it, ft.
double lowestCrest(const DigestFields& fields) {
  const std::string_view principal = trim(fields[kPrincipalCrest]);
  if (principal.empty()) return 0;
  double lowest = lenientNumber(principal);
  for (std::size_t i = kPrincipalCrest + 1; i <= kPrincipalCrest + kSpillways; ++i) {
    const std::string_view crest = trim(fields[i]);
    if (!crest.empty() && crest != kNotAvailable) lowest = std::min(lowest, lenientNumber(crest));
  }
  return lowest;
}

// The pool elevation by which attempts are compared, ft: the highest one, or with a drawdown the one at the moment that
// the attempt before was measured at.
class PoolMeasure {
 public:
  explicit PoolMeasure(bool drawdown) : drawdown_(drawdown) {}

  double take(std::string_view output) {
    if (!drawdown_) peak_ = 0;
    LineReader lines(output);
    if (!enterTable(lines)) return peak_;
    for (OutputLine row; nextTableRow(lines, row);) {
      const double pool = lenientNumber(row.columns(kRoutingPool, kRoutingWidth));
      if (!drawdown_) {
        peak_ = std::max(peak_, pool);
        continue;
      }
      const double time = lenientNumber(row.columns(kRoutingTime, kRoutingWidth));
      if (time < moment_) continue;
      moment_ = time;
      peak_ = pool;
      break;
    }
    return peak_;
  }

 private:
  static bool enterTable(LineReader& lines) {
    for (std::string_view line; lines.next(line);) {
      if (isRoutingTitle(line)) return enterRoutingTable(lines);
    }
    return false;
  }

  bool drawdown_;
  double moment_ = kFirstMoment;
  double peak_ = 0;
};

bool hasSettled(double peak, double before, double crest) {
  const double head = peak - crest;
  if (head <= kNoHead || peak <= kNoHead) return true;
  return std::fabs(peak - before) / head < kSettled;
}

class DamRun {
 public:
  DamRun(RunContext& context, std::string filePath)
      : context_(context), filePath_(std::move(filePath)), base_(withoutExtension(filePath_)) {}

  void run(bool showProgress) {
    records_ = readDamRecords(readText(files(), filePath_));
    if (showProgress) showStep(context_, 2, std::string(ParsePathName(filePath_)));
    if (records_.iterate) return iterate();
    if (!records_.variableStep) return solve(filePath_);
    const ResampledHydrograph hydrograph = resampleForRun(step(), points());
    const bool isTable = hydrograph.flows.size() > 1;
    writeData(base_, isTable ? hydrographTable(records_.hydRecord(), hydrograph)
                             : std::string(records_.hydRecord()) + "\r\nENDTABLE\r\n");
    solve(base_ + ".V2D");
  }

 private:
  FileSystem& files() { return context_.ports.files; }
  double step() const { return hydrographStep(records_.hydRecord()); }
  HydrographPoints points() const { return ParseHydrographText(records_.hydText); }
  void solve(const std::string& file) { context_.programs.run(kDamSolver, file); }
  void writeData(const std::string& base, const std::string& table) {
    writeText(files(), base + ".V2D", records_.beforeHyd + table + records_.afterHydText);
  }

  void iterate() {
    const HydrographPoints given = points();
    PoolMeasure measure(records_.drawdown);
    double before = 0;
    double divisor = 1;
    for (int attempt = 1; attempt <= kMostAttempts; ++attempt, divisor *= 2) {
      const ResampledHydrograph hydrograph = resampleForRun(step() / divisor, given);
      const std::string base = attemptBase(hydrograph.flows.size());
      const double peak = measure.take(outputOf(base, hydrograph));
      if (hasSettled(peak, before, lowestCrest(context_.tables.digestFields))) return accept(base);
      before = peak;
    }
    context_.ports.boxes.tell("Kestra B", "Failed to converge.", BoxIcon::none);
  }

  // Another control file may have the very name that an attempt would take.
  std::string attemptBase(std::size_t points) {
    std::string base = base_ + std::to_string(points);
    while (findFile(files(), base + ".KSC")) base += '~';
    return base;
  }

  // Runs an attempt and reads its output; what an earlier build has left under its names must not be taken for it.
  std::string outputOf(const std::string& base, const ResampledHydrograph& hydrograph) {
    for (const char* extension : kResults) removeFound(files(), base + extension);
    removeFound(files(), base + ".DIS");
    writeData(base, hydrographTable(records_.hydRecord(), hydrograph));
    solve(base + ".V2D");
    (void)ParseDamOutput(files(), base + ".V2D", context_.tables.digestFields);
    return readText(files(), presentPath(files(), base + ".OUT"), kResultLimit);
  }

  void accept(const std::string& base) {
    for (const char* extension : kResults) {
      if (const auto result = findFile(files(), base + extension)) copyFile(files(), *result, base_ + extension);
    }
  }

  RunContext& context_;
  std::string filePath_;
  std::string base_;
  DamRecords records_;
};

}  // namespace

void RunDamSolver(RunContext& context, const std::string& filePath, bool showProgress) try {
  const std::string path = absolutePath(filePath, context.ports.files.currentDirectory());
  const RunLog log(context.programs, withoutExtension(path) + ".log");
  DamRun(context, path).run(showProgress);
} catch (const RuntimeFault& fault) {
  context.ports.boxes.tell("Error", std::string("Computation Error: ") + fault.what(), BoxIcon::critical);
}

}  // namespace kestra
