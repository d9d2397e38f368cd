#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace kestra {

class Screen;
class UndoHistory;

enum class ControlKind {
  text,
  option,
  check,
  combo,
  list,
  button,
  menu,
  label,
  frame,
  table,
  tabs,
  slider,
  gauge,
  canvas,
  directory
};

std::string_view nameOf(ControlKind kind);  // "text", "option", ...

// What of a control has changed, told to the observers of its screen.
enum class Property { value, caption, visible, enabled, items, cells, cursor, range, drawing };

// A key press: a character (Enter is 13, Backspace 8), or a named key such as "PageDown".
struct Key {
  char32_t character = 0;
  std::string name;
};

inline constexpr char32_t kBackspace = 8;
inline constexpr char32_t kEnter = 13;

// A control of a screen: a name and the properties that a person sees. Setting a property from the program is silent
// but for the observers; what a user does goes through the user... operations of each kind, which run the control's
// handler and tell the screen that its input was edited.
class Control {
 public:
  Control(Screen& screen, std::string name, ControlKind kind, std::string caption = {});
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& name() const { return name_; }
  ControlKind kind() const { return kind_; }
  Screen& screen() const { return screen_; }

  const std::string& caption() const { return look_.caption; }
  void setCaption(std::string caption);
  bool visible() const;  // its own flag and that of the frames it stands in
  bool ownVisible() const { return look_.visible; }
  void setVisible(bool visible);
  bool enabled() const { return look_.enabled; }
  void setEnabled(bool enabled);
  void standIn(const Control& frame) { frame_ = &frame; }

  // Keeps the present properties as those of the design, and goes back to them.
  virtual void keepDesign() { design_ = look_; }
  virtual void restoreDesign();

  void userFocus();                      // the user enters the control, unless the focus is on it already
  void userLeave();                      // the focus leaves it; its checks run, and may take it back
  void takeFocus();                      // the program puts the focus here
  virtual void userKey(const Key& key);  // a key press while it has the focus; ignored unless the kind takes keys

  void tellChanged(Property property) { changed(property); }  // to the observers, on behalf of who changed it

  std::function<void()> onFocus;
  std::function<void()> onLeave;

 protected:
  void changed(Property property);
  void edited();  // tells the screen that the user changed its input
  // Where a gesture's changes are kept; null when the control's screen holds no input, or nothing is recorded.
  UndoHistory* history() const;

 private:
  struct Look {
    std::string caption;
    bool visible = true;
    bool enabled = true;
  };

  Screen& screen_;
  std::string name_;
  ControlKind kind_;
  const Control* frame_ = nullptr;
  Look look_;
  Look design_;
};

}  // namespace kestra
