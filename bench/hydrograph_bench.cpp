// A hydrograph of 5,000 points on its screen, with its history: pasted, imported, converted, and taken back 200 times.
// Beside each command stands the part of it that does arithmetic or reads text, without tables and history, and the
// same work in Python with numpy, which hydrograph_peer.py does and times itself.
#include <benchmark/benchmark.h>

#include <string>

#include "base/numbers.h"
#include "child_program.h"
#include "screens/table_commands.h"
#include "support/hydrograph_desk.h"

namespace kestra {
namespace {

constexpr int kPoints = 5000;

// Times of uneven steps and a wave of discharges, as tab-delimited text.
std::string tabText(int seed) {
  std::string text;
  for (int i = 0; i < kPoints; ++i) {
    const double time = i * 0.05 + (i % 7) * 0.001;
    const double flow = (i * 7919 + seed * 104729) % 100000 / 100.0;
    text += decimalNumber(time) + "\t" + decimalNumber(flow) + "\r\n";
  }
  return text;
}

struct ShownDesk : HydrographDesk {
  ShownDesk() { host.show(screen); }
  void import(int seed) {
    files.put("/storm.txt", tabText(seed));
    dialogs.files.push_back(std::vector<std::string>{"/storm.txt"});
    screen.files.mnuImportTab.click();
    dialogs.shownFiles.clear();
  }
};

void pasteRows(benchmark::State& state) {
  ShownDesk desk;
  desk.screen.optVariable.userSelect();
  desk.screen.varTable.setCursor({1, 0});
  const std::string texts[] = {tabText(0), tabText(1)};
  std::size_t turn = 0;
  for (auto unused : state) {
    desk.history.clear();
    pasteText(desk.screen.varTable, texts[turn++ % 2]);
  }
  if (desk.screen.varTable.cell(kPoints, 1).empty()) state.SkipWithError("the last row is missing");
  state.counters["history_bytes"] = static_cast<double>(desk.history.bytes());
}

void readText(benchmark::State& state) {
  const std::string text = tabText(0);
  for (auto unused : state) benchmark::DoNotOptimize(readTabRows(text, kPoints));
}

void importFile(benchmark::State& state) {
  ShownDesk desk;
  const std::string texts[] = {tabText(0), tabText(1)};
  desk.files.put("/0", texts[0]);
  desk.files.put("/1", texts[1]);
  std::size_t turn = 0;
  for (auto unused : state) {
    desk.history.clear();
    desk.dialogs.files.push_back(std::vector<std::string>{"/" + std::to_string(turn++ % 2)});
    desk.screen.files.mnuImportTab.click();
    desk.dialogs.shownFiles.clear();
    desk.files.log.clear();
  }
  if (desk.screen.varTable.cell(kPoints, 1).empty()) state.SkipWithError("the last row is missing");
}

void resample(benchmark::State& state) {
  ShownDesk desk;
  desk.import(0);
  const HydrographPoints points = loadTiQiArrays(desk.screen.varTable);
  for (auto unused : state) benchmark::DoNotOptimize(resampleHydrograph(0.05, points));
  state.counters["points"] = static_cast<double>(resampleHydrograph(0.05, points).flows.size());
}

// To constant steps and back, the step changing from time to time so that every cell is written.
void convertTwice(benchmark::State& state) {
  ShownDesk desk;
  desk.import(0);
  int turn = 0;
  for (auto unused : state) {
    desk.history.clear();
    desk.screen.convertHydrograph(turn++ % 2 == 0 ? 0.05 : 0.0501, 2);
    desk.screen.convertHydrograph(0.05, 1);
  }
  if (!desk.boxes.shown.empty()) state.SkipWithError("a conversion met a box");
}

void undoImports(benchmark::State& state) {
  constexpr int kSteps = 200;
  double steps = 0;
  double bytes = 0;
  for (auto unused : state) {
    state.PauseTiming();
    ShownDesk desk;
    for (int i = 0; i < kSteps; ++i) desk.import(i);
    steps = static_cast<double>(desk.history.steps());
    bytes = static_cast<double>(desk.history.bytes());
    state.ResumeTiming();
    while (desk.history.undo()) continue;
  }
  state.counters["steps"] = steps;
  state.counters["history_bytes"] = bytes;
}

// A turn of the peer, in its own seconds. Without Python or numpy the row says so.
void inNumpy(benchmark::State& state, const std::string& work) {
  try {
    ChildProgram peer({"/usr/bin/python3", KESTRA_BENCH_DIR "/hydrograph_peer.py"});
    for (auto unused : state) {
      const std::string answer = peer.answerTo(work + "\n");
      const auto seconds = realNumber(answer);
      if (!seconds) {
        state.SkipWithError(answer.empty() ? "the peer does not answer" : answer.c_str());
        break;
      }
      state.SetIterationTime(*seconds);
    }
  } catch (const std::runtime_error& fault) {
    state.SkipWithError(fault.what());
  }
}

// Each command, its bare part, and its peer.
BENCHMARK(pasteRows)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inNumpy, pasteRows, "paste_rows")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(importFile)->Unit(benchmark::kMillisecond);
BENCHMARK(readText)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inNumpy, readTextLoadtxt, "read_loadtxt")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK_CAPTURE(inNumpy, readTextSplit, "read_split")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(resample)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inNumpy, resample, "resample")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(convertTwice)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inNumpy, convertTwice, "convert_twice")->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(undoImports)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK_CAPTURE(inNumpy, undo, "undo")->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace
}  // namespace kestra
