#include "base/paths.h"

#include <filesystem>

namespace kestra {

std::string_view ParsePathName(std::string_view path) {
  const std::size_t at = path.rfind(kSeparator);
  return at == std::string_view::npos ? path : path.substr(at + 1);
}

std::string_view directoryOf(std::string_view path) {
  const std::size_t at = path.rfind(kSeparator);
  if (at == std::string_view::npos) return {};
  return path.substr(0, at == 0 ? 1 : at);
}

std::string joinPath(std::string_view directory, std::string_view name) {
  std::string path(directory);
  if (path.empty() || path.back() != kSeparator) path += kSeparator;
  return path.append(name);
}

bool isAbsolutePath(std::string_view path) {
  return std::filesystem::path(path).is_absolute();
}

std::string absolutePath(std::string_view path, std::string_view directory) {
  std::string result = (std::filesystem::path(directory) / std::filesystem::path(path)).lexically_normal().string();
  while (result.size() > 1 && result.back() == kSeparator) result.pop_back();
  return result;
}

}  // namespace kestra
