#pragma once

#include <vector>

#include "hydraulics/unit_discharge.h"

namespace kestra {

struct CrestPoint {
  double station = 0;    // ft along the crest
  double elevation = 0;  // ft
};

// Part of the crest, from station to station.
struct CrestGap {
  double from = 0;
  double to = 0;
};

// Flow over the crest of a dam. Between two points the crest is straight, and the unit discharge is integrated over it:
// for q = C h^1.5 this is C dL 2/5 (h2^2.5 - h1^2.5) / (h2 - h1).
class CrestOverflow {
 public:
  CrestOverflow() = default;
  CrestOverflow(std::vector<CrestPoint> points, UnitDischarge unit);  // two points at least, stations not falling

  // cfs over the crest but for the gap. Where the tailwater is above a part of the crest, that part's flow is reduced
  // by submergenceFactor.
  double discharge(double pool, double tailwater, const CrestGap& gap) const;

  double unitDischarge(double pool) const { return unit_.at(pool - lowest_); }  // cfs/ft at the lowest point
  double lowest() const { return lowest_; }                                     // elevation, ft
  double length() const { return points_.empty() ? 0 : points_.back().station - points_.front().station; }

  // The part of that width around the lowest point, moved along where it would reach beyond the end of the dam.
  CrestGap gapOfWidth(double width) const;

 private:
  double pieceDischarge(const CrestPoint& a, const CrestPoint& b, double pool, double tailwater) const;

  std::vector<CrestPoint> points_;
  UnitDischarge unit_;
  double lowest_ = 0;
  double lowestStation_ = 0;  // middle of the lowest part
};

}  // namespace kestra
