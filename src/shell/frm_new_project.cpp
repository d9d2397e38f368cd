#include "base/paths.h"
#include "platform/files.h"
#include "shell/project_directory.h"
#include "shell/project_screens.h"

namespace kestra {

frmNewProject::frmNewProject(ScreenContext& context, Projects& projects)
    : ProjectPicker(context, "frmNewProject", "New Project"), projects_(projects) {
  cmdOK.onClick = [this] { makeProject(); };
}

void frmNewProject::makeProject() {
  FileSystem& files = context_.ports.files;
  const std::string typed = directory().empty() ? txtEnterName.text() : joinPath(directory(), txtEnterName.text());
  if (typed.find(kSeparator) == std::string::npos) return warn("You have given an invalid directory name!");
  const std::string path = absolutePath(typed, files.currentDirectory());
  if (inProject(path)) return warn("QUIL project directories cannot be nested!");
  if (exists(files, path)) return warn("Project directory already exists, please try another name.");
  // The open project may be gone, with whoever held it; a new one may then stand in its place.
  if (!isProject(files, context_.state.projectDir)) projects_.release();
  const Status made = makeProjectDirectory(files, path);
  if (!made) return warn("Unable to make the project directory " + path + ": " + made.failure().reason);
  (void)files.changeDirectory(path);
  projects_.enter(path, "Kestra B [ Project  " + path + "]");
  done();
}

// Whether the chosen directory, or the one in which the new project would stand, is a project.
bool frmNewProject::inProject(const std::string& path) const {
  FileSystem& files = context_.ports.files;
  return isProject(files, directory()) || isProject(files, std::string(directoryOf(path)));
}

}  // namespace kestra
