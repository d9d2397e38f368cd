#include "run/old_run_files.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "platform/files.h"
#include "run/file_steps.h"

namespace kestra {
namespace {

using Entries = std::vector<DirectoryEntry>;

bool hasControlFile(const Entries& entries, const std::string& base) {
  return std::any_of(entries.begin(), entries.end(),
                     [&](const DirectoryEntry& entry) { return equalIgnoringCase(entry.name, base + ".KSC"); });
}

using Runs = std::set<std::string, std::less<>>;

// A file of one of these runs, or of a run that is no more: its name up to some dot is that of the run.
bool belongsToOneOf(const Runs& runs, const std::string& name, const Entries& entries) {
  if (isInputOfRuns(name)) return false;
  const std::string base = withoutExtension(name);
  for (std::size_t dot = name.find('.'); dot != std::string::npos; dot = name.find('.', dot + 1)) {
    if (!runs.contains(std::string_view(name).substr(0, dot))) continue;
    if (dot == base.size() || !hasControlFile(entries, base)) return true;
  }
  return false;
}

// What cannot be listed or emptied is left as it is.
void deleteFilesIn(FileSystem& files, const std::string& folder, const Runs& runs) try {
  const Entries entries = entriesOf(files, folder);
  for (const DirectoryEntry& entry : entries) {
    if (entry.type == FileStatus::Type::directory || !belongsToOneOf(runs, entry.name, entries)) continue;
    (void)files.removeFile(joinPath(folder, entry.name));
  }
} catch (const RuntimeFault&) {
}

void emptyResults(FileSystem& files, const std::string& stem) try {
  if (isDirectory(files, stem)) emptyDirectory(files, stem);
} catch (const RuntimeFault&) {
}

}  // namespace

void deleteFilesOfStems(FileSystem& files, const std::vector<std::string>& stems) {
  std::map<std::string, Runs> byFolder;
  for (const std::string& stem : stems) {
    if (const std::string_view run = ParsePathName(stem); !isOnlyDots(run)) {
      byFolder[std::string(directoryOf(stem))].emplace(run);
    }
  }
  for (const auto& [folder, runs] : byFolder) {
    deleteFilesIn(files, folder, runs);
    for (const std::string& run : runs) emptyResults(files, joinPath(folder, run));
  }
}

void DeleteOldRunFiles(FileSystem& files, const std::string& projectDirectory, const std::string& runName) {
  const std::size_t mark = runName.rfind('_');
  const std::string folder = mark == std::string::npos ? "" : runName.substr(0, mark);
  const std::string stem = absolutePath(joinPath(joinPath(projectDirectory, folder), runName), projectDirectory);
  if (stem.starts_with(joinPath(projectDirectory, ""))) deleteFilesOfStem(files, stem);
}

}  // namespace kestra
