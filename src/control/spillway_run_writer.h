#pragma once

#include <string>
#include <vector>

#include "control/control_texts.h"
#include "control/screen_fields.h"

namespace kestra {

// What a spillway's run names of the dam's: the path of the control file, and when the dam's output was last written;
// empty where there is none.
struct DamLink {
  std::string controlFile;
  std::string outputDate;
};

// The run of a spillway, from 0, with all its records, ENDRUN included. `cuts` takes what fields are cut; null: nobody
// asks.
std::string composeSpillwayRun(InputContext& input, ScreenFields& fields, int spillway, const DamLink& link,
                               std::vector<CutField>* cuts);

}  // namespace kestra
