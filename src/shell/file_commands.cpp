#include "shell/file_commands.h"

namespace kestra {
namespace {

constexpr const char* kBeforeNew = "Do you want to save changes to the current file before creating a new file?";
constexpr const char* kBeforeOpen = "Do you want to save changes before opening another file?";
constexpr const char* kBeforeExit = "Do you want to save changes to the current file before exiting?";

}  // namespace

FileCommands::FileCommands(FileDesk& desk, OpenFile& file, SaveCommands& saving, Projects& projects)
    : desk_(desk), file_(file), saving_(saving), projects_(projects) {
  setAction(desk.window.mnuNew, desk, [this] { newFile(); });
  setAction(desk.window.mnuOpen, desk, [this] { open(); });
  setAction(desk.window.mnuExit, desk, [this] { exit(); });
}

void FileCommands::newFile() {
  if (!saving_.SaveBeforeAction(kBeforeNew)) return;
  file_.begin();
  showInputWindow(desk_);
}

// The screens are cleared only once a good file has been chosen.
void FileCommands::open() {
  if (!saving_.SaveBeforeAction(kBeforeOpen)) return;
  if (const auto chosen = chooseControlFile(desk_, "Open")) file_.open(*chosen);
}

void FileCommands::exit() {
  constexpr bool kOffersCancel = true;
  if (saving_.SaveBeforeAction(kBeforeExit, kOffersCancel)) projects_.leave();
}

}  // namespace kestra
