#include "graphs/run_files.h"

#include <algorithm>

#include "base/paths.h"
#include "platform/files.h"

namespace kestra {

std::string runFilePath(std::string_view controlFile, std::string_view extension) {
  if (controlFile.empty()) return {};
  std::size_t point = std::string_view::npos;
  for (const std::string_view known : {".v2d", ".V2D", ".ksc", ".KSC", ".ksm", ".KSM"}) {
    const std::size_t at = controlFile.rfind(known);
    if (at != std::string_view::npos && (point == std::string_view::npos || at > point)) point = at;
  }
  const std::size_t name = controlFile.size() - ParsePathName(controlFile).size();
  if (point == std::string_view::npos || point < name) point = controlFile.rfind('.');
  const bool hasPoint = point != std::string_view::npos && point >= name;
  return std::string(controlFile.substr(0, hasPoint ? point : controlFile.size())) + "." + std::string(extension);
}

Result<std::string> RunFiles::read(std::string_view extension) const {
  const std::string path = runFilePath(controlFile_, extension);
  if (path.empty()) return Failure{FailureKind::notFound, path, "No control file"};
  const std::string directory(directoryOf(path));
  const Result<std::string> found = findIgnoringCase(files_, directory.empty() ? "." : directory, ParsePathName(path));
  return files_.readStart(found ? found.value() : path, kReadLimit);
}

}  // namespace kestra
