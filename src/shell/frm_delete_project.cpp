#include <utility>

#include "base/paths.h"
#include "shell/project_directory.h"
#include "shell/project_screens.h"

namespace kestra {

frmDeleteProject::frmDeleteProject(ScreenContext& context, Projects& projects, frmTopScreen& top,
                                   std::string applicationDirectory)
    : ProjectPicker(context, "frmDeleteProject", "Delete Project"),
      projects_(projects),
      top_(top),
      applicationDirectory_(std::move(applicationDirectory)) {
  cmdOK.onClick = [this] { deleteProject(); };
}

void frmDeleteProject::deleteProject() {
  const auto real = context_.ports.files.canonical(directory());
  const std::string path = real ? real.value() : directory();
  if (!bearsOwnersMark(context_.ports.files, path)) return warn("This is not a valid project directory!");
  const std::string question =
      "Do you really want to remove the QUIL project " + std::string(ParsePathName(directory())) + " ?";
  if (!context_.ports.boxes.confirm(title(), question) || heldByAnother(path)) return;
  remove(path);
}

void frmDeleteProject::remove(const std::string& path) {
  FileSystem& files = context_.ports.files;
  const bool openThere = projects_.isWithin(path);
  const std::string before = files.currentDirectory();
  (void)files.changeDirectory(applicationDirectory_);
  forget(path);
  const Status removed = removeProjectDirectory(files, path);
  if (!removed) {
    (void)files.changeDirectory(before);
    return warn("Unable to remove all files in the project directory.");
  }
  if (openThere) projects_.leave();
  done();
}

// Takes the project, and those within it, off the recent list, whatever links lead to them.
void frmDeleteProject::forget(const std::string& path) {
  for (const std::string& recent : top_.recent().paths()) {
    const auto real = context_.ports.files.canonical(recent);
    const std::string& there = real ? real.value() : recent;
    if (there == path || there.starts_with(joinPath(path, ""))) top_.RemoveRecentProject(recent);
  }
}

// A project that another program has open stays, as does one that holds such a project, and the user is told who has
// it.
bool frmDeleteProject::heldByAnother(const std::string& path) {
  for (const std::string& project : projectsWithin(context_.ports.files, path)) {
    if (projects_.isOpen(project) && !context_.state.projectReadOnly) continue;
    const auto lock = lockProject(context_.ports.files, project);
    if (!lock.failedAs(FailureKind::busy)) continue;
    warn("This project is open in " + lock.failure().reason + " and cannot be removed now.");
    return true;
  }
  return false;
}

}  // namespace kestra
