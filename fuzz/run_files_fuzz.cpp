// Any bytes as the output, the breach history and the headcut history of a run: no graph fails on them, what it has is
// finite, within its extents and within the limits of its store, other line ends change nothing, and each graph can be
// drawn and exported.
#include <algorithm>
#include <cmath>
#include <string>

#include "fuzz_target.h"
#include "graphics/canvas_log.h"
#include "graphics/draw_frame.h"
#include "graphics/draw_series.h"
#include "graphs/graph_catalogue.h"
#include "graphs/series_csv.h"
#include "platform/memory_file_system.h"
#include "support/sample_run.h"

namespace kestra {
namespace {

// Where the histories are parted from the output in an input.
constexpr std::string_view kPart = "\n=\n";

std::string withReturns(std::string_view text) {
  std::string out;
  for (const char c : text) out += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return out;
}

enum class Ends { asTheyAre, withReturns };

void put(MemoryFileSystem& files, std::string_view text, Ends ends) {
  for (const char* path : {"/p/dam.OUT", "/p/dam.BRE", "/p/dam.HCT"}) {
    const std::size_t end = text.find(kPart);
    const std::string_view part = text.substr(0, end);
    files.put(path, ends == Ends::withReturns ? withReturns(part) : std::string(part));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + kPart.size());
  }
}

struct Drawn {
  Reading reading;
  SeriesStore series;
  View extents;
};

void read(const std::string& text, Ends ends, const GraphEntry& entry, int column, Drawn& drawn) {
  MemoryFileSystem files;
  put(files, text, ends);
  const RunFiles run(files, "/p/dam.KSC");
  drawn.series.begin(0);
  drawn.reading = entry.read({run, column, drawn.series, drawn.extents});
}

void checkPoints(const Drawn& drawn) {
  const View& w = drawn.extents;
  fuzzRequire(w.Xmin <= w.Xmax && w.Ymin <= w.Ymax, "the extents have no negative range");
  fuzzRequire(drawn.series.SeriesCount > 0 && drawn.series.SeriesCount <= 7, "a drawn graph has one to seven series");
  for (int i = 0; i < drawn.series.SeriesCount; ++i) {
    const Series& series = drawn.series(i);
    fuzzRequire(series.PlotX.size() == series.PlotY.size(), "a point has two places");
    for (const float x : series.PlotX) fuzzRequire(std::isfinite(x) && x <= toSingle(w.Xmax), "x is in the extents");
    for (const float y : series.PlotY) fuzzRequire(std::isfinite(y) && y <= toSingle(w.Ymax), "so is y");
  }
}

void checkDrawing(const Drawn& drawn, const GraphEntry& entry) {
  View window = drawn.extents;
  ScaleMemo memo;
  const LineSettings lines;
  RecordingCanvas canvas;
  const GraphSheet sheet = {window, memo, drawn.series, lines};
  try {
    const Steps steps = DrawAxis(sheet, canvas);
    fuzzRequire(steps.XStep > 0 && steps.YStep > 0, "ticks are apart");
    DrawTic(sheet, steps, canvas);
    DrawLabel(sheet, canvas, entry.xLabel, entry.yLabel);
    DrawSeriesLines(sheet, canvas);
  } catch (const ScalingFault&) {
    return;  // told to the user
  }
  const std::string csv = seriesCsv(drawn.series, entry.xLabel, entry.yLabel);
  std::size_t rows = 0;
  for (int i = 0; i < drawn.series.SeriesCount; ++i) rows = std::max(rows, drawn.series(i).PlotX.size());
  fuzzRequire(static_cast<std::size_t>(std::count(csv.begin(), csv.end(), '\n')) == rows + 1, "a row for each point");
}

void check(const std::string& text, const GraphEntry& entry, int column) {
  Drawn drawn;
  read(text, Ends::asTheyAre, entry, column, drawn);
  fuzzRequire(drawn.reading.outcome != Reading::Outcome::fileError, "a file that is there can be read");
  if (drawn.reading.outcome == Reading::Outcome::drawn) {
    checkPoints(drawn);
    checkDrawing(drawn, entry);
  }
  if (text.find('\r') != std::string::npos) return;
  Drawn again;
  read(text, Ends::withReturns, entry, column, again);
  fuzzRequire(again.reading.outcome == drawn.reading.outcome, "it does not matter what ends the lines");
  fuzzRequire(again.extents == drawn.extents, "nor for the extents");
}

}  // namespace

std::vector<std::string> fuzzSeeds() {
  SampleRun slope;
  SampleRun riprap;
  riprap.makeRiprap();
  SampleRun drawdown;
  drawdown.makeDrawdown();
  drawdown.echo += echoed({"TEMPLATE"}) + echoed({"", "0", "1000"}) + echoed({"", "50", "1020"}) + " ENDTABLE\n";
  const std::string part(kPart);
  return {slope.out() + part + slope.bre + part + slope.hct, riprap.out(), drawdown.out() + part + slope.bre,
          part + slope.bre + part + " Headcut\n hr\n"};
}

}  // namespace kestra

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kestra;
  const std::string text(reinterpret_cast<const char*>(data), size);
  for (const GraphEntry& entry : graphCatalogue()) {
    if (entry.read == nullptr) continue;
    check(text, entry, entry.column);
    if (entry.menuColumn != entry.column) check(text, entry, entry.menuColumn);
  }
  return 0;
}
