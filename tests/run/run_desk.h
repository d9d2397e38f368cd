#pragma once

#include <string>
#include <vector>

#include "base/fields.h"
#include "base/paths.h"
#include "controls/screen_host.h"
#include "platform/faulty_file_system.h"
#include "platform/files.h"
#include "platform/memory_file_system.h"
#include "platform/scripted.h"
#include "run/build_pipeline.h"
#include "run/summary_updates.h"

namespace kestra {

// Writes down what a run asks of the summary.
class RecordingSummary : public SummaryUpdates {
 public:
  int LoadDigestEntry(int fieldOffset, const std::string& digestPath, const std::string& entryName) override {
    calls.push_back("enter " + std::to_string(fieldOffset) + " " + digestPath + " as " + entryName);
    return ++entries;
  }
  void SaveSummaryStore(const std::string& path) override { calls.push_back("save " + path); }
  void LoadSummaryStore() override { calls.emplace_back("load"); }
  void ModifyTable(int entryIndex) override { calls.push_back("modify " + std::to_string(entryIndex)); }
  void refreshTable() override { calls.emplace_back("refresh table"); }
  void refreshOpenFiles() override { calls.emplace_back("refresh open files"); }

  std::vector<std::string> calls;
  int entries = 0;
};

// Each text as a line.
inline std::string lines(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += text + std::string(kCrLf);
  return all;
}

// A line of fields of ten columns.
inline std::string record(const std::vector<std::string>& fields) {
  std::string line;
  for (const std::string& field : fields) line += PadField(field, 10);
  return line;
}

struct RoutingRow {
  std::string time;
  std::string pool;
  std::vector<std::string> spillways{};  // discharges of auxiliary spillways, from the first
};

// What a dam solver prints: crests in the echo, and the routing table.
inline std::string damOutput(const std::vector<RoutingRow>& rows, const std::vector<std::string>& echo = {}) {
  std::string text = lines(echo) + lines({"   Hydrograph Routing", "", " Time", "  (hr)     (cfs)", "  ----"});
  for (const auto& [time, pool, spillways] : rows) {
    std::vector<std::string> fields(9);
    fields[0] = time;
    for (std::size_t i = 0; i < spillways.size(); ++i) fields[3 + i] = spillways[i];
    fields[8] = pool;
    text += lines({record(fields)});
  }
  return text + lines({""});
}

// A run, and the user at whose desk it goes on: his answers come from lists.
struct RunFixture {
  RunFixture(FileSystem& files, ProcessHost& processes, Clock& clock, const std::string& applicationDirectory)
      : ports{boxes, dialogs, settings, clipboard, processes, files, events, beeper, entropy, clock, help},
        programs(ports, state, progress, applicationDirectory) {
    host.enter(progress);
    programs.onTold = [this](const std::string& message) { told.push_back(message); };
  }

  ScriptedMessageBoxes boxes;
  ScriptedDialogs dialogs;
  MemorySettings settings;
  MemoryClipboard clipboard;
  RecordingEventPump events;
  RecordingBeeper beeper;
  ScriptedEntropy entropy;
  RecordingHelpViewer help;
  Ports ports;
  ApplicationState state;
  ScreenHost host{state.bExiting};
  ScreenContext base{ports, state, host};
  frmProgress progress{base};
  Programs programs;
  RecordingSummary summary;
  RunTables tables;
  RunContext context{ports, state, tables, progress, programs, summary};
  BuildPipeline pipeline{context, nullptr};
  std::vector<std::string> told;
};

struct MemoryMachine {
  MemoryFileSystem memory;
  FaultyFileSystem files{memory};
  ScriptedProcessHost processes;
  ScriptedClock clock;
};

// A project /p on files in memory, solvers in /app that do what a test sets, and a run over them.
struct RunDesk : MemoryMachine, RunFixture {
  RunDesk() : RunFixture(files, processes, clock, "/app") {
    memory.putDirectory("/app");
    memory.putDirectory("/p");
    (void)memory.changeDirectory("/p");
    state.projectDir = "/p";
  }

  // The file that a program was started on, without its extension.
  static std::string stemIn(const ProcessRequest& request) {
    const std::string& file = request.arguments.back();
    return file.substr(0, file.rfind('.'));
  }
  // A dam solver that leaves this output beside the file it is given.
  void solveDamWith(const std::string& output) {
    processes.effects["/app/KestraSim.exe"] = [this, output](const ProcessRequest& request) -> ProcessOutcome {
      memory.put(stemIn(request) + ".OUT", output);
      return Exited{0};
    };
  }
  // A spillway solver that leaves a digest of numbered lines, and graph data in the current directory.
  void solveSpillways() {
    processes.effects["/app/TorveSim.exe"] = [this](const ProcessRequest& request) -> ProcessOutcome {
      std::string digest;
      for (int i = 1; i <= 8; ++i) digest += "line " + std::to_string(i) + "\r\n";
      memory.put(stemIn(request) + ".DIS", digest);
      const std::string stem = stemIn(request).substr(stemIn(request).rfind('/') + 1);
      for (const char* n : {"1", "2", "3", "4", "5", "6"}) memory.put("/p/" + stem + ".DG" + n, "graph");
      return Exited{0};
    };
  }

  std::string text(const std::string& path) const { return memory.content(path).value_or("(none)"); }
  bool has(const std::string& path) const { return memory.content(path).has_value(); }
  // Names of the files that programs were started on.
  std::vector<std::string> started() const {
    std::vector<std::string> names;
    for (const ProcessRequest& request : processes.requests) {
      names.push_back(request.program.substr(5) + " " + request.arguments.back());
    }
    return names;
  }
  std::vector<std::string> takeBoxes() {
    std::vector<std::string> texts;
    for (const MessageBox& box : boxes.shown) {
      texts.push_back(box.title + ": " + box.text + " (" + std::string(nameOf(box.icon)) + ")");
    }
    boxes.shown.clear();
    return texts;
  }
};

// Writes down every value that the gauge takes.
class GaugeWatch : public ScreenObserver {
 public:
  explicit GaugeWatch(frmProgress& progress) : progress_(progress) { progress_.addObserver(*this); }
  ~GaugeWatch() override { progress_.removeObserver(*this); }
  void controlChanged(Control& control, Property) override {
    if (&control != &progress_.Gauge || progress_.Gauge.maximum() != 8) return;  // 8 steps, until it is closed
    const int value = static_cast<int>(progress_.Gauge.value());
    if (values.empty() || values.back() != value) values.push_back(value);
  }

  std::vector<int> values;

 private:
  frmProgress& progress_;
};

}  // namespace kestra
