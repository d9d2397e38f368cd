#include "shell/open_file.h"

#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "controls/undo_history.h"
#include "platform/files.h"
#include "shell/projects.h"

namespace kestra {

void OpenFile::begin() {
  ApplicationState& state = desk_.state();
  if (onPutAway) onPutAway();
  state.fileHasName = false;
  state.fileIsNew = true;
  state.currentFile.clear();
  state.fileDirty = false;
  desk_.control.texts = {};
  UnloadAllScreens(desk_.input.context);
  desk_.output.forget();
  witness_.forget();
  setInitialValues();
  desk_.window.setTitle("Kestra B - Input Interface (New File)");
  if (desk_.onFile) desk_.onFile();
}

void OpenFile::setInitialValues() {
  desk_.input.psType.optSingleCir.setSelected(true);
  frmPSConduit& conduit = desk_.input.psConduit;
  desk_.context.host.load(conduit);
  conduit.txtEntranceLossCoefficient.setText("0.7");
  conduit.txtWeirInletCoefficient.setText("3.1");
  conduit.txtHighStageWeirCoefficient.setText("3.1");
  conduit.txtHoodWeirInletCoefficient.setText("0.6");
  conduit.txtConduitOrificeDischargeCoefficient.setText("0.61");
  conduit.txtFilletSize.setText("6");
}

bool OpenFile::inProject(const std::string& path) const {
  const std::string directory(directoryOf(path));
  if (equalIgnoringCase(directory, desk_.state().projectDir)) return true;
  const auto there = desk_.files().canonical(directory);
  const auto project = desk_.files().canonical(desk_.state().projectDir);
  return there && project && there.value() == project.value();
}

std::optional<std::string> OpenFile::findToOpen(const std::string& path) {
  if (!inProject(path)) {
    desk_.boxes().tell("Warning", "First, you must import the file into the current QUIL project directory.",
                       BoxIcon::warning);
    return std::nullopt;
  }
  const auto found = findIgnoringCase(desk_.files(), std::string(directoryOf(path)), ParsePathName(path));
  if (!found) {
    desk_.boxes().tell(kErrorTitle, "Invalid Filename", BoxIcon::warning);
    return std::nullopt;
  }
  const Status loadable = desk_.control.checkLoadable(found.value());
  if (loadable) return found.value();
  desk_.boxes().tell(kErrorTitle, ControlFiles::refusal(loadable.failure()), BoxIcon::warning);
  return std::nullopt;
}

bool OpenFile::open(const std::string& path) {
  const auto found = findToOpen(path);
  if (!found) return false;
  take(*found);
  showInputWindow(desk_);
  return true;
}

void OpenFile::take(const std::string& path) {
  takeAs(path, [this, &path] { desk_.control.ReadControlFile(path); });
}

void OpenFile::takeUnsaved(const std::string& name, const ControlSnapshot& input) {
  const auto fill = [this, &input](const std::string& path) { desk_.control.giveBack(path, input); };
  if (name.empty()) {
    begin();
    fill("");
    takeJob();
  } else {
    const std::string path = joinPath(desk_.state().projectDir, name);
    takeAs(path, [&] { fill(path); });
  }
  desk_.state().noteEdit();
  if (desk_.onFile) desk_.onFile();
}

void OpenFile::takeAs(const std::string& path, const std::function<void()>& fill) {
  ApplicationState& state = desk_.state();
  if (onPutAway) onPutAway();
  desk_.top.windows().unloadOthers();
  UnloadAllScreens(desk_.input.context);
  state.currentFile = path;
  state.fileDirty = false;
  state.fileIsNew = false;
  state.fileHasName = true;
  fill();
  witness_.remember(path);
  desk_.window.takeFile(path);
  if (UndoHistory* history = desk_.context.host.history()) history->clear();
  takeJob();
  if (desk_.onFile) desk_.onFile();
}

// On a copy, so that the main run stays as it was read.
void OpenFile::takeJob() {
  std::string job = desk_.control.texts.controlText;
  try {
    desk_.output.GenerateTopoGraph(job, desk_.control.texts.auxRunText);
  } catch (const RuntimeFault& fault) {
    desk_.boxes().tell(kErrorTitle, desk_.state().currentFile + ": " + fault.what(), BoxIcon::warning);
  }
}

bool OpenFile::write(const std::string& path, const std::string& title) {
  if (witness_.changedByAnother(path) &&
      !desk_.boxes().confirm(title, "Another program has changed the file " + path +
                                        " since it was opened here. Do you want to replace it?")) {
    return false;
  }
  if (inProject(path) && !mayChangeProject(desk_, title)) return false;
  if (beforeWrite) beforeWrite();
  constexpr int kBuilt = -1;
  if (desk_.control.BuildControlText(path) != kBuilt) {
    desk_.boxes().tell(title, "Unable to generate file, check input forms", BoxIcon::warning);
    return false;
  }
  if (!desk_.control.WriteControlFiles(path)) return false;
  becomeSaved(path);
  return true;
}

void OpenFile::becomeSaved(const std::string& path) {
  ApplicationState& state = desk_.state();
  state.currentFile = path;
  state.fileDirty = false;
  state.fileIsNew = false;
  state.fileHasName = true;
  witness_.remember(path);
  desk_.window.setTitle("Kestra B [ " + path + " ]");
  if (onSaved) onSaved(path);
  if (desk_.onFile) desk_.onFile();
}

}  // namespace kestra
