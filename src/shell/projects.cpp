#include "shell/projects.h"

#include <array>

#include "base/paths.h"
#include "controls/undo_history.h"
#include "shell/project_directory.h"

namespace kestra {
namespace {

constexpr const char* kOpenTitle = "Open Project";
constexpr const char* kNoRecentProject = "This is not a valid Kestra B project directory!";
constexpr const char* kCannotEnter = "Unable to open project directory!";

constexpr std::array<const char*, 23> kUnloadOrder = {
    "frmAuxRatingTable", "frmAuxSpillwayProfile", "frmAuxSpillways", "frmDamSurface",     "frmDist",
    "frmEditor",         "frmErrorTable",         "frmHeadcut",      "frmHeadcutGraph",   "frmHydroGraph",
    "frmHydrographData", "frmMaterialGraph",      "frmOutput",       "frmOutputGraph",    "frmProjectInformation",
    "frmPSConduit",      "frmPSRatingTable",      "frmPSType",       "frmStructureTable", "frmSummaryGraphics",
    "frmSummaryTable",   "frmUpdateColors",       "Properties"};

constexpr std::array<const char*, 10> kInputScreens = {
    "frmAuxRatingTable", "frmAuxSpillwayProfile", "frmAuxSpillways", "frmDamSurface",     "frmHydrographData",
    "frmPSConduit",      "frmPSRatingTable",      "frmPSType",       "frmStructureTable", "Properties"};

void warn(ScreenContext& context, const std::string& text) {
  context.ports.boxes.tell(kOpenTitle, text, BoxIcon::warning);
}

std::string openFrameTitle(const std::string& directory) {
  return "Kestra B [Project  " + directory + "]";
}

}  // namespace

void UnloadAllScreens(InputContext& input) {
  ScreenContext& context = input.base;
  context.state.bExiting = true;
  for (const char* name : kUnloadOrder) {
    if (Screen* screen = context.host.find(name)) context.host.unload(*screen);
  }
  input.aux.ClearAuxData();
  context.state.forgetInput();
  context.state.bExiting = false;
  if (UndoHistory* history = context.host.history()) history->clear();
}

void HideInputScreens(ScreenHost& host) {
  for (const char* name : kInputScreens) {
    Screen* screen = host.find(name);
    if (screen != nullptr && screen->visible()) host.hide(*screen);
  }
}

void Projects::enter(const std::string& directory, const std::string& frameTitle) {
  ApplicationState& state = context_.state;
  closeWindows();
  state.projectDir = directory;
  hold(directory);
  state.bExiting = true;
  top_.setTitle(frameTitle);
  context_.host.show(input_);
  input_.takeProject();
  top_.windows().LoadOrUnload();
  top_.UpdateRecentProjects(directory);
  state.bExiting = false;
  if (onChanged) onChanged();
}

Opening Projects::open(const std::string& directory, const std::string& notAProject) {
  FileSystem& files = context_.ports.files;
  const ProjectCheck check = checkProject(files, directory);
  if (check != ProjectCheck::project) {
    warn(context_, check == ProjectCheck::notAProject ? notAProject : kCannotEnter);
    return Opening::refused;
  }
  if (isOpen(directory)) {
    std::string holder;
    if (context_.state.projectReadOnly) tryHold(directory, holder);  // the other program may have ended
    warn(context_, "This project is already open.");
    return Opening::wasOpen;
  }
  if (!files.changeDirectory(directory)) {
    warn(context_, kCannotEnter);
    return Opening::refused;
  }
  enter(directory, openFrameTitle(directory));
  return Opening::opened;
}

void Projects::openRecent(const std::string& directory) {
  if (open(directory, kNoRecentProject) == Opening::refused) top_.RemoveRecentProject(directory);
}

bool Projects::openFor(const std::string& path) {
  return open(std::string(directoryOf(path))) == Opening::opened;
}

void Projects::leave() {
  closeWindows();
  release();
  top_.setTitle("Kestra B");
  if (onChanged) onChanged();
}

void Projects::release() {
  lock_.reset();
  context_.state.projectReadOnly = false;
}

bool Projects::isOpen(const std::string& directory) const {
  const std::string& open = context_.state.projectDir;
  if (open.empty()) return false;
  if (open == directory) return true;
  const auto here = context_.ports.files.canonical(open);
  const auto there = context_.ports.files.canonical(directory);
  return here && there && here.value() == there.value();
}

bool Projects::isWithin(const std::string& directory) const {
  if (context_.state.projectDir.empty()) return false;
  if (isOpen(directory)) return true;
  const auto here = context_.ports.files.canonical(context_.state.projectDir);
  const auto there = context_.ports.files.canonical(directory);
  return here && there && here.value().starts_with(joinPath(there.value(), ""));
}

// Closes all windows of the project and forgets its file.
void Projects::closeWindows() {
  ApplicationState& state = context_.state;
  if (onLeaving) onLeaving();
  UnloadAllScreens(inputs_);
  state.bExiting = true;
  top_.windows().unloadOthers();
  context_.host.unload(input_);
  state.bExiting = false;
  state.projectDir.clear();
  state.currentFile.clear();
  state.fileDirty = state.fileIsNew = state.fileHasName = false;
}

void Projects::hold(const std::string& directory) {
  std::string holder;
  if (!tryHold(directory, holder)) {
    warn(context_,
         "This project is open in " + holder + ". You can look at it here, but nothing in it can be changed.");
  }
}

// False when another program, the holder, has the project; it is then for looking only.
bool Projects::tryHold(const std::string& directory, std::string& holder) {
  release();
  auto lock = lockProject(context_.ports.files, directory);
  if (lock) {
    lock_ = std::move(lock).value();
  } else if (lock.failedAs(FailureKind::busy)) {
    context_.state.projectReadOnly = true;
    holder = lock.failure().reason;
    return false;
  }
  return true;
}

}  // namespace kestra
