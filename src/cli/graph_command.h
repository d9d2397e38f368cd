#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "app/application.h"
#include "cli/options.h"

namespace kestra {

// "1200x800" as a size from 1 to kMostPixels each way; nothing for anything else.
std::optional<PictureSize> parseSize(const std::string& text);

// Lists or draws the graphs of a finished run, on a started application whose graphs have their picture maker; the exit
// code. A graph that cannot be drawn is told on `err` and writes no file, the others are drawn all the same. Several
// graphs go into one PDF, a page each; in the other forms each has a file of its own, the number before the extension
// ("flow-3.png"). A file is written whole or not at all.
int drawGraphs(Application& application, const CliOptions& options, std::ostream& out, std::ostream& err);

}  // namespace kestra
