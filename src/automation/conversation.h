#pragma once

#include <deque>
#include <iosfwd>
#include <vector>

#include "automation/json.h"
#include "platform/dialogs.h"
#include "platform/message_boxes.h"
#include "platform/small_ports.h"

namespace kestra {

// What the system asks and shows while one request is carried out, and the answers that the request brought along.
struct Turn {
  std::deque<Json> answers;
  Json boxes = Json::array();
  Json dialogs = Json::array();
  Json modals = Json::array();
  int beeps = 0;
  int unanswered = 0;

  // Adds what happened to an answer; empty lists and zero counts are left out.
  void report(Json& answer) const;
};

// RequestError unless the answer has one of the forms that there are: a button's caption, or an object with one of the
// fields file, files, directory, color, font, print, cancel, modal, of its type. `number` counts the answers from 1.
void checkAnswer(const Json& answer, std::size_t number);

// The user's side of a run by script: boxes, dialogs and beeps are written down in the request's turn and answered from
// its answers, which have been checked, in order. Outside a request a box is printed as "TITLE: TEXT" and refused.
class Conversation : public MessageBoxes, public Dialogs, public Beeper {
 public:
  explicit Conversation(std::ostream& outside) : outside_(outside) {}

  void begin(Turn& turn) { turns_.push_back(&turn); }
  void end() { turns_.pop_back(); }
  Turn* turn() { return turns_.empty() ? nullptr : turns_.back(); }

  BoxButton show(const MessageBox& box) override;
  std::optional<std::vector<std::string>> chooseFiles(const FileDialog& dialog) override;
  std::optional<std::string> chooseDirectory(const std::string& title, const std::string& start) override;
  std::optional<std::uint32_t> chooseColor(std::uint32_t start) override;
  std::optional<FontChoice> chooseFont(const FontChoice& start) override;
  std::optional<PrintChoice> choosePrint(const PrintChoice& start) override;
  void beep() override;

  // The next answer when it has the field `name`; null for a cancelled, missing or other one.
  Json take(const char* name);

 private:
  Json ask(Json dialog, const char* name);

  std::ostream& outside_;
  std::vector<Turn*> turns_;  // the innermost last
};

}  // namespace kestra
