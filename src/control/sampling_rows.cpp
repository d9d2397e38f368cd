#include "control/sampling_rows.h"

#include "base/numbers.h"
#include "sampling/distribution_catalogue.h"

namespace kestra {
namespace {

constexpr const char* kUnrecognized = "' given for data generation for Probalbity distribution not recognized";
constexpr const char* kConstant = "CONSTANT";

template <std::size_t count>
void append(std::vector<SamplingRow>& rows, const std::string& material,
            const std::array<Distribution, count>& distributions) {
  for (std::size_t i = 0; i < count; ++i) {
    if (distributions[i].inUse) rows.push_back({material, std::to_string(i + 1), &distributions[i]});
  }
}

// The place that a property's number names, null where there is no such.
template <std::size_t count>
Distribution* placeOf(std::array<Distribution, count>& distributions, const std::string& property) {
  const auto number = wholeNumber(property);
  if (!number || *number < 1 || *number > static_cast<long long>(count)) return nullptr;
  return &distributions[static_cast<std::size_t>(*number - 1)];
}

// Takes a distribution whose name the catalogue has; of another it is told that, and what stands in for it.
void take(Distribution& place, const Distribution& given, const std::string& otherwise,
          std::vector<std::string>& told) {
  const bool known = findDistribution(given.name) != nullptr;
  place = known ? given : Distribution();
  place.inUse = known && given.name != kConstant;
  if (known) return;
  told.push_back("'" + given.name + kUnrecognized);
  told.push_back(otherwise);
}

}  // namespace

std::vector<SamplingRow> samplingRows(const AuxProfile& profile, const AuxMaterials& materials,
                                      const std::vector<int>& numbers) {
  std::vector<SamplingRow> rows;
  append(rows, "", profile.hydroDist);
  for (const int number : numbers) {
    append(rows, std::to_string(number), materials.material(number).distributions);
  }
  return rows;
}

bool takeSamplingRow(AuxProfile& profile, AuxMaterials& materials, const SamplingRow& row,
                     std::vector<std::string>& told) {
  if (row.material.empty()) {
    Distribution* place = placeOf(profile.hydroDist, row.property);
    place == nullptr
        ? told.push_back("Property Index " + row.property + " not recognized")
        : take(*place, *row.distribution, "Using default value for distribution for Hydrograph Data ", told);
    return true;
  }
  const auto number = wholeNumber(row.material);
  if (!number) return false;
  if (*number < 1 || *number > materials.count + 2) {
    told.push_back("Material " + row.material + " not recognized");
    return true;
  }
  Distribution* place = placeOf(materials.material(static_cast<int>(*number)).distributions, row.property);
  place == nullptr
      ? told.push_back("Property Index " + row.property + " for material " + row.material + " not recognized")
      : take(*place, *row.distribution, "Using default value for distribution for material number " + row.material,
             told);
  return true;
}

}  // namespace kestra
