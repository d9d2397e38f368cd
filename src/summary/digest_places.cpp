#include "summary/digest_places.h"

#include <utility>

#include "base/paths.h"
#include "base/text.h"

namespace kestra {
namespace {

bool isRegular(const Result<FileStatus>& status) {
  return status && status.value().type == FileStatus::Type::file;
}

// Where the digests of an instance stand: what is before its last "_", with and without the spillway's number.
std::vector<std::string> foldersOf(std::string_view name, std::size_t underscore) {
  std::vector<std::string> folders = {std::string(name.substr(0, underscore))};
  const char last = folders.front().back();
  if (underscore > 1 && last >= '1' && last <= '3') folders.emplace_back(name.substr(0, underscore - 1));
  return folders;
}

}  // namespace

DigestPlaces::DigestPlaces(FileSystem& files, std::string projectDirectory)
    : files_(files), project_(std::move(projectDirectory)) {}

EntryDigests DigestPlaces::find(std::string_view name) {
  if (name.empty() || leadsOut(name)) return {};
  const std::string whole(name);
  const std::size_t underscore = name.rfind('_');
  if (underscore == std::string_view::npos || underscore == 0) {
    return {digestAt(whole), digestAt(joinPath(whole, whole)), false};
  }
  const std::vector<std::string> folders = foldersOf(name, underscore);
  for (const std::string& folder : folders) {
    if (auto instance = digestAt(joinPath(folder, whole))) return {digestAt(folder), std::move(instance), true};
  }
  if (auto own = digestAt(whole)) return {std::move(own), std::nullopt, false};
  for (const std::string& folder : folders) {
    if (auto dam = digestAt(folder)) return {std::move(dam), std::nullopt, true};
  }
  return {std::nullopt, std::nullopt, true};
}

// The digest of that name in the project, without its extension.
std::optional<std::string> DigestPlaces::digestAt(const std::string& pathInProject) {
  const std::string path = joinPath(project_, pathInProject) + ".DIS";
  if (isRegular(files_.status(path))) return path;
  const std::string directory(directoryOf(path));
  const std::string_view name = ParsePathName(path);
  for (const DirectoryEntry& entry : listing(directory)) {
    if (!equalIgnoringCase(entry.name, name)) continue;
    std::string found = joinPath(directory, entry.name);
    if (isRegular(files_.status(found))) return found;
  }
  return std::nullopt;
}

bool DigestPlaces::leadsOut(std::string_view name) const {
  const std::string project = absolutePath(project_, files_.currentDirectory());
  return !absolutePath(joinPath(project, name), project).starts_with(joinPath(project, ""));
}

const std::vector<DirectoryEntry>& DigestPlaces::listing(const std::string& directory) {
  const auto known = listings_.find(directory);
  if (known != listings_.end()) return known->second;
  std::vector<DirectoryEntry>& entries = listings_[directory];
  if (const auto place = files_.canonical(directory)) {
    if (auto listed = files_.list(place.value())) entries = std::move(listed).value();
  }
  return entries;
}

}  // namespace kestra
