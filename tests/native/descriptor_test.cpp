#include "platform/native/descriptor.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/native/posix_output_file.h"
#include "platform/native/system_failure.h"
#include "support/result_matchers.h"

namespace kestra {
namespace {

bool isOpen(int number) {
  return ::fcntl(number, F_GETFD) >= 0;
}

TEST(Descriptor, closesWhatItHolds) {
  int number = -1;
  {
    const Descriptor file = openFile("/dev/null", O_RDONLY);
    number = file.number();
    EXPECT_TRUE(isOpen(number));
    EXPECT_EQ(::fcntl(number, F_GETFD), FD_CLOEXEC);
  }
  EXPECT_FALSE(isOpen(number));
}

TEST(Descriptor, handsOnWhatItHolds) {
  Descriptor first = openFile("/dev/null", O_RDONLY);
  const int number = first.number();
  const Descriptor second = std::move(first);
  EXPECT_EQ(second.number(), number);
  EXPECT_TRUE(isOpen(number));
  EXPECT_FALSE(openFile("/no/such/file", O_RDONLY));
}

TEST(Descriptor, isLiftedAboveTheStandardOnes) {
  const Descriptor lifted = aboveStandard(Descriptor(::dup(2)));
  EXPECT_GT(lifted.number(), 2);
  Descriptor standard(2);
  const Descriptor copy = aboveStandard(Descriptor(standard.release()));
  EXPECT_GT(copy.number(), 2);
  EXPECT_FALSE(isOpen(2));
  EXPECT_EQ(::dup2(copy.number(), 2), 2);
}

TEST(PosixOutputFile, tellsThatTheDiskIsFull) {
  PosixOutputFile file(openFile("/dev/full", O_WRONLY), "/dev/full");
  const Status status = file.write("x");
  EXPECT_TRUE(failed(status, FailureKind::full, "No space left on device"));
  EXPECT_EQ(status.failure().path, "/dev/full");
}

TEST(PosixOutputFile, tellsEveryOtherFailureOfTheSystem) {
  PosixOutputFile readOnly(openFile("/dev/null", O_RDONLY), "/x");
  EXPECT_TRUE(failed(readOnly.write("x"), FailureKind::other, "Bad file descriptor"));
  PosixOutputFile device(openFile("/dev/full", O_WRONLY), "/x");
  EXPECT_TRUE(failed(device.sync(), FailureKind::other, "Invalid argument"));
}

TEST(SystemFailure, sortsTheErrorsOfTheSystem) {
  const std::vector<std::pair<int, FailureKind>> cases = {
      {ENOENT, FailureKind::notFound},   {EEXIST, FailureKind::exists},
      {EACCES, FailureKind::denied},     {EPERM, FailureKind::denied},
      {EROFS, FailureKind::denied},      {ENOSPC, FailureKind::full},
      {EDQUOT, FailureKind::full},       {EISDIR, FailureKind::wrongType},
      {ENOTDIR, FailureKind::wrongType}, {ENAMETOOLONG, FailureKind::invalidName},
      {EBUSY, FailureKind::busy},        {EIO, FailureKind::other}};
  for (const auto& [error, kind] : cases) EXPECT_EQ(kindOfError(error), kind) << wordsOfError(error);
  EXPECT_EQ(wordsOfError(EDQUOT), "Disk quota exceeded");
  EXPECT_EQ(wordsOfError(99999), "Error 99999");
}

}  // namespace
}  // namespace kestra
