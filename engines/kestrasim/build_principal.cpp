#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "hydraulics/units.h"
#include "kestrasim/build_outlets.h"
#include "kestrasim/given_or.h"

namespace kestra {
namespace {

constexpr double kWeirCoefficient = 3.1;
constexpr double kOrificeCoefficient = 0.6;
constexpr double kEntranceLoss = 0.7;
constexpr double kManning = 0.013;

constexpr const char* kNoFlow = "the principal spillway discharges nothing";

bool hasDischarges(const StructureRecord& structure) {
  return std::ranges::any_of(structure.rows, [](const StructureRow& row) { return row.discharge.value_or(0) > 0; });
}

// A table that says 0 tells a spillway without discharge.
bool tellsDischarges(const StructureRecord& structure) {
  return std::ranges::any_of(structure.rows, [](const StructureRow& row) { return row.discharge.has_value(); });
}

RatingCurve structureRating(const StructureRecord& structure, RunMessages& messages) {
  std::vector<TablePoint> rows;
  for (const StructureRow& row : structure.rows) {
    if (row.discharge) rows.push_back({row.elevation, *row.discharge, row.line});
  }
  return buildRating(rows, {"STRUCTURE", structure.line}, messages);
}

// The records of a conduit and where they stand.
struct PipeRecords {
  const InletRecord& inlet;
  const ConduitRecord& conduit;
  const CoefficientRecord& coefficients;
  bool circular = false;
  bool twoStage = false;

  Place inletPlace() const { return {"PSpINLET", inlet.line}; }
  Place conduitPlace() const { return {"PSpDATA", conduit.line}; }
  Place coefficientPlace() const { return {"PSpCOEFFS", coefficients.line}; }
};

bool isPositive(const Number& number) {
  return number.value_or(0) > 0;
}

ConduitSection sectionOf(const PipeRecords& records, RunMessages& messages) {
  const ConduitRecord& conduit = records.conduit;
  if (records.circular) return circularSection(*conduit.width);
  const double fillet = records.coefficients.filletInches.value_or(0);
  const double largest = kInchesPerFoot * largestFillet(*conduit.width, *conduit.height);
  if (fillet > largest) {
    messages.warning(records.coefficientPlace(), fmt::format("a fillet of {} inches fills the conduit", shown(fillet)),
                     fmt::format("{} is taken", shown(largest)));
  }
  return rectangularSection(*conduit.width, *conduit.height, fillet);
}

bool hasSize(const PipeRecords& records, RunMessages& messages) {
  const bool sized = isPositive(records.conduit.width) && (records.circular || isPositive(records.conduit.height));
  if (!sized) {
    messages.error(records.conduitPlace(),
                   records.circular ? "the diameter is not above 0" : "width or height is not above 0", kNoFlow);
  }
  return sized;
}

// What riser and hood have in common.
Conduits conduitsOf(const PipeRecords& records, RunMessages& messages) {
  Conduits conduits;
  conduits.section = sectionOf(records, messages);
  const Place place = records.conduitPlace();
  conduits.count = wholeOf(givenOr(records.conduit.count, 1, "number of conduits", place, messages),
                           "number of conduits", place, messages);
  conduits.manning = givenOr(records.conduit.manning, kManning, "Manning's n", place, messages);
  conduits.entranceLoss =
      givenOr(records.inlet.entranceLoss, kEntranceLoss, "entrance loss", records.inletPlace(), messages);
  return conduits;
}

PrincipalSpillway buildHood(const PipeRecords& records, const std::optional<HoodRecord>& hood, RunMessages& messages) {
  const auto refuse = [&](const Place& place, const char* what) {
    messages.error(place, what, kNoFlow);
    return PrincipalSpillway();
  };
  if (!hood) return refuse({"PSpHOOD"}, "there is no record of the hood's pipe");
  const Place place{"PSpHOOD", hood->line};
  if (!records.inlet.highCrest) return refuse(records.inletPlace(), "the crest elevation is not given");
  if (!hood->outletElevation || !isPositive(hood->toBend))
    return refuse(place, "outlet elevation or length is not given");
  if (hood->bend && (!hood->bendElevation || !hood->toOutlet)) return refuse(place, "the bend is not told whole");
  // Loss and coefficient of the entrance stand in two records each.
  InletRecord inletRecord = records.inlet;
  if (!inletRecord.entranceLoss) inletRecord.entranceLoss = hood->entranceLoss;
  CoefficientRecord coefficients = records.coefficients;
  if (!coefficients.weir) coefficients.weir = hood->weir;
  HoodSpillway spillway;
  HoodInlet& inlet = spillway.inlet;
  inlet.invert = *records.inlet.highCrest;
  Conduits& conduits = spillway.conduits =
      conduitsOf({inletRecord, records.conduit, coefficients, records.circular, records.twoStage}, messages);
  conduits.outletInvert = *hood->outletElevation;
  conduits.length = hood->bend ? std::hypot(*hood->toBend, inlet.invert - *hood->bendElevation) +
                                     std::hypot(*hood->toOutlet, *hood->bendElevation - conduits.outletInvert)
                               : std::hypot(*hood->toBend, inlet.invert - conduits.outletInvert);
  inlet.weirCoefficient = dimensionalWeirCoefficient(
      givenOr(coefficients.weir, kWeirCoefficient, "weir coefficient", records.coefficientPlace(), messages));
  inlet.entrance = hoodEntrance(conduits.section);
  inlet.primes = hoodPrimes(conduits, inlet.invert - conduits.outletInvert);
  if (!inlet.primes) {
    messages.warning(place, "the pipe is flatter than the friction slope of full flow and will not prime",
                     "its entrance is taken as an orifice");
  }
  return spillway;
}

void readLowStage(const PipeRecords& records, DropInlet& inlet, RunMessages& messages) {
  inlet.twoStage = records.twoStage && records.inlet.lowCrest && isPositive(records.inlet.orificeWidth);
  if (records.twoStage && !inlet.twoStage) {
    messages.error(records.inletPlace(), "crest or width of the low stage is not given", "the low stage is left out");
  }
  if (!inlet.twoStage) return;
  inlet.lowCrest = *records.inlet.lowCrest;
  inlet.orificeHeight = records.inlet.orificeHeight.value_or(0);
  inlet.orificeWidth = *records.inlet.orificeWidth;
  const Place place = records.coefficientPlace();
  inlet.lowWeirCoefficient =
      givenOr(records.coefficients.lowWeir, kWeirCoefficient, "weir coefficient of the low stage", place, messages);
  inlet.lowOrificeCoefficient = givenOr(records.coefficients.lowOrifice, kOrificeCoefficient,
                                        "orifice coefficient of the low stage", place, messages);
}

PrincipalSpillway buildDropInlet(const PipeRecords& records, RunMessages& messages) {
  const auto refuse = [&](const Place& place, const char* what) {
    messages.error(place, what, kNoFlow);
    return PrincipalSpillway();
  };
  if (!records.inlet.highCrest) return refuse(records.inletPlace(), "the crest elevation is not given");
  if (!isPositive(records.inlet.weirLength)) return refuse(records.inletPlace(), "the weir length is not above 0");
  if (!isPositive(records.conduit.length)) return refuse(records.conduitPlace(), "the conduit length is not above 0");
  if (!records.conduit.outletInvert) return refuse(records.conduitPlace(), "the outlet's invert is not given");
  DropInletSpillway spillway;
  DropInlet& inlet = spillway.inlet;
  inlet.highCrest = *records.inlet.highCrest;
  inlet.weirLength = *records.inlet.weirLength;
  inlet.weirCoefficient = dimensionalWeirCoefficient(
      givenOr(records.coefficients.weir, kWeirCoefficient, "weir coefficient", records.coefficientPlace(), messages));
  readLowStage(records, inlet, messages);
  Conduits& conduits = spillway.conduits = conduitsOf(records, messages);
  conduits.length = *records.conduit.length;
  conduits.outletInvert = *records.conduit.outletInvert;
  conduits.orificeCentre =
      0.5 * conduits.section.height + givenOr(records.conduit.riserInvert, conduits.outletInvert, "the riser's invert",
                                              records.conduitPlace(), messages);
  conduits.orificeCoefficient = givenOr(records.coefficients.orifice, kOrificeCoefficient, "orifice coefficient",
                                        records.coefficientPlace(), messages);
  const Number area = isPositive(records.coefficients.orificeArea) ? records.coefficients.orificeArea : Number();
  conduits.orificeArea = givenOr(area, conduits.section.area, "orifice area", records.coefficientPlace(), messages);
  return spillway;
}

}  // namespace

PrincipalSpillway buildPrincipal(const DamModel& dam, RunMessages& messages) {
  const bool rated = hasDischarges(dam.structure);
  if (dam.options.noPrincipal) {
    if (rated) {
      messages.warning({"OPTION", dam.options.line}, "NOPS is told although STRUCTURE holds discharges",
                       "there is no principal spillway");
    }
    return {};
  }
  if (rated) return structureRating(dam.structure, messages);
  if (!dam.inlet || !dam.conduit) {
    if (tellsDischarges(dam.structure)) return {};
    messages.error({dam.inlet ? "PSpDATA" : "PSpINLET"}, "no principal spillway is told, nor that there is none",
                   kNoFlow);
    return {};
  }
  const CoefficientRecord none;
  const std::string& type = dam.conduit->type;
  PipeRecords records{*dam.inlet, *dam.conduit, dam.coefficients ? *dam.coefficients : none};
  records.circular = type == "SC" || type == "TC" || type == "HD";
  records.twoStage = type == "TC" || type == "TR";
  if (!records.circular && type != "SR" && type != "TR") {
    messages.error(records.conduitPlace(), fmt::format("the spillway type \"{}\" is not known", type), kNoFlow);
    return {};
  }
  if (!hasSize(records, messages)) return {};
  return type == "HD" ? buildHood(records, dam.hood, messages) : buildDropInlet(records, messages);
}

}  // namespace kestra
