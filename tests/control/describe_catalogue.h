#pragma once

#include <string>

#include "control/catalogue.h"

namespace kestra {

// The tables of records and columns of a kind of run for the users' page on the control file, in Markdown, out of the
// catalogue.
std::string describeCatalogue(RunKind run);

}  // namespace kestra
