#pragma once

#include "platform/file_system.h"

namespace kestra {

// Forwards everything to another file system and fails on demand, for tests. It counts the calls that can fail, those
// of its output files included ("write", "sync", "close"), and keeps their names in order. A call that fails is not
// forwarded, with two exceptions, since the world is like that: a write leaves the first half of its bytes, and a close
// closes. currentDirectory and roots are forwarded and not counted.
class FaultyFileSystem : public FileSystem {
 public:
  explicit FaultyFileSystem(FileSystem& inner) : inner_(inner) {}

  // The call of that number, counted from 1 from the beginning, fails; 0: none.
  void failCall(std::size_t number, FailureKind kind);
  // Every call of that name ("read", "write") fails; several names may be set one after the other.
  void failEvery(std::string operation, FailureKind kind);
  void failNothing();

  const std::vector<std::string>& calls() const { return calls_; }

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
  std::string currentDirectory() override { return inner_.currentDirectory(); }
  std::vector<std::string> roots() override { return inner_.roots(); }
  Result<std::unique_ptr<FileLock>> lock(const std::string& path) override;

 private:
  class Output;

  Result<std::unique_ptr<OutputFile>> watched(Result<std::unique_ptr<OutputFile>> file, const std::string& path);
  // Counts the call; the failure that it has to give, if any.
  const Failure* fault(const char* operation, const std::string& path);

  FileSystem& inner_;
  std::vector<std::string> calls_;
  std::size_t failing_ = 0;
  FailureKind kind_ = FailureKind::other;
  std::vector<std::pair<std::string, FailureKind>> every_;
  Failure failure_;
};

}  // namespace kestra
