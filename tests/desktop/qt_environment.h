#pragma once

#include <string>

namespace kestra {

// What the toolkit has complained of since the last call, a line each.
std::string takeWarnings();

}  // namespace kestra
