#include "run/date_text.h"

#include <fmt/format.h>

namespace kestra {

std::string dateText(const CalendarTime& time) {
  const std::string date = fmt::format("{}/{}/{}", time.month, time.day, time.year);
  if (time.hour == 0 && time.minute == 0 && time.second == 0) return date;
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  return fmt::format("{} {}:{:02}:{:02} {}", date, hour, time.minute, time.second, time.hour < 12 ? "AM" : "PM");
}

}  // namespace kestra
