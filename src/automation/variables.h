#pragma once

#include <string>

#include "app/application.h"
#include "automation/json.h"

namespace kestra {

// The value of a name that all screens share: "projectDir", "ColorList", "frmTopScreen.BackColor". RequestError when no
// such name is known.
Json readVariable(const Application& application, const std::string& name);

// The application state as scripts see it.
Json describeState(const Application& application);

}  // namespace kestra
