#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engines/dam_text.h"
#include "kestrasim/build_routing.h"
#include "kestrasim/read_dam.h"

// What the engine says of control files that differ from a whole one.
namespace kestra {

using Lines = std::vector<std::string>;

inline Lines messagesOf(const std::string& text) {
  RunMessages messages;
  const DamModel dam = readDam(readControlRecords(text), messages);
  (void)buildRun(dam, messages);
  return messages.lines();
}

inline DamText with(std::string_view keyword, Lines lines) {
  DamText dam;
  dam.with(keyword, std::move(lines));
  return dam;
}

// With an auxiliary spillway by its surface, and what stands behind the main run.
inline DamText surface(Lines behind) {
  DamText dam;
  dam.with("ASRATING", {"ASSURFACE 1Earth    3         60       110        900",
                        "          0         400       5.6       0.7       1         1", "ENDTABLE"});
  dam.behind(std::move(behind));
  return dam;
}

}  // namespace kestra
