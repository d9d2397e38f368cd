#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/ports.h"

// Forms of the ports that need no machine and no user: Scripted... answers from a list, Memory... holds,
// Recording... remembers.
namespace kestra {

// Answers from a list; a box is refused when no answer is left, or when it does not offer the one that is next.
class ScriptedMessageBoxes : public MessageBoxes {
 public:
  BoxButton show(const MessageBox& box) override;

  std::deque<BoxButton> answers;
  std::vector<MessageBox> shown;
};

// Answers each kind of dialog from its own list; an answer may be "cancelled" (no value), and so is an empty list.
class ScriptedDialogs : public Dialogs {
 public:
  std::optional<std::vector<std::string>> chooseFiles(const FileDialog& dialog) override;
  std::optional<std::string> chooseDirectory(const std::string& title, const std::string& start) override;
  std::optional<std::uint32_t> chooseColor(std::uint32_t start) override;
  std::optional<FontChoice> chooseFont(const FontChoice& start) override;
  std::optional<PrintChoice> choosePrint(const PrintChoice& start) override;

  std::deque<std::optional<std::vector<std::string>>> files;
  std::deque<std::optional<std::string>> directories;
  std::deque<std::optional<std::uint32_t>> colors;
  std::deque<std::optional<FontChoice>> fonts;
  std::deque<std::optional<PrintChoice>> prints;
  std::vector<FileDialog> shownFiles;
};

class MemorySettings : public SettingsStore {
 public:
  std::string get(const std::string& section, const std::string& key, const std::string& otherwise) override;
  Status set(const std::string& section, const Entries& entries) override;

 private:
  std::map<std::pair<std::string, std::string>, std::string> values_;  // by section and key in upper case
};

class MemoryClipboard : public Clipboard {
 public:
  std::string text() override { return text_; }
  void setText(const std::string& text) override {
    text_ = text;
    picture_.clear();
  }
  void setPicture(const std::string& bitmap) override {
    picture_ = bitmap;
    text_.clear();
  }
  const std::string& picture() const { return picture_; }

 private:
  std::string text_;
  std::string picture_;
};

class RecordingBeeper : public Beeper {
 public:
  void beep() override { ++beeps; }

  int beeps = 0;
};

class RecordingEventPump : public EventPump {
 public:
  void pump() override {
    ++pumps;
    if (onPump) onPump();
  }

  int pumps = 0;
  std::function<void()> onPump;
};

// A fixed row of numbers, the same in every run: a 32-bit linear congruential generator (Numerical Recipes, 1992).
class ScriptedEntropy : public EntropySource {
 public:
  explicit ScriptedEntropy(std::uint32_t seed = 1) : state_(seed) {}
  std::uint32_t next() override { return state_ = state_ * 1664525U + 1013904223U; }

 private:
  std::uint32_t state_;
};

// Stands still until it is turned on by hand. Its time zone is UTC.
class ScriptedClock : public Clock {
 public:
  std::int64_t nowNs() override { return now; }
  std::int64_t steadyNs() override { return now; }
  CalendarTime localTime(std::int64_t ns) override;

  std::int64_t now = 0;
};

class RecordingHelpViewer : public HelpViewer {
 public:
  void showTopic(const std::string& topic) override { topics.push_back(topic); }

  std::vector<std::string> topics;
};

// Runs no program: calls the effect that is set for the program's path, which may write the files that the real one
// would. A program without an effect fails to start with "No such file or directory". `keepGoing` is asked once, before
// the effect.
class ScriptedProcessHost : public ProcessHost {
 public:
  using Effect = std::function<ProcessOutcome(const ProcessRequest&)>;
  ProcessOutcome run(const ProcessRequest& request, const std::function<bool()>& keepGoing) override;

  std::map<std::string, Effect> effects;
  std::vector<ProcessRequest> requests;
};

}  // namespace kestra
