#include "automation/aux_values.h"

#include <algorithm>

namespace kestra {
namespace {

// The rows up to the last that holds a text.
template <class Row>
Json rowsOf(const std::vector<Row>& rows) {
  const auto blank = [](const Row& row) {
    return std::all_of(row.begin(), row.end(), [](const std::string& text) { return text.empty(); });
  };
  const auto end = std::find_if_not(rows.rbegin(), rows.rend(), blank).base();
  Json list = Json::array();
  for (auto row = rows.begin(); row != end; ++row) list.push_back(*row);
  return list;
}

Json fillsOf(const AuxProfile& profile) {
  constexpr std::array<const char*, 3> kNames = {"none", "inPlace", "external"};
  Json list = Json::array();
  for (std::size_t i = 0; i < profile.fill.size(); ++i) {
    list.push_back({{"fill", kNames[static_cast<std::size_t>(profile.fill[i])]}, {"materNum", profile.materNum[i]}});
  }
  return list;
}

Json describe(const AuxProfile& profile) {
  return {{"points", rowsOf(profile.points)},
          {"reaches", rowsOf(profile.reaches)},
          {"txtSide", profile.txtSide},
          {"txtBottom", profile.txtBottom},
          {"txtElevation", profile.txtElevation},
          {"txtTopsoil", profile.txtTopsoil},
          {"txtEnd", profile.txtEnd},
          {"chkCrest", profile.chkCrest},
          {"txtBreachDepth", profile.txtBreachDepth},
          {"chkBarrier", profile.chkBarrier},
          {"txtBarrier", profile.txtBarrier},
          {"fills", fillsOf(profile)}};
}

Json describe(const AuxMaterial& material, int number) {
  Json values = Json::object();
  Json drawn = Json::object();
  for (std::size_t i = 0; i < kMaterialProperties; ++i) {
    const std::string name = samplerName(static_cast<MaterialProperty>(i), number);
    const Distribution& distribution = material.distributions[i];
    values[name] = material.values[i];
    if (distribution.inUse) drawn[name] = {{"name", distribution.name}, {"parameters", distribution.parameters}};
  }
  return {{"number", number},       {"description", material.description},
          {"values", values},       {"byDetachment", material.byDetachment},
          {"distributions", drawn}, {"points", rowsOf(material.points)}};
}

}  // namespace

Json describeAuxProfiles(const AuxStore& store) {
  Json list = Json::array();
  for (const AuxProfile& profile : store.auxProfile) list.push_back(describe(profile));
  return list;
}

Json describeAuxMaterials(const AuxStore& store) {
  Json list = Json::array();
  for (const AuxMaterials& materials : store.auxMaterials) {
    Json records = Json::array();
    for (int n = 1; n <= materials.count + 2; ++n) records.push_back(describe(materials.material(n), n));
    list.push_back({{"count", materials.count}, {"records", records}});
  }
  return list;
}

Json describeMaterialOrder(const AuxStore& store) {
  Json list = Json::array();
  for (const AuxMaterials& materials : store.auxMaterials) list.push_back(materials.order);
  return list;
}

}  // namespace kestra
