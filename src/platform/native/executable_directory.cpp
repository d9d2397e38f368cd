#include "platform/native/executable_directory.h"

#include <filesystem>
#include <system_error>

#include "base/paths.h"

namespace kestra {

std::string executableDirectory() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string() : std::string(directoryOf(program.native()));
}

}  // namespace kestra
