#pragma once

#include <string>
#include <utility>
#include <vector>

#include "controls/canvas_control.h"
#include "controls/control_array.h"
#include "controls/simple_controls.h"
#include "screens/input_context.h"
#include "shell/frm_top_screen.h"

namespace kestra {

// The input window: a project's desktop, with the commands on its control file. What those do stands in the classes of
// commands, which give them their actions.
class frmKestra : public Screen, public InputDesktop {
 public:
  frmKestra(ScreenContext& context, frmTopScreen& top);

  CanvasControl Picture1{*this, "Picture1"};
  Button cmdNext{*this, "cmdNext", "&Next Screen"};
  Menu mnuNew{*this, "mnuNew", "&New"};
  Menu mnuOpen{*this, "mnuOpen", "&Open..."};
  Menu mnuSaveAs{*this, "mnuSaveAs", "Save &As..."};
  Menu mnuImport{*this, "mnuImport", "&Import..."};
  Menu mnuBuildFile{*this, "mnuBuildFile", "&Build File"};
  Menu mnuBuildFileFromOtherScreen{*this, "mnuBuildFileFromOtherScreen", "&Build File"};
  Menu mnuRebuildAll{*this, "mnuRebuildAll", "&Rebuild All"};
  Menu mnuConvertAll{*this, "mnuConvertAll", "C&onvert All"};
  Menu mnuCheckFile{*this, "mnuCheckFile", "&Check File"};
  Menu mnuErrorTable{*this, "mnuErrorTable", "&Error Table"};
  Menu mnuSummaryTable{*this, "mnuSummaryTable", "Summary &Table"};
  Menu mnuSpecifySum{*this, "mnuSpecifySum", "Summary &Fields..."};
  Menu mnuColors{*this, "mnuColors", "&Colors..."};
  Menu mnuSpecifyLines{*this, "mnuSpecifyLines", "&Lines..."};
  Menu mnuExit{*this, "mnuExit", "E&xit"};
  Menu mnuCascade{*this, "mnuCascade", "&Cascade"};
  Menu mnuTile{*this, "mnuTile", "&Tile"};
  ControlArray<Menu> mnuWindowsArray{*this, "mnuWindowsArray", kFirstSlot, kLastSlot};
  Menu mnuContents{*this, "mnuContents", "&Contents"};
  Menu mnuDisclaimer{*this, "mnuDisclaimer", "&Disclaimer"};

  bool loadsWhenRead() const override { return false; }

  void takeProject();                      // a project is open and no file: its title and commands
  void takeFile(const std::string& path);  // a file was opened

  Screen& inputWindow() override { return *this; }
  void mnuBuildFileFromOtherScreen_Click() override { mnuBuildFileFromOtherScreen.click(); }

 protected:
  void load() override;
  void activate() override;
  void unload() override;
  bool queryUnload(CloseReason reason, bool bExiting) override;

 private:
  std::vector<Menu*> projectMenus();  // enabled while a project is open
  // The menus that show a screen of another part of the system, each with the name of that screen.
  std::vector<std::pair<Menu*, const char*>> screenMenus();
  void arrange(WindowArrangement arrangement);

  ScreenContext& context_;
  frmTopScreen& top_;
};

}  // namespace kestra
