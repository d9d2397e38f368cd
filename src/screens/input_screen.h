#pragma once

#include <string>

#include "controls/simple_controls.h"
#include "screens/input_context.h"

namespace kestra {

// A screen of the sequence: Next and Previous show another screen and hide this one, Home leads to the input window,
// closing by the frame acts as Previous. What was entered stays until the screen is unloaded.
class InputScreen : public Screen {
 public:
  InputScreen(InputContext& context, std::string name, std::string title, std::string helpTopic);

  Button cmdNext{*this, "cmdNext", "&Next Screen"};
  Button cmdPrevious{*this, "cmdPrevious", "&Previous Screen"};
  Button cmdHome{*this, "cmdHome", "Ho&me Screen"};
  Button cmdHelp{*this, "cmdHelp", "&Help"};
  Menu mnuUndo{*this, "mnuUndo", "&Undo"};
  Menu mnuRedo{*this, "mnuRedo", "&Redo"};

  bool holdsInput() const override { return true; }

 protected:
  virtual void goNext() = 0;
  virtual void goPrevious() = 0;
  virtual void goHome();
  virtual std::string helpTopic() const { return helpTopic_; }  // "html\StructureTable.htm"
  bool queryUnload(CloseReason reason, bool bExiting) override;
  virtual void undone() {}  // values were undone or redone: what the screen derives from them follows

  void moveTo(Screen& target);           // shows it and hides this screen
  void moveTo(const std::string& name);  // a screen by its name
  void toInputWindow();                  // shows the input window and hides this screen
  void runSimulation();                  // the same, then the build from another screen
  // A warning box under "Data Check", with which a check on entry speaks.
  void dataCheck(const std::string& text);

  InputContext& context_;

 private:
  void followHistory();

  std::string helpTopic_;
};

}  // namespace kestra
