#pragma once

#include <string>

#include "platform/small_ports.h"

namespace kestra {

// Date and time as records of control files hold them: "3/9/2026 1:05:00 PM"; the date alone at midnight.
std::string dateText(const CalendarTime& time);

}  // namespace kestra
