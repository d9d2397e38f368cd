#include "automation/operations.h"
#include "run/integrity_check.h"

namespace kestra {
namespace {

using Given = Arguments;

Json runChecker(Application& application, const Given& given) {
  requireDone(RunIntegrityChecker(application.ports, application.programs.applicationDirectory(), given.text(0)));
  return nullptr;
}

// Where there is nothing to show, the table goes.
Json count(Application& application, const Given& given) {
  const Findings findings = CountFindings(application.ports.files, given.text(0));
  if (findings == Findings()) application.host.unload(application.shell.errorTable);
  return {{"errorCount", findings.errors}, {"warningCount", findings.warnings}};
}

}  // namespace

std::vector<Operation> checkOperations() {
  return {
      {"RunIntegrityChecker", {"filePath"}, runChecker},
      {"CountFindings", {"errPath"}, count},
      {"ReadDamFindings",
       {"errPath", "rowCount"},
       [](Application& application, const Given& a) -> Json {
         return application.shell.errorTable.ReadDamFindings(a.text(0), a.integer(1));
       }},
      {"ReadSpillwayFindings",
       {"errPath", "rowCount"},
       [](Application& application, const Given& a) -> Json {
         return application.shell.errorTable.ReadSpillwayFindings(a.text(0), a.integer(1));
       }},
      {"frmErrorTable.BuildTable",
       {},
       [](Application& application, const Given&) -> Json {
         application.shell.errorTable.BuildTable();
         return nullptr;
       }},
  };
}

}  // namespace kestra
