#include "base/paths.h"

#include <gtest/gtest.h>

namespace kestra {
namespace {

TEST(ParsePathName, givesThePartBehindTheLastSeparator) {
  EXPECT_EQ(ParsePathName("/proj/dam.KSC"), "dam.KSC");
  EXPECT_EQ(ParsePathName("dam.KSC"), "dam.KSC");
  EXPECT_EQ(ParsePathName("/proj/"), "");
  EXPECT_EQ(ParsePathName(""), "");
}

TEST(DirectoryOf, givesThePartBeforeTheLastSeparator) {
  EXPECT_EQ(directoryOf("/proj/dam.KSC"), "/proj");
  EXPECT_EQ(directoryOf("/dam.KSC"), "/");
  EXPECT_EQ(directoryOf("dam.KSC"), "");
}

TEST(JoinPath, putsOneSeparatorBetween) {
  EXPECT_EQ(joinPath("/proj", "a"), "/proj/a");
  EXPECT_EQ(joinPath("/", "a"), "/a");
  EXPECT_EQ(joinPath("/proj/", "a"), "/proj/a");
  EXPECT_EQ(joinPath("", "a"), "/a");
}

TEST(AbsolutePath, resolvesDotsWithoutLookingAtTheDisk) {
  EXPECT_EQ(absolutePath("a/../b", "/proj"), "/proj/b");
  EXPECT_EQ(absolutePath("/x/./y/", "/proj"), "/x/y");
  EXPECT_EQ(absolutePath("", "/proj"), "/proj");
  EXPECT_EQ(absolutePath("..", "/"), "/");
}

}  // namespace
}  // namespace kestra
