#include "cli/summary_command.h"

#include "base/paths.h"
#include "cli/terminal_session.h"
#include "platform/files.h"
#include "summary/table_formats.h"

namespace kestra {
namespace {

Result<std::string> formed(const SummaryTable& table, const std::string& format) {
  if (format == "csv") return csvText(gridOfAll(table));
  if (format == "json") return jsonText(table);
  if (format == "xlsx") return xlsxTable(table);
  return textTable(gridOfAll(table));
}

// Without a path on the standard output.
Status write(FileSystem& files, const std::string& path, const std::string& bytes) {
  if (!path.empty()) return writeWholeFile(files, path, bytes);
  std::cout << bytes;
  return Done();
}

Status writeSummary(Application& application, const CliOptions& options, const std::string& output) {
  frmSummaryTable& screen = application.summaryScreens.table;
  const ShownRows rows = options.all ? screen.everyEntry() : screen.condensedEntries();
  const SummaryTable table = makeSummaryTable(rows, application.summary.selection(), application.summary.catalogues());
  const Result<std::string> bytes = formed(table, options.format);
  return bytes ? write(application.ports.files, output, bytes.value()) : Status(bytes.failure());
}

}  // namespace

int printSummary(const CliOptions& options) {
  TerminalSession session(options);
  Shell& shell = session.application.shell;
  const std::string here = session.desk.files().currentDirectory();
  const std::string output = options.output == "-" || options.output.empty() ? "" : absolutePath(options.output, here);
  shell.startUp("");
  // The project becomes the current directory.
  bool done = shell.projects.open(absolutePath(options.project, here)) == Opening::opened;
  if (done) {
    const Status status = writeSummary(session.application, options, output);
    done = static_cast<bool>(status);
    if (!done) std::cerr << "kestra: " << status.failure().path << ": " << status.failure().reason << '\n';
  }
  shell.end();
  return done ? 0 : kFailed;
}

}  // namespace kestra
