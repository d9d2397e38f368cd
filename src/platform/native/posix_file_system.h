#pragma once

#include "platform/file_system.h"

namespace kestra {

// The files of this machine. Nothing that it opens is inherited by a program started from here. New files and
// directories get the permissions that the user's umask leaves. A lock is the system's own on the open file: it ends
// with this program however it ends, and holds nothing where the file system knows no locks.
class PosixFileSystem : public FileSystem {
 public:
  Result<FileStatus> status(const std::string& path) override;
  Result<FileStatus> linkStatus(const std::string& path) override;
  Result<std::string> read(const std::string& path, std::uint64_t limit) override;
  Result<std::string> readStart(const std::string& path, std::uint64_t most) override;
  Result<std::vector<DirectoryEntry>> list(const std::string& path) override;
  Result<std::string> canonical(const std::string& path) override;
  Status makeDirectory(const std::string& path) override;
  Result<std::unique_ptr<OutputFile>> createNew(const std::string& path) override;
  Result<std::unique_ptr<OutputFile>> append(const std::string& path) override;
  Status rename(const std::string& from, const std::string& to) override;
  Status syncDirectory(const std::string& path) override;
  Status removeFile(const std::string& path) override;
  Status removeDirectory(const std::string& path) override;
  Status setReadOnly(const std::string& path, bool readOnly) override;
  Status copyMode(const std::string& from, const std::string& to) override;
  Status changeDirectory(const std::string& path) override;
  std::string currentDirectory() override;
  std::vector<std::string> roots() override;
  Result<std::unique_ptr<FileLock>> lock(const std::string& path) override;
};

}  // namespace kestra
