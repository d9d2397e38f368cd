#include "hydraulics/earth_spillway.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "hydraulics/roots.h"

namespace kestra {
namespace {

constexpr double kSameElevation = 0.005;  // ft
constexpr double kLongestStep = 10.0;     // ft
constexpr double kFirstStep = 0.02;       // ft, from a control, where the surface falls steeply
constexpr double kStepGrowth = 1.4;
constexpr int kMostSteps = 40;  // in one stretch between two points

// State of the flow at a station on the way upstream.
struct Section {
  double depth = 0;
  double energy = 0;    // level, ft
  double friction = 0;  // slope
};

class Upstream {
 public:
  Upstream(const EarthSpillway& spillway, double discharge)
      : spillway_(spillway), discharge_(discharge), critical_(criticalDepth(spillway.section, discharge)) {}

  double critical() const { return critical_; }

  double slopeBelow(std::size_t i) const {
    const auto& p = spillway_.profile;
    return (p[i].elevation - p[i + 1].elevation) / (p[i + 1].station - p[i].station);
  }

  // Depth of uniform flow from point i to the next, or 0 where that stretch does not fall.
  double normalBelow(std::size_t i) const {
    const double slope = slopeBelow(i);
    return slope > 0 ? normalDepth(spillway_.section, discharge_, slope, roughnessBelow(i)) : 0.0;
  }

  // Whether the stretch below point i drowns what is above it.
  bool isMild(std::size_t i) const { return slopeBelow(i) <= 0 || normalBelow(i) > critical_; }

  void begin(std::size_t point, double depth) {
    section_.depth = std::max(depth, critical_);
    const double bed = spillway_.profile[point].elevation;
    section_.energy = bed + specificEnergy(spillway_.section, discharge_, section_.depth);
    step_ = kFirstStep;
  }

  // From point i + 1 up to point i.
  void climb(std::size_t i) {
    const ProfilePoint& low = spillway_.profile[i + 1];
    const ProfilePoint& high = spillway_.profile[i];
    const double length = low.station - high.station;
    const double roughness = roughnessBelow(i);
    section_.friction = frictionSlope(spillway_.section, discharge_, section_.depth, roughness);
    double done = 0;
    for (int steps = 0; done < length; ++steps) {
      const double longest = std::max(kLongestStep, length / kMostSteps);
      const double rest = length - done;
      const double dx = step_ >= rest || steps >= 2 * kMostSteps ? rest : step_;
      done += dx;
      const double bed = low.elevation + (high.elevation - low.elevation) * done / length;
      advance(bed, dx, roughness);
      step_ = std::min(step_ * kStepGrowth, longest);
    }
  }

  double energy() const { return section_.energy; }

 private:
  double roughnessBelow(std::size_t i) const {
    const auto& p = spillway_.profile;
    return roughnessAt(spillway_, 0.5 * (p[i].station + p[i + 1].station));
  }

  // One standard step. Where no subcritical depth has that energy, the flow passes critical depth.
  void advance(double bed, double dx, double roughness) {
    const Trapezoid& channel = spillway_.section;
    const double given = section_.energy + 0.5 * section_.friction * dx;
    const auto excess = [&](double depth) {
      return bed + specificEnergy(channel, discharge_, depth) -
             0.5 * frictionSlope(channel, discharge_, depth, roughness) * dx - given;
    };
    const double high = bracketAbove(excess, std::max(section_.depth, critical_));
    const double depth = solveIncreasing(excess, critical_, high, 1e-9 * high);
    if (depth <= critical_) step_ = kFirstStep;
    section_ = {depth, bed + specificEnergy(channel, discharge_, depth),
                frictionSlope(channel, discharge_, depth, roughness)};
  }

  const EarthSpillway& spillway_;
  double discharge_;
  double critical_;
  Section section_;
  double step_ = kFirstStep;
};

}  // namespace

LevelCrest levelCrest(const EarthSpillway& spillway) {
  const auto& profile = spillway.profile;
  const auto top = std::ranges::max_element(profile, {}, &ProfilePoint::elevation);
  LevelCrest crest;
  crest.elevation = top->elevation;
  crest.first = crest.last = static_cast<std::size_t>(top - profile.begin());
  const auto level = [&](std::size_t i) { return crest.elevation - profile[i].elevation <= kSameElevation; };
  while (crest.last + 1 < profile.size() && level(crest.last + 1)) ++crest.last;
  return crest;
}

double roughnessAt(const EarthSpillway& spillway, double station) {
  const auto distance = [&](const CoverReach& reach) {
    return std::max({reach.begin - station, station - reach.end, 0.0});
  };
  return std::ranges::min_element(spillway.reaches, {}, distance)->roughness;
}

double poolOfSpillway(const EarthSpillway& spillway, double discharge) {
  Upstream upstream(spillway, discharge);
  const std::size_t last = spillway.profile.size() - 1;
  std::size_t control = levelCrest(spillway).last;
  while (control < last && upstream.isMild(control)) ++control;
  // With a mild channel to the very end its uniform flow holds there.
  const bool toTheEnd = control == last && last > levelCrest(spillway).last;
  upstream.begin(control, toTheEnd ? upstream.normalBelow(last - 1) : 0.0);
  for (std::size_t i = control; i-- > 0;) upstream.climb(i);
  return upstream.energy();
}

RatingCurve rateSpillway(const EarthSpillway& spillway, double top) {
  constexpr int kRows = 60;
  const double crest = levelCrest(spillway).elevation;
  const auto excess = [&](double discharge) { return poolOfSpillway(spillway, discharge) - top; };
  const double most = bracketAbove(excess, 1.0);
  std::vector<double> elevations{crest};
  std::vector<double> discharges{0.0};
  for (int i = 1; i <= kRows; ++i) {
    const double share = static_cast<double>(i) / kRows;
    const double discharge = most * share * share * share;
    const double pool = poolOfSpillway(spillway, discharge);
    if (pool <= elevations.back()) continue;
    elevations.push_back(pool);
    discharges.push_back(discharge);
  }
  return {std::move(elevations), std::move(discharges), RatingCurve::Shape::weir};
}

}  // namespace kestra
