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
  const std::string path = directory();
  if (!bearsOwnersMark(context_.ports.files, path)) return warn("This is not a valid project directory!");
  const std::string question =
      "Do you really want to remove the QUIL project " + std::string(ParsePathName(path)) + " ?";
  if (!context_.ports.boxes.confirm(title(), question) || heldByAnother(path)) return;
  remove(path);
}

void frmDeleteProject::remove(const std::string& path) {
  FileSystem& files = context_.ports.files;
  const bool wasOpen = projects_.isOpen(path);
  (void)files.changeDirectory(applicationDirectory_);
  top_.RemoveRecentProject(path);
  if (wasOpen) projects_.leave();
  const Status removed = removeProjectDirectory(files, path);
  if (!removed) return warn("Unable to remove all files in the project directory.");
  done();
}

// A project that another program has open stays, and the user is told who has it.
bool frmDeleteProject::heldByAnother(const std::string& path) {
  if (projects_.isOpen(path) && !context_.state.projectReadOnly) return false;
  const auto lock = lockProject(context_.ports.files, path);
  if (!lock.failedAs(FailureKind::busy)) return false;
  warn("This project is open in " + lock.failure().reason + " and cannot be removed now.");
  return true;
}

}  // namespace kestra
