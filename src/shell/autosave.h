#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "control/unsaved_input.h"
#include "shell/open_file.h"
#include "shell/quiet_control_files.h"

namespace kestra {

// Keeps unsaved input in the open project while it is edited, and offers what an earlier program has left behind when
// it ended without a save. Off until somebody turns it on; it has no clockwork of its own: whoever shows the windows
// calls keep() at least twice a second, and offer() whenever no command is under way. In a project that is open for
// looking only it does nothing.
class Autosave {
 public:
  static constexpr std::int64_t kUsualDelay = 2'000'000'000;  // nanoseconds from a change to its being kept

  Autosave(FileDesk& desk, OpenFile& file);

  void turnOn(std::int64_t delay = kUsualDelay) { delay_ = delay; }
  void turnOff() { delay_.reset(); }

  // Writes what the screens hold when they have been edited for the time of the delay. It may be called in the midst
  // of a command: no box is shown and no value of the application changes.
  void keep();
  // Asks about what was left behind, once after a project or a file was opened, and tells once when nothing can be
  // kept. What is wanted back is put on the screens and counts as not saved.
  void offer();

  bool mayAsk() const;  // offer() may have something to say

  void projectOpened();
  void letGo();  // the input is being given up, or the program ends: nothing of it stays behind

 private:
  struct LeftBehind {
    std::uint64_t number = 0;
    UnsavedInput kept;
  };

  bool working() const;
  void keepNow();
  std::string nameInProject() const;
  std::uint64_t freeNumber() const;
  void saved(const std::string& path);
  void remove(std::uint64_t number);
  bool isSaved(const UnsavedInput& kept);
  // Whether the search for something to offer is at its end.
  bool offerOne(const LeftBehind& left);
  void takeBack(const LeftBehind& left);
  void tellTrouble();

  FileDesk& desk_;
  OpenFile& file_;
  QuietControlFiles control_;

  std::optional<std::int64_t> delay_;  // nanoseconds; nothing: off
  std::uint64_t number_ = 0;           // of the file that this program keeps; 0: none
  std::uint64_t keptEdits_ = 0;        // the count of edits that is kept
  std::optional<std::int64_t> since_;  // when edits that are not kept were first seen
  bool mayOffer_ = false;
  bool offering_ = false;
  std::string trouble_;  // why nothing could be kept, to be told
  bool troubleTold_ = false;
};

}  // namespace kestra
