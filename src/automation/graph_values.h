#pragma once

#include <map>
#include <string>

#include "app/application.h"
#include "automation/json.h"

namespace kestra {

// The values of the output graphs' screen by the names that scripts know: windows, tools and series.
std::map<std::string, std::function<Json(const Application&)>> graphVariables();

}  // namespace kestra
