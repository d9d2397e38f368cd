#include "platform/native/posix_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "platform/native/descriptor.h"
#include "platform/native/lock_holder.h"
#include "platform/native/mounts.h"
#include "platform/native/posix_output_file.h"
#include "platform/native/system_failure.h"

namespace kestra {
namespace {

using Type = FileStatus::Type;

Type typeOf(mode_t mode) {
  if (S_ISREG(mode)) return Type::file;
  if (S_ISDIR(mode)) return Type::directory;
  return S_ISLNK(mode) ? Type::link : Type::other;
}

FileStatus statusOf(const struct stat& found) {
  constexpr std::int64_t kNsPerSecond = 1000000000;
  constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
  const Type type = typeOf(found.st_mode);
  return {type, type == Type::file ? static_cast<std::uint64_t>(found.st_size) : 0,
          found.st_mtim.tv_sec * kNsPerSecond + found.st_mtim.tv_nsec, (found.st_mode & kAnyWriteBit) != 0};
}

// Makes a call about `path` that gives 0 or, with errno, something else.
template <class Call>
Status attempt(const std::string& path, Call call) {
  if (Status usable = checkPath(path); !usable) return usable;
  if (untilDone(call) != 0) return systemFailure(path);
  return Done();
}

using StatCall = int (*)(const char*, struct stat*);

Result<struct stat> statBy(StatCall call, const std::string& path) {
  struct stat found = {};
  if (Status asked = attempt(path, [&] { return call(path.c_str(), &found); }); !asked) return asked.failure();
  return found;
}

Result<Descriptor> openBy(const std::string& path, int flags) {
  if (Status usable = checkPath(path); !usable) return usable.failure();
  Descriptor file = openFile(path, flags);
  if (!file) return systemFailure(path);
  return file;
}

// Up to `limit` bytes and one more, by which the caller sees that there are too many.
Result<std::string> readUpTo(const Descriptor& file, const std::string& path, std::uint64_t expected,
                             std::uint64_t limit) {
  constexpr std::uint64_t kStep = 1U << 16U;
  std::string bytes;
  std::uint64_t used = 0;
  while (used <= limit) {
    if (used == bytes.size()) {
      const std::uint64_t room = std::max(used == 0 ? expected + 1 : used, kStep);
      bytes.resize(std::min(used + room, limit + 1));
    }
    const ssize_t count = untilDone([&] { return ::read(file.number(), bytes.data() + used, bytes.size() - used); });
    if (count < 0) return systemFailure(path);
    if (count == 0) break;
    used += static_cast<std::uint64_t>(count);
  }
  bytes.resize(used);
  return bytes;
}

// A regular file that is open for reading, and its size.
struct OpenFile {
  Descriptor file;
  std::uint64_t size = 0;
};

Result<OpenFile> openRegular(const std::string& path) {
  // Without waiting for the other end, should it be a pipe.
  Result<Descriptor> file = openBy(path, O_RDONLY | O_NONBLOCK);
  if (!file) return file.failure();
  struct stat found = {};
  if (::fstat(file.value().number(), &found) != 0) return systemFailure(path);
  if (S_ISDIR(found.st_mode)) return failureOf(EISDIR, path);
  if (!S_ISREG(found.st_mode)) return Failure{FailureKind::wrongType, path, "Not a regular file"};
  return OpenFile{std::move(file).value(), static_cast<std::uint64_t>(found.st_size)};
}

Type entryType(int directory, const dirent& entry) {
  if (entry.d_type == DT_REG) return Type::file;
  if (entry.d_type == DT_DIR) return Type::directory;
  if (entry.d_type == DT_LNK) return Type::link;
  if (entry.d_type != DT_UNKNOWN) return Type::other;
  struct stat found = {};
  return ::fstatat(directory, entry.d_name, &found, AT_SYMLINK_NOFOLLOW) == 0 ? typeOf(found.st_mode) : Type::other;
}

// Whether something is mounted on a directory there. Asks nothing of a server, which might be away for good.
bool isMountedDirectory(const std::string& path) {
  struct statx found = {};
  const int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
  return ::statx(AT_FDCWD, path.c_str(), flags, STATX_TYPE, &found) == 0 && S_ISDIR(found.stx_mode);
}

bool locksUnknown(int error) {
  return error == ENOLCK || error == ENOSYS || error == EOPNOTSUPP || error == EBADF;
}

std::string holderOf(const Descriptor& file) {
  constexpr std::uint64_t kLimit = 1U << 24U;
  struct stat found = {};
  PosixFileSystem files;
  const Result<std::string> locks = files.read("/proc/locks", kLimit);
  if (!locks || ::fstat(file.number(), &found) != 0) return describeProcess(std::nullopt);
  return describeProcess(lockHolder(locks.value(), {major(found.st_dev), minor(found.st_dev), found.st_ino}));
}

class PosixLock : public FileLock {
 public:
  explicit PosixLock(Descriptor file) : file_(std::move(file)) {}

 private:
  Descriptor file_;
};

}  // namespace

Result<FileStatus> PosixFileSystem::status(const std::string& path) {
  const Result<struct stat> found = statBy(::stat, path);
  if (!found) return found.failure();
  return statusOf(found.value());
}

Result<FileStatus> PosixFileSystem::linkStatus(const std::string& path) {
  const Result<struct stat> found = statBy(::lstat, path);
  if (!found) return found.failure();
  return statusOf(found.value());
}

Result<std::string> PosixFileSystem::read(const std::string& path, std::uint64_t limit) {
  const Result<OpenFile> open = openRegular(path);
  if (!open) return open.failure();
  if (open.value().size > limit) return failureOf(EFBIG, path);
  Result<std::string> bytes = readUpTo(open.value().file, path, open.value().size, limit);
  if (bytes && bytes.value().size() > limit) return failureOf(EFBIG, path);
  return bytes;
}

Result<std::string> PosixFileSystem::readStart(const std::string& path, std::uint64_t most) {
  const Result<OpenFile> open = openRegular(path);
  if (!open) return open.failure();
  Result<std::string> read = readUpTo(open.value().file, path, std::min(open.value().size, most), most);
  if (!read) return read;
  std::string bytes = std::move(read).value();
  bytes.resize(std::min<std::uint64_t>(bytes.size(), most));
  return bytes;
}

Result<std::vector<DirectoryEntry>> PosixFileSystem::list(const std::string& path) {
  Result<Descriptor> opened = openBy(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
  if (!opened) return opened.failure();
  Descriptor file = std::move(opened).value();
  const std::unique_ptr<DIR, int (*)(DIR*)> directory(::fdopendir(file.number()), ::closedir);
  if (!directory) return systemFailure(path);
  file.release();
  std::vector<DirectoryEntry> entries;
  while (true) {
    errno = 0;
    const dirent* entry = ::readdir(directory.get());
    if (entry == nullptr) break;
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..")
      entries.push_back({std::string(name), entryType(::dirfd(directory.get()), *entry)});
  }
  if (errno != 0) return systemFailure(path);
  std::sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
  return entries;
}

Result<std::string> PosixFileSystem::canonical(const std::string& path) {
  if (Status usable = checkPath(path); !usable) return usable.failure();
  const std::unique_ptr<char, void (*)(void*)> resolved(::realpath(path.c_str(), nullptr), std::free);
  if (!resolved) return systemFailure(path);
  return std::string(resolved.get());
}

Status PosixFileSystem::makeDirectory(const std::string& path) {
  return attempt(path, [&] { return ::mkdir(path.c_str(), 0777); });
}

Result<std::unique_ptr<OutputFile>> PosixFileSystem::createNew(const std::string& path) {
  Result<Descriptor> file = openBy(path, O_WRONLY | O_CREAT | O_EXCL);
  if (!file) return file.failure();
  return std::unique_ptr<OutputFile>(std::make_unique<PosixOutputFile>(std::move(file).value(), path));
}

Result<std::unique_ptr<OutputFile>> PosixFileSystem::append(const std::string& path) {
  // Without waiting for the other end, should it be a pipe.
  Result<Descriptor> file = openBy(path, O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK);
  if (!file) return file.failure();
  struct stat found = {};
  if (::fstat(file.value().number(), &found) != 0) return systemFailure(path);
  if (!S_ISREG(found.st_mode)) return Failure{FailureKind::wrongType, path, "Not a regular file"};
  return std::unique_ptr<OutputFile>(std::make_unique<PosixOutputFile>(std::move(file).value(), path));
}

Status PosixFileSystem::rename(const std::string& from, const std::string& to) {
  if (Status usable = checkPath(to); !usable) return usable;
  return attempt(from, [&] { return ::rename(from.c_str(), to.c_str()); });
}

Status PosixFileSystem::syncDirectory(const std::string& path) {
  const Result<Descriptor> directory = openBy(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
  if (!directory) return directory.failure();
  if (untilDone([&] { return ::fsync(directory.value().number()); }) == 0) return Done();
  if (errno == EINVAL || errno == EOPNOTSUPP) return Done();  // this file system has nothing to sync here
  return systemFailure(path);
}

Status PosixFileSystem::removeFile(const std::string& path) {
  return attempt(path, [&] { return ::unlink(path.c_str()); });
}

Status PosixFileSystem::removeDirectory(const std::string& path) {
  return attempt(path, [&] { return ::rmdir(path.c_str()); });
}

Status PosixFileSystem::setReadOnly(const std::string& path, bool readOnly) {
  constexpr mode_t kPermissions = 07777;
  constexpr mode_t kEveryWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
  const Result<struct stat> found = statBy(::stat, path);
  if (!found) return found.failure();
  const mode_t old = found.value().st_mode & kPermissions;
  const mode_t mode = readOnly ? old & ~kEveryWriteBit : old | S_IWUSR;
  return attempt(path, [&] { return ::chmod(path.c_str(), mode); });
}

Status PosixFileSystem::copyMode(const std::string& from, const std::string& to) {
  constexpr mode_t kPermissions = 0777;  // not the bits that lend the owner's rights: the owner may be another
  const Result<struct stat> found = statBy(::stat, from);
  if (!found) return found.failure();
  return attempt(to, [&] { return ::chmod(to.c_str(), found.value().st_mode & kPermissions); });
}

Status PosixFileSystem::changeDirectory(const std::string& path) {
  return attempt(path, [&] { return ::chdir(path.c_str()); });
}

std::string PosixFileSystem::currentDirectory() {
  const std::unique_ptr<char, void (*)(void*)> directory(::getcwd(nullptr, 0), std::free);
  return directory && directory.get()[0] == '/' ? directory.get() : "/";
}

std::vector<std::string> PosixFileSystem::roots() {
  constexpr std::uint64_t kLimit = 1U << 24U;
  const Result<std::string> mounts = read("/proc/self/mounts", kLimit);
  std::vector<std::string> roots = mountRoots(mounts ? std::string_view(mounts.value()) : std::string_view());
  std::erase_if(roots, [](const std::string& root) { return root != "/" && !isMountedDirectory(root); });
  return roots;
}

Result<std::unique_ptr<FileLock>> PosixFileSystem::lock(const std::string& path) {
  Result<Descriptor> opened = openBy(path, O_RDONLY | O_NONBLOCK);
  if (!opened) return opened.failure();
  Descriptor file = std::move(opened).value();
  if (untilDone([&] { return ::flock(file.number(), LOCK_EX | LOCK_NB); }) != 0) {
    if (errno == EWOULDBLOCK) return Failure{FailureKind::busy, path, holderOf(file)};
    if (!locksUnknown(errno)) return systemFailure(path);
    file.close();
  }
  return std::unique_ptr<FileLock>(std::make_unique<PosixLock>(std::move(file)));
}

}  // namespace kestra
