#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace kestra {

// A directory of the test's own, which goes with all that is in it. Its path is free of links.
class TempDirectory {
 public:
  TempDirectory() {
    std::string pattern = std::filesystem::canonical(std::filesystem::temp_directory_path()) / "kestra-test-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary directory");
    path_ = pattern;
  }
  ~TempDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempDirectory(const TempDirectory&) = delete;
  TempDirectory& operator=(const TempDirectory&) = delete;

  const std::string& path() const { return path_; }
  std::string at(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

}  // namespace kestra
