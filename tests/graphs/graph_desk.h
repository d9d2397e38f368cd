#pragma once

#include "graphs/graph_screens.h"
#include "support/canvas_calls.h"
#include "support/fake_pictures.h"
#include "support/input_desk.h"
#include "support/sample_run.h"

namespace kestra {

// The graph screens on ports that need no machine, with the files of a sample run in /p.
struct GraphDesk : InputDesk {
  using Lines = std::vector<std::string>;

  LineSettings lines;
  GraphScreens graphs{base, lines};
  frmOutputGraph& screen = graphs.output;
  FakePictures pictures;
  FakePrinter printer;
  SampleRun run;

  GraphDesk() {
    lines.InitColors(settings, entropy);
    lines.InitLines(settings);
    graphs.enterAll(host);
    graphs.context.pictures = &pictures;
    graphs.context.printer = &printer;
    files.put("/p/dam.KSC", "KESTRA    01/01/2009Larkmoor\n");
    putRun();
  }
  ~GraphDesk() { history.clear(); }

  void putRun() {
    files.put("/p/dam.OUT", run.out());
    files.put("/p/dam.BRE", run.bre);
    files.put("/p/dam.HCT", run.hct);
  }
  void open() { screen.OpenFile("/p/dam.KSC"); }
  // Opens the run and draws a graph of it.
  void draw(int number) {
    open();
    screen.ReDrawGraph(number);
  }
  Lines texts(int number) { return textsOn(screen.Pic1(number)); }
  // A series as "NAME: x,y x,y".
  std::string seriesText(int i) const {
    const Series& series = screen.series()(i);
    std::string text = series.SeriesName + ":";
    for (std::size_t j = 0; j < series.PlotX.size(); ++j) {
      text += " " + singleNumber(series.PlotX[j]) + "," + singleNumber(series.PlotY[j]);
    }
    return text;
  }
  Lines allSeries() const {
    Lines found;
    for (int i = 0; i < screen.series().SeriesCount; ++i) found.push_back(seriesText(i));
    return found;
  }
  void mouse(int number, MouseEvent::Type type, double x, double y, int button = kLeftButton) {
    screen.Pic1(number).userMouse({type, button, x, y});
  }
};

}  // namespace kestra
