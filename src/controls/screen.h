#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "controls/control.h"

namespace kestra {

class ScreenHost;
class UndoHistory;

// Hears what happens on screens: a window, a recorder. Every call has an empty default.
class ScreenObserver {
 public:
  virtual ~ScreenObserver() = default;
  virtual void controlChanged(Control& control, Property property) { (void)control, (void)property; }
  virtual void screenChanged(Screen& screen) { (void)screen; }  // title, place, shown or hidden
};

enum class CloseReason { userFrame, program };

// A named set of controls: a window's content without the window. Its controls are members under their given names,
// entered by their constructors. It is made once; loading brings its design, unloading takes what was put in away.
class Screen {
 public:
  Screen(std::string name, std::string title);
  virtual ~Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  const std::string& name() const { return name_; }
  const std::string& title() const { return place_.title; }
  void setTitle(std::string title);
  void setSize(int width, int height);  // twips (1/1440 inch); 0: as its content needs
  int width() const { return place_.width; }
  int height() const { return place_.height; }
  void setBackColor(std::uint32_t color);  // red in the low byte
  std::uint32_t backColor() const { return place_.backColor; }

  const std::vector<Control*>& controls() const { return controls_; }  // in the order of their making
  Control* find(std::string_view name) const;  // exact name, or a second name; null when there is none

  bool loaded() const { return loaded_; }
  bool visible() const { return visible_; }

  // The user has given its window another size, in twips.
  virtual void Form_Resize(int width, int height) { (void)width, (void)height; }

  // Whether looking at a control loads the screen. False where loading changes more than the screen itself.
  virtual bool loadsWhenRead() const { return true; }

  // Whether what the user enters here belongs to the open control file.
  virtual bool holdsInput() const { return false; }

  void addObserver(ScreenObserver& observer) { observers_.push_back(&observer); }
  void removeObserver(ScreenObserver& observer);

 protected:
  virtual void load() {}      // first show, or first use: tables get their headings
  virtual void activate() {}  // it comes to the front: what depends on other screens is derived anew
  virtual void unload() {}
  // Asked before it goes. False keeps it; a closing by the frame may do something else instead.
  virtual bool queryUnload(CloseReason reason, bool bExiting);

  // Lets a control be found under a second name as well.
  void alsoCalled(Control& control, std::string name) { byName_[std::move(name)] = &control; }
  ScreenHost& host() const;

 private:
  friend class Control;
  friend class ScreenHost;

  struct Place {
    std::string title;
    int width = 0;
    int height = 0;
    std::uint32_t backColor = 0;
  };

  void enter(Control& control);
  Control* focused() const;  // the control of the system that has the focus; null: none
  void setFocused(Control* control);
  void tell(Control& control, Property property);
  void tellEdited(Control& control);
  UndoHistory* history() const;  // null when this screen holds no input, or the host keeps no history
  void tellScreen();
  void keepDesign();
  void restoreDesign();

  std::string name_;
  Place place_;
  Place designPlace_;
  std::vector<Control*> controls_;
  std::unordered_map<std::string, Control*> byName_;
  std::vector<ScreenObserver*> observers_;
  ScreenHost* host_ = nullptr;
  bool loaded_ = false;
  bool visible_ = false;
};

}  // namespace kestra
