#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestra {

// The file that is locked, as the system numbers it.
struct LockedFile {
  unsigned deviceMajor = 0;
  unsigned deviceMinor = 0;
  std::uint64_t inode = 0;
};

// Number of the process that holds the lock of the whole file, out of a text in the form of /proc/locks; nothing when
// it is not told.
std::optional<int> lockHolder(std::string_view locks, const LockedFile& file);

// "program NAME, process 123, of user USER"; "another program" when nothing is known of that process.
std::string describeProcess(std::optional<int> process);

}  // namespace kestra
