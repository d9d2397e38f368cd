#include "shell/project_directory.h"

#include "base/fields.h"
#include "base/lines.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/files.h"
#include "summary/summary_file.h"

namespace kestra {
namespace {

constexpr const char* kFlagFile = "owner";
constexpr const char* kFlagLine = "This is the flag file of a valid QUIL project directory, the owner is";
constexpr const char* kOwnersMark = "TORVE";

// Path of the flag file: one of that name, whatever its letter case, that is not a directory.
Result<std::string> flagFile(FileSystem& files, const std::string& directory) {
  auto path = findIgnoringCase(files, directory, kFlagFile);
  if (!path) return path;
  const auto status = files.status(path.value());
  if (!status) return status.failure();
  if (status.value().type == FileStatus::Type::file) return path;
  return Failure{FailureKind::notFound, path.value(), "not a file"};
}

Status writeFlagFile(FileSystem& files, const std::string& directory) {
  const std::string path = joinPath(directory, kFlagFile);
  const std::string text = std::string(kFlagLine).append(kCrLf).append(kOwnersMark).append(kCrLf);
  const Status written = writeWholeFile(files, path, text);
  return written ? files.setReadOnly(path, true) : written;
}

Status fillProjectDirectory(FileSystem& files, const std::string& directory) {
  const std::string summary = summaryFileText(defaultSummarySelection(), {});
  const Status written = writeWholeFile(files, joinPath(directory, kSummaryFileName), summary);
  return written ? writeFlagFile(files, directory) : written;
}

}  // namespace

ProjectCheck checkProject(FileSystem& files, const std::string& directory) {
  const auto flag = flagFile(files, directory);
  if (flag) return ProjectCheck::project;
  const FailureKind kind = flag.failure().kind;
  return kind == FailureKind::notFound || kind == FailureKind::wrongType ? ProjectCheck::notAProject
                                                                         : ProjectCheck::cannotEnter;
}

bool bearsOwnersMark(FileSystem& files, const std::string& directory) {
  const auto flag = flagFile(files, directory);
  if (!flag) return false;
  const auto text = files.read(flag.value(), kReadLimit);
  if (!text) return false;
  LineReader reader(text.value());
  std::string_view line;
  return reader.next(line) && reader.next(line) && line == kOwnersMark;
}

Status makeProjectDirectory(FileSystem& files, const std::string& directory) {
  Status made = files.makeDirectory(directory);
  if (!made) return made;
  Status filled = fillProjectDirectory(files, directory);
  if (!filled) (void)removeTree(files, directory);
  return filled;
}

Status removeProjectDirectory(FileSystem& files, const std::string& directory) {
  const auto flag = flagFile(files, directory);
  const auto entries = files.list(directory);
  if (!entries) return entries.failure();
  Status result = Done{};
  for (const auto& entry : entries.value()) {
    const std::string path = joinPath(directory, entry.name);
    if (flag && path == flag.value()) continue;
    const Status removed = removeTree(files, path);
    if (!removed && result) result = removed;
  }
  if (result) result = removeTree(files, directory);
  // The directory itself may be what could not be removed: its flag is put back.
  if (!result && isDirectory(files, directory) && !isProject(files, directory)) (void)writeFlagFile(files, directory);
  return result;
}

std::vector<std::string> projectsWithin(FileSystem& files, const std::string& directory) {
  std::vector<std::string> found;
  if (isProject(files, directory)) found.push_back(directory);
  const auto entries = files.list(directory);
  if (!entries) return found;
  for (const DirectoryEntry& entry : entries.value()) {
    if (entry.type != FileStatus::Type::directory) continue;
    for (std::string& deeper : projectsWithin(files, joinPath(directory, entry.name))) {
      found.push_back(std::move(deeper));
    }
  }
  return found;
}

Result<std::unique_ptr<FileLock>> lockProject(FileSystem& files, const std::string& directory) {
  const auto flag = flagFile(files, directory);
  if (!flag) return flag.failure();
  return files.lock(flag.value());
}

}  // namespace kestra
