#include "automation/operations.h"

namespace kestra {
namespace {

ControlFiles& controlOf(Application& application) {
  return application.shell.controlFiles;
}

Operation named(std::string name, std::vector<std::string> arguments,
                std::function<void(ControlFiles&, const Arguments&)> act) {
  return {std::move(name), std::move(arguments),
          [act = std::move(act)](Application& application, const Arguments& given) -> Json {
            act(controlOf(application), given);
            return nullptr;
          }};
}

}  // namespace

std::vector<Operation> controlOperations() {
  using Given = Arguments;
  return {
      {"BuildControlText",
       {"fileName"},
       [](Application& a, const Given& g) -> Json { return controlOf(a).BuildControlText(g.text(0)); }},
      named("BuildHydrographText", {}, [](ControlFiles& c, const Given&) { c.BuildHydrographText(); }),
      named("BuildAuxRunText", {"spillwayIndex", "fileName"},
            [](ControlFiles& c, const Given& g) { c.BuildAuxRunText(g.integer(0), g.text(1)); }),
      named("WriteSpillwayRun", {"spillwayIndex", "controlFilePath"},
            [](ControlFiles& c, const Given& g) { c.WriteSpillwayRun(g.integer(0), g.text(1)); }),
      named("ReadSpillwayRun", {"runText", "spillwayIndex"},
            [](ControlFiles& c, const Given& g) { c.ReadSpillwayRun(g.text(0), g.integer(1)); }),
      named("WriteControlFiles", {"fileName"}, [](ControlFiles& c, const Given& g) { c.WriteControlFiles(g.text(0)); }),
      named("ReadControlFile", {"fileName"}, [](ControlFiles& c, const Given& g) { c.ReadControlFile(g.text(0)); }),
      named("ParseControlText", {}, [](ControlFiles& c, const Given&) { c.ParseControlText(); }),
      {"SameControlFiles",
       {"a", "b"},
       [](Application& a, const Given& g) -> Json { return controlOf(a).SameControlFiles(g.text(0), g.text(1)); }},
      {"ControlFileUnchanged",
       {},
       [](Application& a, const Given&) -> Json { return controlOf(a).ControlFileUnchanged(); }},
  };
}

}  // namespace kestra
