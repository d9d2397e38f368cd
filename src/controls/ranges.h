#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/control.h"

namespace kestra {

// A number between two limits: a slider, which the user moves, or a gauge, which shows how far a command is.
class Range : public Control {
 public:
  Range(Screen& screen, std::string name, ControlKind kind, double minimum, double maximum);

  double value() const { return value_; }
  void setValue(double value);  // kept within the limits
  double minimum() const { return minimum_; }
  double maximum() const { return maximum_; }
  void setLimits(double minimum, double maximum);

  void userMove(double value);

  void keepDesign() override;
  void restoreDesign() override;

  std::function<void()> onChange;

 private:
  double minimum_;
  double maximum_;
  double value_;
  double design_[3] = {0, 0, 0};
};

class Slider : public Range {
 public:
  Slider(Screen& screen, std::string name, double minimum, double maximum)
      : Range(screen, std::move(name), ControlKind::slider, minimum, maximum) {}
};

class Gauge : public Range {
 public:
  Gauge(Screen& screen, std::string name, double minimum, double maximum)
      : Range(screen, std::move(name), ControlKind::gauge, minimum, maximum) {}
};

// Pages of which one is on show. Changing the page is no edit, but is undone with what its handler changed.
class Tabs : public Control {
 public:
  Tabs(Screen& screen, std::string name, std::vector<std::string> captions);

  const std::vector<std::string>& captions() const { return captions_; }
  int index() const { return index_; }  // from 0
  void setIndex(int index);             // no effect outside the pages

  bool userSelect(int index);  // false, and nothing happens, where there is no such page

  void keepDesign() override;
  void restoreDesign() override;

  std::function<void(int previous)> onClick;

 private:
  std::vector<std::string> captions_;
  int index_ = 0;
  int designIndex_ = 0;
};

}  // namespace kestra
