#pragma once

#include "platform/file_system.h"
#include "platform/native/descriptor.h"

namespace kestra {

// Writes to an open file of the system.
class PosixOutputFile : public OutputFile {
 public:
  PosixOutputFile(Descriptor file, std::string path) : file_(std::move(file)), path_(std::move(path)) {}

  Status write(std::string_view bytes) override;
  Status sync() override;
  Status close() override;

 private:
  Descriptor file_;
  std::string path_;
};

}  // namespace kestra
