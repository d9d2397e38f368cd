#include "shell/frm_kestra.h"

#include "screens/dam_picture.h"

namespace kestra {
namespace {

constexpr int kSlot = static_cast<int>(WindowSlot::input);

}  // namespace

frmKestra::frmKestra(ScreenContext& context, frmTopScreen& top)
    : Screen("frmKestra", "Kestra B - Input Interface"), context_(context), top_(top) {
  for (Menu* command : projectMenus()) command->setEnabled(false);
  mnuSaveAs.setEnabled(false);
  for (Menu& entry : mnuWindowsArray) entry.setVisible(false);
  mnuContents.onClick = [this] { context_.ports.help.showTopic(""); };
  cmdNext.onClick = [this] {
    context_.host.hide(*this);
    if (Screen* first = context_.host.find("frmProjectInformation")) context_.host.show(*first);
  };
  for (const auto& [command, name] : screenMenus()) {
    command->onClick = [this, name = name] {
      if (Screen* screen = context_.host.find(name)) context_.host.show(*screen);
    };
  }
  mnuCascade.onClick = [this] { arrange(WindowArrangement::cascade); };
  mnuTile.onClick = [this] { arrange(WindowArrangement::tile); };
}

std::vector<Menu*> frmKestra::projectMenus() {
  return {&mnuNew,        &mnuOpen,      &mnuImport,     &mnuBuildFile, &mnuRebuildAll,
          &mnuConvertAll, &mnuCheckFile, &mnuErrorTable, &mnuSpecifySum};
}

std::vector<std::pair<Menu*, const char*>> frmKestra::screenMenus() {
  return {{&mnuSummaryTable, "frmSummaryTable"},
          {&mnuSpecifySum, "frmSummaryFields"},
          {&mnuColors, "frmUpdateColors"},
          {&mnuSpecifyLines, "frmUpdateLines"}};
}

void frmKestra::arrange(WindowArrangement arrangement) {
  if (context_.host.onArrange) context_.host.onArrange(arrangement);
}

void frmKestra::takeProject() {
  for (Menu* command : projectMenus()) command->setEnabled(true);
  mnuSaveAs.setEnabled(false);
  setTitle("Kestra B - Input Interface");
}

void frmKestra::takeFile(const std::string& path) {
  mnuSaveAs.setEnabled(true);
  setTitle("Kestra B ( " + path + " )");
}

void frmKestra::load() {
  context_.state.crlf = kCrLf;
  context_.state.fileIsNew = false;
  context_.state.inputScreens = top_.windows().sequenceNames();
  top_.windows().AddData(kSlot);
  drawDamPicture(Picture1);
  for (const auto& [command, name] : screenMenus()) command->setVisible(context_.host.find(name) != nullptr);
}

void frmKestra::activate() {
  mnuSaveAs.setEnabled(context_.state.fileIsNew || context_.state.fileHasName);
  top_.mnuFile.setVisible(false);
  top_.mnuHelp.setVisible(false);
}

void frmKestra::unload() {
  top_.windows().RemoveData(kSlot);
  top_.mnuFile.setVisible(true);
  top_.mnuHelp.setVisible(true);
}

// Closing the window by its frame is the Exit command.
bool frmKestra::queryUnload(CloseReason reason, bool bExiting) {
  if (bExiting || reason == CloseReason::program) return true;
  mnuExit.click();
  return false;
}

}  // namespace kestra
