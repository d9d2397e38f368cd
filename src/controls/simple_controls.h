#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace kestra {

// A control that only shows its caption.
class Label : public Control {
 public:
  Label(Screen& screen, std::string name, std::string caption = {})
      : Control(screen, std::move(name), ControlKind::label, std::move(caption)) {}
};

// A border with a caption round other controls; hides them with itself.
class Frame : public Control {
 public:
  Frame(Screen& screen, std::string name, std::string caption = {})
      : Control(screen, std::move(name), ControlKind::frame, std::move(caption)) {}
};

// A command: a button, or an entry of a menu.
class Command : public Control {
 public:
  using Control::Control;

  // Runs the command. The caller has made sure that it is visible and enabled.
  void click();
  bool hasAction() const { return static_cast<bool>(onClick); }

  std::function<void()> onClick;
};

class Button : public Command {
 public:
  Button(Screen& screen, std::string name, std::string caption)
      : Command(screen, std::move(name), ControlKind::button, std::move(caption)) {}
};

class Menu : public Command {
 public:
  Menu(Screen& screen, std::string name, std::string caption = {})
      : Command(screen, std::move(name), ControlKind::menu, std::move(caption)) {}

  bool checked() const { return checked_; }
  void setChecked(bool checked) {
    checked_ = checked;
    changed(Property::value);
  }
  void keepDesign() override {
    Command::keepDesign();
    designChecked_ = checked_;
  }
  void restoreDesign() override {
    Command::restoreDesign();
    setChecked(designChecked_);
  }

 private:
  bool checked_ = false;
  bool designChecked_ = false;
};

}  // namespace kestra
