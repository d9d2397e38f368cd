#include "run/old_run_files.h"

#include <algorithm>

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

// A file of this run, or of a run that is no more.
bool belongsTo(const std::string& run, const std::string& name, const Entries& entries) {
  if (!name.starts_with(run + ".") || isInputOfRuns(name)) return false;
  const std::string base = withoutExtension(name);
  return base == run || !hasControlFile(entries, base);
}

}  // namespace

void deleteFilesOfStem(FileSystem& files, const std::string& stem) try {
  const std::string folder(directoryOf(stem));
  const std::string run(ParsePathName(stem));
  if (isOnlyDots(run)) return;
  const Entries entries = entriesOf(files, folder);
  for (const DirectoryEntry& entry : entries) {
    if (entry.type == FileStatus::Type::directory || !belongsTo(run, entry.name, entries)) continue;
    (void)files.removeFile(joinPath(folder, entry.name));
  }
  if (isDirectory(files, stem)) emptyDirectory(files, stem);
} catch (const RuntimeFault&) {
  // Left as it is.
}

void DeleteOldRunFiles(FileSystem& files, const std::string& projectDirectory, const std::string& runName) {
  const std::size_t mark = runName.rfind('_');
  const std::string folder = mark == std::string::npos ? "" : runName.substr(0, mark);
  const std::string stem = absolutePath(joinPath(joinPath(projectDirectory, folder), runName), projectDirectory);
  if (stem.starts_with(joinPath(projectDirectory, ""))) deleteFilesOfStem(files, stem);
}

}  // namespace kestra
