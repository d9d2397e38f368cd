#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "sampling/distribution.h"

// What is entered for the auxiliary spillways and that no control holds on its own: one screen shows one spillway, and
// one of its materials, at a time. The generator writes these stores and the loader fills them. Values are texts, as
// they were entered; units as on frmAuxSpillwayProfile.
namespace kestra {

inline constexpr int kAuxSpillways = 3;
inline constexpr int kAuxPoints = 100;      // of a surface profile, of a boundary table, reaches of a spillway
inline constexpr int kMostMaterials = 100;  // of a spillway, the two fills' own materials not counted
inline constexpr int kMaterialSlots = 103;  // 0 is not in use; 101 and 102 serve the fills of 100 materials
inline constexpr int kTopsoil = 0;          // index of the topsoil fill
inline constexpr int kGeneral = 1;          // and of the general fill

enum class FillChoice { none, inPlace, external };

using StationElevation = std::array<std::string, 2>;
// Reach Stn Beg, Reach Stn End, Retrd Curve Indx, Veg Cov Factor, Maint Code, Pot Root Depth.
using AuxReach = std::array<std::string, 6>;

// A spillway but for its materials.
struct AuxProfile {
  std::vector<StationElevation> points = std::vector<StationElevation>(kAuxPoints);  // grdProfile
  std::vector<AuxReach> reaches = std::vector<AuxReach>(kAuxPoints);                 // grdCond, first 20 on show
  std::string txtSide;
  std::string txtBottom;
  std::string txtElevation;
  std::string txtTopsoil;  // depth of the topsoil fill in ft; with Stability diameter of the surface material in in
  std::string txtEnd;
  bool chkCrest = false;
  std::string txtBreachDepth;
  bool chkBarrier = false;
  std::string txtBarrier;
  std::array<FillChoice, 2> fill = {FillChoice::none, FillChoice::none};
  std::array<std::string, 2> materNum;    // material of each fill: in place the one chosen, external the number behind
  std::array<Distribution, 2> hydroDist;  // of the inflow: peak, duration; no screen shows them

  bool operator==(const AuxProfile&) const = default;
};

// The properties of a material that may be drawn from a distribution, in the order of the sampler's names IW, RD, PC,
// DR, GD, KH.
enum class MaterialProperty {
  plasticityIndex,
  representativeDiameter,
  percentClay,
  detachmentRate,
  dryDensity,
  headCutIndex
};
inline constexpr std::size_t kMaterialProperties = 6;

// Name of a property of a material for the sampler: "IW(3)".
std::string samplerName(MaterialProperty property, int number);

struct AuxMaterial {
  std::string description;
  std::array<std::string, kMaterialProperties> values;  // by MaterialProperty; "PDF" where it is drawn
  std::array<Distribution, kMaterialProperties> distributions;
  bool byDetachment = false;             // optDetach rather than optPercent
  std::vector<StationElevation> points;  // upper boundary, grdTable; at most 100, the first 21 on show

  const std::string& value(MaterialProperty property) const { return values[static_cast<std::size_t>(property)]; }
  std::string& value(MaterialProperty property) { return values[static_cast<std::size_t>(property)]; }
  const Distribution& distribution(MaterialProperty property) const {
    return distributions[static_cast<std::size_t>(property)];
  }
  Distribution& distribution(MaterialProperty property) { return distributions[static_cast<std::size_t>(property)]; }
  bool operator==(const AuxMaterial&) const = default;
};

// The materials of one spillway by their numbers, from 1. Behind the last stand two records more: count + 1 is the
// external topsoil, count + 2 the external general fill. Records stand in slots, and there they stay, since the undo
// history points at them; `order` gives the slot of a number.
struct AuxMaterials {
  int count = 0;
  std::array<std::int16_t, kMaterialSlots> order = inOrder();
  std::vector<AuxMaterial> records = std::vector<AuxMaterial>(kMaterialSlots);

  // The record of a number from 1 to 102; any other is a fault.
  AuxMaterial& material(int number);
  const AuxMaterial& material(int number) const;

  // Each keeps the fills' records behind the last material. `add` makes an empty material behind the others, `insert`
  // one before material `number`, or behind the others where there is no such; with 100 materials they do nothing.
  // `remove` takes a material out of use; a number without material, and nothing happens.
  void add();
  void insert(int number);
  void remove(int number);
  void clear();

  static std::array<std::int16_t, kMaterialSlots> inOrder();
};

struct AuxStore {
  std::array<AuxProfile, kAuxSpillways> auxProfile;
  std::array<AuxMaterials, kAuxSpillways> auxMaterials;

  void ClearAuxData();  // empties everything
};

// Memory that a kept value holds, roughly.
std::size_t heldBytes(const AuxProfile& profile);
std::size_t heldBytes(const AuxMaterial& material);

}  // namespace kestra
