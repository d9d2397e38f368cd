#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace kestra {

struct FileStatus {
  enum class Type { file, directory, link, other };
  Type type = Type::file;
  std::uint64_t size = 0;       // bytes
  std::int64_t modifiedNs = 0;  // last change, nanoseconds since 1970-01-01 UTC
  bool writable = true;         // some write bit is set
};

struct DirectoryEntry {
  std::string name;
  FileStatus::Type type = FileStatus::Type::file;  // of the entry itself: a link is a link
};

// A file that is being written. Destroying it closes it.
class OutputFile {
 public:
  virtual ~OutputFile() = default;
  virtual Status write(std::string_view bytes) = 0;  // all of them, or a failure
  virtual Status sync() = 0;                         // to the disk; a failure is final for this file
  virtual Status close() = 0;
};

// What one holds while no other program may hold the same. Destroying it gives it back, and so does the end of the
// program, however it ends.
class FileLock {
 public:
  virtual ~FileLock() = default;
};

// Port: files and directories. Paths are bytes; a relative path counts from the current directory. What is not there
// fails as notFound, told apart from every other failure. No operation but status, changeDirectory and canonical
// follows a link in the last part of its path for directories; files are read and written through links.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  virtual Result<FileStatus> status(const std::string& path) = 0;      // links followed
  virtual Result<FileStatus> linkStatus(const std::string& path) = 0;  // of the link itself
  // The whole file; tooLarge above `limit` bytes; wrongType for a directory or a device.
  virtual Result<std::string> read(const std::string& path, std::uint64_t limit) = 0;
  // The first `most` bytes of a file, or all of a shorter one; fails as read does, but never for the size.
  virtual Result<std::string> readStart(const std::string& path, std::uint64_t most) = 0;
  virtual Result<std::vector<DirectoryEntry>> list(const std::string& path) = 0;  // sorted by name, without . and ..
  virtual Result<std::string> canonical(const std::string& path) = 0;             // absolute, links resolved

  virtual Status makeDirectory(const std::string& path) = 0;  // one level; exists when something stands there
  virtual Result<std::unique_ptr<OutputFile>> createNew(const std::string& path) = 0;  // exists when there is one
  // The file that stands there, to write behind its end, or a new one; wrongType for a directory or a device.
  virtual Result<std::unique_ptr<OutputFile>> append(const std::string& path) = 0;
  virtual Status rename(const std::string& from, const std::string& to) = 0;  // replaces a file at `to`
  virtual Status syncDirectory(const std::string& path) = 0;    // makes creations and renames in it durable
  virtual Status removeFile(const std::string& path) = 0;       // a file, or a link itself
  virtual Status removeDirectory(const std::string& path) = 0;  // an empty one
  virtual Status setReadOnly(const std::string& path, bool readOnly) = 0;
  virtual Status copyMode(const std::string& from, const std::string& to) = 0;  // permissions

  virtual Status changeDirectory(const std::string& path) = 0;
  virtual std::string currentDirectory() = 0;    // "/" when it has been removed
  virtual std::vector<std::string> roots() = 0;  // of the mounted file systems that hold files, sorted

  // Takes hold of an existing file for this program. busy when another holds it, the reason then telling who
  // ("program NAME, process 123, of user USER").
  virtual Result<std::unique_ptr<FileLock>> lock(const std::string& path) = 0;
};

inline constexpr std::uint64_t kReadLimit = 64ULL << 20U;  // bytes; the largest text file that is taken in

}  // namespace kestra
