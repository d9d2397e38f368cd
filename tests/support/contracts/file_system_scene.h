#pragma once

#include <gtest/gtest.h>

#include "base/paths.h"
#include "platform/files.h"
#include "support/result_matchers.h"

// What every FileSystem does. A Scene offers `files`, `root` (an empty directory, its path free of links) and
// link(path, target).
namespace kestra {

template <class Scene>
class FileSystemContract : public testing::Test {
 protected:
  using Type = FileStatus::Type;

  std::string at(const std::string& name) const { return scene.root + "/" + name; }

  void put(const std::string& name, std::string_view bytes) {
    auto file = scene.files.createNew(at(name));
    ASSERT_TRUE(succeeded(file));
    const auto output = std::move(file).value();
    ASSERT_TRUE(succeeded(output->write(bytes)));
    ASSERT_TRUE(succeeded(output->sync()));
    ASSERT_TRUE(succeeded(output->close()));
  }
  void putDirectory(const std::string& name) { ASSERT_TRUE(succeeded(scene.files.makeDirectory(at(name)))); }
  void putLink(const std::string& name, const std::string& target) { scene.link(at(name), target); }

  std::string contentOf(const std::string& name) {
    const auto bytes = scene.files.read(at(name), kReadLimit);
    return bytes ? bytes.value() : "(" + bytes.failure().reason + ")";
  }
  // Name and type letter of every entry: "a:f b:d c:l".
  std::string listing(const std::string& name) {
    const auto entries = scene.files.list(at(name));
    if (!entries) return "(" + entries.failure().reason + ")";
    std::string text;
    for (const DirectoryEntry& entry : entries.value()) {
      if (!text.empty()) text += ' ';
      (text += entry.name) += std::string(":") + "fdlo"[static_cast<int>(entry.type)];
    }
    return text;
  }

  Scene scene;
};

}  // namespace kestra
