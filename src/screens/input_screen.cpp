#include "screens/input_screen.h"

#include <utility>

#include "base/runtime_fault.h"
#include "controls/undo_history.h"

namespace kestra {

InputScreen::InputScreen(InputContext& context, std::string name, std::string title, std::string helpTopic)
    : Screen(std::move(name), std::move(title)), context_(context), helpTopic_(std::move(helpTopic)) {
  cmdNext.onClick = [this] { goNext(); };
  cmdPrevious.onClick = [this] { goPrevious(); };
  cmdHome.onClick = [this] { goHome(); };
  cmdHelp.onClick = [this] { context_.base.ports.help.showTopic(this->helpTopic()); };
  mnuUndo.onClick = [this] {
    UndoHistory* history = context_.base.host.history();
    if (history != nullptr && history->undo()) followHistory();
  };
  mnuRedo.onClick = [this] {
    UndoHistory* history = context_.base.host.history();
    if (history != nullptr && history->redo()) followHistory();
  };
}

void InputScreen::followHistory() {
  context_.base.host.tellEdited(*this, mnuUndo);
  undone();
}

void InputScreen::goHome() {
  toInputWindow();
}

bool InputScreen::queryUnload(CloseReason reason, bool bExiting) {
  if (bExiting || reason == CloseReason::program) return true;
  goPrevious();
  return false;
}

void InputScreen::moveTo(Screen& target) {
  context_.base.host.show(target);
  context_.base.host.hide(*this);
}

void InputScreen::moveTo(const std::string& name) {
  Screen* target = context_.base.host.find(name);
  if (target == nullptr) throw RuntimeFault("there is no screen " + name);
  moveTo(*target);
}

void InputScreen::toInputWindow() {
  moveTo(context_.desktop.inputWindow());
}

void InputScreen::runSimulation() {
  toInputWindow();
  context_.desktop.mnuBuildFileFromOtherScreen_Click();
}

void InputScreen::dataCheck(const std::string& text) {
  context_.base.ports.boxes.tell("Data Check", text, BoxIcon::warning);
}

}  // namespace kestra
