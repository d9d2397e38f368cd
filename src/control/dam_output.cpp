#include "control/dam_output.h"

#include "base/fields.h"
#include "base/paths.h"
#include "control/file_names.h"
#include "platform/date_text.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr std::string_view kMissing = "Error";

Result<std::string> findOutput(FileSystem& files, const std::string& controlFile) {
  const std::string output = outputFileOf(controlFile);
  const std::string directory(directoryOf(output));
  return findIgnoringCase(files, directory.empty() ? "." : directory, ParsePathName(output));
}

// False also where that cannot be seen.
bool holdsResults(FileSystem& files, const std::string& path, const FileStatus& status) {
  const std::string line = std::string(kMissing).append(kCrLf);
  if (status.size != line.size()) return true;
  const auto text = files.read(path, line.size());
  return text && text.value() != line;
}

}  // namespace

std::string dateOfOutput(const Ports& ports, const std::string& controlFile) {
  const auto path = findOutput(ports.files, controlFile);
  if (!path) return {};
  const auto status = ports.files.status(path.value());
  if (!status || !holdsResults(ports.files, path.value(), status.value())) return {};
  return dateText(ports.clock.localTime(status.value().modifiedNs));
}

void noteMissingOutput(const Ports& ports, const std::string& controlFile) {
  if (ParsePathName(withoutExtension(controlFile)).empty()) return;
  if (!findOutput(ports.files, controlFile).failedAs(FailureKind::notFound)) return;
  (void)writeWholeFile(ports.files, outputFileOf(controlFile), std::string(kMissing).append(kCrLf), Durable::no);
}

}  // namespace kestra
