#pragma once

#include <span>
#include <vector>

namespace kestra {

// A row of the reservoir: elevation ft, volume acre-ft, area acres.
struct StorageRow {
  double elevation = 0;
  double volume = 0;
  double area = 0;
};

// Where the volume of the water comes from.
enum class StorageBasis {
  areas,    // volumes from the areas by average end area: the area is straight between rows
  volumes,  // volumes straight between rows
  both      // volumes at the rows, between them the course that the areas give
};

// Storage by elevation. The volume never falls with the elevation, and beyond the last row the area there holds.
class StageStorage {
 public:
  StageStorage() = default;
  // Two rows at least, elevations rising, nothing negative; with volumes none below that of the row before.
  StageStorage(std::span<const StorageRow> rows, StorageBasis basis);

  double volume(double elevation) const;  // ft^3; that of the lowest row below it
  double area(double elevation) const;    // ft^2, the rate at which the volume grows
  double elevationOf(double volume) const;

  double lowest() const { return elevations_.front(); }
  double highest() const { return elevations_.back(); }
  const std::vector<double>& elevations() const { return elevations_; }

 private:
  struct Piece {
    double volume = 0;  // ft^3 at its lower end
    double area = 0;    // ft^2 there
    double growth = 0;  // ft^2 more a foot
  };
  const Piece& pieceAt(double elevation, double& above) const;

  std::vector<double> elevations_;
  std::vector<Piece> pieces_;  // one for each row; the last goes on without growth
};

}  // namespace kestra
