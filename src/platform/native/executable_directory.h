#pragma once

#include <string>

namespace kestra {

// Directory of the program that is running, symbolic links resolved; empty when the system does not tell.
std::string executableDirectory();

}  // namespace kestra
