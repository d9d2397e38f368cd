#include "automation/operations.h"
#include "run/dam_solver.h"
#include "run/old_run_files.h"
#include "run/spillway_case.h"
#include "run/spillway_inflow.h"
#include "run/split_control_file.h"

namespace kestra {
namespace {

using Given = Arguments;
using Action = std::function<void(Application&, const Given&)>;

Operation action(const std::string& name, std::vector<std::string> arguments, const Action& run) {
  return {name, std::move(arguments), [run](Application& application, const Given& given) -> Json {
            run(application, given);
            return nullptr;
          }};
}

}  // namespace

std::vector<Operation> runOperations() {
  return {
      {"BuildMyFiles",
       {"showProgress"},
       [](Application& application, const Given& a) -> Json { return application.builds.BuildMyFiles(a.boolean(0)); }},
      action("SplitControlFile", {"sourcePath", "runBase"},
             [](Application& application, const Given& a) {
               SplitControlFile(application.ports.files, application.runTables, a.text(0), a.text(1));
             }),
      action("DeleteOldRunFiles", {"runName"},
             [](Application& application, const Given& a) {
               const ApplicationState& state = application.state;
               DeleteOldRunFiles(application.ports.files, state.projectDir, a.text(0), state.currentFile);
             }),
      {"RunAndWait",
       {"commandLine"},
       [](Application& application, const Given& a) -> Json { return application.programs.RunAndWait(a.text(0)); }},
      action("RunDamSolver", {"filePath", "showProgress"},
             [](Application& application, const Given& a) { RunDamSolver(application.runs, a.text(0), a.boolean(1)); }),
      action("RunSpillwayInstance", {"instanceFile", "spillwayNumber"},
             [](Application& application, const Given& a) {
               RunSpillwayInstance(application.runs, a.text(0), a.integer(1));
             }),
      {"ExtractSpillwayInflow",
       {"damFile", "hydrographColumn"},
       [](Application& application, const Given& a) -> Json {
         return ExtractSpillwayInflow(application.ports.files, a.text(0), a.integer(1));
       }},
  };
}

}  // namespace kestra
