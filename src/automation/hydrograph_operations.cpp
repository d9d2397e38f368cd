#include "automation/operations.h"
#include "screens/hydrograph_block.h"
#include "screens/resample_hydrograph.h"

namespace kestra {
namespace {

using Action = std::function<void(frmHydrographData&, const Arguments&)>;

// An operation of the hydrograph screen, which is loaded first.
Operation onScreen(const std::string& name, const std::vector<std::string>& arguments, const Action& action) {
  return {"frmHydrographData." + name, arguments, [action](Application& application, const Arguments& given) -> Json {
            frmHydrographData& screen = application.shell.input.hydrographData;
            application.host.load(screen);
            action(screen, given);
            return nullptr;
          }};
}

std::vector<double> numbersIn(const Json& list, const std::string& what) {
  std::vector<double> numbers;
  for (const Json& value : list) numbers.push_back(asNumber(value, what));
  return numbers;
}

Json resample(Application&, const Arguments& arguments) {
  const HydrographPoints points = {numbersIn(arguments.list(1), "an entry of \"times\""),
                                   numbersIn(arguments.list(2), "an entry of \"flows\"")};
  if (points.times.size() != points.flows.size()) throw RequestError("\"times\" and \"flows\" differ in length");
  const ResampledHydrograph result = resampleHydrograph(arguments.number(0), points);
  return {{"outStep", result.step}, {"outFlows", result.flows}, {"outCount", result.flows.size()}};
}

Json parse(Application&, const Arguments& arguments) {
  const HydrographPoints points = ParseHydrographText(arguments.text(0));
  return {{"times", points.times}, {"flows", points.flows}, {"count", points.times.size()}};
}

Json loadArrays(Application& application, const Arguments&) {
  const HydrographPoints points = loadTiQiArrays(application.shell.input.hydrographData.varTable);
  return {{"t", points.times}, {"q", points.flows}, {"n", points.times.size()}};
}

}  // namespace

std::vector<Operation> hydrographOperations() {
  using Data = frmHydrographData;
  using Given = Arguments;
  return {
      onScreen("setRowNum", {"dt"}, [](Data& screen, const Given& a) { screen.setRowNum(a.number(0)); }),
      onScreen("convertHydrograph", {"dt", "mode"},
               [](Data& screen, const Given& a) { screen.convertHydrograph(a.number(0), a.integer(1)); }),
      onScreen("retimeHydrograph", {"oldDt", "newDt"},
               [](Data& screen, const Given& a) { screen.retimeHydrograph(a.number(0), a.number(1)); }),
      onScreen("clearTable", {}, [](Data& screen, const Given&) { screen.clearTable(); }),
      onScreen("setHydrographCode", {"code"},
               [](Data& screen, const Given& a) { screen.setHydrographCode(a.text(0)); }),
      onScreen("LoadHydrographForms", {"fileName"},
               [](Data& screen, const Given& a) { screen.files.LoadHydrographForms(a.text(0)); }),
      onScreen("SaveTable", {"fileName"}, [](Data& screen, const Given& a) { screen.files.SaveTable(a.text(0)); }),
      {"frmHydrographData.loadTiQiArrays", {}, loadArrays},
      {"ResampleHydrograph", {"step", "times", "flows"}, resample},
      {"ParseHydrographText", {"text"}, parse},
  };
}

}  // namespace kestra
