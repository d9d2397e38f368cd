#pragma once

#include "controls/text_box.h"
#include "shell/project_picker.h"
#include "shell/projects.h"

namespace kestra {

class frmNewProject : public ProjectPicker {
 public:
  frmNewProject(ScreenContext& context, Projects& projects);

  TextBox txtEnterName{*this, "txtEnterName"};

 private:
  void makeProject();
  bool inProject(const std::string& path) const;

  Projects& projects_;
};

class frmOpenProject : public ProjectPicker {
 public:
  frmOpenProject(ScreenContext& context, Projects& projects);
};

class frmDeleteProject : public ProjectPicker {
 public:
  frmDeleteProject(ScreenContext& context, Projects& projects, frmTopScreen& top, std::string applicationDirectory);

 private:
  void deleteProject();
  void remove(const std::string& path);
  void forget(const std::string& path);
  bool heldByAnother(const std::string& path);

  Projects& projects_;
  frmTopScreen& top_;
  std::string applicationDirectory_;
};

}  // namespace kestra
