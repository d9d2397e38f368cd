#pragma once

#include <optional>

#include "hydraulics/breach_growth.h"
#include "hydraulics/dam_erosion_input.h"
#include "hydraulics/slope_protection.h"

// The erosion of an overtopped embankment, driven step by step by what routes the flood through its reservoir.
namespace kestra {

// What the water did during a step: means over it, from `timeHours` on for `dtHours`. Elevations of pool and tailwater
// in ft, head over the lowest point of the crest in ft (0 when the pool is below: then nothing runs over it), and there
// the unit discharge over the crest, cfs/ft.
struct ErosionStep {
  double timeHours = 0;
  double dtHours = 0;
  double pool = 0;
  double tailwater = 0;
  double head = 0;
  double unitDischarge = 0;
};

enum class ErosionPhase { slopeStands, concentratedFlow, headcutInCrest, headcutInUpstreamFace, fullDepth };

// When it happened, h; inside a step where it did.
struct ErosionEvents {
  std::optional<double> slopeLost;  // 100 % of what the slope bears
  std::optional<double> headcutFormed;
  std::optional<double> breachInitiated;  // the headcut is through the crest
  std::optional<double> breachCompleted;  // the sill is at its lowest
};

// Unit discharge over the brink, cfs/ft, and stress, lb/ft^2.
struct BreachRow {
  double discharge = 0;  // cfs; 0 until the breach is initiated, as is its width
  double sill = 0;
  double baseStress = 0;
  double width = 0;
  double unitDischarge = 0;
};

struct HeadcutRow {
  double brink = 0;
  double station = 0;  // from the upstream toe
  double base = 0;
  double height = 0;
  double width = 0;
};

// A row of every table and history of a run: the state at the end of a step and the water that led to it.
struct ErosionRow {
  double timeHours = 0;
  double unitDischarge = 0;  // over the crest at its lowest point
  SlopeState slope;
  BreachRow breach;
  std::optional<HeadcutRow> headcut;  // once one has formed
};

// A value without pointers: keep a copy before a step that may have to be repeated with another length. The rows are
// not kept in it, so that a copy stays small: who wants a history takes `row()` after every step that counts.
class DamErosion {
 public:
  // Values that cannot be computed with are clipped as clipToComputable() tells.
  explicit DamErosion(const DamErosionInput& input);

  // Lets a step work. One whose length is not above 0 changes nothing; water that is no number is none.
  void advance(const ErosionStep& step);

  // The longest next step that is worth taking under the water of the last one: up to the next event, or to a change
  // of the breach by a percent. From 0.0005 h to 24 h.
  double suggestedStepHours() const;

  // Through the breach, cfs; 0 until it is initiated. The crest carries on beside it, over its length less the width.
  double breachDischarge(double pool, double tailwater) const;
  double breachWidth() const;

  // Whether the breach has come to its end: initiated, and in the last step the pool had run down to within 0.05 ft of
  // the sill or nothing was worn. More inflow may wake it again. Never true without a breach.
  bool finished() const;

  // Whether the last step wore anything, protection of the slope included.
  bool eroding() const { return eroding_; }

  ErosionPhase phase() const { return phase_; }
  const ErosionEvents& events() const { return events_; }
  const ErosionRow& row() const { return row_; }

 private:
  void wearProtection(const ErosionStep& step, double& used);
  void wearSlope(const ErosionStep& step, double& used);
  void growBreach(const ErosionStep& step, double& used);
  double slopeWear(double unitDischarge) const;
  void tellRow(const ErosionStep& step);

  DamErosionInput input_;
  SlopeProtection protection_;
  BreachGrowth breach_;
  ErosionPhase phase_ = ErosionPhase::slopeStands;
  ErosionEvents events_;
  ErosionRow row_;
  ErosionStep last_;
  double wornDepth_ = 0;  // ft, by the concentrated flow
  bool eroding_ = false;
};

// The depth that a concentrated flow has to wear before a headcut stands in the slope: the critical depth of the flow,
// which then plunges, and no less than half a foot.
double headcutThreshold(double unitDischarge);

}  // namespace kestra
