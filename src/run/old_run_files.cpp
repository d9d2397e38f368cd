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

// Whether there is a control file of that very stem.
bool hasControlFile(const Entries& entries, std::string_view stem) {
  return std::any_of(entries.begin(), entries.end(), [&](const DirectoryEntry& entry) {
    const std::string_view name = entry.name;
    return name.starts_with(stem) && equalIgnoringCase(name.substr(stem.size()), ".KSC");
  });
}

// Names of runs, which readers find whatever their letters.
struct AnyCase {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return toLower(a) < toLower(b); }
};
using Runs = std::multiset<std::string, AnyCase>;

// A file of one of these runs, or of a run that is no more: its name up to some dot is that of the run.
bool belongsToOneOf(const Runs& runs, const std::string& name, const Entries& entries) {
  if (isInputOfRuns(name)) return false;
  const std::string base = withoutExtension(name);
  for (std::size_t dot = name.find('.'); dot != std::string::npos; dot = name.find('.', dot + 1)) {
    if (!runs.contains(std::string_view(name).substr(0, dot))) continue;
    const auto [first, last] = runs.equal_range(base);
    if (std::find(first, last, base) != last) return true;
    if (!hasControlFile(entries, base)) return true;
  }
  return false;
}

// What cannot be listed or emptied is left as it is.
void deleteFilesIn(FileSystem& files, const std::string& folder, const Runs& runs, const std::string& controlFile) try {
  const Entries entries = entriesOf(files, folder);
  for (const DirectoryEntry& entry : entries) {
    const std::string path = joinPath(folder, entry.name);
    if (entry.type == FileStatus::Type::directory || equalIgnoringCase(path, controlFile)) continue;
    if (belongsToOneOf(runs, entry.name, entries)) (void)files.removeFile(path);
  }
} catch (const RuntimeFault&) {
}

void emptyResults(FileSystem& files, const std::string& stem) try {
  if (isDirectory(files, stem)) emptyDirectory(files, stem);
} catch (const RuntimeFault&) {
}

}  // namespace

void deleteFilesOfStems(FileSystem& files, const std::vector<std::string>& stems, const std::string& controlFile) {
  std::map<std::string, Runs> byFolder;
  for (const std::string& stem : stems) {
    if (const std::string_view run = ParsePathName(stem); !isOnlyDots(run)) {
      byFolder[std::string(directoryOf(stem))].emplace(run);
    }
  }
  for (const auto& [folder, runs] : byFolder) {
    deleteFilesIn(files, folder, runs, controlFile);
    for (const std::string& run : runs) emptyResults(files, joinPath(folder, run));
  }
}

void DeleteOldRunFiles(FileSystem& files, const std::string& projectDirectory, const std::string& runName,
                       const std::string& controlFile) {
  if (projectDirectory.empty()) return;
  const std::size_t mark = runName.rfind('_');
  const std::string folder = mark == std::string::npos ? "" : runName.substr(0, mark);
  const std::string stem = absolutePath(joinPath(joinPath(projectDirectory, folder), runName), projectDirectory);
  if (stem.starts_with(joinPath(projectDirectory, ""))) deleteFilesOfStems(files, {stem}, controlFile);
}

}  // namespace kestra
