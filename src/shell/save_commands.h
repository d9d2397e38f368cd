#pragma once

#include <string>

#include "shell/open_file.h"

namespace kestra {

// Saving: the Save As command, and the step before commands that would lose what was edited.
class SaveCommands {
 public:
  SaveCommands(FileDesk& desk, OpenFile& file);

  // Asks the question when the screens were edited, and saves on Yes under a name that the user chooses. False when
  // the command has to stop: on Cancel of the question or the dialog, and when the file could not be saved.
  bool SaveBeforeAction(const std::string& question, bool offersCancel = false);

  // Save As with its dialog and questions. False when nothing was saved.
  bool saveAs();

 private:
  std::optional<std::string> chooseName();
  std::optional<std::string> chooseNameToSaveAs();

  FileDesk& desk_;
  OpenFile& file_;
};

}  // namespace kestra
