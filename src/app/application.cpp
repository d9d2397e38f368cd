#include "app/application.h"

#include <utility>

namespace kestra {

Application::Application(const Ports& given, const std::string& applicationDirectory)
    : files(given.files, state),
      ports{given.boxes,  given.dialogs, given.settings, given.clipboard, given.processes, files,
            given.events, given.beeper,  given.entropy,  given.clock,     given.help},
      host(state.bExiting),
      context{ports, state, host},
      shell(context, applicationDirectory),
      summary(ports, state, shell.catalogues),
      runKeeping(ports, shell),
      summaryScreens(shell.graphs.context, shell.lines, summary, runKeeping),
      runSummary(summary),
      programs(ports, state, shell.progress, applicationDirectory),
      runs{ports, state, runTables, shell.progress, programs, runSummary},
      builds(runs, nullptr) {
  host.onEdited = [this](Screen& screen, Control&) {
    if (!screen.holdsInput()) return;
    state.noteEdit();
    followEdit();
  };
  shell.fileDesk.runs = &builds;
  shell.fileDesk.onFile = [this] { followFile(); };
  joinSummary();
  shell.projects.onChanged = [this] { followProject(); };
}

void Application::joinSummary() {
  summaryScreens.enterAll(host);
  WindowRegistry& windows = shell.topScreen.windows();
  windows.enter(WindowSlot::summaryTable, summaryScreens.table, &summaryScreens.table.mnuWindowsArray);
  windows.enter(WindowSlot::summaryGraphics, summaryScreens.graphics, &summaryScreens.graphics.mnuWindowsArray);
  runSummary.onModifyTable = [this](int entry) { summaryScreens.followRun(entry); };
  runSummary.onRefreshTable = [this] { summaryScreens.followStore(); };
  runSummary.onRefreshOpenFiles = [this] { summaryScreens.table.GetFileToOpen(); };
  runSummary.onRefreshGraphs = [this] { shell.graphs.output.GetGraphToOpen(); };
}

// The tables are looked at only when the answer is another one: they ask about every run.
void Application::followEdit() {
  const bool shows = shell.graphs.output.loaded() || summaryScreens.table.loaded();
  if (!shows) return;
  const bool differs = shell.runInputs.screensDiffer(state.currentFile);
  if (differs != std::exchange(screensDiffered_, differs)) followFile();
}

void Application::followFile() {
  screensDiffered_ = shell.runInputs.screensDiffer(state.currentFile);
  if (shell.graphs.output.loaded()) shell.graphs.output.followInput();
  summaryScreens.followInputs();
}

// The summary is that of the open project; what is on show of another one is dropped.
void Application::followProject() {
  summaryScreens.closeAll();
  summary.LoadSummaryStore();
  shell.autosave.projectOpened();
}

}  // namespace kestra
