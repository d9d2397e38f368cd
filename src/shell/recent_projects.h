#pragma once

#include <string>
#include <vector>

#include "controls/control_array.h"
#include "controls/simple_controls.h"
#include "platform/settings_store.h"

namespace kestra {

// The recent projects, newest first. The list is the captions of its menu entries ("&1 PATH"); an entry in use is
// visible. Kept in the settings section "ProjectHistory": "n", and "1Project", "2Project", ...
class RecentProjects {
 public:
  static constexpr int kMost = 10;

  explicit RecentProjects(ControlArray<Menu>& entries) : entries_(entries) {}

  std::vector<std::string> paths() const;
  void update(const std::string& path);  // puts it first, without a duplicate; drops an eleventh
  void remove(const std::string& path);

  void load(SettingsStore& settings);  // a count outside 1 to 10 loads nothing
  Status save(SettingsStore& settings) const;

 private:
  void show(const std::vector<std::string>& paths);

  ControlArray<Menu>& entries_;
};

}  // namespace kestra
