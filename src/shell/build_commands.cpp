#include "shell/build_commands.h"

#include "base/text.h"

namespace kestra {
namespace {

constexpr bool kShowProgress = true;

}  // namespace

bool canRun(FileDesk& desk) {
  if (!mayChangeProject(desk, "Build")) return false;
  if (desk.runs != nullptr) return true;
  desk.boxes().tell("Build",
                    "The file cannot be built: the part of Kestra B that starts KestraSim.exe and TorveSim.exe is "
                    "missing.",
                    BoxIcon::critical);
  return false;
}

BuildCommands::BuildCommands(FileDesk& desk, SaveCommands& saving) : desk_(desk), saving_(saving) {
  setAction(desk.window.mnuBuildFile, desk, [this] { (void)build(); });
  setAction(desk.window.mnuBuildFileFromOtherScreen, desk, [this] { (void)buildFromOtherScreen(); });
}

bool BuildCommands::build() {
  const bool changed = !trim(desk_.state().currentFile).empty() && !desk_.control.ControlFileUnchanged();
  if (changed && !saves()) return false;
  const bool built = canRun(desk_) && desk_.runs->BuildMyFiles(kShowProgress);
  if (built) showScreen(desk_, "frmSummaryTable");
  showAgain();
  return built;
}

bool BuildCommands::buildFromOtherScreen() {
  if (!trim(desk_.state().currentFile).empty() && !saves()) return false;
  const bool built = canRun(desk_) && desk_.runs->BuildMyFiles(kShowProgress);
  showAgain();
  return built;
}

// False when the user wanted to save and did not, or could not: the build of an older state is not what was asked for.
bool BuildCommands::saves() {
  if (!desk_.boxes().confirm("Kestra Input", "Do you want to save changes before building?")) return true;
  return saving_.saveAs();
}

void BuildCommands::showAgain() {
  desk_.context.host.hide(desk_.window);
  desk_.context.host.show(desk_.window);
}

}  // namespace kestra
