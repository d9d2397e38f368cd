#include "run/checked_directory.h"

#include <algorithm>

#include "base/paths.h"
#include "base/text.h"
#include "platform/files.h"

namespace kestra {
namespace {

std::optional<std::string> directoryIn(FileSystem& files, const std::string& above, const std::string& name) {
  const std::string exact = joinPath(above, name);
  if (isDirectory(files, exact)) return exact;
  const auto entries = files.list(above);
  if (!entries) return std::nullopt;
  const auto matches = [&](const DirectoryEntry& entry) {
    return equalIgnoringCase(entry.name, name) && isDirectory(files, joinPath(above, entry.name));
  };
  const auto found = std::find_if(entries.value().begin(), entries.value().end(), matches);
  if (found == entries.value().end()) return std::nullopt;
  return joinPath(above, found->name);
}

}  // namespace

std::optional<std::string> spelledDirectory(FileSystem& files, const std::string& directory) {
  const std::string above(directoryOf(directory));
  if (above == directory) return directory;  // a root
  const auto place = spelledDirectory(files, above);
  if (!place) return std::nullopt;
  return directoryIn(files, *place, std::string(ParsePathName(directory)));
}

std::string checkedDirectory(Ports& ports, const std::string& path) {
  const std::string whole = absolutePath(path, ports.files.currentDirectory());
  if (const auto directory = spelledDirectory(ports.files, std::string(directoryOf(whole)))) return *directory;
  ports.boxes.tell("Warning", "The entered File is not in valid Path", BoxIcon::critical);
  return {};
}

}  // namespace kestra
