#pragma once

#include <string>
#include <vector>

#include "screens/aux_store.h"

// The rows of the LHS record: what of a spillway is drawn, and from which distribution.
namespace kestra {

struct SamplingRow {
  std::string material;  // its number; empty for the hydrograph
  std::string property;  // from 1
  const Distribution* distribution;
};

// The distributions in use, those of the hydrograph first, then those of the materials of these numbers.
std::vector<SamplingRow> samplingRows(const AuxProfile& profile, const AuxMaterials& materials,
                                      const std::vector<int>& numbers);

// Puts what a row says into the stores. A distribution, property or material that is not known is told in a line of
// `told`, and the value is not drawn. False where the row has no number of a material in its place.
bool takeSamplingRow(AuxProfile& profile, AuxMaterials& materials, const SamplingRow& row,
                     std::vector<std::string>& told);

}  // namespace kestra
