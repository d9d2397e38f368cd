#pragma once

#include <string>

namespace kestra {

// The tables of records and columns for the users' page on the control file, in Markdown, out of the catalogue.
std::string describeCatalogue();

}  // namespace kestra
