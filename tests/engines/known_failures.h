#pragma once

#include "engines/level_pool.h"
#include "hydraulics/breach_bounds.h"

namespace kestra {

// Dams that failed, as far as they are known: height, water, length and peak flow are documented, slopes, crest and
// inflow in part believed. Their soil is not known, so that they bound what the model may say, and prove no number of
// it.
struct KnownFailure {
  const char* name;
  double height;    // ft
  double volume;    // acre-ft at the crest
  double exponent;  // of the depth in the volume
  double length;    // ft
  double crestWidth, upstreamSlope, downstreamSlope;
  double inflow;  // cfs
  double peak;    // cfs, documented
};

inline constexpr KnownFailure kKnownFailures[] = {
    {"Oros 1960", 116, 535000, 2.5, 2100, 16, 3, 3, 50000, 340000},
    {"South Fork 1889", 72, 11500, 2, 918, 10, 2, 1.5, 8000, 300000},
    {"Castlewood 1933", 70, 5000, 2, 600, 8, 1, 1, 10000, 126000},
    {"Kelly Barnes 1977", 40, 630, 2, 400, 20, 2, 1.5, 500, 24000},
    {"Lawn Lake 1982", 26, 674, 1.5, 500, 8, 1.5, 1.5, 300, 18000},
    {"Teton 1976", 275, 250000, 3, 3100, 35, 3, 2.5, 1000, 2.3e6},
};

// From a clay compacted at its optimum to a silty sand compacted dry of it, (ft/h)/(lb/ft^2).
inline constexpr double kToughest = 0.06;
inline constexpr double kMiddling = 2;
inline constexpr double kWeakest = 20;

inline constexpr HeadcutModel kHeadcutModels[] = {HeadcutModel::energy, HeadcutModel::stress};

inline DamErosionInput damOf(const KnownFailure& failure, HeadcutModel model, double erodibility) {
  DamErosionInput dam;
  dam.section = {failure.height, 0,           failure.upstreamSlope, failure.crestWidth, failure.downstreamSlope,
                 failure.length, std::nullopt};
  dam.slope.surface = SlopeSurface::bare;
  dam.slope.cover.roughness = 0.025;
  dam.soil.model = model;
  dam.soil.erodibility = erodibility;
  dam.soil.advanceCoefficient = advanceFromErodibility(erodibility);
  dam.soil.bank = {120, 1000};
  return dam;
}

// A foot of water over the crest to begin with.
inline LevelPool poolOf(const KnownFailure& failure) {
  LevelPool pool;
  pool.volume = failure.volume;
  pool.exponent = failure.exponent;
  pool.pool = failure.height + 1;
  pool.hours = 100;
  const double inflow = failure.inflow;
  pool.inflow = [inflow](double) { return inflow; };
  return pool;
}

inline PoolOutcome failed(const KnownFailure& failure, HeadcutModel model, double erodibility) {
  return PoolRun(poolOf(failure), damOf(failure, model, erodibility)).run();
}

inline BreachedDam breachedDam(const KnownFailure& failure) {
  const double slopes = (failure.upstreamSlope + failure.downstreamSlope) / 2;
  return {failure.height, failure.volume, failure.height * (failure.crestWidth + failure.height * slopes),
          failure.length};
}

}  // namespace kestra
