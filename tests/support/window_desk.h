#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/scripted_desk.h"

namespace kestra {

// Runs that only remember on which file they were started.
struct RecordingRuns : FileRuns {
  explicit RecordingRuns(const ApplicationState& openState) : state(openState) {}

  bool BuildMyFiles(bool showProgress) override {
    started.push_back(state.currentFile);
    progressShown.push_back(showProgress);
    if (onBuild) onBuild();
    return failing != state.currentFile;
  }
  std::string whyNot() const override { return "no output"; }

  const ApplicationState& state;
  std::vector<std::string> started;
  std::vector<bool> progressShown;
  std::string failing;  // path of the file whose build fails
  std::function<void()> onBuild;
};

// The application with an open project, /home/dam, in front its input window.
struct WindowDesk : RunningDesk {
  frmKestra& window = shell.inputWindow;
  RecordingRuns runs{state};

  WindowDesk() {
    memory.put("/home/dam/owner", "");
    (void)shell.projects.open("/home/dam");
    shell.fileDesk.runs = &runs;
  }

  // The user types into an input screen.
  void edit(const std::string& title) {
    app.host.load(shell.input.projectInformation);
    shell.input.projectInformation.txtWatershedID.userReplace(title);
  }
  const std::string& shownTitle() const { return shell.input.projectInformation.txtWatershedID.text(); }

  void choose(const std::string& path) { dialogs.files.push_back({{path}}); }
  void cancelDialog() { dialogs.files.emplace_back(); }

  // Saves what the screens hold, by Save As.
  void saveAs(const std::string& path) {
    choose(path);
    window.mnuSaveAs.setEnabled(true);
    window.mnuSaveAs.click();
    EXPECT_TRUE(takeBoxes().empty());
    dialogs.shownFiles.clear();
    EXPECT_EQ(state.currentFile, path);
  }

  void open(const std::string& path) {
    choose(path);
    window.mnuOpen.click();
  }

  // Texts of the boxes shown since the last call, each behind its title.
  std::vector<std::string> takeBoxes() {
    std::vector<std::string> texts;
    for (const MessageBox& box : boxes.shown) texts.push_back(box.title + ": " + box.text);
    boxes.shown.clear();
    return texts;
  }
  std::string front() const { return app.host.shown().front()->name(); }
};

using Boxes = std::vector<std::string>;

}  // namespace kestra
