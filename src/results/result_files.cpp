#include "results/result_files.h"

#include <algorithm>

#include "base/paths.h"
#include "platform/files.h"

namespace kestra {
namespace {

Result<std::string> findResultFile(FileSystem& files, const std::string& path) {
  const std::string_view directory = directoryOf(path);
  return findIgnoringCase(files, directory.empty() ? "." : std::string(directory), ParsePathName(path));
}

}  // namespace

std::string withExtension(std::string_view path, std::string_view extension) {
  path.remove_suffix(std::min<std::size_t>(path.size(), 3));
  return std::string(path).append(extension);
}

std::string presentPath(FileSystem& files, const std::string& path) {
  auto found = findResultFile(files, path);
  return found ? std::move(found).value() : path;
}

Result<std::string> readResultFile(FileSystem& files, const std::string& path) {
  const auto found = findResultFile(files, path);
  if (!found) return found.failure();
  auto text = files.read(found.value(), kResultLimit);
  if (!text) return text;
  std::string bytes = std::move(text).value();
  if (bytes.find('\n') == std::string::npos) std::replace(bytes.begin(), bytes.end(), '\r', '\n');
  return bytes;
}

Status writeResultFile(FileSystem& files, const std::string& path, std::string_view text) {
  return writeWholeFile(files, presentPath(files, path), text, Durable::no);
}

}  // namespace kestra
