#include "shell/shell.h"

#include <utility>

#include "base/paths.h"

namespace kestra {
namespace {

constexpr const char* kAbout =
    "Kestra B\r\n\r\nOvertopping and breach of earth embankment dams, with the erosion of their auxiliary spillways."
    "\r\n\r\nLicensed under the Apache License, Version 2.0.";
constexpr const char* kDisclaimer =
    "Kestra B is an aid for engineers. It is provided \"as is\", without warranties or conditions of any kind. Its "
    "results rest on the data that were entered and on simplified methods; whoever uses them for a decision about a "
    "dam "
    "is responsible for checking that the data, the methods and the results are fit for it.";

}  // namespace

Shell::Shell(ScreenContext& context, const std::string& applicationDirectory)
    : topScreen(context, applicationDirectory),
      inputWindow(context, topScreen),
      input(context, inputWindow),
      controlFiles(input, context),
      projects(input.context, topScreen, inputWindow),
      newProject(context, projects),
      openProject(context, projects),
      deleteProject(context, projects, topScreen, applicationDirectory),
      output(input.projectInformation),
      editor(context),
      progress(context),
      errorTable(context, input),
      fileDesk{context, input, controlFiles, topScreen, inputWindow, output, progress, errorTable},
      commands(fileDesk, projects, applicationDirectory),
      autosave(fileDesk, commands.file),
      runInputs(fileDesk),
      about("frmAbout", "About Kestra B", kAbout),
      disclaimer("frmDisclaimer", "Disclaimer", kDisclaimer),
      graphs(context, lines),
      context_(context),
      applicationDirectory_(applicationDirectory) {
  ScreenHost& host = context_.host;
  const auto shows = [&host](Menu& command, Screen& screen) {
    command.onClick = [&host, &screen] { host.show(screen); };
  };
  shows(topScreen.mnuNewProject, newProject);
  shows(topScreen.mnuOpenProject, openProject);
  shows(topScreen.mnuDeleteProject, deleteProject);
  shows(topScreen.mnuAboutTorve, about);
  shows(topScreen.mnuDisclaimer, disclaimer);
  shows(inputWindow.mnuDisclaimer, disclaimer);
  for (int k = 1; k <= RecentProjects::kMost; ++k) {
    topScreen.mnuRecentProject(k).onClick = [this, k] {
      const auto paths = topScreen.recent().paths();
      const auto index = static_cast<std::size_t>(k - 1);
      if (index < paths.size()) projects.openRecent(paths[index]);
    };
  }
  topScreen.onEnd = [this] { end(); };
  graphs.context.inputChanged = [this](const std::string& controlFile) { return runInputs.changed(controlFile); };
  projects.onLeaving = [this] { autosave.letGo(); };
  topScreen.windows().enter(WindowSlot::input, inputWindow, &inputWindow.mnuWindowsArray);
  topScreen.windows().enter(WindowSlot::editor, editor, &editor.mnuWindowsArray);
  topScreen.windows().enter(WindowSlot::outputGraph, graphs.output, &graphs.output.mnuWindowsArray);
  topScreen.windows().enter(WindowSlot::errorTable, errorTable, &errorTable.mnuWindowsArray);
  host.onShown = [this](Screen& screen) {
    topScreen.windows().shown(screen);
    topScreen.windows().FindFormToBuildItems();
  };
  for (Screen* screen : std::initializer_list<Screen*>{&topScreen, &inputWindow, &newProject, &openProject,
                                                       &deleteProject, &about, &disclaimer}) {
    host.enter(*screen);
  }
  input.enterAll(host);
  host.enter(output);
  host.enter(editor);
  host.enter(progress);
  host.enter(errorTable);
  graphs.enterAll(host);
  for (Screen* screen : input.sequence()) topScreen.windows().enterSequence(*screen);
  host.setHistory(&history);
}

void Shell::startUp(const std::string& commandLine) {
  topScreen.startUp([this] {
    loadCatalogues();
    lines.InitColors(context_.ports.settings, context_.ports.entropy);
    lines.InitLines(context_.ports.settings);
    return lines.ColorList[0];
  });
  context_.host.show(topScreen);
  if (commandLine.size() >= 2) openCommandLine(commandLine);
}

void Shell::openCommandLine(std::string path) {
  if (path.front() == '"') path = path.substr(1, path.size() - 2);
  path = absolutePath(path, context_.ports.files.currentDirectory());
  if (!projects.openFor(path)) {
    ended_ = true;
    return;
  }
  commands.file.take(path);
  showInputWindow(fileDesk);
}

void Shell::end() {
  autosave.letGo();
  projects.release();
  topScreen.saveRecentProjects();
  UnloadAllScreens(input.context);
  ended_ = true;
}

}  // namespace kestra
