#pragma once

#include <string>
#include <vector>

#include "control/control_texts.h"
#include "control/screen_fields.h"

namespace kestra {

// The HYD block of the inflow, ENDTABLE without a line end. `cuts` takes what fields are cut; null: nobody asks.
std::string composeHydrograph(InputContext& input, ScreenFields& fields, std::vector<CutField>* cuts);

// The main run with all its records, ENDRUN included, `hydrograph` being its HYD block.
std::string composeMainRun(InputContext& input, ScreenFields& fields, const std::string& hydrograph,
                           std::vector<CutField>* cuts);

}  // namespace kestra
