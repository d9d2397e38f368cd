#include "hydraulics/stage_storage.h"

#include <gtest/gtest.h>

#include <vector>

#include "engines/close_to.h"

namespace kestra {
namespace {

constexpr double kAcre = 43560;

TEST(StageStorage, fromAreasIsAverageEndArea) {
  const std::vector<StorageRow> rows{{100, 0, 2}, {110, 0, 6}, {120, 0, 6}};
  const StageStorage storage(rows, StorageBasis::areas);
  EXPECT_NEAR(storage.volume(110) / kAcre, 40, 1e-9);
  EXPECT_NEAR(storage.volume(120) / kAcre, 100, 1e-9);
  EXPECT_NEAR(storage.area(105) / kAcre, 4, 1e-9);
  EXPECT_NEAR(storage.volume(105) / kAcre, 15, 1e-9);
}

TEST(StageStorage, fromVolumesIsStraight) {
  const std::vector<StorageRow> rows{{100, 5, 0}, {110, 45, 0}, {120, 105, 0}};
  const StageStorage storage(rows, StorageBasis::volumes);
  EXPECT_NEAR(storage.volume(105) / kAcre, 25, 1e-9);
  EXPECT_NEAR(storage.area(115) / kAcre, 6, 1e-9);
}

TEST(StageStorage, fromBothKeepsTheVolumesAndTheCourseOfTheAreas) {
  const std::vector<StorageRow> rows{{100, 0, 2}, {110, 44, 6}, {120, 99, 5}};
  const StageStorage storage(rows, StorageBasis::both);
  EXPECT_NEAR(storage.volume(110) / kAcre, 44, 1e-9);
  EXPECT_NEAR(storage.volume(120) / kAcre, 99, 1e-9);
  EXPECT_NEAR(storage.volume(105) / kAcre, 44 * 15.0 / 40, 1e-9);
}

TEST(StageStorage, holdsItsLastAreaAboveAndItsFirstVolumeBelow) {
  const std::vector<StorageRow> rows{{100, 5, 2}, {110, 0, 6}};
  const StageStorage storage(rows, StorageBasis::areas);
  EXPECT_NEAR(storage.volume(112) / kAcre, 45 + 12, 1e-9);
  EXPECT_NEAR(storage.volume(90) / kAcre, 5, 1e-9);
}

TEST(StageStorage, givesTheElevationOfAVolume) {
  const std::vector<StorageRow> rows{{100, 0, 2}, {110, 0, 6}, {120, 0, 6}};
  const StageStorage storage(rows, StorageBasis::areas);
  for (const double z : {100.0, 103.3, 110.0, 119.0, 140.0})
    EXPECT_NEAR(storage.elevationOf(storage.volume(z)), z, 1e-6);
}

}  // namespace
}  // namespace kestra
