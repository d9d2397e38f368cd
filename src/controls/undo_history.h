#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "controls/control.h"

namespace kestra {

class Table;

// One thing that a gesture changed. Swapping exchanges the kept value with the present one, so that the same object
// undoes and redoes.
class UndoChange {
 public:
  virtual ~UndoChange() = default;
  virtual void swap() = 0;
  virtual void settle() {}                // nothing is added any more
  virtual std::size_t bytes() const = 0;  // that it holds, roughly
  using Place = std::pair<const void*, std::size_t>;
  virtual Place what() const = 0;  // the value that it keeps, or the first of them
  virtual bool keepsOne() const { return true; }
  virtual const Control* control() const { return nullptr; }  // that shows the value
};

// What the user's gestures have changed on the screens that hold input, a step a gesture, with all that the handlers
// changed in its course. Keys typed into one field or cell in a row are one step. The oldest steps go when there are
// more than kMostSteps, or more than kMostBytes are kept.
class UndoHistory {
 public:
  static constexpr std::size_t kMostSteps = 1000;
  static constexpr std::size_t kMostBytes = 64U << 20U;

  // A gesture begins and ends; gestures within a gesture are part of it. `place` is the control, and the cell of a
  // table, that a key was typed into; null for every other gesture.
  void beginGesture(const Control* place, std::size_t cell = 0);
  void endGesture();
  // The open gesture goes on with what the last step began, and becomes part of it: where that step changed `control`.
  void continueStepOf(const Control& control) { open_.continues = &control; }
  bool recording() const { return depth_ > 0 && !applying_; }

  // Keep a value before it is changed, within a gesture. `control` is told when it is swapped; null for a value that no
  // control shows. Only a change of data makes a step; how controls look goes along with it.
  template <class T>
  void keep(T& value, Control* control, Property property, bool isData);
  template <class T>
  void keep(T& value) {
    keep(value, nullptr, Property::value, true);
  }
  void keepCell(Table& table, std::size_t index, const std::string& text);

  bool canUndo() const { return !done_.empty(); }
  bool canRedo() const { return !undone_.empty(); }
  bool undo();  // false when there is nothing to undo
  bool redo();
  void clear();  // a file was opened, or a new one begun

  std::size_t steps() const { return done_.size(); }
  std::size_t bytes() const { return bytes_; }  // of all steps that can be undone

 private:
  struct Step {
    std::vector<std::unique_ptr<UndoChange>> changes;
    const Control* place = nullptr;
    std::size_t cell = 0;
    const Control* continues = nullptr;
    bool hasData = false;
    std::size_t bytes = 0;
  };

  void add(std::unique_ptr<UndoChange> change, bool isData);
  void take(Step step);
  void trim();
  bool joinsLast(const Step& step) const;
  static void join(Step& last, Step step);
  static void swapAll(Step& step, bool backwards);

  std::deque<Step> done_;
  std::vector<Step> undone_;
  Step open_;
  int depth_ = 0;
  bool applying_ = false;
  std::size_t bytes_ = 0;
};

namespace undo_detail {

inline std::size_t heldBytes(const std::string& value) {
  return sizeof value + value.capacity();
}
template <class T>
std::size_t heldBytes(const T& value) {
  return sizeof value;
}

void tell(Control& control, Property property);

template <class T>
class KeptValue : public UndoChange {
 public:
  KeptValue(T& value, Control* control, Property property)
      : value_(value), kept_(value), control_(control), property_(property) {}
  void swap() override {
    std::swap(value_, kept_);
    if (control_ != nullptr) tell(*control_, property_);
  }
  std::size_t bytes() const override { return sizeof *this + heldBytes(kept_); }
  Place what() const override { return {&value_, 0}; }
  const Control* control() const override { return control_; }

 private:
  T& value_;
  T kept_;
  Control* control_;
  Property property_;
};

}  // namespace undo_detail

template <class T>
void UndoHistory::keep(T& value, Control* control, Property property, bool isData) {
  if (recording()) add(std::make_unique<undo_detail::KeptValue<T>>(value, control, property), isData);
}

// A gesture of the user for as long as it lives.
class Gesture {
 public:
  Gesture(UndoHistory* history, const Control* place, std::size_t cell = 0) : history_(history) {
    if (history_ != nullptr) history_->beginGesture(place, cell);
  }
  ~Gesture() {
    if (history_ != nullptr) history_->endGesture();
  }
  Gesture(const Gesture&) = delete;
  Gesture& operator=(const Gesture&) = delete;

 private:
  UndoHistory* history_;
};

}  // namespace kestra
