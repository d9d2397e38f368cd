#include "summary/digest_places.h"

#include <utility>

#include "base/paths.h"
#include "base/text.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr std::string_view kDigest = ".DIS";

bool isRegular(const Result<FileStatus>& status) {
  return status && status.value().type == FileStatus::Type::file;
}

std::string firstPart(std::string_view path) {
  return std::string(path.substr(0, path.find(kSeparator)));
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
    : files_(files),
      project_(std::move(projectDirectory)),
      absolute_(joinPath(absolutePath(project_, files_.currentDirectory()), "")) {}

EntryDigests DigestPlaces::find(std::string_view name) {
  if (name.empty() || leadsOut(name)) return {};
  const std::string whole(name);
  const std::size_t underscore = name.rfind('_');
  if (name.find(kSeparator) != std::string_view::npos) {
    if (auto own = digestAt(whole)) return {digestAt(firstPart(name)), std::move(own), true};
  }
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

EntryPlace DigestPlaces::place(std::string_view name) {
  if (name.empty() || leadsOut(name)) return {};
  const auto inProject = [this](std::string_view path) { return joinPath(project_, path); };
  const EntryDigests digests = find(name);
  if (digests.instance && digests.ofInstance) {
    const std::string stem = digests.instance->substr(0, digests.instance->size() - kDigest.size());
    return {stem, inProject(firstPart(stem.substr(joinPath(project_, "").size()))), true};
  }
  if (!digests.ofInstance || name.find(kSeparator) != std::string_view::npos) {
    return {inProject(name), inProject(firstPart(name)), digests.ofInstance};
  }
  const std::vector<std::string> folders = foldersOf(name, name.rfind('_'));
  const bool dropped =
      !isDirectory(files_, inProject(folders.front())) && isDirectory(files_, inProject(folders.back()));
  const std::string& folder = dropped ? folders.back() : folders.front();
  return {inProject(joinPath(folder, name)), inProject(folder), true};
}

// The digest of that name in the project, without its extension.
std::optional<std::string> DigestPlaces::digestAt(const std::string& pathInProject) {
  const std::string path = joinPath(project_, pathInProject).append(kDigest);
  if (isRegular(files_.status(path))) return path;
  const std::string directory(directoryOf(path));
  const auto [first, last] = listing(directory).equal_range(toLower(ParsePathName(path)));
  std::optional<std::string> found;
  for (auto at = first; at != last; ++at) {
    std::string candidate = joinPath(directory, at->second);
    if ((!found || candidate < *found) && isRegular(files_.status(candidate))) found = std::move(candidate);
  }
  return found;
}

bool DigestPlaces::leadsOut(std::string_view name) const {
  const std::string path = absolute_ + std::string(name);
  return absolutePath(path, absolute_) != path;
}

const DigestPlaces::Names& DigestPlaces::listing(const std::string& directory) {
  const auto known = listings_.find(directory);
  if (known != listings_.end()) return known->second;
  Names& names = listings_[directory];
  const auto place = files_.canonical(directory);
  if (!place) return names;
  const auto listed = files_.list(place.value());
  if (!listed) return names;
  for (const DirectoryEntry& entry : listed.value()) names.emplace(toLower(entry.name), entry.name);
  return names;
}

}  // namespace kestra
