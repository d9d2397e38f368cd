#pragma once

#include <string>

#include "app/run_keeping.h"
#include "app/run_summary.h"
#include "results/run_tables.h"
#include "run/build_pipeline.h"
#include "shell/project_guard.h"
#include "shell/shell.h"
#include "summary/summary_screens.h"

namespace kestra {

// The whole system without a face: owns the state and the screens and joins them to the ports it is given. One object a
// program; the ports must outlive it.
class Application {
 public:
  // `applicationDirectory`: where the external programs, catalogues and the help stand.
  Application(const Ports& given, const std::string& applicationDirectory);

  ApplicationState state;
  ProjectGuard files;  // nothing is changed in a project that another program has
  Ports ports;
  ScreenHost host;
  ScreenContext context;
  Shell shell;
  RunTables runTables;
  SummaryStore summary;
  RunKeeping runKeeping;
  SummaryScreens summaryScreens;
  RunSummary runSummary;
  Programs programs;
  RunContext runs;
  BuildPipeline builds;

 private:
  void joinSummary();
  void followProject();
  void followEdit();  // results that are on show tell whether they still belong to their input
  void followFile();

  bool screensDiffered_ = false;  // when the results on show were told last
};

}  // namespace kestra
