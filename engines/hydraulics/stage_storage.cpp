#include "hydraulics/stage_storage.h"

#include <algorithm>
#include <cassert>

#include "hydraulics/roots.h"
#include "hydraulics/units.h"

namespace kestra {

StageStorage::StageStorage(std::span<const StorageRow> rows, StorageBasis basis) {
  assert(rows.size() >= 2);
  double volume = rows.front().volume * kSquareFeetPerAcre;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    elevations_.push_back(rows[i].elevation);
    const double area = rows[i].area * kSquareFeetPerAcre;
    if (i + 1 == rows.size()) {
      const Piece& before = pieces_.back();
      const double rise = rows[i].elevation - rows[i - 1].elevation;
      pieces_.push_back({volume, before.area + before.growth * rise, 0});
      break;
    }
    const double rise = rows[i + 1].elevation - rows[i].elevation;
    const double next = rows[i + 1].area * kSquareFeetPerAcre;
    const double byArea = 0.5 * (area + next) * rise;
    const double given = (rows[i + 1].volume - rows[i].volume) * kSquareFeetPerAcre;
    const bool shaped = basis != StorageBasis::volumes && byArea > 0;
    const double scale = basis == StorageBasis::both && byArea > 0 ? given / byArea : 1.0;
    const double gained = basis == StorageBasis::areas ? byArea : given;
    pieces_.push_back(shaped ? Piece{volume, area * scale, (next - area) * scale / rise}
                             : Piece{volume, gained / rise, 0});
    volume += gained;
  }
}

const StageStorage::Piece& StageStorage::pieceAt(double elevation, double& above) const {
  const auto next = std::upper_bound(elevations_.begin() + 1, elevations_.end(), elevation);
  const auto i = static_cast<std::size_t>(next - elevations_.begin()) - 1;
  above = std::max(0.0, elevation - elevations_[i]);
  return pieces_[i];
}

double StageStorage::volume(double elevation) const {
  double above = 0;
  const Piece& piece = pieceAt(elevation, above);
  return piece.volume + above * (piece.area + 0.5 * piece.growth * above);
}

double StageStorage::area(double elevation) const {
  double above = 0;
  const Piece& piece = pieceAt(elevation, above);
  return piece.area + piece.growth * above;
}

double StageStorage::elevationOf(double volume) const {
  const auto excess = [&](double above) { return this->volume(lowest() + above) - volume; };
  const double high = bracketAbove(excess, highest() - lowest());
  return lowest() + solveIncreasing(excess, 0.0, high, 1e-9 * high);
}

}  // namespace kestra
