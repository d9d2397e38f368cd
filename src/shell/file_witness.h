#pragma once

#include <optional>
#include <string>

#include "platform/file_system.h"

namespace kestra {

// Remembers what stood in a file when this program read or wrote it, to see whether another has changed it since.
class FileWitness {
 public:
  explicit FileWitness(FileSystem& files) : files_(files) {}

  void remember(const std::string& path);
  void forget() { path_.clear(); }

  // Whether `path` is the file that is remembered and holds other bytes now. A file that is gone is not changed.
  bool changedByAnother(const std::string& path) const;

 private:
  // A number for the bytes of a file; nothing when it cannot be read.
  std::optional<std::size_t> digest(const std::string& path) const;

  FileSystem& files_;
  std::string path_;
  std::optional<std::size_t> digest_;
};

}  // namespace kestra
