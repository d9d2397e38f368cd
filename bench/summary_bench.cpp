// The summary of 1,000 and of 10,000 instances: the digests read from the disk, the rows found among them, the forms in
// which they are written, and beside the reading the loop over std::getline that one would write for the measures
// alone. The whole operation, warm and cold, beside Python, is in summary_peer.py.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>

#include "base/numbers.h"
#include "platform/native/posix_file_system.h"
#include "platform/scripted.h"
#include "summary/summary_store.h"
#include "summary/table_formats.h"
#include "support/temp_directory.h"

namespace kestra {
namespace {

constexpr int kMeasureLine = 30;

// A project on the disk with the instances of one run, and the store that reads it.
struct Project {
  explicit Project(int count) {
    state.projectDir = directory.path();
    catalogues.fieldTitles[0].resize(kMostSummaryFields, "Field");
    catalogues.fieldTitles[1].resize(6, "Field");
    (void)files.makeDirectory(state.projectDir + "/dam");
    std::ofstream entries(state.projectDir + "/SUMMARY.IDE");
    entries << "2\n1\n12\n2\n1\n2\n";
    for (int k = 0; k < count; ++k) {
      const std::string name = "dam1_" + std::to_string(k);
      entries << '"' << name << "\"\n";
      std::ofstream digest(pathOf(k));
      for (int line = 1; line <= 35; ++line) digest << (line == kMeasureLine ? k * 7919 % 10007 : line) << "\r\n";
    }
  }
  std::string pathOf(int k) const { return state.projectDir + "/dam/dam1_" + std::to_string(k) + ".DIS"; }

  TempDirectory directory;
  PosixFileSystem files;
  ScriptedMessageBoxes boxes;
  ScriptedDialogs dialogs;
  MemorySettings settings;
  MemoryClipboard clipboard;
  ScriptedProcessHost processes;
  RecordingEventPump events;
  RecordingBeeper beeper;
  ScriptedEntropy entropy;
  ScriptedClock clock;
  RecordingHelpViewer help;
  Ports ports{boxes, dialogs, settings, clipboard, processes, files, events, beeper, entropy, clock, help};
  ApplicationState state;
  FieldCatalogues catalogues;
  SummaryStore store{ports, state, catalogues};
};

int countOf(const benchmark::State& state) {
  return static_cast<int>(state.range(0));
}

void load(benchmark::State& state) {
  Project project(countOf(state));
  for (auto unused : state) project.store.LoadSummaryStore();
  if (static_cast<int>(project.store.entries().size()) != countOf(state)) state.SkipWithError("entries are missing");
  state.SetItemsProcessed(state.iterations() * countOf(state));
}

// The highest measure of all files.
double plainMaximum(const Project& project, int count) {
  double highest = 0;
  for (int k = 0; k < count; ++k) {
    std::ifstream file(project.pathOf(k));
    std::string line;
    for (int i = 0; i < kMeasureLine; ++i) std::getline(file, line);
    highest = std::max(highest, lenientNumber(line));
  }
  return highest;
}

void plain(benchmark::State& state) {
  Project project(countOf(state));
  project.store.LoadSummaryStore();
  const EntryList& list = project.store.list();
  const double found = *measureOf(list[FindMaxFile(list, {0, list.size() - 1})]);
  if (plainMaximum(project, countOf(state)) != found) state.SkipWithError("the two readings differ");
  for (auto unused : state) benchmark::DoNotOptimize(plainMaximum(project, countOf(state)));
  state.SetItemsProcessed(state.iterations() * countOf(state));
}

void rows(benchmark::State& state) {
  Project project(countOf(state));
  project.store.LoadSummaryStore();
  for (auto unused : state) {
    const ShownRows shown = ComputeTableValues(project.store.list());
    benchmark::DoNotOptimize(makeSummaryTable(shown, project.store.selection(), project.catalogues));
  }
}

template <class Write>
void written(benchmark::State& state, const Write& write) {
  Project project(countOf(state));
  project.store.LoadSummaryStore();
  const SummaryTable table =
      makeSummaryTable(rowsOfAll(project.store.list()), project.store.selection(), project.catalogues);
  for (auto unused : state) benchmark::DoNotOptimize(write(table));
}

void csv(benchmark::State& state) {
  written(state, [](const SummaryTable& table) { return csvText(gridOfAll(table)); });
}
void json(benchmark::State& state) {
  written(state, jsonText);
}
void xlsx(benchmark::State& state) {
  written(state, xlsxTable);
}

BENCHMARK(load)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(plain)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(rows)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(csv)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(json)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(xlsx)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kestra
