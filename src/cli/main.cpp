#include <csignal>
#include <iostream>

#include "automation/driver.h"
#include "base/paths.h"
#include "cli/file_work.h"
#include "cli/graph_command.h"
#include "cli/native_desk.h"
#include "cli/options.h"
#include "cli/pictures.h"
#include "cli/summary_command.h"
#include "cli/terminal_session.h"

namespace {

using namespace kestra;

// Makes a project by the screen that a person would use.
int makeProject(const CliOptions& options) {
  TerminalSession session(options);
  Shell& shell = session.application.shell;
  const std::string path = absolutePath(options.directory, session.desk.files().currentDirectory());
  shell.startUp("");
  shell.topScreen.mnuNewProject.click();
  shell.newProject.dirList.setPath(std::string(directoryOf(path)));
  shell.newProject.txtEnterName.setText(std::string(ParsePathName(path)));
  shell.newProject.cmdOK.click();
  const bool made = session.application.state.projectDir == path;
  shell.end();
  if (!made) return kFailed;
  std::cout << path << '\n';
  return 0;
}

int drive(const CliOptions& options) {
  NativeDesk desk(options);
  Conversation conversation(std::cerr);
  Application application(desk.ports(conversation, conversation, conversation), desk.applicationDirectory());
  const auto pictures = makePictures();
  application.shell.graphs.context.pictures = pictures.get();
  application.shell.graphs.context.printer = &desk.printer();
  Driver driver(application, conversation);
  application.shell.startUp(options.controlFile);
  if (application.shell.ended()) return kFailed;
  driver.run(std::cin, std::cout);
  if (!application.shell.ended()) application.shell.end();
  return 0;
}

int graph(const CliOptions& options) {
  TerminalSession session(options);
  const auto pictures = makePictures();
  session.application.shell.graphs.context.pictures = pictures.get();
  session.application.shell.startUp("");
  return drawGraphs(session.application, options, std::cout, std::cerr);
}

int run(int argc, char** argv) {
  int exitCode = 0;
  const auto options = parseCommandLine(argc, argv, std::cout, std::cerr, exitCode);
  if (!options) return exitCode;
  switch (options->command) {
    case CliCommand::newProject:
      return makeProject(*options);
    case CliCommand::build:
      return buildFiles(*options);
    case CliCommand::check:
      return checkFiles(*options);
    case CliCommand::summary:
      return printSummary(*options);
    case CliCommand::graph:
      return graph(*options);
    case CliCommand::drive:
      break;
  }
  return drive(*options);
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
#ifdef SIGPIPE
  std::signal(SIGPIPE, SIG_IGN);  // a reader that has gone away is told as a failed write
#endif
  try {
    const int exitCode = run(argc, argv);
    if (std::cout.flush()) return exitCode;
    std::cerr << "kestra: the standard output cannot be written\n";
  } catch (const std::exception& fault) {
    std::cerr << "kestra: " << fault.what() << '\n';
  }
  return kFailed;
}
