#pragma once

#include <string>

#include "controls/choices.h"
#include "controls/directory_list.h"
#include "controls/simple_controls.h"
#include "screens/screen_context.h"

namespace kestra {

// What the three project screens share: a drive list, a directory list, OK and Cancel.
class ProjectPicker : public Screen {
 public:
  ProjectPicker(ScreenContext& context, const std::string& name, const std::string& title);

  ComboBox drvList{*this, "drvList"};
  DirectoryList dirList{*this, "dirList"};
  Button cmdOK{*this, "cmdOK", "&OK"};
  Button cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void load() override;

  // The chosen directory, as it stands in the list.
  const std::string& directory() const { return dirList.path(); }
  void warn(const std::string& text);  // a warning box under the screen's title
  void done() { host().unload(*this); }

  ScreenContext& context_;

 private:
  void choose(const std::string& path);
};

}  // namespace kestra
