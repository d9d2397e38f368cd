#pragma once

#include <cstdint>
#include <string>

// The ports with one operation or two.
namespace kestra {

// The text on the clipboard, or the picture that took its place.
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual std::string text() = 0;  // empty when there is none
  virtual void setText(const std::string& text) = 0;
  virtual void setPicture(const std::string& bitmap) = 0;  // the bytes of a .bmp file
};

// The sound with which a key is refused.
class Beeper {
 public:
  virtual ~Beeper() = default;
  virtual void beep() = 0;
};

// Lets waiting events of the user and the screen be handled in the middle of a long command.
class EventPump {
 public:
  virtual ~EventPump() = default;
  virtual void pump() = 0;
};

// Numbers that nobody can foretell.
class EntropySource {
 public:
  virtual ~EntropySource() = default;
  virtual std::uint32_t next() = 0;  // uniform over all 32-bit values
};

struct CalendarTime {
  int year = 1970;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::int64_t nowNs() = 0;                     // nanoseconds since 1970-01-01 UTC
  virtual std::int64_t steadyNs() = 0;                  // never runs backwards; for spans of time
  virtual CalendarTime localTime(std::int64_t ns) = 0;  // in the user's time zone
};

// Shows a page of the help.
class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  virtual void showTopic(const std::string& topic) = 0;  // "html\StructureTable.htm"; empty: the contents
};

}  // namespace kestra
