#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace kestra {

// Path of a file that a run leaves beside its control file: the path up to and with the point of its extension, then
// `extension` ("OUT"). Empty for an empty path.
std::string runFilePath(std::string_view controlFile, std::string_view extension);

// The text files of a run, read anew each time they are asked for.
class RunFiles {
 public:
  RunFiles(FileSystem& files, std::string controlFile) : files_(files), controlFile_(std::move(controlFile)) {}

  const std::string& controlFile() const { return controlFile_; }
  // The file's text, whatever the letter case of its name; of a longer one the first kReadLimit bytes. notFound when
  // there is none, or no control file is open.
  Result<std::string> read(std::string_view extension) const;

 private:
  FileSystem& files_;
  std::string controlFile_;
};

}  // namespace kestra
