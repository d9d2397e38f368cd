#pragma once

#include <functional>
#include <string>

#include "controls/control_array.h"
#include "controls/simple_controls.h"
#include "screens/input_context.h"
#include "shell/frm_top_screen.h"

namespace kestra {

// The input window: a project's desktop, with the commands on its control file.
class frmKestra : public Screen, public InputDesktop {
 public:
  frmKestra(ScreenContext& context, frmTopScreen& top);

  Button cmdNext{*this, "cmdNext", "&Next Screen"};
  Menu mnuNew{*this, "mnuNew", "&New"};
  Menu mnuOpen{*this, "mnuOpen", "&Open..."};
  Menu mnuSaveAs{*this, "mnuSaveAs", "Save &As..."};
  Menu mnuImport{*this, "mnuImport", "&Import..."};
  Menu mnuBuildFile{*this, "mnuBuildFile", "&Build File"};
  Menu mnuBuildFileFromOtherScreen{*this, "mnuBuildFileFromOtherScreen", "&Build File"};
  Menu mnuRebuildAll{*this, "mnuRebuildAll", "&Rebuild All"};
  Menu mnuSpecifySum{*this, "mnuSpecifySum", "Summary &Fields..."};
  Menu mnuExit{*this, "mnuExit", "E&xit"};
  ControlArray<Menu> mnuWindowsArray{*this, "mnuWindowsArray", kFirstSlot, kLastSlot};
  Menu mnuContents{*this, "mnuContents", "&Contents"};
  Menu mnuDisclaimer{*this, "mnuDisclaimer", "&Disclaimer"};

  bool loadsWhenRead() const override { return false; }

  void takeProject();                      // a project is open and no file: its title and commands
  void takeFile(const std::string& path);  // a file was opened

  Screen& inputWindow() override { return *this; }
  void mnuBuildFileFromOtherScreen_Click() override { mnuBuildFileFromOtherScreen.click(); }

  std::function<void()> onExit;  // back to the top screen

 protected:
  void load() override;
  void activate() override;
  void unload() override;
  bool queryUnload(CloseReason reason, bool bExiting) override;

 private:
  ScreenContext& context_;
  frmTopScreen& top_;
};

}  // namespace kestra
