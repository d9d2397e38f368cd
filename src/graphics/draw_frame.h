#pragma once

#include <string>
#include <string_view>

#include "graphics/canvas.h"
#include "graphics/graph_sheet.h"
#include "platform/file_system.h"

// The parts of a graph around its lines. A graph is drawn by DrawGraphTitle, DrawAxis, DrawTic, DrawLabel,
// DrawSeriesLines, DrawGraphFooter, setGraphScale.
namespace kestra {

// Sets the canvas window so that the plot has a strip for the title above it, for numbers, label and footer below, and
// on the right a margin that is wider when there is a legend (more than one series).
void setGraphScale(const GraphSheet& sheet, AbstractCanvas& canvas);

// Sets the canvas window and draws the four sides of the plot.
void DrawFrame(const GraphSheet& sheet, AbstractCanvas& canvas);

// Rounds the window by Scaling, whose fault goes through, and draws the frame.
Steps DrawAxis(const GraphSheet& sheet, AbstractCanvas& canvas);

// Ticks from the window's lower ends on, with their numbers, which are cut to two decimals.
void DrawTic(const GraphSheet& sheet, const Steps& steps, AbstractCanvas& canvas);

// The X label below the plot; the Y label left of it, downward letter by letter up to its last "(", and what is behind
// in one row below.
void DrawLabel(const GraphSheet& sheet, AbstractCanvas& canvas, std::string_view xLabel, std::string_view yLabel);

// The title, or the notice that stands alone on a canvas where there is nothing to draw.
void DrawGraphTitle(const GraphSheet& sheet, AbstractCanvas& canvas, std::string_view title);
inline constexpr std::string_view kNoHeadcut = "No Headcut Formed";

// The name of the control file and the project's identifier, which stands in the file's KESTRA record; below it a note,
// where there is one. Draws nothing when the file cannot be read.
void DrawGraphFooter(const GraphSheet& sheet, AbstractCanvas& canvas, FileSystem& files, const std::string& controlFile,
                     std::string_view note = {});
inline constexpr std::string_view kLowTailwaterNote = "* Note: Plot assumes low tailwater.";

// A number cut, not rounded, to two decimals.
std::string cutNumber(double value);

}  // namespace kestra
