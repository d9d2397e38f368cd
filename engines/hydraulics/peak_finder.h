#pragma once

#include "hydraulics/dam_routing.h"

namespace kestra {

// Finds the greatest of values that come one after another in time.
class PeakFinder {
 public:
  void take(double hours, double value);

  // Of the parabola through the greatest value and its neighbours where it is between two, else the value itself.
  const RoutingPeak& peak() const { return peak_; }
  bool peakIsNew() const { return isNew_; }  // the value taken last is the greatest so far

 private:
  RoutingPeak before_[2];
  int taken_ = 0;
  double greatest_ = 0;
  bool isNew_ = false;
  RoutingPeak peak_;
};

}  // namespace kestra
