#include "cli/file_work.h"

#include "base/paths.h"
#include "cli/terminal_session.h"
#include "platform/files.h"

namespace kestra {
namespace {

std::vector<std::string> absolutePaths(const std::vector<std::string>& files, const std::string& directory) {
  std::vector<std::string> paths;
  for (const std::string& file : files) paths.push_back(absolutePath(file, directory));
  return paths;
}

bool buildFile(Application& application, const std::string& path) {
  Shell& shell = application.shell;
  const auto tell = [&path](const std::string& message) { std::cerr << path << ": " << message << '\n' << std::flush; };
  application.programs.onStarted = tell;
  application.programs.onTold = tell;
  tell("building");
  const bool built = shell.commands.file.open(path) && shell.commands.build.build();
  tell(built ? "built" : "not built");
  application.programs.onStarted = application.programs.onTold = nullptr;
  return built;
}

bool checkFile(TerminalSession& session, const std::string& path) {
  if (!exists(session.desk.files(), path)) {
    session.boxes.tell(kErrorTitle, "Invalid Filename", BoxIcon::warning);
    return false;
  }
  const auto findings = session.application.shell.commands.check.checkFile(path);
  if (!findings) return false;
  for (const std::string& line : findingLines(session.desk.files(), errorFileOf(path))) {
    std::cout << path << ": " << line << '\n';
  }
  return findings->errors == 0;
}

}  // namespace

int buildFiles(const CliOptions& options) {
  TerminalSession session(options);
  Shell& shell = session.application.shell;
  const std::string here = session.desk.files().currentDirectory();
  const auto paths = absolutePaths(options.files, here);
  const std::string project =
      options.project.empty() ? std::string(directoryOf(paths.front())) : absolutePath(options.project, here);
  shell.startUp("");
  const bool opened = shell.projects.open(project) == Opening::opened;
  bool allBuilt = opened && !session.application.state.projectReadOnly;
  if (allBuilt) {
    for (const std::string& path : paths) allBuilt = buildFile(session.application, path) && allBuilt;
  }
  shell.end();
  return allBuilt ? 0 : kFailed;
}

int checkFiles(const CliOptions& options) {
  TerminalSession session(options);
  Shell& shell = session.application.shell;
  shell.startUp("");
  bool allGood = true;
  for (const std::string& path : absolutePaths(options.files, session.desk.files().currentDirectory())) {
    allGood = checkFile(session, path) && allGood;
  }
  shell.end();
  return allGood ? 0 : kFailed;
}

}  // namespace kestra
