#include "hydraulics/dam_erosion_input.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kestra {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

TEST(ClipToComputable, leavesABelievableDamAlone) {
  DamErosionInput input;
  EXPECT_TRUE(clipToComputable(input).empty());
}

struct Clip {
  const char* name;
  double& (*value)(DamErosionInput&);
  double given;
  double used;
};
const Clip kClips[] = {
    {"downstream slope", [](DamErosionInput& in) -> double& { return in.section.downstreamSlope; }, 0, 0.05},
    {"upstream slope", [](DamErosionInput& in) -> double& { return in.section.upstreamSlope; }, -2, 0.05},
    {"crest width", [](DamErosionInput& in) -> double& { return in.section.crestWidth; }, kNaN, 15},
    {"crest elevation", [](DamErosionInput& in) -> double& { return in.section.crestElevation; }, kInfinite, 100},
    {"roughness of the slope", [](DamErosionInput& in) -> double& { return in.slope.cover.roughness; }, 0, 0.005},
    {"vegetal cover factor", [](DamErosionInput& in) -> double& { return in.slope.cover.coverFactor; }, 1.5, 1},
    {"plasticity index", [](DamErosionInput& in) -> double& { return in.slope.plasticityIndex; }, -4, 0},
    {"riprap uniformity", [](DamErosionInput& in) -> double& { return in.slope.riprap.uniformity; }, 0, 1},
    {"riprap D50", [](DamErosionInput& in) -> double& { return in.slope.riprap.medianFeet; }, -1, 0.001},
    {"erodibility", [](DamErosionInput& in) -> double& { return in.soil.erodibility; }, 1e300, 1e4},
    {"critical shear stress", [](DamErosionInput& in) -> double& { return in.soil.criticalStress; }, -0.1, 0},
    {"total unit weight", [](DamErosionInput& in) -> double& { return in.soil.bank.unitWeight; }, 0, 40},
};

TEST(ClipToComputable, tellsWhatItMovedIntoItsRange) {
  for (const Clip& clip : kClips) {
    SCOPED_TRACE(clip.name);
    DamErosionInput input;
    clip.value(input) = clip.given;
    const std::vector<ClippedValue> clipped = clipToComputable(input);
    ASSERT_EQ(clipped.size(), 1U);
    EXPECT_EQ(clipped[0].name, clip.name);
    EXPECT_TRUE(clipped[0].given == clip.given || std::isnan(clip.given));
    EXPECT_EQ(clipped[0].used, clip.used);
    EXPECT_EQ(clip.value(input), clip.used);
    EXPECT_TRUE(clipToComputable(input).empty()) << "what was clipped stays";
  }
}

TEST(ClipToComputable, putsTheBaseBelowTheCrest) {
  DamErosionInput input;
  input.section.baseElevation = 120;
  const std::vector<ClippedValue> clipped = clipToComputable(input);
  ASSERT_EQ(clipped.size(), 1U);
  EXPECT_EQ(clipped[0].name, "base elevation");
  EXPECT_DOUBLE_EQ(input.section.baseElevation, 99.9);
}

TEST(ClipToComputable, forgetsAnElevationThatIsNoNumber) {
  DamErosionInput input;
  input.section.nonErodibleElevation = kNaN;
  EXPECT_EQ(clipToComputable(input).size(), 1U);
  EXPECT_FALSE(input.section.nonErodibleElevation);
}

TEST(DamSection, lowersTheSillAlongTheUpstreamFace) {
  DamSection dam;  // 50 ft high, 15 ft wide, 3:1
  EXPECT_EQ(sillElevation(dam, 0), 100);
  EXPECT_EQ(sillElevation(dam, 15), 100);
  EXPECT_DOUBLE_EQ(sillElevation(dam, 30), 95);
  EXPECT_DOUBLE_EQ(fullAdvance(dam), 165);
  EXPECT_EQ(sillElevation(dam, 165), 50);
  EXPECT_EQ(sillElevation(dam, 500), 50);
}

TEST(DamSection, stopsAtALayerThatDoesNotErode) {
  DamSection dam;
  dam.nonErodibleElevation = 80;
  EXPECT_EQ(lowestSill(dam), 80);
  EXPECT_DOUBLE_EQ(fullAdvance(dam), 75);
  EXPECT_EQ(sillElevation(dam, 500), 80);
  dam.nonErodibleElevation = 20;
  EXPECT_EQ(lowestSill(dam), 50);
  dam.nonErodibleElevation = 130;
  EXPECT_EQ(lowestSill(dam), 100);
}

TEST(DamSection, countsStationsFromTheUpstreamToe) {
  const DamSection dam;
  EXPECT_DOUBLE_EQ(headcutStation(dam, 0), 165);
  EXPECT_DOUBLE_EQ(headcutStation(dam, 15), 150);
  EXPECT_DOUBLE_EQ(headcutStation(dam, 165), 0);
}

}  // namespace
}  // namespace kestra
