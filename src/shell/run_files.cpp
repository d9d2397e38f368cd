#include "shell/run_files.h"

#include <algorithm>

#include "base/text.h"

namespace kestra {
namespace {

std::string_view extensionOf(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

bool holdsInput(std::string_view name) {
  return isControlFile(name) || equalIgnoringCase(extensionOf(name), "V2C");
}

bool beginsWithSpillway(std::string_view rest) {
  return rest.size() > 1 && rest[0] >= '1' && rest[0] <= '3' && rest[1] == '_';
}

bool belongs(const DirectoryEntry& entry, std::string_view stem) {
  const std::string_view name = entry.name;
  if (stem.empty() || !name.starts_with(stem)) return false;
  const std::string_view rest = name.substr(stem.size());
  if (entry.type == FileStatus::Type::directory) return rest.empty();
  return rest.starts_with('.') || rest.starts_with('_') || beginsWithSpillway(rest);
}

}  // namespace

std::string_view stemOf(std::string_view fileName) {
  return fileName.substr(0, fileName.rfind('.'));
}

bool isControlFile(std::string_view fileName) {
  return equalIgnoringCase(extensionOf(fileName), "KSC");
}

std::vector<std::string> controlFilesIn(FileSystem& files, const std::string& directory) {
  std::vector<std::string> names;
  const auto entries = files.list(directory);
  if (!entries) return names;
  for (const DirectoryEntry& entry : entries.value()) {
    if (entry.type != FileStatus::Type::directory && isControlFile(entry.name)) names.push_back(entry.name);
  }
  return names;
}

std::vector<std::string> filesOfRun(const std::vector<DirectoryEntry>& entries, std::string_view controlFile) {
  const std::string_view stem = stemOf(controlFile);
  // A longer stem of another control file knows its files better; one of the same stem has them too.
  const auto ofAnother = [&](const DirectoryEntry& entry) {
    return std::any_of(entries.begin(), entries.end(), [&](const DirectoryEntry& other) {
      const bool another = isControlFile(other.name) && other.name != controlFile;
      return another && stemOf(other.name).size() >= stem.size() && belongs(entry, stemOf(other.name));
    });
  };
  std::vector<std::string> names;
  for (const DirectoryEntry& entry : entries) {
    const bool kept = entry.name == controlFile || holdsInput(entry.name) || ofAnother(entry);
    if (belongs(entry, stem) && !kept) names.push_back(entry.name);
  }
  return names;
}

}  // namespace kestra
