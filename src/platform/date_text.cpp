#include "platform/date_text.h"

#include <fmt/format.h>

namespace kestra {

std::string dateText(const CalendarTime& time) {
  return fmt::format("{:02}/{:02}/{:04} {:02}:{:02}:{:02}", time.month, time.day, time.year, time.hour, time.minute,
                     time.second);
}

}  // namespace kestra
