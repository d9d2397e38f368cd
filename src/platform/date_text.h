#pragma once

#include <string>

#include "platform/small_ports.h"

namespace kestra {

// A moment as the system's files hold it: "02/09/2009 14:03:05", month first.
std::string dateText(const CalendarTime& time);

}  // namespace kestra
