#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "control/control_texts.h"
#include "screens/input_screen_set.h"

// The companion of a control file: a JSON text with what was entered and has no place in the file, and with a digest of
// the file that it belongs to. It holds whole: fields and options that belong to another choice, rows of tables behind
// the last that is written, spillways without a run; and of what the file holds cut, the texts that only people read. A
// number that is cut stays cut, since it is what the runs are made with.
namespace kestra {

// The companion of a file whose texts were built from the screens and whose bytes are `file`; nothing where the file
// holds all. `name` is that of the file, for people.
std::optional<std::string> composeCompanion(InputScreenSet& screens, ScreenContext& context, const ControlTexts& texts,
                                            std::string_view file, std::string_view name);

// Gives the screens, just filled from the file with these bytes, what a companion holds. Of a companion of other bytes,
// and of a text that is none, nothing is taken; what of it has no place on the screens is passed over.
void giveBackCompanion(InputScreenSet& screens, ScreenContext& context, std::string_view companion,
                       std::string_view file);

}  // namespace kestra
