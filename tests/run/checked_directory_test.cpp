#include "run/checked_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "run/run_desk.h"

namespace kestra {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CheckedDirectory, isSpelledAsTheDiskHasIt) {
  RunDesk desk;
  desk.memory.putDirectory("/p/Dam One/sub");
  EXPECT_EQ(checkedDirectory(desk.ports, "/p/Dam One/x.V2D"), "/p/Dam One");
  EXPECT_EQ(checkedDirectory(desk.ports, "/P/dam one/SUB/x"), "/p/Dam One/sub");
  EXPECT_EQ(checkedDirectory(desk.ports, "/x"), "/");
  EXPECT_EQ(checkedDirectory(desk.ports, "x.V2D"), "/p") << "counted from the current directory";
  EXPECT_THAT(desk.takeBoxes(), IsEmpty());
}

TEST(CheckedDirectory, takesTheExactNameFirst) {
  RunDesk desk;
  desk.memory.putDirectory("/p/DAM");
  desk.memory.putDirectory("/p/dam");
  EXPECT_EQ(checkedDirectory(desk.ports, "/p/dam/x"), "/p/dam");
}

TEST(CheckedDirectory, isEmptyAfterABoxWhereADirectoryIsMissing) {
  RunDesk desk;
  desk.memory.put("/p/file", "x");
  for (const char* path : {"/p/none/x.V2D", "/none/dam/x.V2D", "/p/file/x.V2D"}) {
    EXPECT_EQ(checkedDirectory(desk.ports, path), "") << path;
    EXPECT_THAT(desk.takeBoxes(), ElementsAre("Warning: The entered File is not in valid Path (critical)"));
  }
}

}  // namespace
}  // namespace kestra
