#pragma once

#include <optional>

#include "hydraulics/stage_storage.h"
#include "kestrasim/dam_model.h"
#include "kestrasim/run_messages.h"

namespace kestra {

struct ReservoirTable {
  StageStorage storage;
  StorageBasis basis = StorageBasis::areas;
  std::vector<StructureRow> rows;  // those that count, as given
};

// Storage by the rows of STRUCTURE. Where volumes are given they govern; a volume that is missing is computed from the
// areas of its row and the row before. Nothing, with an error told, where two rows cannot be made of it.
std::optional<ReservoirTable> buildStorage(const StructureRecord& structure, RunMessages& messages);

}  // namespace kestra
