#include "screens/hydrograph_block.h"

#include <gtest/gtest.h>

#include <string>

namespace kestra {
namespace {

const std::string kConstant = "HYD       storm     0.5       1,0       0C        \r\n";
const std::string kVariable = "HYD       storm     0.5       0         0V        \r\n";
const std::string kBlanks(20, ' ');

struct BlockCase {
  const char* what;
  std::string text;
  std::vector<double> times;
  std::vector<double> flows;
};

class HydrographBlock : public testing::TestWithParam<BlockCase> {};

TEST_P(HydrographBlock, givesItsPoints) {
  const HydrographPoints points = ParseHydrographText(GetParam().text);
  EXPECT_EQ(points.times, GetParam().times) << GetParam().what;
  EXPECT_EQ(points.flows, GetParam().flows) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Texts, HydrographBlock,
    testing::Values(BlockCase{"constant step",
                              kConstant + kBlanks + "1         2\r\n" + kBlanks + "3\r\nENDTABLE\r\n",
                              {10, 10.5, 11},
                              {1, 2, 3}},
                    BlockCase{"blank values are passed over",
                              kConstant + kBlanks + "1                   1,234.5\nENDTABLE\n",
                              {10, 10.5},
                              {1, 1234.5}},
                    BlockCase{"an empty line ends it", kConstant + kBlanks + "1\n\n" + kBlanks + "2\n", {10}, {1}},
                    BlockCase{"five values and no sixth",
                              kConstant + kBlanks + "1         2         3         4         5         6",
                              {10, 10.5, 11, 11.5, 12},
                              {1, 2, 3, 4, 5}},
                    BlockCase{"variable step",
                              kVariable + "          0         1,000\r\n          2.5       7\r\nENDTABLE",
                              {0, 2.5},
                              {1000, 7}},
                    BlockCase{"a short line ends it",
                              kVariable + "          0         1\n          1\n          2         3\n",
                              {0},
                              {1}},
                    BlockCase{"a short header is of variable step", "HYD\n          0         1\n", {0}, {1}},
                    BlockCase{"no number counts as 0", kVariable + "          x         y\n", {0}, {0}},
                    BlockCase{"nothing", "", {}, {}}, BlockCase{"a header alone", kConstant, {}, {}}));

TEST(HydrographBlockLimit, isFiveThousandPoints) {
  std::string constant = kConstant;
  std::string variable = kVariable;
  for (int i = 0; i < 1001; ++i) constant += kBlanks + "1         2         3         4\n";
  for (int i = 0; i < 2000; ++i) constant += kBlanks + "1\n";
  for (int i = 0; i < 5001; ++i) variable += "          1         2\n";
  EXPECT_EQ(ParseHydrographText(constant).flows.size(), 5000U);
  EXPECT_EQ(ParseHydrographText(variable).flows.size(), 5000U);
}

}  // namespace
}  // namespace kestra
