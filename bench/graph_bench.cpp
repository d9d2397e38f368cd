// Drawing seven long series, and reading a long routing table: into calls, and into pictures; beside what a user would
// plot the same data with.
#include <benchmark/benchmark.h>

#include <cmath>
#include <fstream>

#include "base/numbers.h"
#include "child_program.h"
#include "graphics/draw_frame.h"
#include "graphics/draw_series.h"
#include "graphs/graph_reader.h"
#include "platform/memory_file_system.h"
#include "platform/scripted.h"
#include "render/qt_pictures.h"
#include "support/sample_run.h"
#include "support/temp_directory.h"

namespace kestra {
namespace {

constexpr int kSeriesCount = 7;
constexpr PictureSize kSize = {1200, 800};

double valueAt(int series, double time) {
  return 500 + 60 * series + 300 * std::sin(time / 7 + series) + 40 * std::sin(time * 3.1 * (series + 1));
}

struct Curves {
  explicit Curves(int points) {
    ScriptedEntropy entropy;
    MemorySettings settings;
    lines.InitColors(settings, entropy);
    lines.InitLines(settings);
    series.begin(0);
    for (int i = 0; i < kSeriesCount; ++i) series.addSeries("s" + std::to_string(i + 1));
    for (int j = 0; j < points; ++j) {
      for (int i = 0; i < kSeriesCount; ++i) series.add(i, j * 0.01, valueAt(i, j * 0.01));
    }
    window = {0, points * 0.01, 0, 1400};
    canvas.setPixelColumns(kSize.width);
  }

  void draw() {
    canvas.Cls();
    DrawGraphTitle(sheet, canvas, "Hydrographs");
    const Steps steps = DrawAxis(sheet, canvas);
    DrawTic(sheet, steps, canvas);
    DrawLabel(sheet, canvas, "Time (hrs)", "Discharge (cfs)");
    DrawSeriesLines(sheet, canvas);
  }

  View window;
  ScaleMemo memo;
  SeriesStore series;
  LineSettings lines;
  RecordingCanvas canvas;
  GraphSheet sheet{window, memo, series, lines};
};

void repaintOnPan(benchmark::State& state) {
  Curves curves(SeriesStore::kPoints);
  curves.draw();
  double step = 0.37;
  for (auto unused : state) {
    step = -step;
    curves.window = {curves.window.Xmin + step, curves.window.Xmax + step, curves.window.Ymin, curves.window.Ymax};
    curves.draw();
  }
}

void everyCall(benchmark::State& state) {
  Curves curves(SeriesStore::kPoints);
  curves.canvas.setPixelColumns(0);
  for (auto unused : state) curves.draw();
}

void picture(benchmark::State& state, PictureForm form) {
  QtPictures pictures;
  Curves curves(20000);
  (void)pictures.metrics(kSize);
  std::size_t bytes = 0;
  for (auto unused : state) {
    curves.draw();
    bytes = pictures.make({&curves.canvas.log()}, form, kSize).value().size();
  }
  state.counters["bytes"] = static_cast<double>(bytes);
}

std::string longOutput() {
  SampleRun run;
  run.routing.clear();
  for (int i = 0; i < 17000; ++i) {
    std::vector<double> row = {i * 0.01};
    for (int c = 0; c < 10; ++c) row.push_back(std::round(100 * valueAt(c % kSeriesCount, i * 0.01)) / 100);
    run.routing.push_back(row);
  }
  return run.out();
}

void readLongOutput(benchmark::State& state) {
  MemoryFileSystem files;
  files.put("/p/dam.OUT", longOutput());
  const RunFiles run(files, "/p/dam.KSC");
  SeriesStore series;
  for (auto unused : state) {
    View extents;
    series.begin(0);
    if (DrawHydrographs({run, 0, series, extents}).outcome != Reading::Outcome::drawn) state.SkipWithError("no rows");
  }
}

// The data of `picture` as a text file of columns.
void writeColumns(const std::string& path) {
  std::ofstream file(path);
  for (int j = 0; j < 20000; ++j) {
    file << decimalNumber(j * 0.01);
    for (int i = 0; i < kSeriesCount; ++i) file << ' ' << decimalNumber(valueAt(i, j * 0.01), 7);
    file << '\n';
  }
}

void peer(benchmark::State& state, const std::function<std::vector<std::string>(const std::string&)>& wordsFor) {
  const TempDirectory scratch;
  writeColumns(scratch.path() + "/data");
  const auto words = wordsFor(scratch.path());
  if (ChildProgram::run(words) != 0) state.SkipWithError("the program is not there");
  for (auto unused : state) ChildProgram::run(words);
}

void gnuplot(benchmark::State& state, const std::string& form) {
  peer(state, [&form](const std::string& at) {
    const std::string settings = "form='" + form + "'; data='" + at + "/data'; out='" + at + "/out'";
    return std::vector<std::string>{"gnuplot", "-e", settings, KESTRA_BENCH_DIR "/graph_peer.gp"};
  });
}

// The whole program, the import of its library included; run by hand it prints the time of a plot alone.
void matplotlib(benchmark::State& state, const std::string& form) {
  peer(state, [&form](const std::string& at) {
    return std::vector<std::string>{"/usr/bin/python3", KESTRA_BENCH_DIR "/graph_peer.py", at + "/data",
                                    at + "/out." + form, "1"};
  });
}

BENCHMARK(repaintOnPan)->Unit(benchmark::kMillisecond);
BENCHMARK(everyCall)->Unit(benchmark::kMillisecond);
BENCHMARK(readLongOutput)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(picture, svg, PictureForm::svg)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(picture, png, PictureForm::png)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(gnuplot, svg, "svg")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(gnuplot, png, "png")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(matplotlib, svg, "svg")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(matplotlib, png, "png")->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace kestra
