#include "platform/faulty_file_system.h"

namespace kestra {

class FaultyFileSystem::Output : public OutputFile {
 public:
  Output(FaultyFileSystem& files, std::unique_ptr<OutputFile> inner, std::string path)
      : files_(files), inner_(std::move(inner)), path_(std::move(path)) {}

  Status write(std::string_view bytes) override {
    const Failure* fault = files_.fault("write", path_);
    if (fault == nullptr) return inner_->write(bytes);
    (void)inner_->write(bytes.substr(0, bytes.size() / 2));
    return *fault;
  }
  Status sync() override {
    const Failure* fault = files_.fault("sync", path_);
    return fault != nullptr ? Status(*fault) : inner_->sync();
  }
  Status close() override {
    const Failure* fault = files_.fault("close", path_);
    const Status closed = inner_->close();
    return fault != nullptr ? Status(*fault) : closed;
  }

 private:
  FaultyFileSystem& files_;
  std::unique_ptr<OutputFile> inner_;
  std::string path_;
};

void FaultyFileSystem::failCall(std::size_t number, FailureKind kind) {
  failing_ = number;
  kind_ = kind;
}

void FaultyFileSystem::failEvery(std::string operation, FailureKind kind) {
  every_.emplace_back(std::move(operation), kind);
}

void FaultyFileSystem::failNothing() {
  failing_ = 0;
  every_.clear();
}

const Failure* FaultyFileSystem::fault(const char* operation, const std::string& path) {
  calls_.emplace_back(operation);
  if (calls_.size() == failing_) {
    failure_ = {kind_, path, "made to fail"};
    return &failure_;
  }
  for (const auto& [name, kind] : every_) {
    if (name != operation) continue;
    failure_ = {kind, path, "made to fail"};
    return &failure_;
  }
  return nullptr;
}

Result<FileStatus> FaultyFileSystem::status(const std::string& path) {
  if (const Failure* f = fault("status", path)) return *f;
  return inner_.status(path);
}

Result<FileStatus> FaultyFileSystem::linkStatus(const std::string& path) {
  if (const Failure* f = fault("linkStatus", path)) return *f;
  return inner_.linkStatus(path);
}

Result<std::string> FaultyFileSystem::read(const std::string& path, std::uint64_t limit) {
  if (const Failure* f = fault("read", path)) return *f;
  return inner_.read(path, limit);
}

Result<std::string> FaultyFileSystem::readStart(const std::string& path, std::uint64_t most) {
  if (const Failure* f = fault("readStart", path)) return *f;
  return inner_.readStart(path, most);
}

Result<std::vector<DirectoryEntry>> FaultyFileSystem::list(const std::string& path) {
  if (const Failure* f = fault("list", path)) return *f;
  return inner_.list(path);
}

Result<std::string> FaultyFileSystem::canonical(const std::string& path) {
  if (const Failure* f = fault("canonical", path)) return *f;
  return inner_.canonical(path);
}

Status FaultyFileSystem::makeDirectory(const std::string& path) {
  if (const Failure* f = fault("makeDirectory", path)) return *f;
  return inner_.makeDirectory(path);
}

Result<std::unique_ptr<OutputFile>> FaultyFileSystem::createNew(const std::string& path) {
  if (const Failure* f = fault("createNew", path)) return *f;
  return watched(inner_.createNew(path), path);
}

Result<std::unique_ptr<OutputFile>> FaultyFileSystem::append(const std::string& path) {
  if (const Failure* f = fault("append", path)) return *f;
  return watched(inner_.append(path), path);
}

Result<std::unique_ptr<OutputFile>> FaultyFileSystem::watched(Result<std::unique_ptr<OutputFile>> file,
                                                              const std::string& path) {
  if (!file) return file.failure();
  return std::unique_ptr<OutputFile>(std::make_unique<Output>(*this, std::move(file).value(), path));
}

Status FaultyFileSystem::rename(const std::string& from, const std::string& to) {
  if (const Failure* f = fault("rename", to)) return *f;
  return inner_.rename(from, to);
}

Status FaultyFileSystem::syncDirectory(const std::string& path) {
  if (const Failure* f = fault("syncDirectory", path)) return *f;
  return inner_.syncDirectory(path);
}

Status FaultyFileSystem::removeFile(const std::string& path) {
  if (const Failure* f = fault("removeFile", path)) return *f;
  return inner_.removeFile(path);
}

Status FaultyFileSystem::removeDirectory(const std::string& path) {
  if (const Failure* f = fault("removeDirectory", path)) return *f;
  return inner_.removeDirectory(path);
}

Status FaultyFileSystem::setReadOnly(const std::string& path, bool readOnly) {
  if (const Failure* f = fault("setReadOnly", path)) return *f;
  return inner_.setReadOnly(path, readOnly);
}

Status FaultyFileSystem::copyMode(const std::string& from, const std::string& to) {
  if (const Failure* f = fault("copyMode", to)) return *f;
  return inner_.copyMode(from, to);
}

Status FaultyFileSystem::changeDirectory(const std::string& path) {
  if (const Failure* f = fault("changeDirectory", path)) return *f;
  return inner_.changeDirectory(path);
}

Result<std::unique_ptr<FileLock>> FaultyFileSystem::lock(const std::string& path) {
  if (const Failure* f = fault("lock", path)) return *f;
  return inner_.lock(path);
}

}  // namespace kestra
