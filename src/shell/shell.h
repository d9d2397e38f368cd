#pragma once

#include <string>

#include "control/control_files.h"
#include "controls/undo_history.h"
#include "graphics/line_settings.h"
#include "graphs/graph_screens.h"
#include "screens/input_screen_set.h"
#include "screens/screen_context.h"
#include "screens/text_screen.h"
#include "shell/autosave.h"
#include "shell/frm_error_table.h"
#include "shell/frm_kestra.h"
#include "shell/frm_top_screen.h"
#include "shell/project_screens.h"
#include "shell/projects.h"
#include "shell/run_inputs.h"
#include "shell/window_commands.h"
#include "summary/summary_fields.h"
#include "tools/frm_editor.h"

namespace kestra {

// The screens of the application shell, joined to each other, and the program's start and end.
class Shell {
 public:
  Shell(ScreenContext& context, const std::string& applicationDirectory);

  frmTopScreen topScreen;
  frmKestra inputWindow;
  InputScreenSet input;
  ControlFiles controlFiles;
  UndoHistory history;  // of the input screens
  Projects projects;
  frmNewProject newProject;
  frmOpenProject openProject;
  frmDeleteProject deleteProject;
  frmOutput output;
  frmEditor editor;
  frmProgress progress;
  frmErrorTable errorTable;
  FileDesk fileDesk;
  WindowCommands commands;  // of the input window
  Autosave autosave;
  RunInputs runInputs;
  TextScreen about;
  TextScreen disclaimer;

  FieldCatalogues catalogues;
  LineSettings lines;
  GraphScreens graphs;

  // Starts the application, `commandLine` being what stands behind the program's name: nothing, or the path of a
  // control file, in double quotes or not; a single character is ignored. A file whose directory is no project ends the
  // program.
  void startUp(const std::string& commandLine);
  void loadCatalogues() { catalogues.LoadFieldCatalogues(context_.ports.files, applicationDirectory_); }
  void end();  // as when the user has agreed: the recent list is saved, the screens are unloaded
  bool ended() const { return ended_; }

 private:
  void openCommandLine(std::string path);

  ScreenContext& context_;
  std::string applicationDirectory_;
  bool ended_ = false;
};

}  // namespace kestra
