#pragma once

#include "hydraulics/dam_routing.h"

namespace kestra {

// Finds the greatest of values that come one after another in time.
class PeakFinder {
 public:
  void take(double hours, double value);

  // Of the parabola through the greatest value and its neighbours where it is between two, else the value itself.
  const RoutingPeak& peak() const { return peak_; }
  double greatest() const { return greatest_; }
  bool peakIsNew() const { return isNew_; }  // the value taken last is the greatest so far

 private:
  RoutingPeak before_[2];
  int taken_ = 0;
  double greatest_ = 0;
  bool isNew_ = false;
  RoutingPeak peak_;
};

// The same for a level whose rate of change is known too, so that a kink of it between two moments of different length
// does no harm.
class LevelPeakFinder {
 public:
  void take(double hours, double level, double rate);  // a rate in ft/h

  // Of the cubic through the two moments between which the level ceased to rise, else the highest level itself.
  const RoutingPeak& peak() const { return peak_; }

 private:
  RoutingPeak peak_;
  RoutingPeak before_;
  double rateBefore_ = 0;
  bool any_ = false;
};

}  // namespace kestra
