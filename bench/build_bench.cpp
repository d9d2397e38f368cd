// What a build takes over the time of its solvers: builds of one spillway with 1, 100 and 1,000 instances, and the
// same number of starts of the same solver with nothing around them. A solver here does almost nothing.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <filesystem>
#include <fstream>

#include "app/application.h"
#include "base/fields.h"
#include "child_program.h"
#include "platform/native/posix_file_system.h"
#include "platform/native/posix_process_host.h"
#include "platform/native/system_ports.h"
#include "platform/scripted.h"
#include "support/temp_directory.h"

namespace kestra {
namespace {

constexpr const char* kRecords =
    "QUIL      02/09/20021         Way\r\nLHS       1\r\nPK\r\nENDTABLE\r\nENDJOB\r\nENDRUN\r\n";

// Gives as many copies of the records as are asked for.
class Copies : public Sampling {
 public:
  Copies(ApplicationState& state, int count) : state_(state), count_(count) {}
  bool readBlock(const std::string&) override {
    state_.totalInstances = std::to_string(count_);
    return true;
  }
  HydrographCheck checkHydrograph(const std::string&) override { return {}; }
  bool drawSamples(const std::string&, bool, int) override { return true; }
  bool readSamples(const std::string&, int) override { return true; }
  bool writeInstances(const std::string& base, const std::string& records, bool, const HydrographCheck&, int) override {
    for (int k = 0; k < count_; ++k) std::ofstream(base + "_" + std::to_string(k) + ".V2D") << records;
    return true;
  }

 private:
  ApplicationState& state_;
  int count_;
};

struct BenchDesk {
  TempDirectory directory;
  PosixFileSystem files;
  PosixProcessHost processes;
  SystemClock clock;
  ScriptedMessageBoxes boxes;
  ScriptedDialogs dialogs;
  MemorySettings settings;
  MemoryClipboard clipboard;
  TerminalEventPump events;
  RecordingBeeper beeper;
  ScriptedEntropy entropy;
  RecordingHelpViewer help;
  Application app{{boxes, dialogs, settings, clipboard, processes, files, events, beeper, entropy, clock, help},
                  directory.path()};

  BenchDesk() {
    for (const char* name : {"KestraSim.exe", "TorveSim.exe"}) {
      std::filesystem::create_symlink(KESTRA_STUB_SOLVER, directory.at(name));
    }
    std::filesystem::create_directory(directory.at("p"));
    app.state.projectDir = directory.at("p");
    app.state.currentFile = directory.at("p/dam.KSC");
    std::ofstream(app.state.currentFile) << "KESTRA\r\nENDRUN\r\n" << kRecords;
    (void)files.changeDirectory(app.state.projectDir);
  }
  ~BenchDesk() { (void)files.changeDirectory("/"); }
};

double peakMemoryMb() {
  rusage usage = {};
  ::getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

void build(benchmark::State& state) {
  BenchDesk desk;
  Copies samples(desk.app.state, static_cast<int>(state.range(0)));
  BuildPipeline pipeline(desk.app.runs, &samples);
  for (auto unused : state) {
    if (!pipeline.BuildMyFiles(false)) state.SkipWithError(pipeline.whyNot().c_str());
  }
  state.counters["starts"] = static_cast<double>(state.range(0) + 1);
  state.counters["peak_MB"] = peakMemoryMb();
}

void solversAlone(benchmark::State& state) {
  const TempDirectory directory;
  const std::string file = directory.at("dam.V2D");
  for (auto unused : state) {
    for (int i = 0; i <= state.range(0); ++i) ChildProgram::run({KESTRA_STUB_SOLVER, file});
  }
  state.counters["starts"] = static_cast<double>(state.range(0) + 1);
}

// The same through the host that stops what a program leaves behind.
void solversInGroups(benchmark::State& state) {
  const TempDirectory directory;
  const std::string file = directory.at("dam.V2D");
  PosixProcessHost host;
  for (auto unused : state) {
    for (int i = 0; i <= state.range(0); ++i) (void)host.run({KESTRA_STUB_SOLVER, {file}, "", ""}, {});
  }
  state.counters["starts"] = static_cast<double>(state.range(0) + 1);
}

BENCHMARK(build)->Arg(1)->Arg(100)->Arg(1000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(solversAlone)->Arg(1)->Arg(100)->Arg(1000)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(solversInGroups)->Arg(1)->Arg(100)->Arg(1000)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kestra
