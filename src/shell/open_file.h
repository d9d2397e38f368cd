#pragma once

#include <functional>
#include <optional>
#include <string>

#include "shell/file_desk.h"
#include "shell/file_witness.h"

namespace kestra {

// The open control file: how it begins, how it comes from the disk into the screens, and how it goes back.
class OpenFile {
 public:
  explicit OpenFile(FileDesk& desk) : desk_(desk), witness_(desk.files()) {}

  // A new file without a name: screens with their design defaults, and the usual coefficients of a conduit.
  void begin();

  // The file that is meant by a path, whatever its letter case on the disk. Nothing after a box when it stands outside
  // the project, is not there, or cannot be taken in.
  std::optional<std::string> findToOpen(const std::string& path);

  // Opens the file that is meant, with the input window in front; false after such a box.
  bool open(const std::string& path);

  // Takes a file into the screens in place of what they hold, and makes it the open one. What is wrong with it has
  // been told in a box.
  void take(const std::string& path);

  // Takes input that was not saved in place of what the screens hold: of the control file of that name in the project,
  // or of a file without a name. It counts as edited.
  void takeUnsaved(const std::string& name, const ControlSnapshot& input);

  // Writes the screens to a file and makes it the open one. False after a box, or when the user does not want to
  // replace what another program has written there; `title` is that of the question.
  bool write(const std::string& path, const std::string& title);

  std::function<void()> onPutAway;                       // what the screens held before belongs to nobody any more
  std::function<void()> beforeWrite;                     // the screens are about to be written
  std::function<void(const std::string& path)> onSaved;  // they were

 private:
  bool inProject(const std::string& path) const;
  void setInitialValues();
  void takeAs(const std::string& path, const std::function<void()>& fill);
  void takeJob();
  void becomeSaved(const std::string& path);

  FileDesk& desk_;
  FileWitness witness_;
};

}  // namespace kestra
