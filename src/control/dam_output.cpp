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

bool saysMissing(FileSystem& files, const std::string& path) {
  const std::string line = std::string(kMissing).append(kCrLf);
  const auto status = files.status(path);
  if (!status || status.value().size != line.size()) return false;
  const auto text = files.read(path, line.size());
  return text && text.value() == line;
}

}  // namespace

std::string dateOfOutput(const Ports& ports, const std::string& controlFile) {
  const auto path = findOutput(ports.files, controlFile);
  if (!path || saysMissing(ports.files, path.value())) return {};
  const auto status = ports.files.status(path.value());
  return status ? dateText(ports.clock.localTime(status.value().modifiedNs)) : std::string();
}

void noteMissingOutput(const Ports& ports, const std::string& controlFile) {
  if (ParsePathName(withoutExtension(controlFile)).empty()) return;
  if (!findOutput(ports.files, controlFile).failedAs(FailureKind::notFound)) return;
  (void)writeWholeFile(ports.files, outputFileOf(controlFile), std::string(kMissing).append(kCrLf), Durable::no);
}

}  // namespace kestra
