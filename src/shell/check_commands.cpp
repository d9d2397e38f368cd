#include "shell/check_commands.h"

#include <utility>

#include "platform/files.h"

namespace kestra {
namespace {

constexpr const char* kTitle = "Integrity Check";
constexpr const char* kBeforeCheck = "Do you want to save changes to the current file before checking integrity?";
constexpr const char* kErrorTable = "frmErrorTable";

std::string counted(int count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace

CheckCommands::CheckCommands(FileDesk& desk, SaveCommands& saving, std::string applicationDirectory)
    : desk_(desk), saving_(saving), applicationDirectory_(std::move(applicationDirectory)) {
  setAction(desk.window.mnuCheckFile, desk, [this] { check(); });
  setAction(desk.window.mnuErrorTable, desk, [this] { showErrorTable(); });
}

void CheckCommands::check() {
  constexpr bool kOffersCancel = true;
  if (!saving_.SaveBeforeAction(kBeforeCheck, kOffersCancel)) return;
  if (const auto path = fileToCheck()) checkFile(*path);
}

std::optional<std::string> CheckCommands::fileToCheck() {
  if (!desk_.state().currentFile.empty()) return desk_.state().currentFile;
  if (!desk_.boxes().confirm("Build", "No file is opened or created, choose a file to check?")) return std::nullopt;
  auto chosen = chooseControlFile(desk_, "Check File");
  if (!chosen || exists(desk_.files(), *chosen)) return chosen;
  desk_.boxes().tell(kErrorTitle, "Invalid Filename", BoxIcon::warning);
  return std::nullopt;
}

std::optional<Findings> CheckCommands::checkFile(const std::string& path) {
  const Status run = RunIntegrityChecker(desk_.context.ports, applicationDirectory_, path);
  if (!run) {
    desk_.boxes().tell(kTitle, "The checker could not be started. " + run.failure().path + ": " + run.failure().reason,
                       BoxIcon::critical);
    return std::nullopt;
  }
  checked_ = path;
  const Findings findings = CountFindings(desk_.files(), errorFileOf(path));
  if (wantsToSee(findings)) {
    showTable(path, findings);
  } else {
    showInputWindow(desk_);
  }
  return findings;
}

bool CheckCommands::wantsToSee(const Findings& findings) {
  if (findings.errors > 0) return true;
  if (findings.warnings > 0) return desk_.boxes().confirm(kTitle, "Integrity check generated warnings. View?");
  if (Screen* table = desk_.context.host.find(kErrorTable)) desk_.context.host.unload(*table);
  desk_.boxes().tell(kTitle, "No Errors or Warnings Found", BoxIcon::information);
  return false;
}

// Without the screen for them the findings are counted out, with the place where they stand.
void CheckCommands::showTable(const std::string& path, const Findings& findings) {
  if (showScreen(desk_, kErrorTable)) return;
  desk_.boxes().tell(kTitle,
                     counted(findings.errors, "error") + " and " + counted(findings.warnings, "warning") +
                         " were found. They stand in " + errorFileOf(path) + ".",
                     BoxIcon::information);
  showInputWindow(desk_);
}

void CheckCommands::showErrorTable() {
  const std::string& open = desk_.state().currentFile;
  const std::string& path = open.empty() ? checked_ : open;
  const auto lines = path.empty() ? std::vector<std::string>() : findingLines(desk_.files(), errorFileOf(path));
  if (!lines.empty()) return showTable(path, CountFindings(desk_.files(), errorFileOf(path)));
  desk_.boxes().tell("Error Table", "No Errors Found", BoxIcon::information);
  showInputWindow(desk_);
}

}  // namespace kestra
