#include "screens/aux_store.h"

#include <gtest/gtest.h>

#include "base/runtime_fault.h"

namespace kestra {
namespace {

// Materials "1", "2", ... by their descriptions, the fills' own ones "T" and "G".
AuxMaterials numbered(int count) {
  AuxMaterials materials;
  for (int n = 1; n <= count; ++n) {
    materials.add();
    materials.material(n).description = std::to_string(n);
  }
  materials.material(count + 1).description = "T";
  materials.material(count + 2).description = "G";
  return materials;
}

std::string described(const AuxMaterials& materials) {
  std::string text;
  for (int n = 1; n <= materials.count + 2; ++n) {
    const std::string& description = materials.material(n).description;
    text += (description.empty() ? "-" : description) + " ";
  }
  return text;
}

std::vector<int> slots(const AuxMaterials& materials, int count) {
  return {materials.order.begin() + 1, materials.order.begin() + 1 + count};
}

TEST(AuxMaterials, addBehindTheLastAndKeepTheFillsBehindThem) {
  AuxMaterials materials = numbered(2);
  materials.add();
  EXPECT_EQ(described(materials), "1 2 - T G ");
  EXPECT_EQ(slots(materials, 5), (std::vector<int>{1, 2, 3, 4, 5}));
}

TEST(AuxMaterials, insertTakesTheFreeSlotForTheNumber) {
  AuxMaterials materials = numbered(3);
  materials.insert(2);
  EXPECT_EQ(described(materials), "1 - 2 3 T G ");
  EXPECT_EQ(slots(materials, 6), (std::vector<int>{1, 4, 2, 3, 5, 6}));
  EXPECT_EQ(materials.records[2].description, "2");
}

TEST(AuxMaterials, removeMovesTheSlotBehindTheOthers) {
  AuxMaterials materials = numbered(3);
  materials.remove(2);
  EXPECT_EQ(described(materials), "1 3 T G ");
  EXPECT_EQ(slots(materials, 3), (std::vector<int>{1, 3, 2}));
  materials.insert(1);
  EXPECT_EQ(described(materials), "- 1 3 T G ");
  EXPECT_EQ(slots(materials, 3), (std::vector<int>{2, 1, 3}));
}

TEST(AuxMaterials, makeAndUnmakeTheFirst) {
  AuxMaterials materials = numbered(0);
  materials.remove(1);
  EXPECT_EQ(described(materials), "T G ");
  materials.insert(1);
  EXPECT_EQ(described(materials), "- T G ");
  materials.material(1).description = "old";
  materials.remove(1);
  EXPECT_EQ(described(materials), "T G ");
  materials.add();
  EXPECT_EQ(described(materials), "- T G ");
}

TEST(AuxMaterials, holdAHundredAndTheTwoOfTheFills) {
  AuxMaterials materials = numbered(99);
  materials.insert(50);
  EXPECT_EQ(materials.count, 100);
  EXPECT_EQ(materials.material(51).description, "50");
  EXPECT_EQ(materials.material(102).description, "G");
  const std::string before = described(materials);
  materials.add();
  materials.insert(1);
  EXPECT_EQ(described(materials), before);
  EXPECT_EQ(materials.count, 100);
}

TEST(AuxMaterials, faultOutsideTheirNumbers) {
  AuxMaterials materials;
  EXPECT_THROW(materials.material(0), RuntimeFault);
  EXPECT_THROW(materials.material(103), RuntimeFault);
  EXPECT_THROW(materials.material(-1), RuntimeFault);
  EXPECT_EQ(materials.material(102).description, "");
}

TEST(AuxStore, isEmptyOnceCleared) {
  AuxStore store;
  store.auxMaterials[1] = numbered(3);
  store.auxMaterials[1].insert(1);
  store.auxProfile[2].txtSide = "3";
  store.auxProfile[2].points[7] = {"1", "2"};
  store.ClearAuxData();
  EXPECT_EQ(store.auxMaterials[1].count, 0);
  EXPECT_EQ(store.auxMaterials[1].order, AuxMaterials::inOrder());
  for (const AuxMaterial& material : store.auxMaterials[1].records) EXPECT_EQ(material, AuxMaterial());
  EXPECT_EQ(store.auxProfile[2], AuxProfile());
}

TEST(SamplerName, holdsThePropertyAndTheMaterial) {
  EXPECT_EQ(samplerName(MaterialProperty::plasticityIndex, 1), "IW(1)");
  EXPECT_EQ(samplerName(MaterialProperty::representativeDiameter, 2), "RD(2)");
  EXPECT_EQ(samplerName(MaterialProperty::percentClay, 3), "PC(3)");
  EXPECT_EQ(samplerName(MaterialProperty::detachmentRate, 4), "DR(4)");
  EXPECT_EQ(samplerName(MaterialProperty::dryDensity, 5), "GD(5)");
  EXPECT_EQ(samplerName(MaterialProperty::headCutIndex, 102), "KH(102)");
}

}  // namespace
}  // namespace kestra
