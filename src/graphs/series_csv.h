#pragma once

#include <string>
#include <string_view>

#include "graphics/series_store.h"

namespace kestra {

// The series of a graph as columns of comma-separated values, a heading first. Series of the same x share its column;
// others bring a column of their own. A series shorter than the longest has empty cells behind its end. Numbers are the
// shortest that stand for what was drawn, with a decimal point; lines end in CR LF.
std::string seriesCsv(const SeriesStore& store, std::string_view xLabel, std::string_view yLabel);

}  // namespace kestra
