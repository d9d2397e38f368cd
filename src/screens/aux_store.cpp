#include "screens/aux_store.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "base/runtime_fault.h"

namespace kestra {
namespace {

std::size_t slotIn(const AuxMaterials& materials, int number) {
  if (number < 1 || number >= kMaterialSlots) throw RuntimeFault("subscript out of range");
  return static_cast<std::size_t>(materials.order[static_cast<std::size_t>(number)]);
}

void moveMaterial(AuxMaterials& materials, int from, int to) {
  materials.material(to) = std::exchange(materials.material(from), {});
}

}  // namespace

std::string samplerName(MaterialProperty property, int number) {
  constexpr std::array<const char*, kMaterialProperties> kNames = {"IW", "RD", "PC", "DR", "GD", "KH"};
  return kNames[static_cast<std::size_t>(property)] + ("(" + std::to_string(number) + ")");
}

std::array<std::int16_t, kMaterialSlots> AuxMaterials::inOrder() {
  std::array<std::int16_t, kMaterialSlots> slots{};
  std::iota(slots.begin(), slots.end(), std::int16_t{0});
  return slots;
}

AuxMaterial& AuxMaterials::material(int number) {
  return records[slotIn(*this, number)];
}

const AuxMaterial& AuxMaterials::material(int number) const {
  return records[slotIn(*this, number)];
}

void AuxMaterials::add() {
  if (count >= kMostMaterials) return;
  moveMaterial(*this, count + 2, count + 3);
  moveMaterial(*this, count + 1, count + 2);
  ++count;
}

void AuxMaterials::insert(int number) {
  if (count >= kMostMaterials) return;
  add();
  if (number < 1 || number >= count) return;
  const auto slots = order.begin();
  std::rotate(slots + number, slots + count, slots + count + 1);
}

void AuxMaterials::remove(int number) {
  if (number < 1 || number > count) return;
  const auto slots = order.begin();
  std::rotate(slots + number, slots + number + 1, slots + count + 1);
  moveMaterial(*this, count + 1, count);
  moveMaterial(*this, count + 2, count + 1);
  --count;
}

void AuxMaterials::clear() {
  count = 0;
  order = inOrder();
  std::fill(records.begin(), records.end(), AuxMaterial());
}

void AuxStore::ClearAuxData() {
  for (AuxProfile& profile : auxProfile) profile = {};
  for (AuxMaterials& materials : auxMaterials) materials.clear();
}

std::size_t heldBytes(const AuxProfile& profile) {
  return sizeof profile + profile.points.size() * sizeof(StationElevation) + profile.reaches.size() * sizeof(AuxReach);
}

std::size_t heldBytes(const AuxMaterial& material) {
  return sizeof material + material.points.size() * sizeof(StationElevation);
}

}  // namespace kestra
