#include "control/file_names.h"

#include "base/paths.h"

namespace kestra {

std::string_view withoutExtension(std::string_view path) {
  const std::string_view name = ParsePathName(path);
  const std::size_t point = name.rfind('.');
  return point == std::string_view::npos ? path : path.substr(0, path.size() - (name.size() - point));
}

std::string spillwayFileOf(std::string_view controlFile, int spillway) {
  return std::string(withoutExtension(controlFile)) + ".AS" + std::to_string(spillway + 1);
}

std::string outputFileOf(std::string_view controlFile) {
  return std::string(withoutExtension(controlFile)) + ".OUT";
}

std::string companionFileOf(std::string_view controlFile) {
  const std::string name(ParsePathName(withoutExtension(controlFile)));
  const std::string directory(directoryOf(controlFile));
  const std::string folder = directory.empty() ? ".kestra" : joinPath(directory, ".kestra");
  return joinPath(folder, name + ".json");
}

}  // namespace kestra
