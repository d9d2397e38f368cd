#pragma once

#include <functional>
#include <memory>
#include <string>

#include "screens/input_context.h"
#include "shell/frm_kestra.h"
#include "shell/frm_top_screen.h"

namespace kestra {

// Unloads every screen but the frame and the input window, so that each comes back with its design defaults, and
// empties the stores of the auxiliary spillways. No screen asks anything meanwhile.
void UnloadAllScreens(InputContext& input);

// Hides the input screens that are on show.
void HideInputScreens(ScreenHost& host);

inline constexpr const char* kNotAProject = "This is not a valid QUIL project directory!";
enum class Opening { opened, wasOpen, refused };

// The one open project: entering it, leaving it, and holding it against other programs.
class Projects {
 public:
  Projects(InputContext& inputs, frmTopScreen& top, frmKestra& input)
      : inputs_(inputs), context_(inputs.base), top_(top), input_(input) {}

  // Opens the project directory under the given title of the frame. It becomes the current directory. Another program
  // that has it is told of in a box, and the project is then open for looking only.
  void enter(const std::string& directory, const std::string& frameTitle);
  // The same on behalf of a person: a directory that is no project, or the one already open, is answered with a warning
  // under "Open Project". `notAProject` is the text for the first.
  Opening open(const std::string& directory, const std::string& notAProject = kNotAProject);
  void openRecent(const std::string& directory);  // a failing one is taken off the recent list
  // Opens the project in which a control file stands; false, after a warning, when its directory is no project.
  bool openFor(const std::string& path);
  void leave();    // closes the project's windows: no project is open
  void release();  // lets other programs have it

  std::function<void()> onLeaving;  // the open project is about to be closed
  std::function<void()> onChanged;  // another project is open now, or none

  bool isOpen(const std::string& directory) const;    // whatever links lead there
  bool isWithin(const std::string& directory) const;  // the open project is that directory, or lies in it

 private:
  void closeWindows();
  void hold(const std::string& directory);
  bool tryHold(const std::string& directory, std::string& holder);

  InputContext& inputs_;
  ScreenContext& context_;
  frmTopScreen& top_;
  frmKestra& input_;
  std::unique_ptr<FileLock> lock_;
};

}  // namespace kestra
