#include "shell/rebuild_commands.h"

#include "base/paths.h"
#include "platform/files.h"
#include "shell/build_commands.h"
#include "shell/projects.h"
#include "shell/run_files.h"

namespace kestra {
namespace {

constexpr const char* kBeforeLoading = "Do you want to save changes before opening another file?";
constexpr const char* kRebuild = "Rebuild All";
constexpr const char* kConvert = "Convert All";
constexpr const char* kNewDirectory = "New";

}  // namespace

std::optional<std::string> convertedPath(const std::string& path) {
  const std::string name(ParsePathName(path));
  if (name.find('.') == std::string::npos) return std::nullopt;
  return joinPath(joinPath(directoryOf(path), kNewDirectory), std::string(stemOf(name)) + "P.v2c");
}

RebuildCommands::RebuildCommands(FileDesk& desk, OpenFile& file, SaveCommands& saving)
    : desk_(desk), file_(file), saving_(saving) {
  setAction(desk.window.mnuRebuildAll, desk, [this] { rebuildAll(); });
  setAction(desk.window.mnuConvertAll, desk, [this] { convertAll(); });
}

void RebuildCommands::rebuildAll() {
  if (desk_.state().projectDir.empty() || !saving_.SaveBeforeAction(kBeforeLoading) || !canRun(desk_)) return;
  forEach(&RebuildCommands::rebuild);
  showInputWindow(desk_);
  tellFailed(kRebuild, "These files could not be rebuilt:");
}

void RebuildCommands::convertAll() {
  if (desk_.state().projectDir.empty() || !saving_.SaveBeforeAction(kBeforeLoading)) return;
  const std::string directory = joinPath(desk_.state().projectDir, kNewDirectory);
  const Status made = makeDirectories(desk_.files(), directory);
  if (!made) {
    desk_.boxes().tell(kConvert, "Unable to make the directory " + directory + ": " + made.failure().reason,
                       BoxIcon::warning);
    return;
  }
  forEach(&RebuildCommands::convert);
  showInputWindow(desk_);
  tellFailed(kConvert, "These files could not be converted:");
}

// Until the last file, or until the user has had enough.
void RebuildCommands::forEach(Work work) {
  failed_.clear();
  const std::string directory = desk_.state().projectDir;
  (void)desk_.files().changeDirectory(directory);
  const auto names = controlFilesIn(desk_.files(), directory);
  desk_.progress.begin(static_cast<int>(names.size()));
  int done = 0;
  for (const std::string& name : names) {
    desk_.progress.step(done, name);
    if (desk_.progress.stopRequested()) break;
    (this->*work)(joinPath(directory, name));
    desk_.progress.step(++done, name);
  }
  desk_.progress.finish();
}

bool RebuildCommands::takeIfLoadable(const std::string& path) {
  const Status loadable = desk_.control.checkLoadable(path);
  if (!loadable) {
    note(path, loadable.failure().reason);
    return false;
  }
  file_.take(path);
  return true;
}

bool RebuildCommands::rebuild(const std::string& path) {
  if (!takeIfLoadable(path)) return false;
  desk_.context.host.show(desk_.window);
  constexpr bool kShowProgress = false;
  if (desk_.runs->BuildMyFiles(kShowProgress)) return true;
  note(path, desk_.runs->whyNot());
  return false;
}

bool RebuildCommands::convert(const std::string& path) {
  const auto target = convertedPath(path);
  if (!target) {
    desk_.boxes().tell("Error", "Illegal FileName. File Name must end with .V2C extension", BoxIcon::critical);
    return false;
  }
  if (!takeIfLoadable(path)) return false;
  desk_.window.setTitle("KESTRA B ( Converting " + path + " )");
  constexpr int kFirstSpillway = 0;
  desk_.control.BuildHydrographText();
  desk_.control.BuildAuxRunText(kFirstSpillway, *target);
  if (desk_.control.WriteControlFiles(*target)) return true;
  note(path, "not written");
  return false;
}

void RebuildCommands::note(const std::string& path, const std::string& why) {
  failed_.push_back(std::string(ParsePathName(path)) + (why.empty() ? "" : ": " + why));
}

void RebuildCommands::tellFailed(const std::string& title, const std::string& heading) {
  if (failed_.empty()) return;
  std::string text = heading + "\r\n";
  for (const std::string& line : failed_) text += "\r\n" + line;
  desk_.boxes().tell(title, text, BoxIcon::warning);
}

}  // namespace kestra
