#pragma once

#include <functional>
#include <string>

#include "controls/control_array.h"
#include "controls/simple_controls.h"
#include "screens/screen_context.h"
#include "shell/recent_projects.h"
#include "shell/window_registry.h"

namespace kestra {

// The frame of the running application: the window registry, the recent projects, and how the program ends.
class frmTopScreen : public Screen {
 public:
  frmTopScreen(ScreenContext& context, std::string applicationDirectory);

  Menu mnuFile{*this, "mnuFile", "&File"};
  Menu mnuNewProject{*this, "mnuNewProject", "&New Project..."};
  Menu mnuOpenProject{*this, "mnuOpenProject", "&Open Project..."};
  Menu mnuDeleteProject{*this, "mnuDeleteProject", "&Delete Project..."};
  ControlArray<Menu> mnuRecentProject{*this, "mnuRecentProject", 1, RecentProjects::kMost};
  Menu mnuExit{*this, "mnuExit", "E&xit"};
  Menu mnuHelp{*this, "mnuHelp", "&Help"};
  Menu mnuContents{*this, "mnuContents", "&Contents"};
  Menu mnuAboutTorve{*this, "mnuAboutTorve", "&About Kestra B"};
  Menu mnuDisclaimer{*this, "mnuDisclaimer", "&Disclaimer"};

  void Initialize();  // sets solverPath
  // The steps of start-up up to the recent projects; `loadLists` reads the field catalogues and line settings and gives
  // the colour of the frame.
  void startUp(const std::function<std::uint32_t()>& loadLists);
  void UpdateRecentProjects(const std::string& path) { recent_.update(path); }
  void RemoveRecentProject(const std::string& path) { recent_.remove(path); }
  void saveRecentProjects();  // to the settings; says so in a box when they cannot be written

  WindowRegistry& windows() { return windows_; }
  const RecentProjects& recent() const { return recent_; }

  std::function<void()> onEnd;  // the user has agreed to the end of the program

 protected:
  bool queryUnload(CloseReason reason, bool bExiting) override;

 private:
  bool agreesToExit(bool fromMenu);

  ScreenContext& context_;
  std::string applicationDirectory_;
  WindowRegistry windows_;
  RecentProjects recent_;
  bool exitRequested_ = false;
};

}  // namespace kestra
