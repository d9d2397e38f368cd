#include "shell/file_desk.h"

#include <utility>

#include "base/paths.h"
#include "base/runtime_fault.h"
#include "screens/file_choice.h"
#include "shell/projects.h"

namespace kestra {

void setAction(Menu& command, FileDesk& desk, std::function<void()> action) {
  command.onClick = [&desk, action = std::move(action)] {
    try {
      action();
    } catch (const RuntimeFault& fault) {
      desk.boxes().tell(kErrorTitle, fault.what(), BoxIcon::warning);
    }
  };
}

std::optional<std::string> chooseControlFile(FileDesk& desk, const std::string& title) {
  FileDialog dialog;
  dialog.title = title;
  dialog.filter = kOpenFilter;
  dialog.filterIndex = kControlFilesOnly;
  const auto chosen = chooseFile(desk.context.ports, dialog);
  if (!chosen || chosen->empty()) return std::nullopt;
  return absolutePath(*chosen, desk.files().currentDirectory());
}

bool mayChangeProject(FileDesk& desk, const std::string& title) {
  if (!desk.state().projectReadOnly) return true;
  desk.boxes().tell(title,
                    "This project is open in another program. You can look at it here, but nothing in it can be "
                    "changed.",
                    BoxIcon::warning);
  return false;
}

void showInputWindow(FileDesk& desk) {
  HideInputScreens(desk.context.host);
  desk.context.host.show(desk.window);
}

bool showScreen(FileDesk& desk, const char* name) {
  Screen* screen = desk.context.host.find(name);
  if (screen == nullptr) return false;
  desk.context.host.show(*screen);
  return true;
}

}  // namespace kestra
