#pragma once

#include <functional>

#include "control/control_files.h"
#include "screens/file_runs.h"
#include "screens/frm_progress.h"
#include "shell/frm_error_table.h"
#include "shell/frm_kestra.h"
#include "shell/frm_top_screen.h"
#include "tools/frm_output.h"

namespace kestra {

// What the commands of the input window work on.
struct FileDesk {
  ScreenContext& context;
  InputScreenSet& input;
  ControlFiles& control;
  frmTopScreen& top;
  frmKestra& window;
  frmOutput& output;
  frmProgress& progress;
  frmErrorTable& errorTable;
  FileRuns* runs = nullptr;           // null: nothing here can start a run
  std::function<void()> onFile = {};  // another file is open, or the open one was written

  ApplicationState& state() const { return context.state; }
  MessageBoxes& boxes() const { return context.ports.boxes; }
  FileSystem& files() const { return context.ports.files; }
};

// The filters of the file dialogs, the second of which is shown first.
inline constexpr const char* kSaveFilter = "All Files (*.*)|*.*|KSC Files (*.KSC)|*.KSC";
inline constexpr const char* kOpenFilter = "All Files(*.*)|*.*|Kestra KSC Files Only|*.KSC";
inline constexpr int kControlFilesOnly = 2;
inline constexpr const char* kErrorTitle = "Error Message";

// Gives a menu command its action, under a trap: a run-time fault ends the command with the state as it stands and is
// told in a box.
void setAction(Menu& command, FileDesk& desk, std::function<void()> action);

// Asks for a file to open; an absolute path. Nothing when the dialog is cancelled or confirmed without a name.
std::optional<std::string> chooseControlFile(FileDesk& desk, const std::string& title);

// Tells under a title that another program has the open project, and nothing in it can be changed; false then.
bool mayChangeProject(FileDesk& desk, const std::string& title);

// Brings the input window to the front, no input screen before it.
void showInputWindow(FileDesk& desk);

// Shows a screen by its name, where there is one; false where there is none.
bool showScreen(FileDesk& desk, const char* name);

}  // namespace kestra
