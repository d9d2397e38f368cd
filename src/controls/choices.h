#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"

namespace kestra {

class CheckBox : public Control {
 public:
  CheckBox(Screen& screen, std::string name, std::string caption, bool checked = false);

  bool checked() const { return checked_; }
  void setChecked(bool checked);
  void userSet(bool checked);

  void keepDesign() override;
  void restoreDesign() override;

  std::function<void()> onClick;

 private:
  bool checked_;
  bool designChecked_;
};

class OptionButton;

// Options of which one is selected at a time. It has no control of its own.
class OptionGroup {
 public:
  void enter(OptionButton& option) { options_.push_back(&option); }
  void clearOthers(const OptionButton& selected);

 private:
  std::vector<OptionButton*> options_;
};

class OptionButton : public Control {
 public:
  OptionButton(Screen& screen, std::string name, OptionGroup& group, std::string caption, bool selected = false);

  bool selected() const { return selected_; }
  void setSelected(bool selected);  // true clears the others of its group
  void userSelect();                // a click on it

  void keepDesign() override;
  void restoreDesign() override;

  std::function<void()> onClick;

 private:
  friend class OptionGroup;
  void keepSelected();

  OptionGroup& group_;
  bool selected_;
  bool designSelected_;
};

// A list of texts of which one is selected, shown open (list) or folded (combo). An editable combo also takes a text
// that is not in its list; its index is then -1.
class ChoiceList : public Control {
 public:
  ChoiceList(Screen& screen, std::string name, ControlKind kind, std::vector<std::string> items = {}, int index = -1);

  const std::vector<std::string>& items() const { return items_; }
  void setItems(std::vector<std::string> items);  // selects nothing
  int index() const { return index_; }            // from 0; -1: none
  void setIndex(int index);                       // an index outside the list selects nothing
  std::string text() const;                       // of the selected entry, or as typed
  void setText(std::string_view text);            // selects the entry of that text, if any
  bool editable() const { return editable_; }
  void setEditable(bool editable) { editable_ = editable; }

  bool userSelect(int index);              // false, and nothing happens, where there is no such entry
  bool userSelect(std::string_view text);  // likewise; an editable combo takes any text
  void userDoubleClick();
  void userKey(const Key& key) override;

  void keepDesign() override;
  void restoreDesign() override;

  std::function<void()> onClick;
  std::function<void()> onDoubleClick;
  std::function<void(const Key&)> onKeyPress;

 private:
  int indexOf(std::string_view text) const;
  void keepChoice();

  std::vector<std::string> items_;
  std::vector<std::string> designItems_;
  int index_;
  int designIndex_;
  std::string typed_;
  bool editable_ = false;
};

class ComboBox : public ChoiceList {
 public:
  ComboBox(Screen& screen, std::string name, std::vector<std::string> items = {}, int index = -1)
      : ChoiceList(screen, std::move(name), ControlKind::combo, std::move(items), index) {}
};

class ListBox : public ChoiceList {
 public:
  ListBox(Screen& screen, std::string name, std::vector<std::string> items = {}, int index = -1)
      : ChoiceList(screen, std::move(name), ControlKind::list, std::move(items), index) {}
};

}  // namespace kestra
