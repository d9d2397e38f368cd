#include "kestrasim/build_erosion.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "hydraulics/headcut.h"
#include "hydraulics/soil_erodibility.h"
#include "kestrasim/given_or.h"

namespace kestra {
namespace {

constexpr double kCrestWidth = 10;  // ft
constexpr double kBareRoughness = 0.02;
constexpr double kUnitWeight = 120;  // lb/ft^3

DamSection sectionOf(const DamModel& dam, const CrestOverflow& crest, double base, RunMessages& messages) {
  DamSection section;
  section.crestElevation = crest.lowest();
  section.baseElevation = base;
  section.crestLength = crest.length();
  section.upstreamSlope =
      givenOr(dam.upstream.slope, kFaceSlope, "slope of the upstream face", {"UPSTREAM", dam.upstream.line}, messages);
  section.downstreamSlope = givenOr(dam.downstream.slope, kFaceSlope, "slope of the downstream face",
                                    {"DWNSTREAM", dam.downstream.line}, messages);
  // The overflow has told a width that is missing, where it computes with one.
  section.crestWidth =
      dam.options.overflow == OverflowModel::coefficient
          ? givenOr(dam.crest.width, kCrestWidth, "crest width", {"DAMCREST", dam.crest.line}, messages)
          : dam.crest.width.value_or(kCrestWidth);
  return section;
}

void fillEarth(const DownstreamRecord& record, SlopeInput& slope, RunMessages& messages) {
  const Place place{"DWNSTREAM", record.line};
  slope.surface = SlopeSurface::vegetated;
  slope.cover.roughness = givenOr(record.retardance, kBareRoughness, "retardance", place, messages);
  slope.cover.coverFactor = givenOr(record.cover, 0, "vegetal cover factor", place, messages);
  slope.cover.maintenanceCode =
      wholeOf(givenOr(record.maintenance, 2, "maintenance code", place, messages), "maintenance code", place, messages);
  slope.plasticityIndex = givenOr(record.plasticity, 0, "plasticity index", place, messages);
  slope.cover.diameterInches = record.particle.value_or(0);
}

void fillRiprap(const DownstreamRecord& record, SlopeInput& slope, RunMessages& messages) {
  const Place place{"DWNSTREAM", record.line};
  Riprap& riprap = slope.riprap;
  slope.surface = SlopeSurface::riprap;
  riprap.uniformity = givenOr(record.uniformity, riprap.uniformity, "riprap uniformity", place, messages);
  if (!record.d50 || *record.d50 <= 0) {
    messages.error(place, "D50 of the riprap is not given", "rock of a hundredth of a foot is taken");
  }
  riprap.medianFeet = record.d50.value_or(0) > 0 ? *record.d50 : 0.01;
  riprap.thicknessFeet = givenOr(record.thickness, 2 * riprap.medianFeet, "riprap thickness", place, messages);
  riprap.porosity = givenOr(record.porosity, riprap.porosity, "riprap porosity", place, messages);
}

void fillSoil(const HeadcutRecord& record, FillSoil& soil, RunMessages& messages) {
  const Place place{"HCMODEL", record.line};
  soil.model = record.model == 1 ? HeadcutModel::energy : HeadcutModel::stress;
  soil.erodibility = *record.erodibility;
  soil.criticalStress = givenOr(record.criticalStress, 0, "critical shear stress", place, messages);
  if (record.model == 1) {
    soil.advanceCoefficient = givenOr(record.advance, advanceFromErodibility(soil.erodibility),
                                      "headcut advance coefficient", place, messages);
    return;
  }
  soil.bank.unitWeight = givenOr(record.bulkDensity, kUnitWeight, "bulk density", place, messages);
  soil.bank.undrainedStrength = *record.strength;
}

// The record that a clipped value comes from.
Place placeOf(std::string_view name, const DamModel& dam) {
  static constexpr std::string_view kOfTheSoil[] = {"erodibility", "critical shear stress",
                                                    "headcut advance coefficient", "total unit weight",
                                                    "undrained shear strength"};
  if (name == "upstream slope") return {"UPSTREAM", dam.upstream.line};
  if (name == "base elevation") return {"STROUTE", dam.start.line};
  if (name == "crest width") return {"DAMCREST", dam.crest.line};
  if (name.starts_with("crest")) return {"CRESTPRFL", dam.crestLine};
  if (std::ranges::find(kOfTheSoil, name) != std::end(kOfTheSoil)) return {"HCMODEL", dam.headcut->line};
  return {"DWNSTREAM", dam.downstream.line};
}

// Whether the soil is told well enough for a breach.
bool isTold(const std::optional<HeadcutRecord>& record, RunMessages& messages) {
  constexpr const char* kNoBreach = "no breach is computed";
  if (!record) {
    messages.error({"HCMODEL"}, "a breach is asked for, and the record of the soil is missing", kNoBreach);
    return false;
  }
  const Place place{"HCMODEL", record->line};
  if (record->model == 0) {
    messages.error(place, fmt::format("the headcut model \"{}\" is neither 1 nor 2", record->modelText), kNoBreach);
    return false;
  }
  if (!record->erodibility) messages.error(place, "the detachment rate coefficient is not given", kNoBreach);
  if (record->model == 2 && !record->strength)
    messages.error(place, "the undrained shear strength is not given", kNoBreach);
  return record->erodibility && (record->model == 1 || record->strength);
}

}  // namespace

DamErosionInput buildErosion(const DamModel& dam, const CrestOverflow& crest, double base, RunMessages& messages) {
  DamErosionInput input;
  input.section = sectionOf(dam, crest, base, messages);
  switch (dam.options.slope) {
    case SlopeKind::earth:
      fillEarth(dam.downstream, input.slope, messages);
      break;
    case SlopeKind::riprap:
      fillRiprap(dam.downstream, input.slope, messages);
      break;
    case SlopeKind::bare:
      input.slope.surface = SlopeSurface::bare;
      input.slope.cover.roughness = givenOr(dam.downstream.retardance, kBareRoughness, "Manning's n",
                                            {"DWNSTREAM", dam.downstream.line}, messages);
      break;
  }
  input.breach = dam.options.analysis == Analysis::breach && isTold(dam.headcut, messages);
  if (input.breach) fillSoil(*dam.headcut, input.soil, messages);
  for (const ClippedValue& clipped : clipToComputable(input)) {
    messages.warning(placeOf(clipped.name, dam),
                     fmt::format("{} {} is beyond computing", clipped.name, shown(clipped.given)),
                     fmt::format("{} is taken", shown(clipped.used)));
  }
  return input;
}

}  // namespace kestra
