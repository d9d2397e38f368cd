#include "platform/files.h"

#include <optional>

#include "base/paths.h"
#include "base/text.h"

namespace kestra {
namespace {

std::string directoryToUse(const std::string& path) {
  const std::string_view directory = directoryOf(path);
  return directory.empty() ? "." : std::string(directory);
}

// Where a file is to be written, and whether one stands there.
struct Target {
  std::string path;
  std::string directory;
  bool replaces = false;
};

// Follows links and refuses what cannot be replaced.
Result<Target> findTarget(FileSystem& files, const std::string& path) {
  Target target{path, {}, false};
  const Result<FileStatus> link = files.linkStatus(path);
  if (!link && !link.failedAs(FailureKind::notFound)) return link.failure();
  if (link) {
    if (link.value().type == FileStatus::Type::link) {
      Result<std::string> end = files.canonical(path);
      if (!end) return end.failure();
      target.path = std::move(end).value();
    }
    const Result<FileStatus> old = files.status(target.path);
    if (!old) return old.failure();
    if (old.value().type == FileStatus::Type::directory) {
      return Failure{FailureKind::wrongType, path, "Is a directory"};
    }
    if (old.value().type != FileStatus::Type::file) return Failure{FailureKind::wrongType, path, "Not a regular file"};
    if (!old.value().writable) return Failure{FailureKind::denied, path, "The file is read-only"};
    target.replaces = true;
  }
  Result<std::string> directory = files.canonical(directoryToUse(target.path));
  if (!directory) return directory.failure();
  target.directory = std::move(directory).value();
  return target;
}

struct Temporary {
  std::string path;
  std::unique_ptr<OutputFile> file;
};

// Names that a killed program has left, or that another is using now, are passed over. They are short, so that there
// is room for one wherever there is room for the file.
Result<Temporary> createTemporary(FileSystem& files, const std::string& directory) {
  constexpr int kTries = 10000;
  for (int n = 0;; ++n) {
    std::string path = joinPath(directory, ".kestra-" + std::to_string(n) + ".tmp");
    Result<std::unique_ptr<OutputFile>> file = files.createNew(path);
    if (file) return Temporary{std::move(path), std::move(file).value()};
    if (!file.failedAs(FailureKind::exists) || n == kTries) return file.failure();
  }
}

Status fill(FileSystem& files, const Target& target, Temporary& temporary, std::string_view bytes, Durable durable) {
  if (target.replaces) {
    if (Status status = files.copyMode(target.path, temporary.path); !status) return status;
  }
  if (Status status = temporary.file->write(bytes); !status) return status;
  if (durable == Durable::yes) {
    if (Status status = temporary.file->sync(); !status) return status;
  }
  if (Status status = temporary.file->close(); !status) return status;
  return files.rename(temporary.path, target.path);
}

Status removeEntry(FileSystem& files, const std::string& path, FileStatus::Type type) {
  if (type != FileStatus::Type::directory) return files.removeFile(path);
  std::optional<Failure> first;
  const auto note = [&first](const Status& status) {
    if (!status && !first) first = status.failure();
  };
  if (const auto entries = files.list(path)) {
    for (const DirectoryEntry& entry : entries.value()) {
      const Status status = removeEntry(files, joinPath(path, entry.name), entry.type);
      if (!status.failedAs(FailureKind::notFound)) note(status);  // somebody else has removed it
    }
  } else {
    first = entries.failure();
  }
  note(files.removeDirectory(path));
  return first ? Status(*first) : Status(Done());
}

}  // namespace

bool exists(FileSystem& files, const std::string& path) {
  return static_cast<bool>(files.status(path));
}

bool isDirectory(FileSystem& files, const std::string& path) {
  const Result<FileStatus> status = files.status(path);
  return status && status.value().type == FileStatus::Type::directory;
}

Status writeWholeFile(FileSystem& files, const std::string& path, std::string_view bytes, Durable durable) {
  const Result<Target> target = findTarget(files, path);
  if (!target) return target.failure();
  Result<Temporary> created = createTemporary(files, target.value().directory);
  if (!created) return Failure{created.failure().kind, path, created.failure().reason};
  Temporary temporary = std::move(created).value();
  const Status filled = fill(files, target.value(), temporary, bytes, durable);
  if (!filled) {
    temporary.file.reset();
    // When even this fails the stray does no harm; the first failure is the one to tell.
    (void)files.removeFile(temporary.path);
    return Failure{filled.failure().kind, path, filled.failure().reason};
  }
  return durable == Durable::yes ? files.syncDirectory(target.value().directory) : Status(Done());
}

Status removeTree(FileSystem& files, const std::string& path) {
  const Result<FileStatus> status = files.linkStatus(path);
  if (!status) return status.failure();
  return removeEntry(files, path, status.value().type);
}

Result<std::string> findIgnoringCase(FileSystem& files, const std::string& directory, std::string_view name) {
  Failure failure = {FailureKind::notFound, joinPath(directory, name), "No such file or directory"};
  const auto isFile = [&files, &failure](const std::string& path) {
    const Result<FileStatus> status = files.status(path);
    if (!status && !status.failedAs(FailureKind::notFound)) failure = status.failure();
    return status && status.value().type != FileStatus::Type::directory;
  };
  std::string exact = joinPath(directory, name);
  if (isFile(exact)) return exact;
  const Result<std::string> place = files.canonical(directory);
  if (!place) return place.failure();
  const auto entries = files.list(place.value());
  if (!entries) return entries.failure();
  for (const DirectoryEntry& entry : entries.value()) {
    if (!equalIgnoringCase(entry.name, name)) continue;
    std::string path = joinPath(directory, entry.name);
    if (isFile(path)) return path;
  }
  return failure;
}

Status makeDirectories(FileSystem& files, const std::string& path) {
  if (isDirectory(files, path)) return Done();
  const std::string above(directoryOf(path));
  if (!above.empty() && above != path) {
    if (Status status = makeDirectories(files, above); !status) return status;
  }
  Status made = files.makeDirectory(path);
  if (made.failedAs(FailureKind::exists) && isDirectory(files, path)) return Done();
  return made;
}

}  // namespace kestra
