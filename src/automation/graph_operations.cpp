#include "automation/control_verbs.h"
#include "automation/operations.h"
#include "graphics/clipped_line.h"

namespace kestra {
namespace {

// An operation of the output graphs' screen, which is loaded first.
Operation onGraphs(const std::string& name, const std::vector<std::string>& arguments,
                   const std::function<void(frmOutputGraph&, const Arguments&)>& action) {
  return {name, arguments, [action](Application& application, const Arguments& given) -> Json {
            application.host.load(application.shell.graphs.output);
            action(application.shell.graphs.output, given);
            return nullptr;
          }};
}

View viewOf(const Arguments& arguments, std::size_t first) {
  return {arguments.number(first), arguments.number(first + 1), arguments.number(first + 2),
          arguments.number(first + 3)};
}

Json scale(Application& application, const Arguments& arguments) {
  frmOutputGraph& screen = application.shell.graphs.output;
  if (arguments.text(0) != screen.name()) throw RequestError("no graph screen named \"" + arguments.text(0) + "\"");
  application.host.load(screen);
  const Steps steps = screen.Scaling(viewOf(arguments, 1));
  const View& window = screen.workingWindow();
  return {{"XStep", steps.XStep}, {"YStep", steps.YStep}, {"Xmin", window.Xmin},
          {"Xmax", window.Xmax},  {"Ymin", window.Ymin},  {"Ymax", window.Ymax}};
}

Json clippedLine(Application&, const Arguments& a) {
  RecordingCanvas canvas;
  DrawClippedLine(a.number(0), a.number(1), a.number(2), a.number(3), a.number(4), a.number(5), a.number(6),
                  a.number(7), canvas, a.integer(8));
  return describeCalls(canvas.log());
}

// A routine of the mouse on Pic1(number), or on Pic1A(number) under its name with an A behind.
void addMouse(std::vector<Operation>& list, const std::string& name, MouseEvent::Type type) {
  for (const bool second : {false, true}) {
    list.push_back(onGraphs(name + (second ? "A" : ""), {"button", "x", "y", "number"},
                            [type, second](frmOutputGraph& graphs, const Arguments& a) {
                              CanvasControl& canvas = (second ? graphs.Pic1A : graphs.Pic1)(a.integer(3));
                              canvas.userMouse({type, a.integer(0), a.number(1), a.number(2)});
                            }));
  }
}

Json pickColor(Application& application, const Arguments& arguments) {
  const auto color = PickColor(application.ports.dialogs, static_cast<std::uint32_t>(arguments.integer(0)));
  return color ? Json(*color) : Json();
}

}  // namespace

std::vector<Operation> graphOperations() {
  using Graphs = frmOutputGraph;
  using Given = Arguments;
  std::vector<Operation> list = {
      onGraphs("frmOutputGraph.OpenFile", {"path"}, [](Graphs& g, const Given& a) { g.OpenFile(a.text(0)); }),
      onGraphs("frmOutputGraph.GetGraphToOpen", {}, [](Graphs& g, const Given&) { g.GetGraphToOpen(); }),
      onGraphs("frmOutputGraph.Form_Resize", {"width", "height"},
               [](Graphs& g, const Given& a) { g.Form_Resize(a.integer(0), a.integer(1)); }),
      onGraphs("frmOutputGraph.Toolbar1_ButtonClick", {"key"},
               [](Graphs& g, const Given& a) { g.tools.toolbarClick(a.text(0)); }),
      onGraphs("ReDrawGraph", {"n"}, [](Graphs& g, const Given& a) { g.ReDrawGraph(a.integer(0)); }),
      {"Scaling", {"screen", "Xmin", "Xmax", "Ymin", "Ymax"}, scale},
      {"DrawClippedLine", {"x1", "y1", "x2", "y2", "Xmin", "Ymin", "Xmax", "Ymax", "fill"}, clippedLine},
      onGraphs("SetMouse", {"image"}, [](Graphs& g, const Given& a) { g.SetMouse(a.integer(0)); }),
      // No brush is kept from one drawing to the next.
      {"ClearBrush", {}, [](Application&, const Given&) -> Json { return nullptr; }},
      {"PickColor", {"start"}, pickColor},
      {"PickAllColors",
       {},
       [](Application& a, const Given&) -> Json { return a.shell.lines.PickAllColors(a.ports.dialogs); }},
  };
  addMouse(list, "GenericMouseDown", MouseEvent::Type::down);
  addMouse(list, "GenericMouseMove", MouseEvent::Type::move);
  addMouse(list, "GenericMouseUp", MouseEvent::Type::up);
  return list;
}

}  // namespace kestra
