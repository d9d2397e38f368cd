#include "platform/native/lock_holder.h"

#include <fmt/format.h>
#include <pwd.h>
#include <sys/stat.h>

#include <algorithm>
#include <charconv>
#include <vector>

#include "base/lines.h"
#include "base/numbers.h"
#include "platform/native/posix_file_system.h"

namespace kestra {
namespace {

std::vector<std::string_view> words(std::string_view line) {
  std::vector<std::string_view> found;
  while (!line.empty()) {
    const std::size_t end = std::min(line.find(' '), line.size());
    if (end > 0) found.push_back(line.substr(0, end));
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  return found;
}

std::string userName(unsigned number) {
  std::vector<char> buffer(1U << 14U);
  passwd entry = {};
  passwd* found = nullptr;
  if (::getpwuid_r(number, &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) {
    return fmt::format("{}", number);
  }
  return found->pw_name;
}

}  // namespace

std::optional<int> lockHolder(std::string_view locks, const LockedFile& file) {
  const std::string wanted = fmt::format("{:02x}:{:02x}:{}", file.deviceMajor, file.deviceMinor, file.inode);
  LineReader lines(locks);
  std::string_view line;
  while (lines.next(line)) {
    // 1: FLOCK  ADVISORY  WRITE 3989 fe:00:10952740 0 EOF; a program that waits has "->" behind the first word
    const std::vector<std::string_view> fields = words(line);
    if (fields.size() < 6 || fields[1] != "FLOCK" || fields[5] != wanted) continue;
    const auto process = wholeNumber(fields[4]);
    if (process && *process > 0) return static_cast<int>(*process);
  }
  return std::nullopt;
}

std::string describeProcess(std::optional<int> process) {
  constexpr std::uint64_t kLongestName = 4096;
  if (!process) return "another program";
  const std::string directory = fmt::format("/proc/{}", *process);
  PosixFileSystem files;
  const Result<std::string> name = files.read(directory + "/comm", kLongestName);
  struct stat status = {};
  if (!name || ::stat(directory.c_str(), &status) != 0) return "another program";
  const std::string_view text = name.value();
  return fmt::format("program {}, process {}, of user {}", text.substr(0, text.find('\n')), *process,
                     userName(status.st_uid));
}

}  // namespace kestra
