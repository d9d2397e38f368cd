#include "hydraulics/pool_step.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "engines/close_to.h"
#include "hydraulics/closed_conduit.h"
#include "hydraulics/linear_table.h"

namespace kestra {
namespace {

// Vertical walls of that area, acres, far up.
StageStorage basin(double acres) {
  const std::vector<StorageRow> rows{{0, 0, acres}, {1000, 0, acres}};
  return {rows, StorageBasis::areas};
}

// The pool after each of `steps` equal steps.
template <class Outflow, class Inflow>
std::vector<double> route(const StageStorage& storage, const Outflow& outflow, const Inflow& inflow, double start,
                          double seconds, int steps) {
  std::vector<double> pools{start};
  for (int i = 1; i <= steps; ++i) {
    const double z = pools.back();
    const double wanted =
        inflow((i - 1) * seconds) + inflow(i * seconds) + 2 * storage.volume(z) / seconds - outflow(z);
    pools.push_back(solvePool(storage, outflow, wanted, seconds, z));
  }
  return pools;
}

const LinearTable& detentionOutflow() {
  static const LinearTable kTable(
      {0, 0.5, 1, 1.5, 2, 2.5, 3, 3.5, 4, 4.5, 5, 5.5, 6, 6.5, 7, 7.5, 8, 8.5, 9, 9.5, 10},
      {0, 3, 8, 17, 30, 43, 60, 78, 97, 117, 137, 156, 173, 190, 205, 218, 231, 242, 253, 264, 275});
  return kTable;
}

double detentionInflow(double seconds) {
  static const LinearTable kInflow({0, 3600, 9000}, {0, 360, 0});
  return kInflow.at(seconds);
}

struct BasinRow {
  int minutes;
  double outflow;
  double depth;
};

// Chow, Maidment and Mays 1988, Applied Hydrology, example 8.2.2: a detention basin of one acre, steps of ten minutes.
TEST(DetentionBasin, isRoutedAsInTheTextbook) {
  const auto outflow = [](double z) { return detentionOutflow().at(z); };
  const std::vector<double> pools = route(basin(1), outflow, detentionInflow, 0, 600, 21);
  const BasinRow rows[] = {{10, 2.4, 0.40},    {20, 17.1, 1.50},   {30, 61.1, 3.03},   {40, 123.2, 4.65},
                           {50, 182.2, 6.27},  {60, 230.3, 7.97},  {70, 259.3, 9.29},  {80, 270.0, 9.77},
                           {90, 267.4, 9.65},  {100, 254.9, 9.09}, {110, 235.2, 8.19}, {120, 206.9, 7.07},
                           {130, 168.5, 5.87}, {140, 124.1, 4.68}, {150, 79.8, 3.55},  {160, 48.6, 2.66},
                           {170, 32.7, 2.10},  {180, 22.8, 1.72},  {190, 16.2, 1.45},  {200, 12.6, 1.26},
                           {210, 9.8, 1.10}};
  for (const BasinRow& row : rows) {
    const double pool = pools.at(row.minutes / 10);
    EXPECT_NEAR(outflow(pool), row.outflow, 0.051) << row.minutes;
    EXPECT_NEAR(pool, row.depth, 0.0051) << row.minutes;
  }
}

struct ConvergenceRow {
  double minutes;
  double outflow;
  double depth;
  double peakMinutes;
};

class DetentionBasinSteps : public testing::TestWithParam<ConvergenceRow> {};

TEST_P(DetentionBasinSteps, convergeAsTheyAreHalved) {
  const ConvergenceRow& row = GetParam();
  const auto outflow = [](double z) { return detentionOutflow().at(z); };
  const int steps = static_cast<int>(210 / row.minutes);
  const std::vector<double> pools = route(basin(1), outflow, detentionInflow, 0, row.minutes * 60, steps);
  const auto top = std::max_element(pools.begin(), pools.end());
  EXPECT_NEAR(outflow(*top), row.outflow, 0.001);
  EXPECT_NEAR(*top, row.depth, 0.0001);
  EXPECT_DOUBLE_EQ(static_cast<double>(top - pools.begin()) * row.minutes, row.peakMinutes);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, DetentionBasinSteps,
    testing::Values(ConvergenceRow{10, 269.999, 9.7727, 80}, ConvergenceRow{5, 269.508, 9.7503, 85},
                    ConvergenceRow{2.5, 269.724, 9.7602, 82.5}, ConvergenceRow{1.25, 269.692, 9.7587, 82.5},
                    ConvergenceRow{0.625, 269.683, 9.7583, 82.5}, ConvergenceRow{0.3125, 269.681, 9.7582, 82.5}));

// A published worked example of the San Diego State University: K = 2 h, steps of 1 h.
TEST(LinearReservoir, isRoutedAsInThePublishedExample) {
  const double inflows[] = {100, 150, 250, 400, 800, 1000, 900, 700, 550, 400, 300, 250, 200, 150, 120, 100};
  const double outflows[] = {100,     110,     146,     217.6,   370.56,  582.336, 729.402, 757.641, 704.585,
                             612.751, 507.65,  414.59,  338.754, 273.252, 217.951, 174.771, 144.863, 126.918,
                             116.151, 109.690, 105.814, 103.489, 102.093, 101.256, 100.754, 100.452};
  const StageStorage storage = basin(1);
  const auto outflow = [&](double z) { return storage.volume(z) / 7200; };
  const auto inflow = [&](double seconds) {
    const auto i = static_cast<std::size_t>(seconds / 3600 + 0.5);
    return i < std::size(inflows) ? inflows[i] : 100.0;
  };
  const std::vector<double> pools =
      route(storage, outflow, inflow, storage.elevationOf(100 * 7200), 3600, std::size(outflows) - 1);
  for (std::size_t i = 0; i < std::size(outflows); ++i) EXPECT_NEAR(outflow(pools[i]), outflows[i], 0.001) << i;
}

TEST(LinearReservoir, fillsAsTheExponential) {
  const StageStorage storage = basin(1);
  const auto outflow = [&](double z) { return storage.volume(z) / 7200; };
  const auto pools = route(
      storage, outflow, [](double) { return 100.0; }, 0, 36, 800);
  const double expected[] = {39.3469, 63.2121, 86.4665, 98.1684};
  const int hours[] = {1, 2, 4, 8};
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(isClose(outflow(pools[hours[i] * 100]), expected[i], 1e-4));
}

TEST(Weir, drawsAnAcreDownAsTheClosedForm) {
  const StageStorage storage = basin(1);
  const auto outflow = [](double h) { return weirDischarge(3.1, 20, h); };
  EXPECT_NEAR(outflow(4), 496.0, 0.05);
  const auto pools = route(
      storage, outflow, [](double) { return 0.0; }, 4, 1, 3600);
  const int seconds[] = {60, 300, 600, 1800, 3600};
  const double heads[] = {3.3953, 1.9643, 1.1637, 0.3153, 0.1067};
  const double discharges[] = {387.894, 170.692, 77.832, 10.975, 2.160};
  for (int i = 0; i < 5; ++i) {
    EXPECT_TRUE(isClose(pools[seconds[i]], heads[i], 0.001));
    EXPECT_TRUE(isClose(outflow(pools[seconds[i]]), discharges[i], 0.001));
  }
}

TEST(Orifice, emptiesAnAcreInTheTimeOfTheClosedForm) {
  constexpr double kSeconds = 69140.2;
  const StageStorage storage = basin(1);
  const auto outflow = [](double h) { return orificeDischarge(0.6, circularSection(12).area, h); };
  EXPECT_TRUE(isClose(outflow(9), 11.3404));
  const auto pools = route(
      storage, outflow, [](double) { return 0.0; }, 9, kSeconds / 4000, 4010);
  const double shares[] = {0.25, 0.5, 0.75, 0.9};
  const double heads[] = {5.0625, 2.25, 0.5625, 0.09};
  const double discharges[] = {8.5053, 5.6702, 2.8351, 1.1340};
  for (int i = 0; i < 4; ++i) {
    const double pool = pools[static_cast<std::size_t>(shares[i] * 4000 + 0.5)];
    EXPECT_TRUE(isClose(pool, heads[i]));
    EXPECT_TRUE(isClose(outflow(pool), discharges[i]));
  }
  EXPECT_LT(pools[4010], 1e-4);
}

TEST(SolvePool, staysAtTheFloorOfAReservoirThatHasRunDry) {
  const StageStorage storage = basin(1);
  const auto outflow = [](double) { return 50.0; };
  EXPECT_EQ(solvePool(storage, outflow, 10.0, 60, 0.5), 0);
}

TEST(SolvePool, findsItsWayAcrossAReservoirWithoutAreaAtItsFloor) {
  const std::vector<StorageRow> rows{{0, 0, 0}, {10, 0, 5}};
  const StageStorage storage(rows, StorageBasis::areas);
  const auto none = [](double) { return 0.0; };
  const double pool = solvePool(storage, none, 2 * storage.volume(3) / 60, 60, 0);
  EXPECT_NEAR(pool, 3, 1e-8);
}

}  // namespace
}  // namespace kestra
