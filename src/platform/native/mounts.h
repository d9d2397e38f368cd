#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestra {

// The places where file systems that hold files are mounted, out of a text in the form of /proc/self/mounts; those by
// which the system shows itself (proc, sysfs, cgroup, ...) are left out. "/" is always among them. Sorted, each once.
std::vector<std::string> mountRoots(std::string_view mounts);

}  // namespace kestra
