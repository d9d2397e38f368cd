#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace kestra {

// A list of directories in which one is chosen: an absolute path. Whether it is there is for its screen to find out.
class DirectoryList : public Control {
 public:
  DirectoryList(Screen& screen, std::string name) : Control(screen, std::move(name), ControlKind::directory) {}

  const std::string& path() const { return path_; }
  void setPath(std::string path) {
    path_ = std::move(path);
    changed(Property::value);
  }

  // The user chooses a directory. False, and nothing happens, where `accepts` refuses it.
  bool userChoose(const std::string& path) {
    if (accepts && !accepts(path)) return false;
    setPath(resolve ? resolve(path) : path);
    if (onChange) onChange();
    return true;
  }
  void restoreDesign() override {
    Control::restoreDesign();
    setPath({});
  }

  std::function<bool(const std::string&)> accepts;
  std::function<std::string(const std::string&)> resolve;  // to the absolute path
  std::function<void()> onChange;

 private:
  std::string path_;
};

}  // namespace kestra
