#include "shell/project_screens.h"

namespace kestra {

frmOpenProject::frmOpenProject(ScreenContext& context, Projects& projects)
    : ProjectPicker(context, "frmOpenProject", "Open Project") {
  cmdOK.onClick = [this, &projects] {
    if (projects.open(directory()) == Opening::opened) done();
  };
}

}  // namespace kestra
