#pragma once

#include "platform/file_system.h"
#include "shell/application_state.h"

namespace kestra {

// The file system as the application uses it: forwards everything, but changes nothing in a project that is open for
// looking only, which fails as denied.
class ProjectGuard : public FileSystem {
 public:
  ProjectGuard(FileSystem& inner, const ApplicationState& state) : inner_(inner), state_(state) {}

  Result<FileStatus> status(const std::string& path) override { return inner_.status(path); }
  Result<FileStatus> linkStatus(const std::string& path) override { return inner_.linkStatus(path); }
  Result<std::string> read(const std::string& path, std::uint64_t limit) override { return inner_.read(path, limit); }
  Result<std::string> readStart(const std::string& path, std::uint64_t most) override {
    return inner_.readStart(path, most);
  }
  Result<std::vector<DirectoryEntry>> list(const std::string& path) override { return inner_.list(path); }
  Result<std::string> canonical(const std::string& path) override { return inner_.canonical(path); }
  Status makeDirectory(const std::string& path) override;
  Result<std::unique_ptr<OutputFile>> createNew(const std::string& path) override;
  Result<std::unique_ptr<OutputFile>> append(const std::string& path) override;
  Status rename(const std::string& from, const std::string& to) override;
  Status syncDirectory(const std::string& path) override { return inner_.syncDirectory(path); }
  Status removeFile(const std::string& path) override;
  Status removeDirectory(const std::string& path) override;
  Status setReadOnly(const std::string& path, bool readOnly) override;
  Status copyMode(const std::string& from, const std::string& to) override;
  Status changeDirectory(const std::string& path) override { return inner_.changeDirectory(path); }
  std::string currentDirectory() override { return inner_.currentDirectory(); }
  std::vector<std::string> roots() override { return inner_.roots(); }
  Result<std::unique_ptr<FileLock>> lock(const std::string& path) override { return inner_.lock(path); }

 private:
  // Done where the place of `path` may be changed.
  Status check(const std::string& path) const;

  FileSystem& inner_;
  const ApplicationState& state_;
};

}  // namespace kestra
