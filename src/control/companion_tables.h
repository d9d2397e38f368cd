#pragma once

#include <string>

#include "control/companion_values.h"

namespace kestra {

// What is to be kept of a table that was entered, `read` being what comes back from the file: all its data cells, since
// the rows of a file close up, or null where no cell is lost. `name` is the table's, as "frmDamSurface.grdTable". A
// number that the file holds cut is kept cut, unless numbers are to be kept as they are.
Json keptTable(const std::string& name, const Table& entered, const Table& read, bool numbersAsTheyAre);

}  // namespace kestra
