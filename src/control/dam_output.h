#pragma once

#include <string>

#include "platform/ports.h"

// The output of the dam's run beside its control file, as the runs of its spillways need it.
namespace kestra {

// When it was last written; empty where there is none, or only what noteMissingOutput has left.
std::string dateOfOutput(const Ports& ports, const std::string& controlFile);

// Puts a file of the single line "Error" where the output will be, unless something is there: whoever looks for results
// before the dam has been run sees that there are none. That it cannot be written is no matter.
void noteMissingOutput(const Ports& ports, const std::string& controlFile);

}  // namespace kestra
