#include "shell/window_registry.h"

#include <algorithm>

namespace kestra {
namespace {

std::size_t at(int slot) {
  return static_cast<std::size_t>(slot);
}
constexpr int kInput = static_cast<int>(WindowSlot::input);

}  // namespace

void WindowRegistry::enter(WindowSlot slot, Screen& screen, ControlArray<Menu>* windowMenu) {
  slots_[at(static_cast<int>(slot))] = {&screen, windowMenu};
}

void WindowRegistry::shown(Screen& screen) {
  if (std::find(sequence_.begin(), sequence_.end(), &screen) != sequence_.end()) lastInSequence_ = &screen;
}

std::vector<std::string> WindowRegistry::sequenceNames() const {
  std::vector<std::string> names;
  for (const Screen* screen : sequence_) names.push_back(screen->name());
  return names;
}

void WindowRegistry::AddData(int slot) {
  state_.window(slot) = true;
}

void WindowRegistry::RemoveData(int slot) {
  state_.window(slot) = false;
}

bool WindowRegistry::IsAvailable(int slot) const {
  return state_.window(slot);
}

void WindowRegistry::FindFormToBuildItems() {
  for (int slot = kFirstSlot; slot <= kLastSlot; ++slot) {
    ControlArray<Menu>* menu = slots_[at(slot)].windowMenu;
    if (state_.windowOpen[at(slot)] && menu != nullptr) buildMenu(*menu);
  }
}

void WindowRegistry::buildMenu(ControlArray<Menu>& menu) {
  int entry = menu.first();
  for (int slot = kFirstSlot; slot <= kLastSlot && entry <= menu.last(); ++slot) {
    const Screen* screen = slots_[at(slot)].screen;
    if (!state_.windowOpen[at(slot)] || screen == nullptr) continue;
    menu(entry).setCaption(screen->title());
    menu(entry).setVisible(true);
    menu(entry).onClick = [this, slot] { RaiseScreen(slot); };
    ++entry;
  }
  for (; entry <= menu.last(); ++entry) menu(entry).setVisible(false);
}

void WindowRegistry::LoadOrUnload() {
  if (!state_.windowOpen[kInput] && slots_[kInput].screen != nullptr) host_.show(*slots_[kInput].screen);
  unloadOthers();
}

void WindowRegistry::unloadOthers() {
  for (int slot = kInput + 1; slot <= kLastSlot; ++slot) {
    if (!state_.windowOpen[at(slot)]) continue;
    if (slots_[at(slot)].screen == nullptr || host_.unload(*slots_[at(slot)].screen)) RemoveData(slot);
  }
}

void WindowRegistry::RaiseScreen(int slot) {
  if (slot < kFirstSlot || slot > kLastSlot || !state_.windowOpen[at(slot)]) return;
  const bool left = lastInSequence_ != nullptr && lastInSequence_->loaded();
  Screen* screen = slot == kInput && left ? lastInSequence_ : slots_[at(slot)].screen;
  if (screen != nullptr) host_.show(*screen);
}

}  // namespace kestra
