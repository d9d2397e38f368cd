#pragma once

#include <optional>

#include "hydraulics/dam_erosion_input.h"

// A headcut from its forming at the downstream edge of the crest to a breach of full depth. It deepens and moves
// through the crest; having come through, it runs down the upstream face, and the sill over which the reservoir leaves
// falls with it; at its lowest, only the banks are left to retreat. Hanson, Cook and Hunt 2005, Transactions of the
// ASAE 48(5):1783-1794, for the stages.
namespace kestra {

// The water during a step: its mean elevations, ft, and unit discharge over the crest, cfs/ft.
struct BreachWater {
  double pool = 0;
  double tailwater = 0;
  double crestUnitDischarge = 0;
};

// How fast it goes while there is soil below and beside.
struct BreachRates {
  double unitDischarge = 0;  // cfs/ft, over the brink
  double baseStress = 0;     // lb/ft^2, at the foot of the headcut
  double advance = 0;        // ft/h, of the brink, horizontally
  double deepening = 0;      // ft/h, of the base
  double widening = 0;       // ft/h
};

class BreachGrowth {
 public:
  struct State {
    double advance = 0;  // ft upstream of the downstream edge of the crest
    double base = 0;     // elevation of the foot of the headcut
    double width = 0;    // of headcut and breach, ft
  };

  // `input` within its ranges.
  explicit BreachGrowth(const DamErosionInput& input) : input_(input) {}

  // A headcut of a height, ft, at the edge of the crest.
  void form(double height, double unitDischarge);

  // Lets constant water run from `timeHours` on for `hours`.
  void advance(double timeHours, double hours, const BreachWater& water);

  const State& state() const { return state_; }
  double sill() const { return sillElevation(input_.section, state_.advance); }
  BreachRates rates(const BreachWater& water) const { return ratesAt(state_, water); }

  // When the headcut came through the crest, and when the sill came down to its lowest.
  std::optional<double> initiated() const { return initiated_; }
  std::optional<double> completed() const { return completed_; }

  // Of a breach that is initiated, cfs.
  double discharge(double pool, double tailwater) const;

  // How long this water may run before the flow has changed by a percent, or the headcut is through the crest.
  double hoursToChange(const BreachWater& water) const;

 private:
  BreachRates ratesAt(const State& state, const BreachWater& water) const;
  double baseStress(double height, double tailwaterAboveBase, double unitDischarge) const;
  double headcutAdvance(double height, double drop, double unitDischarge) const;
  double unitDischargeAt(const State& state, double sill, const BreachWater& water) const;
  double deepeningLeft(const BreachRates& rates) const;
  double wideningLeft(const BreachRates& rates) const;
  double longestSubstep(const BreachRates& rates) const;
  double substep(double longest, const BreachWater& water);
  void noteStages(double timeHours);
  State moved(const BreachRates& rates, double hours) const;

  DamErosionInput input_;
  State state_;
  std::optional<double> initiated_;
  std::optional<double> completed_;
};

}  // namespace kestra
