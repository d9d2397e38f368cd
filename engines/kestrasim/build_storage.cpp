#include "kestrasim/build_storage.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "kestrasim/given_or.h"

namespace kestra {
namespace {

constexpr double kMismatch = 0.01;  // of the volume, from which areas that do not agree with it are told

Place rowOf(const StructureRow& row) {
  return {"STRUCTURE", row.line};
}

// The rows that have a volume or come to one by the areas.
std::vector<StorageRow> rowsWithVolume(ReservoirTable& table, RunMessages& messages) {
  std::vector<StorageRow> filled;
  std::vector<StructureRow> kept;
  for (const StructureRow& row : table.rows) {
    StorageRow next{row.elevation, row.volume.value_or(0), row.area.value_or(0)};
    const bool byArea = row.area && (kept.empty() || kept.back().area);
    if (!row.volume && !byArea) {
      messages.warning(rowOf(row), "neither a volume nor the areas for one are given", "the row is left out");
      continue;
    }
    if (!row.volume && !filled.empty()) {
      const StorageRow& before = filled.back();
      next.volume = before.volume + 0.5 * (before.area + next.area) * (next.elevation - before.elevation);
    }
    if (!filled.empty() && next.volume <= filled.back().volume) {
      // A floor without water under the first volume is no part of the reservoir.
      const bool floor = filled.size() == 1 && next.volume == filled.back().volume;
      messages.warning(
          rowOf(floor ? kept.back() : row),
          floor ? "the volume is that of the next row" : fmt::format("the volume {} does not rise", shown(next.volume)),
          "the row is left out");
      if (!floor) continue;
      filled.pop_back();
      kept.pop_back();
    }
    filled.push_back(next);
    kept.push_back(row);
  }
  table.rows = std::move(kept);
  return filled;
}

StorageBasis basisOf(const std::vector<StructureRow>& rows) {
  // The volume of the first row alone is what the areas begin with.
  const bool volumes =
      std::any_of(rows.begin() + 1, rows.end(), [](const StructureRow& row) { return row.volume.has_value(); });
  const bool areas = std::ranges::all_of(rows, [](const StructureRow& row) { return row.area.has_value(); });
  if (!volumes) return StorageBasis::areas;
  return areas ? StorageBasis::both : StorageBasis::volumes;
}

void tellMismatch(const std::vector<StorageRow>& rows, const ReservoirTable& table, RunMessages& messages) {
  double byArea = rows.front().volume;
  double worst = 0;
  std::size_t where = 0;
  for (std::size_t i = 1; i < rows.size(); ++i) {
    byArea += 0.5 * (rows[i - 1].area + rows[i].area) * (rows[i].elevation - rows[i - 1].elevation);
    const double part = std::fabs(byArea - rows[i].volume) / std::max(rows[i].volume, 1e-9);
    if (part <= worst) continue;
    worst = part;
    where = i;
  }
  if (worst <= kMismatch) return;
  messages.warning(
      rowOf(table.rows[where]),
      fmt::format("the areas make a volume that differs by {} percent", shown(std::round(worst * 1000) / 10)),
      "the volumes given are taken");
}

}  // namespace

std::optional<ReservoirTable> buildStorage(const StructureRecord& structure, RunMessages& messages) {
  const Place place{"STRUCTURE", structure.line};
  ReservoirTable table;
  table.rows = structure.rows;
  const std::vector<StorageRow> rows = rowsWithVolume(table, messages);
  if (rows.size() < 2) {
    messages.error(place, "fewer than two rows with a volume or an area", "nothing is routed");
    return std::nullopt;
  }
  table.basis = basisOf(table.rows);
  if (table.basis == StorageBasis::both) tellMismatch(rows, table, messages);
  table.storage = StageStorage(rows, table.basis);
  return table;
}

}  // namespace kestra
