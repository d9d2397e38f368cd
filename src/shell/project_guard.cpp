#include "shell/project_guard.h"

#include "base/paths.h"

namespace kestra {

Status ProjectGuard::check(const std::string& path) const {
  if (!state_.projectReadOnly || state_.projectDir.empty()) return Done{};
  const auto project = inner_.canonical(state_.projectDir);
  const auto place = inner_.canonical(std::string(directoryOf(absolutePath(path, inner_.currentDirectory()))));
  if (!project || !place) return Done{};
  const bool inside = place.value() == project.value() || place.value().starts_with(joinPath(project.value(), ""));
  if (!inside) return Done{};
  return Failure{FailureKind::denied, path, "The project is open in another program"};
}

Status ProjectGuard::makeDirectory(const std::string& path) {
  const Status allowed = check(path);
  return allowed ? inner_.makeDirectory(path) : allowed;
}

Result<std::unique_ptr<OutputFile>> ProjectGuard::createNew(const std::string& path) {
  const Status allowed = check(path);
  if (!allowed) return allowed.failure();
  return inner_.createNew(path);
}

Result<std::unique_ptr<OutputFile>> ProjectGuard::append(const std::string& path) {
  const Status allowed = check(path);
  if (!allowed) return allowed.failure();
  return inner_.append(path);
}

Status ProjectGuard::rename(const std::string& from, const std::string& to) {
  for (const std::string& path : {from, to}) {
    if (Status allowed = check(path); !allowed) return allowed;
  }
  return inner_.rename(from, to);
}

Status ProjectGuard::removeFile(const std::string& path) {
  const Status allowed = check(path);
  return allowed ? inner_.removeFile(path) : allowed;
}

Status ProjectGuard::removeDirectory(const std::string& path) {
  const Status allowed = check(path);
  return allowed ? inner_.removeDirectory(path) : allowed;
}

Status ProjectGuard::setReadOnly(const std::string& path, bool readOnly) {
  const Status allowed = check(path);
  return allowed ? inner_.setReadOnly(path, readOnly) : allowed;
}

Status ProjectGuard::copyMode(const std::string& from, const std::string& to) {
  const Status allowed = check(to);
  return allowed ? inner_.copyMode(from, to) : allowed;
}

}  // namespace kestra
