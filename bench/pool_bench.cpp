// Level-pool routing: the bare loop of 5,000 steps of one minute, beside the storage-indication loop that a user would
// write for a fixed step, and whole runs of the dam engine from text to text. The same loops in Python are in
// pool_peer.py.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/numbers.h"
#include "hydraulics/linear_table.h"
#include "hydraulics/pool_step.h"
#include "kestrasim/dam_engine.h"

namespace kestra {
namespace {

constexpr int kSteps = 5000;
constexpr int kRows = 64;
constexpr double kSeconds = 60;
constexpr double kSquareFeet = 43560;

std::vector<double> inflows() {
  std::vector<double> flows;
  for (int i = 0; i < kSteps; ++i) flows.push_back(120 * std::exp(-std::pow((i - 1500) / 500.0, 2)));
  return flows;
}

double volumeAt(int row) {
  const double head = row * 0.25;
  return 20000 * head * (1 + 0.05 * head);
}

double outflowAt(int row) {
  return 12 * std::pow(row * 0.25, 1.5);
}

// 2 S/dt + O by O at the rows, walked by an index that follows the water.
void indicationLoop(benchmark::State& state) {
  std::array<double, kRows> indication{};
  std::array<double, kRows> outflow{};
  for (int i = 0; i < kRows; ++i) {
    outflow[i] = outflowAt(i);
    indication[i] = 2 * volumeAt(i) / kSeconds + outflow[i];
  }
  const std::vector<double> inflow = inflows();
  std::vector<double> routed(kSteps);
  double peak = 0;
  for (auto unused : state) {
    double x = 0;
    std::size_t k = 0;
    peak = 0;
    for (std::size_t i = 1; i < kSteps; ++i) {
      x += inflow[i - 1] + inflow[i];
      while (k < kRows - 2 && x > indication[k + 1]) ++k;
      while (k > 0 && x < indication[k]) --k;
      const double o =
          outflow[k] + (outflow[k + 1] - outflow[k]) * (x - indication[k]) / (indication[k + 1] - indication[k]);
      routed[i] = o;
      x -= 2 * o;
      peak = std::max(peak, o);
    }
    benchmark::DoNotOptimize(routed.data());
  }
  state.counters["peak_cfs"] = peak;
}

// The step of the engine, which takes any storage, any outflow and any length of step.
void poolSteps(benchmark::State& state) {
  std::vector<StorageRow> rows;
  std::vector<double> heads;
  std::vector<double> discharges;
  for (int i = 0; i < kRows; ++i) {
    rows.push_back({i * 0.25, volumeAt(i) / kSquareFeet, 0});
    heads.push_back(i * 0.25);
    discharges.push_back(outflowAt(i));
  }
  const StageStorage storage(rows, StorageBasis::volumes);
  const LinearTable rating(heads, discharges);
  const auto outflow = [&](double pool) { return rating.at(pool); };
  const std::vector<double> inflow = inflows();
  double peak = 0;
  for (auto unused : state) {
    double pool = 0;
    double before = 0;
    peak = 0;
    for (std::size_t i = 1; i < kSteps; ++i) {
      const double wanted = inflow[i - 1] + inflow[i] - before + 2 * storage.volume(pool) / kSeconds;
      pool = solvePool(storage, outflow, wanted, kSeconds, pool);
      before = outflow(pool);
      peak = std::max(peak, before);
    }
    benchmark::DoNotOptimize(pool);
  }
  state.counters["peak_cfs"] = peak;
}

std::string damText(int points, double hours, bool breach) {
  std::string text =
      breach ? "OPTION    COEFF     EARTH     \r\nHCMODEL   1                   8                   0         16\r\n"
             : "OPTION    COEFF     EARTH               NOBREACH\r\n";
  text.insert(0, "KESTRA    01/01/2009Bench\r\n");
  text += "HYD       Flood     " + PadField(decimalNumber(hours / points, 8), 10) + "0         0C        \r\n";
  for (int i = 0; i < points; ++i) {
    if (i % 5 == 0) text += std::string(i == 0 ? "" : "\r\n") + std::string(20, ' ');
    const double flow = 4000 * std::exp(-std::pow((i - 0.3 * points) / (0.1 * points), 2));
    text += PadField(decimalNumber(flow, 6), 10);
  }
  return text +
         "\r\nENDTABLE\r\nSTROUTE   118       100       FEET\r\nSTRUCTURE Bench\r\n"
         "                    100                 0         0\r\n                    110                 20        "
         "4\r\n"
         "                    120                 80        8\r\n                    130                 190       "
         "14\r\n"
         "ENDTABLE\r\nUPSTREAM  3         5.6\r\nDAMCREST  12        5.6       2.8\r\n"
         "DWNSTREAM 2.5       5.6       0.75      3         0         0.01\r\nCRESTPRFL\r\n"
         "          0         127\r\n          50        125\r\n          250       125\r\n          300       127\r\n"
         "ENDTABLE\r\nPSpINLET  0.8       10        118\r\n"
         "PSpDATA   1    150  24                  0.013     104       101       SC\r\n"
         "PSpCOEFFS 0.6       3.1416                        3.1       0\r\nTAILWATER\r\n"
         "          100       0\r\n          103       500\r\n          108       5000\r\nENDTABLE\r\n"
         "ASRATING  1Bywash   0\r\n          122       0\r\n          124       200\r\n          128       "
         "900\r\nENDTABLE\r\n"
         "OUTPUT    ALL\r\nENDRUN\r\n";
}

void wholeRun(benchmark::State& state) {
  const std::string text = damText(static_cast<int>(state.range(0)), 10, state.range(1) != 0);
  for (auto unused : state) benchmark::DoNotOptimize(runDam(text));
  state.counters["runs"] = benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

BENCHMARK(indicationLoop)->Unit(benchmark::kMicrosecond);
BENCHMARK(poolSteps)->Unit(benchmark::kMicrosecond);
BENCHMARK(wholeRun)
    ->ArgNames({"points", "breach"})
    ->ArgsProduct({{100, 5000}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->ThreadRange(1, 2)
    ->UseRealTime();

}  // namespace
}  // namespace kestra
