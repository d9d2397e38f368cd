#include "platform/native/posix_output_file.h"

#include <unistd.h>

#include "platform/native/system_failure.h"

namespace kestra {

Status PosixOutputFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = untilDone([&] { return ::write(file_.number(), bytes.data(), bytes.size()); });
    if (written < 0) return systemFailure(path_);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return Done();
}

Status PosixOutputFile::sync() {
  if (untilDone([&] { return ::fsync(file_.number()); }) != 0) return systemFailure(path_);
  return Done();
}

Status PosixOutputFile::close() {
  if (!file_.close()) return systemFailure(path_);
  return Done();
}

}  // namespace kestra
