#include "platform/native/executable_directory.h"

#include <gtest/gtest.h>

#include "base/paths.h"
#include "platform/files.h"
#include "platform/native/posix_file_system.h"

namespace kestra {
namespace {

TEST(ExecutableDirectory, isWhereThisProgramLies) {
  PosixFileSystem files;
  EXPECT_EQ(executableDirectory(), files.canonical(std::string(directoryOf(KESTRA_PROBE))).value());
  EXPECT_TRUE(exists(files, joinPath(executableDirectory(), "kestra_native_test")));
}

}  // namespace
}  // namespace kestra
