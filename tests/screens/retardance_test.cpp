#include "screens/retardance.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

TEST(RetardanceIndex, standsForALetterInEitherCase) {
  const char* indices[] = {"10.0", "7.6", "5.6", "4.4", "2.9"};
  for (char32_t i = 0; i < 5; ++i) {
    EXPECT_EQ(retardanceIndex(U'A' + i), indices[i]);
    EXPECT_EQ(retardanceIndex(U'a' + i), indices[i]);
  }
}

TEST(RetardanceIndex, isEmptyForEveryOtherCharacter) {
  for (const char32_t other : {U'F', U'f', U'@', U'`', U'Z', U'z', U'5', U'.', U'\0', U'\u00e4', U'\U0010ffff'}) {
    EXPECT_EQ(retardanceIndex(other), "");
  }
}

}  // namespace
}  // namespace kestra
