#include "app/application.h"

namespace kestra {

Application::Application(const Ports& given, const std::string& applicationDirectory)
    : files(given.files, state),
      ports{given.boxes,  given.dialogs, given.settings, given.clipboard, given.processes, files,
            given.events, given.beeper,  given.entropy,  given.clock,     given.help},
      host(state.bExiting),
      context{ports, state, host},
      shell(context, applicationDirectory),
      summary(ports, state, shell.catalogues),
      summaryFields(context, summary),
      runSummary(summary),
      programs(ports, state, shell.progress, applicationDirectory),
      runs{ports, state, runTables, shell.progress, programs, runSummary},
      builds(runs, nullptr) {
  host.onEdited = [this](Screen& screen, Control&) {
    if (screen.holdsInput()) state.noteEdit();
  };
  shell.fileDesk.runs = &builds;
  host.enter(summaryFields);
  shell.inputWindow.mnuSpecifySum.onClick = [this] { host.show(summaryFields); };
  shell.projects.onChanged = [this] { followProject(); };
}

// The summary is that of the open project, and a choice of fields for another one is dropped.
void Application::followProject() {
  host.unload(summaryFields);
  summary.LoadSummaryStore();
  shell.autosave.projectOpened();
}

}  // namespace kestra
