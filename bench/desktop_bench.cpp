// The program with windows: how long it takes to a window that can be used, to open a large file, to show and to move a
// long graph, and what three such graphs take up; beside what an engineer would open instead. Without a display.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "base/numbers.h"
#include "child_program.h"
#include "desktop/desk.h"
#include "desktop/qt_desk.h"
#include "support/sample_run.h"
#include "support/temp_directory.h"

namespace kestra {
namespace {

constexpr int kRows = 17000;
constexpr int kPoints = 5000;
constexpr const char* kWindow = "--child-window";
constexpr const char* kEmpty = "--child-empty";

// A project with a control file of 5,000 hydrograph points, and the output of a run of 17,000 rows.
struct Project {
  TempDirectory scratch;
  std::string directory = scratch.path() + "/dam";
  std::string file = directory + "/long.KSC";

  Project() {
    std::filesystem::create_directories(directory);
    std::ofstream(directory + "/owner") << "The flag file of a project\r\nTORVE\r\n";
    std::ofstream(file) << controlFile();
    std::ofstream(directory + "/long.OUT") << output();
  }

  static std::string controlFile() {
    std::ifstream example(KESTRA_EXAMPLE, std::ios::binary);
    std::ostringstream text;
    text << example.rdbuf();
    std::string whole = text.str();
    const std::size_t rows = whole.find('\n', whole.find("HYD ")) + 1;
    std::string points;
    for (int i = 0; i < kPoints; ++i) {
      if (i % 5 == 0) points += (i == 0 ? "" : "\r\n") + std::string(20, ' ');
      std::string field = std::to_string(i * 7919 % 1000);
      field.resize(10, ' ');
      points += field;
    }
    return whole.replace(rows, whole.find("ENDTABLE", rows) - rows, points + "\r\n");
  }

  static std::string output() {
    SampleRun run;
    run.routing.clear();
    for (int i = 0; i < kRows; ++i) {
      std::vector<double> row = {i * 0.01};
      for (int c = 0; c < 10; ++c) row.push_back(500 + (i * (c + 3)) % 700);
      run.routing.push_back(row);
    }
    return run.out();
  }
};

// The program as main() joins it, its window on show.
struct Program {
  explicit Program(const Project& project)
      : ports({QString(), QStringLiteral(KESTRA_BIN_DIR), QString::fromStdString(project.scratch.path() + "/s.ini")}),
        application(ports.ports(), ports.applicationDirectory()),
        window(application) {
    window.start(QString::fromStdString(project.file));
    QApplication::processEvents();
  }
  void settle() { QApplication::processEvents(); }

  QtDesk ports;
  Application application;
  Desk window;
};

void startChild(benchmark::State& state, const char* mode) {
  const Project project;
  const std::string self = std::filesystem::read_symlink("/proc/self/exe");
  for (auto unused : state) {
    if (ChildProgram::run({self, mode, project.file}) != 0) state.SkipWithError("it did not start");
  }
}
void startToWindow(benchmark::State& state) {
  startChild(state, kWindow);
}
void startEmptyWindow(benchmark::State& state) {
  startChild(state, kEmpty);
}

void openLargeFile(benchmark::State& state) {
  const Project project;
  Program program(project);
  frmHydrographData& hydrograph = program.application.shell.input.hydrographData;
  for (auto unused : state) {
    program.application.shell.commands.file.take(project.file);
    program.application.host.show(hydrograph);
    program.settle();
  }
  if (hydrograph.grdTable.cell(kPoints, 1).empty()) state.SkipWithError("not all points were read");
}

void openInTextEditor(benchmark::State& state) {
  const Project project;
  QPlainTextEdit editor;
  editor.resize(1000, 700);
  editor.show();
  for (auto unused : state) {
    std::ifstream file(project.file, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    editor.setPlainText(QString::fromStdString(text.str()));
    QApplication::processEvents();
  }
}

void firstPaintOfGraph(benchmark::State& state) {
  const Project project;
  Program program(project);
  frmOutputGraph& graphs = program.application.shell.graphs.output;
  for (auto unused : state) {
    graphs.OpenFile(project.file);
    program.settle();
  }
  if (!graphs.isDrawn(0)) state.SkipWithError("the graph was not drawn");
}

void repaintOnPan(benchmark::State& state) {
  const Project project;
  Program program(project);
  frmOutputGraph& graphs = program.application.shell.graphs.output;
  graphs.OpenFile(project.file);
  double step = 1.7;
  for (auto unused : state) {
    step = -step;
    View& window = graphs.savedWindow(0);
    window.Xmin += step;
    window.Xmax += step;
    graphs.ReDrawGraph(0);
    program.settle();
  }
}

double residentMegabytes() {
  std::ifstream status("/proc/self/statm");
  double total = 0;
  double resident = 0;
  status >> total >> resident;
  return resident * 4096 / 1e6;
}

// The columns of the same output, as an engineer would plot them.
void gnuplotOfRun(benchmark::State& state) {
  const Project project;
  {
    std::ofstream columns(project.directory + "/columns");
    for (int i = 0; i < kRows; ++i) {
      columns << decimalNumber(i * 0.01);
      for (int c = 0; c < 7; ++c) columns << ' ' << 500 + (i * (c + 3)) % 700;
      columns << '\n';
    }
  }
  const std::string settings =
      "form='png'; data='" + project.directory + "/columns'; out='" + project.directory + "/out.png'";
  const std::vector<std::string> words = {"gnuplot", "-e", settings, KESTRA_BENCH_DIR "/graph_peer.gp"};
  if (ChildProgram::run(words) != 0) return state.SkipWithError("the program is not there");
  for (auto unused : state) ChildProgram::run(words);
}

// The time is that of drawing them; the counters are what counts.
void memoryOfThreeGraphs(benchmark::State& state) {
  const Project project;
  for (auto unused : state) {
    Program program(project);
    const double before = residentMegabytes();
    frmOutputGraph& graphs = program.application.shell.graphs.output;
    graphs.OpenFile(project.file);
    for (const int number : {0, 1, 2}) {
      graphs.mnuGraph_Click(number);
      program.settle();
    }
    state.counters["MB before"] = before;
    state.counters["MB more"] = residentMegabytes() - before;
    state.counters["MB of the output"] =
        static_cast<double>(std::filesystem::file_size(project.directory + "/long.OUT")) / 1e6;
  }
}

// First, while nothing has been freed that could be used again.
BENCHMARK(memoryOfThreeGraphs)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(startToWindow)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(startEmptyWindow)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(openLargeFile)->Unit(benchmark::kMillisecond);
BENCHMARK(openInTextEditor)->Unit(benchmark::kMillisecond);
BENCHMARK(firstPaintOfGraph)->Unit(benchmark::kMillisecond);
BENCHMARK(gnuplotOfRun)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(repaintOnPan)->Unit(benchmark::kMillisecond);

// A window of this program, or one of Qt without anything in it; the child ends once it has been painted.
int showChild(const std::string& mode, const std::string& file) {
  if (mode == kEmpty) {
    QMainWindow window;
    window.resize(1180, 820);
    window.show();
    QApplication::processEvents();
    return 0;
  }
  const TempDirectory scratch;
  QtDesk ports({QString(), QStringLiteral(KESTRA_BIN_DIR), QString::fromStdString(scratch.path() + "/s.ini")});
  Application application(ports.ports(), ports.applicationDirectory());
  Desk window(application);
  window.start(QString::fromStdString(file));
  QApplication::processEvents();
  return application.shell.ended() ? 1 : 0;
}

}  // namespace
}  // namespace kestra

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // there is no display
  QApplication toolkit(argc, argv);
  if (argc == 3 && std::string(argv[1]).starts_with("--child")) return kestra::showChild(argv[1], argv[2]);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
