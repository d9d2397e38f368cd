#include "shell/autosave.h"

#include <algorithm>
#include <utility>

#include "base/paths.h"
#include "base/text.h"

namespace kestra {
namespace {

constexpr const char* kTitle = "Unsaved Input";

std::string question(const std::string& name) {
  return "A program that ended without saving has left input for " + (name.empty() ? "a new file" : name) +
         " behind. Do you want it back?\r\n\r\nYes puts it on the screens, where you can look at it before you save. "
         "No throws it away. Cancel keeps it until you open the project again.";
}

}  // namespace

Autosave::Autosave(FileDesk& desk, OpenFile& file) : desk_(desk), file_(file), control_(desk) {
  file_.onPutAway = [this] {
    letGo();
    mayOffer_ = true;
  };
  file_.beforeWrite = [this] {
    if (working() && desk_.state().fileDirty) keepNow();
  };
  file_.onSaved = [this](const std::string& path) { saved(path); };
}

bool Autosave::working() const {
  const ApplicationState& state = desk_.state();
  return delay_ && !state.projectDir.empty() && !state.projectReadOnly;
}

void Autosave::keep() {
  const ApplicationState& state = desk_.state();
  if (!working() || !state.fileDirty || state.edits == keptEdits_) {
    since_.reset();
    return;
  }
  const std::int64_t now = desk_.context.ports.clock.steadyNs();
  if (!since_) since_ = now;
  if (now - *since_ >= *delay_) keepNow();
}

void Autosave::keepNow() {
  const ApplicationState& state = desk_.state();
  since_.reset();
  keptEdits_ = state.edits;
  auto input = control_->snapshot(state.currentFile);
  if (!input) return;
  if (number_ == 0) number_ = freeNumber();
  const Status kept = writeUnsavedInput(desk_.files(), state.projectDir, number_, {nameInProject(), *std::move(input)});
  trouble_ = kept ? "" : kept.failure().path + ": " + kept.failure().reason;
}

// Of the open file; empty for one that has none, or stands elsewhere.
std::string Autosave::nameInProject() const {
  const ApplicationState& state = desk_.state();
  const bool inProject = directoryOf(state.currentFile) == state.projectDir;
  return inProject ? std::string(ParsePathName(state.currentFile)) : std::string();
}

// Above all that are there, so that the newest is known by its number whatever the clock has said.
std::uint64_t Autosave::freeNumber() const {
  const auto numbers = unsavedInputNumbers(desk_.files(), desk_.state().projectDir);
  return numbers.empty() ? 1 : numbers.front() + 1;
}

void Autosave::remove(std::uint64_t number) {
  (void)desk_.files().removeFile(unsavedInputFile(desk_.state().projectDir, number));
}

void Autosave::letGo() {
  if (number_ > 0) remove(std::exchange(number_, 0));
  since_.reset();
  keptEdits_ = desk_.state().edits;
}

// What was left behind for the file before is older than what stands in it now.
void Autosave::saved(const std::string& path) {
  letGo();
  const std::string& project = desk_.state().projectDir;
  if (directoryOf(path) != project) return;
  for (const std::uint64_t number : unsavedInputNumbers(desk_.files(), project)) {
    const auto kept = readUnsavedInput(desk_.files(), project, number);
    if (kept && kept->name == ParsePathName(path)) remove(number);
  }
}

void Autosave::projectOpened() {
  mayOffer_ = true;
  troubleTold_ = false;
  trouble_.clear();
}

bool Autosave::isSaved(const UnsavedInput& kept) {
  if (kept.name.empty()) return false;
  return control_->savedSnapshot(joinPath(desk_.state().projectDir, kept.name)) == kept.input;
}

bool Autosave::mayAsk() const {
  const bool hasTrouble = !trouble_.empty() && !troubleTold_;
  return working() && !offering_ && (hasTrouble || (mayOffer_ && !desk_.state().fileDirty));
}

void Autosave::offer() {
  if (!mayAsk()) return;
  tellTrouble();
  const ApplicationState& state = desk_.state();
  if (!mayOffer_ || state.fileDirty) return;
  mayOffer_ = false;
  if (state.fileIsNew) return;
  offering_ = true;
  const std::string open = nameInProject();
  for (const std::uint64_t number : unsavedInputNumbers(desk_.files(), state.projectDir)) {
    auto kept = readUnsavedInput(desk_.files(), state.projectDir, number);
    if (!kept || (state.fileHasName && kept->name != open)) continue;
    if (offerOne({number, *std::move(kept)})) break;
  }
  offering_ = false;
}

bool Autosave::offerOne(const LeftBehind& left) {
  if (isSaved(left.kept)) {
    remove(left.number);
    return false;
  }
  const MessageBox box{
      kTitle, question(left.kept.name), BoxIcon::question, {BoxButton::yes, BoxButton::no, BoxButton::cancel}};
  const BoxButton answer = desk_.boxes().show(box);
  if (answer == BoxButton::no) remove(left.number);
  if (answer == BoxButton::yes) takeBack(left);
  return answer != BoxButton::no;
}

void Autosave::takeBack(const LeftBehind& left) {
  file_.takeUnsaved(left.kept.name, left.kept.input);
  showInputWindow(desk_);
  mayOffer_ = false;
  keepNow();
  if (trouble_.empty()) remove(left.number);
}

void Autosave::tellTrouble() {
  if (trouble_.empty() || std::exchange(troubleTold_, true)) return;
  desk_.boxes().tell(kTitle, "What you enter cannot be kept until you save it. " + std::exchange(trouble_, {}) + ".",
                     BoxIcon::warning);
}

}  // namespace kestra
