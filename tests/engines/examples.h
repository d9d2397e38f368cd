#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace kestra {

inline std::string readFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The control files of examples/ by their names.
inline std::map<std::string, std::string> examples() {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(KESTRA_SOURCE_DIR "/examples")) {
    if (entry.path().extension() == ".KSC") files[entry.path().filename().string()] = readFile(entry.path());
  }
  EXPECT_FALSE(files.empty());
  return files;
}

}  // namespace kestra
