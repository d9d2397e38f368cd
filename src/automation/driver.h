#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "app/application.h"
#include "automation/conversation.h"
#include "controls/canvas_control.h"

namespace kestra {

// Carries out requests, one JSON object a line, on an application, and answers each with one line.
class Driver : public ModalLoop {
 public:
  // `conversation` holds the message boxes, dialogs and beeper that the application was made with.
  Driver(Application& application, Conversation& conversation);
  ~Driver() override;
  Driver(const Driver&) = delete;
  Driver& operator=(const Driver&) = delete;

  // Reads lines until the end of the input, "quit", the end of the application, or an answer that `out` does not take;
  // lines without anything but blanks are passed over, those above kLongestLine are answered with an error.
  void run(std::istream& in, std::ostream& out);

  std::string answerTo(std::string_view line);  // without line end
  bool finished() const { return quit_ || application_.shell.ended(); }

  void run(Screen& screen) override;  // a modal screen, by the requests of the next answer

  static constexpr std::size_t kLongestLine = 64U << 20U;  // bytes

 private:
  Json answer(const Json& request);
  Json carryOut(const Json& request);
  Json control(const std::string& verb, const Fields& request);
  Json setClipboard(const Fields& request);
  Json picture(const Control& control, const Fields& request);
  Screen& screenOf(const Fields& request);
  Control& controlOf(const Fields& request);

  Application& application_;
  Conversation& conversation_;
  int modals_ = 0;  // screens shown modally, one within the other
  bool quit_ = false;
};

}  // namespace kestra
