#pragma once

#include <string>

#include "controls/canvas_control.h"
#include "controls/choices.h"
#include "controls/control_array.h"
#include "controls/directory_list.h"
#include "controls/ranges.h"
#include "controls/simple_controls.h"
#include "controls/table.h"
#include "controls/text_box.h"
#include "screens/screen_context.h"

namespace kestra {

// A screen with a control of every kind; each handler adds a word to the log.
class Gallery : public Screen {
 public:
  Gallery() : Screen("gallery", "Gallery") {
    setSize(300, 200);
    shut.setEnabled(false);
    gone.setVisible(false);
    inner.standIn(border);
    editable.setEditable(true);
    table.setCell(0, 1, "A");
    table.setCell(0, 2, "B");
    accept.setChecked(true);
    alsoCalled(press, "PRESS");
    noteUserActions();
  }

  bool holdsInput() const override { return true; }

  TextBox text{*this, "text", "abc", 5};
  TextBox several{*this, "several"};
  OptionGroup options;
  ControlArray<OptionButton> optNone{*this, "optNone", 0, 3, options, "None"};
  CheckBox check{*this, "check", "&Check"};
  ComboBox combo{*this, "combo", {"one", "two", "three"}, 1};
  ComboBox editable{*this, "editable", {"x", "y"}};
  ListBox list{*this, "list", {"a", "b"}};
  Button press{*this, "press", "&Press"};
  Button shut{*this, "shut", "Shut"};
  Button gone{*this, "gone", "Gone"};
  Button idle{*this, "idle", "Idle"};
  Menu accept{*this, "accept", "&Accept"};
  Label label{*this, "label", "A label"};
  Frame border{*this, "border", "A frame"};
  Button inner{*this, "inner", "Inner"};
  Table table{*this, "table", {3, 3, 1, 1}};
  Tabs tabs{*this, "tabs", {"First", "Second"}};
  Slider slider{*this, "slider", 0, 10};
  Gauge gauge{*this, "gauge", 0, 100};
  CanvasControl canvas{*this, "canvas"};
  DirectoryList directory{*this, "directory"};

  std::string takeLog() { return std::exchange(log, {}); }
  std::string log;

 private:
  void note(const std::string& what) { log += (log.empty() ? "" : " ") + what; }

  void noteUserActions() {
    several.setMultiLine(true);
    text.onChange = [this] { note("change:" + text.text()); };
    text.onFocus = [this] { note("focus"); };
    text.onLeave = [this] { note("leave"); };
    for (OptionButton& option : optNone) option.onClick = [this, &option] { note(option.name()); };
    check.onClick = [this] { note("check"); };
    for (ChoiceList* choice : std::initializer_list<ChoiceList*>{&combo, &editable, &list}) {
      choice->onClick = [this, choice] { note(choice->name() + ":" + choice->text()); };
      choice->onDoubleClick = [this, choice] { note(choice->name() + " twice"); };
    }
    for (Command* command : std::initializer_list<Command*>{&press, &shut, &gone, &inner, &accept}) {
      command->onClick = [this, command] { note(command->name()); };
    }
    table.onEdited = [this] { note("cells"); };
    table.onCursorMoved = [this] { note("cursor"); };
    table.onDoubleClick = [this] { note("table twice"); };
    table.onKeyPress = [this](const Key& key) { note("table" + keyName(key)); };
    tabs.onClick = [this](int previous) { note("tab:" + std::to_string(previous)); };
    slider.onChange = [this] { note("slider"); };
    canvas.onMouse = [this](const MouseEvent& event) {
      constexpr const char* kNames[] = {"down", "move", "up", "twice"};
      note(kNames[static_cast<int>(event.type)] + std::to_string(event.button));
    };
    canvas.onKeyPress = [this](const Key& key) { note("canvas" + keyName(key)); };
    directory.accepts = [](const std::string& path) { return path != "/nowhere"; };
    directory.onChange = [this] { note("directory:" + directory.path()); };
  }

  static std::string keyName(const Key& key) {
    return ":" + (key.name.empty() ? std::to_string(static_cast<unsigned>(key.character)) : key.name);
  }
};

}  // namespace kestra
