#include "shell/save_commands.h"

#include "base/paths.h"
#include "platform/files.h"
#include "screens/file_choice.h"

namespace kestra {
namespace {

constexpr const char* kWarning = "Warning";
constexpr const char* kSaveAs = "Save As...";
constexpr const char* kDefaultName = "Kestra.KSC";

}  // namespace

SaveCommands::SaveCommands(FileDesk& desk, OpenFile& file) : desk_(desk), file_(file) {
  setAction(desk.window.mnuSaveAs, desk, [this] { (void)saveAs(); });
}

bool SaveCommands::SaveBeforeAction(const std::string& question, bool offersCancel) {
  if (!desk_.state().fileDirty) return true;
  MessageBox box{kWarning, question, BoxIcon::question, {BoxButton::yes, BoxButton::no}};
  if (offersCancel) box.buttons.push_back(BoxButton::cancel);
  const BoxButton answer = desk_.boxes().show(box);
  if (answer != BoxButton::yes) return answer == BoxButton::no;
  const auto name = chooseName();
  return name && file_.write(*name, kWarning);
}

bool SaveCommands::saveAs() {
  const auto name = chooseNameToSaveAs();
  if (!name || !file_.write(*name, kSaveAs)) return false;
  desk_.control.tellCutFields();
  showInputWindow(desk_);
  return true;
}

// An absolute path. Nothing when the dialog is cancelled or confirmed without a name.
std::optional<std::string> SaveCommands::chooseName() {
  const ApplicationState& state = desk_.state();
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::save;
  dialog.title = "Save File";
  dialog.filter = kSaveFilter;
  dialog.filterIndex = kControlFilesOnly;
  dialog.defaultName = state.fileHasName && !state.fileIsNew ? state.currentFile : kDefaultName;
  const auto chosen = chooseFile(desk_.context.ports, dialog);
  if (!chosen || chosen->empty()) return std::nullopt;
  return absolutePath(*chosen, desk_.files().currentDirectory());
}

// Asks again as long as the name holds an underscore: names of run files are taken apart there.
std::optional<std::string> SaveCommands::chooseNameToSaveAs() {
  for (;;) {
    auto path = chooseName();
    if (!path) return path;
    if (exists(desk_.files(), *path) &&
        !desk_.boxes().confirm(kSaveAs, "The file " + *path + " already exists. Do you want to replace it?")) {
      return std::nullopt;
    }
    if (path->find('_') == std::string::npos) return path;
    desk_.boxes().tell(kSaveAs, "Filenames cannot contain an underscore, _ , please enter a different filename.",
                       BoxIcon::critical);
  }
}

}  // namespace kestra
