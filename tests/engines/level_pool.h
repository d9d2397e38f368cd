#pragma once

#include <algorithm>
#include <cmath>
#include <functional>

#include "hydraulics/dam_erosion.h"

namespace kestra {

// A reservoir whose volume grows with a power of its depth, behind a level crest: the plainest water for an erosion.
struct LevelPool {
  double volume = 1000;  // acre-ft, at the crest
  double exponent = 2;   // of the depth in the volume
  double crestCoefficient = 2.9;
  double pool = 0;           // elevation at the start, ft
  double tailwater = -1000;  // elevation
  double hours = 24;
  double longestStep = 0.05;                                          // h
  double shareOfSuggested = 1;                                        // of the step that the erosion suggests
  std::function<double(double)> inflow = [](double) { return 0.0; };  // cfs by hours
};

struct PoolOutcome {
  ErosionEvents events;
  ErosionRow last;
  double peakBreachFlow = 0;  // cfs
  double peakOutflow = 0;     // cfs, breach and crest
  double peakTime = 0;        // h, of the breach flow
  double highestPool = 0;
  double volumeError = 0;  // of the volume that came in or was there
  double released = 0;     // acre-ft, from when the breach was initiated
  int steps = 0;
  bool finished = false;
};

class PoolRun {
 public:
  PoolRun(const LevelPool& pool, const DamErosionInput& dam) : water_(pool), dam_(dam), erosion_(dam) {}

  // Calls `seen` after every step.
  PoolOutcome run(const std::function<void(const DamErosion&)>& seen = [](const DamErosion&) {}) {
    PoolOutcome out;
    double pool = water_.pool;
    const double start = storage(pool);
    double came = 0;
    double left = 0;
    double time = 0;
    out.highestPool = pool;
    while (time < water_.hours && out.steps < 200000) {
      const double dt =
          std::min({erosion_.suggestedStepHours() * water_.shareOfSuggested, water_.longestStep, water_.hours - time});
      const double inflow = (water_.inflow(time) + water_.inflow(time + dt)) / 2;
      const double next = levelAfter(pool, inflow, dt);
      const double outflow = (discharge(pool) + discharge(next)) / 2;
      came += inflow * dt * 3600 / 43560;
      left += outflow * dt * 3600 / 43560;
      if (erosion_.events().breachInitiated) out.released += outflow * dt * 3600 / 43560;
      const double mean = (pool + next) / 2;
      const double head = std::max(0.0, mean - dam_.section.crestElevation);
      erosion_.advance({time, dt, mean, water_.tailwater, head, unitDischarge(mean)});
      time = water_.hours - time > dt ? time + dt : water_.hours;
      pool = next;
      note(out, pool, time);
      seen(erosion_);
    }
    out.events = erosion_.events();
    out.last = erosion_.row();
    out.finished = erosion_.finished();
    out.volumeError = std::abs(start + came - left - storage(pool)) / (start + came);
    return out;
  }

 private:
  double storage(double level) const {
    const double height = dam_.section.crestElevation - dam_.section.baseElevation;
    return water_.volume * std::pow(std::max(0.0, level - dam_.section.baseElevation) / height, water_.exponent);
  }
  double unitDischarge(double level) const {
    const double head = std::max(0.0, level - dam_.section.crestElevation);
    return water_.crestCoefficient * head * std::sqrt(head);
  }
  double discharge(double level) const {
    const double crest = dam_.section.crestLength - erosion_.breachWidth();
    return unitDischarge(level) * crest + erosion_.breachDischarge(level, water_.tailwater);
  }
  // By the trapezoidal rule, the breach as it stands.
  double levelAfter(double level, double inflow, double hours) const {
    const double scale = hours * 3600 / 43560;
    const double known = storage(level) + scale * (inflow - discharge(level) / 2);
    double low = dam_.section.baseElevation;
    double high = dam_.section.crestElevation + 200;
    for (int i = 0; i < 60; ++i) {
      const double middle = (low + high) / 2;
      (storage(middle) + scale * discharge(middle) / 2 < known ? low : high) = middle;
    }
    return (low + high) / 2;
  }
  void note(PoolOutcome& out, double level, double time) const {
    ++out.steps;
    out.highestPool = std::max(out.highestPool, level);
    out.peakOutflow = std::max(out.peakOutflow, discharge(level));
    const double breach = erosion_.breachDischarge(level, water_.tailwater);
    if (breach <= out.peakBreachFlow) return;
    out.peakBreachFlow = breach;
    out.peakTime = time;
  }

  LevelPool water_;
  DamErosionInput dam_;
  DamErosion erosion_;
};

}  // namespace kestra
