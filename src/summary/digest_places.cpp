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

// The digest of that name in the project, without its extension. The name as it is spelled goes before others.
std::optional<std::string> DigestPlaces::digestAt(const std::string& pathInProject) {
  const std::string path = joinPath(project_, pathInProject).append(kDigest);
  const std::string directory(directoryOf(path));
  const Entries* entries = listing(directory);
  if (entries == nullptr) return isRegular(files_.status(path)) ? std::optional(path) : std::nullopt;
  const std::string_view name = ParsePathName(path);
  std::optional<std::string> found;
  const auto [first, last] = entries->equal_range(toLower(name));
  for (auto at = first; at != last; ++at) {
    const std::string& candidate = at->second.name;
    const bool isBetter = !found || candidate == name || (*found != name && candidate < *found);
    if (isBetter && isFile(directory, at->second)) found = candidate;
  }
  return found ? std::optional(joinPath(directory, *found)) : std::nullopt;
}

bool DigestPlaces::isFile(const std::string& directory, const DirectoryEntry& entry) const {
  if (entry.type != FileStatus::Type::link) return entry.type == FileStatus::Type::file;
  return isRegular(files_.status(joinPath(directory, entry.name)));
}

bool DigestPlaces::leadsOut(std::string_view name) const {
  const std::string path = absolute_ + std::string(name);
  return absolutePath(path, absolute_) != path;
}

const DigestPlaces::Entries* DigestPlaces::listing(const std::string& directory) {
  const auto [known, isNew] = listings_.try_emplace(directory);
  std::optional<Entries>& entries = known->second;
  if (isNew) {
    const auto place = files_.canonical(directory);
    const auto listed = place ? files_.list(place.value()) : Result<std::vector<DirectoryEntry>>(place.failure());
    if (listed) {
      entries.emplace();
      for (const DirectoryEntry& entry : listed.value()) entries->emplace(toLower(entry.name), entry);
    }
  }
  return entries ? &*entries : nullptr;
}

}  // namespace kestra
