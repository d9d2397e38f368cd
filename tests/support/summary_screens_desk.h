#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/paths.h"
#include "platform/files.h"
#include "summary/summary_screens.h"
#include "support/canvas_calls.h"
#include "support/fake_pictures.h"
#include "support/summary_desk.h"

namespace kestra {

// Writes down what the summary asks for, and deletes by the stems it is given.
struct RecordingRunKeeper : RunKeeper {
  explicit RecordingRunKeeper(MemoryFileSystem& memory) : files(memory) {}

  void deleteRuns(const std::vector<std::string>& stems) override {
    for (const std::string& stem : stems) calls.push_back("delete " + stem);
    for (const std::string& stem : stems) (void)files.removeFile(stem + ".DIS");
  }
  std::string checkedDirectory(const std::string& path) override {
    const std::string directory(directoryOf(path));
    if (isDirectory(files, directory)) return directory;
    calls.push_back("no directory " + directory);
    return {};
  }
  void showText(const std::string& path, bool ofInstance) override {
    calls.push_back((ofInstance ? "spillway text " : "text ") + path);
  }
  void showGraphs(const std::string& path, bool ofInstance) override {
    calls.push_back((ofInstance ? "spillway graphs " : "graphs ") + path);
  }
  void showPreview(const std::string& title, const CanvasLog& drawing) override {
    calls.push_back("preview " + title + ", " + std::to_string(drawing.calls().size()) + " calls");
  }
  bool screensDiffer(const std::string& controlFile) override { return controlFile == edited; }
  void forgetShown() override { calls.emplace_back("forget"); }

  std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

  MemoryFileSystem& files;
  std::vector<std::string> calls;
  std::string edited;  // the control file that the screens hold changed
};

// The screens of the summary over a store in memory: a dam's fields Title, Crest, Peak and an instance's Name, Stress,
// of which Peak and Stress are selected, a row for each entry.
struct SummaryScreensDesk : SummaryDesk {
  using Texts = std::vector<std::string>;

  LineSettings lines;
  PictureDesk pictureDesk{base};
  FakePictures pictures;
  FakePrinter printer;
  RecordingRunKeeper keeper{files};
  SummaryScreens screens{pictureDesk, lines, store, keeper};
  frmSummaryTable& table = screens.table;
  frmAuxSummaryTable& aux = screens.auxTable;
  frmSummaryGraphics& graphics = screens.graphics;
  frmSummarySelections& selections = screens.selections;

  SummaryScreensDesk() {
    lines.InitColors(settings, entropy);
    lines.InitLines(settings);
    pictureDesk.pictures = &pictures;
    pictureDesk.printer = &printer;
    screens.enterAll(host);
    (void)settings.set("SummaryFields", {{"summaryOrder", "1"}});
  }

  // Puts a summary file with these entries; Peak and Stress are selected.
  void putEntries(const Texts& names) {
    std::string text = "1\n3\n1\n2\n";
    for (const std::string& name : names) text += "\"" + name + "\"\n";
    putSummary(text);
  }
  void putDam(const std::string& name, const std::string& peak) {
    files.put("/p/" + name + ".DIS", name + "\n1004\n" + peak + "\n");
  }
  // A digest of 35 lines: the spillway's name, a stress, and the measure in line 30.
  static std::string instanceDigest(const std::string& stress, const std::string& measure) {
    std::string text = "EAST\n" + stress + "\n";
    for (int line = 3; line <= 35; ++line) text += (line == 30 ? measure : "N/A") + "\n";
    return text;
  }
  void putInstance(const std::string& path, const std::string& stress, const std::string& measure) {
    files.put("/p/" + path + ".DIS", instanceDigest(stress, measure));
  }
  // A dam "pond" and five instances of a run "dam", the store and the catalogues being large enough for a measure.
  void putSamples() {
    titles.fieldTitles[0].resize(40, "More");
    putEntries({"dam", "dam1_0", "dam1_1", "pond", "dam1_2", "dam1_3"});
    putDam("dam", "150.5");
    putDam("pond", "80");
    const char* measures[] = {"2.5", "9", "N/A", "4"};
    for (int k = 0; k < 4; ++k) {
      putInstance("dam/dam1_" + std::to_string(k), "0." + std::to_string(k + 1), measures[k]);
    }
  }
  void open() { host.show(table); }
  void select(SummaryTableScreen& screen, int row) { screen.metaSum.userSelect({row, 1}, {row, 1}); }
  void choose(const std::string& path) { dialogs.files.push_back({{path}}); }

  // The rows of a grid, cells with "|" between.
  static Texts rowsOf(const Table& grid) {
    Texts rows;
    for (int r = 0; r < grid.rows(); ++r) {
      std::string row;
      for (int c = 0; c < grid.columns(); ++c) row += (c > 0 ? "|" : "") + grid.cell(r, c);
      rows.push_back(row);
    }
    return rows;
  }
};

}  // namespace kestra
