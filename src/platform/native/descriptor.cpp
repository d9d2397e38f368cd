#include "platform/native/descriptor.h"

#include <fcntl.h>
#include <unistd.h>

namespace kestra {

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  std::swap(number_, other.number_);
  return *this;
}

// Not repeated after a signal: the system has let go of the number already, and another thread may have got it.
bool Descriptor::close() {
  return number_ < 0 || ::close(release()) == 0 || errno == EINTR;
}

Descriptor openFile(const std::string& path, int flags, unsigned mode) {
  return Descriptor(untilDone([&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); }));
}

Descriptor aboveStandard(Descriptor file) {
  if (!file || file.number() > STDERR_FILENO) return file;
  return Descriptor(::fcntl(file.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

}  // namespace kestra
