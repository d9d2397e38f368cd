#include "platform/native/mounts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestra {
namespace {

using testing::ElementsAre;

TEST(MountRoots, areThoseOfFileSystemsThatHoldFiles) {
  EXPECT_THAT(mountRoots("proc /proc proc rw,relatime 0 0\n"
                         "/dev/sda1 / ext4 rw 0 0\n"
                         "cgroup2 /sys/fs/cgroup cgroup2 rw 0 0\n"
                         "/dev/sdb1 /media/ann/USB\\040STICK vfat rw 0 0\n"
                         "server:/home /home nfs4 rw 0 0\n"
                         "tmpfs /tmp tmpfs rw 0 0\n"
                         "/dev/sda1 /home ext4 rw 0 0\n"),
              ElementsAre("/", "/home", "/media/ann/USB STICK", "/tmp"));
}

TEST(MountRoots, decodeTheCharactersThatStandAsNumbers) {
  EXPECT_THAT(mountRoots("a /a\\011b\\012c\\134d\\9\\04 ext4 rw\n"), ElementsAre("/", "/a\tb\nc\\d\\9\\04"));
}

TEST(MountRoots, haveTheRootEvenWhenNothingIsTold) {
  for (const char* text : {"", "\n", "rubbish", "a relative ext4 rw", "a b", "a /b"}) {
    EXPECT_THAT(mountRoots(text), ElementsAre("/")) << text;
  }
}

}  // namespace
}  // namespace kestra
