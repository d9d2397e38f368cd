#include "platform/native/mounts.h"

#include <algorithm>
#include <array>

#include "base/lines.h"

namespace kestra {
namespace {

constexpr std::array<std::string_view, 24> kWithoutFiles = {
    "autofs",   "binfmt_misc", "bpf",        "cgroup",          "cgroup2",     "configfs",  "debugfs", "devpts",
    "devtmpfs", "efivarfs",    "fusectl",    "fuse.gvfsd-fuse", "fuse.portal", "hugetlbfs", "mqueue",  "nsfs",
    "proc",     "pstore",      "rpc_pipefs", "securityfs",      "selinuxfs",   "smackfs",   "sysfs",   "tracefs"};

bool holdsFiles(std::string_view type) {
  return std::find(kWithoutFiles.begin(), kWithoutFiles.end(), type) == kWithoutFiles.end();
}

std::string_view takeField(std::string_view& line) {
  const std::size_t end = std::min(line.find(' '), line.size());
  const std::string_view field = line.substr(0, end);
  line.remove_prefix(std::min(end + 1, line.size()));
  return field;
}

bool isOctal(char c) {
  return c >= '0' && c <= '7';
}

// Blanks, tabs, line feeds and backslashes stand as a backslash and three octal digits.
std::string decoded(std::string_view field) {
  std::string text;
  for (std::size_t at = 0; at < field.size(); ++at) {
    const std::string_view digits = field.substr(at + 1, 3);
    if (field[at] == '\\' && digits.size() == 3 && std::all_of(digits.begin(), digits.end(), isOctal)) {
      text += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0'));
      at += 3;
    } else {
      text += field[at];
    }
  }
  return text;
}

}  // namespace

std::vector<std::string> mountRoots(std::string_view mounts) {
  std::vector<std::string> roots = {"/"};
  LineReader lines(mounts);
  std::string_view line;
  while (lines.next(line)) {
    takeField(line);
    const std::string_view place = takeField(line);
    const std::string_view type = takeField(line);
    if (place.starts_with('/') && !type.empty() && holdsFiles(type)) roots.push_back(decoded(place));
  }
  std::sort(roots.begin(), roots.end());
  roots.erase(std::unique(roots.begin(), roots.end()), roots.end());
  return roots;
}

}  // namespace kestra
