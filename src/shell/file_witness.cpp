#include "shell/file_witness.h"

#include <functional>

namespace kestra {

void FileWitness::remember(const std::string& path) {
  path_ = path;
  digest_ = digest(path);
}

bool FileWitness::changedByAnother(const std::string& path) const {
  if (path_.empty() || path != path_) return false;
  const auto now = digest(path);
  return now && now != digest_;
}

std::optional<std::size_t> FileWitness::digest(const std::string& path) const {
  const auto bytes = files_.read(path, kReadLimit);
  if (!bytes) return std::nullopt;
  return std::hash<std::string>()(bytes.value());
}

}  // namespace kestra
