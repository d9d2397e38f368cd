#include "shell/project_screens.h"

namespace kestra {

frmOpenProject::frmOpenProject(ScreenContext& context, Projects& projects)
    : ProjectPicker(context, "frmOpenProject", "Open Project") {
  cmdOK.onClick = [this, &projects] {
    const Opening opening = projects.open(directory(), "This is not a valid QUIL project directory!");
    if (opening == Opening::opened) done();
  };
}

}  // namespace kestra
