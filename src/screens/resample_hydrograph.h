#pragma once

#include <vector>

namespace kestra {

// Points of a hydrograph: times in hours, discharges in cfs. Both of one length.
struct HydrographPoints {
  std::vector<double> times;
  std::vector<double> flows;
};

// A hydrograph at constant steps: discharge i (from 0) belongs to the first time + i steps.
struct ResampledHydrograph {
  double step = 0;  // hours; not the wanted one where that was too small
  std::vector<double> flows;
};

// Linear resampling to a constant step. A step below 0.0009 h counts as 0.0009; where more than 17000 points would be
// needed the step becomes a 16999th of the duration. A last step of at least 0.49 of a step gets its point too, on the
// line of the last two points. Points closer than 1e-06 h count as one; negative discharges become 0. No points give no
// points. RuntimeFault (overflow) when the step asks for more than 32767 points, or a value is not finite.
ResampledHydrograph resampleHydrograph(double step, const HydrographPoints& points);

}  // namespace kestra
