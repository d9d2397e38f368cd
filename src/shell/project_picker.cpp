#include "shell/project_picker.h"

#include "base/paths.h"
#include "platform/files.h"

namespace kestra {
namespace {

bool liesIn(const std::string& path, const std::string& root) {
  return path == root || root.size() == 1 || path.starts_with(joinPath(root, ""));
}

}  // namespace

ProjectPicker::ProjectPicker(ScreenContext& context, const std::string& name, const std::string& title)
    : Screen(name, title), context_(context) {
  FileSystem& files = context_.ports.files;
  // No directory at all may be chosen too: a name typed beside it is then a path of its own.
  dirList.resolve = [&files](const std::string& path) {
    return path.empty() ? path : absolutePath(path, files.currentDirectory());
  };
  dirList.accepts = [this, &files](const std::string& path) {
    return path.empty() || isDirectory(files, dirList.resolve(path));
  };
  dirList.onChange = [this] { choose(dirList.path()); };
  drvList.onClick = [this] { dirList.setPath(drvList.text()); };
  cmdCancel.onClick = [this] { done(); };
}

void ProjectPicker::load() {
  drvList.setItems(context_.ports.files.roots());
  choose(context_.ports.files.currentDirectory());
}

// Shows the directory, and selects the innermost drive that it lies on.
void ProjectPicker::choose(const std::string& path) {
  dirList.setPath(path);
  int best = -1;
  std::size_t longest = 0;
  for (int i = 0; i < static_cast<int>(drvList.items().size()); ++i) {
    const std::string& root = drvList.items()[static_cast<std::size_t>(i)];
    if (!liesIn(path, root) || root.size() < longest) continue;
    best = i;
    longest = root.size();
  }
  drvList.setIndex(best);
}

void ProjectPicker::warn(const std::string& text) {
  context_.ports.boxes.tell(title(), text, BoxIcon::warning);
}

}  // namespace kestra
