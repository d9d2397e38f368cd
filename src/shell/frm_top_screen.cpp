#include "shell/frm_top_screen.h"

#include <utility>

#include "base/paths.h"

namespace kestra {

frmTopScreen::frmTopScreen(ScreenContext& context, std::string applicationDirectory)
    : Screen("frmTopScreen", "Kestra B"),
      context_(context),
      applicationDirectory_(std::move(applicationDirectory)),
      windows_(context.state, context.host),
      recent_(mnuRecentProject) {
  for (Menu& entry : mnuRecentProject) entry.setVisible(false);
  mnuExit.onClick = [this] {
    exitRequested_ = true;
    context_.host.unload(*this);
  };
  mnuContents.onClick = [this] { context_.ports.help.showTopic(""); };
}

void frmTopScreen::Initialize() {
  context_.state.solverPath = joinPath(applicationDirectory_, "QUIL.exe");
}

void frmTopScreen::startUp(const std::function<std::uint32_t()>& loadLists) {
  exitRequested_ = false;
  Initialize();
  context_.state.fileIsNew = true;
  context_.state.bExiting = false;
  context_.state.currentSpillwayNumber = "1";
  setBackColor(loadLists());
  context_.state.windowOpen.fill(false);
  recent_.load(context_.ports.settings);
  constexpr int kWidth = 11600;
  constexpr int kHeight = 7605;
  setSize(kWidth, kHeight);
}

void frmTopScreen::saveRecentProjects() {
  const Status saved = recent_.save(context_.ports.settings);
  if (saved) return;
  context_.ports.boxes.tell(
      "Kestra B",
      "The list of recent projects could not be saved. " + saved.failure().path + ": " + saved.failure().reason,
      BoxIcon::warning);
}

bool frmTopScreen::queryUnload(CloseReason reason, bool bExiting) {
  (void)reason, (void)bExiting;
  if (!agreesToExit(std::exchange(exitRequested_, false))) return false;
  if (onEnd) onEnd();
  return true;
}

bool frmTopScreen::agreesToExit(bool fromMenu) {
  ApplicationState& state = context_.state;
  state.bExiting = true;
  if (fromMenu && !state.fileDirty) return true;
  if (context_.ports.boxes.confirm(title(), "Do you really want to exit from this application?")) return true;
  state.bExiting = false;
  return false;
}

}  // namespace kestra
