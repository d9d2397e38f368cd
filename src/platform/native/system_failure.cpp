#include "platform/native/system_failure.h"

#include <cerrno>
#include <cstring>

namespace kestra {

FailureKind kindOfError(int error) {
  switch (error) {
    case ENOENT:
      return FailureKind::notFound;
    case EEXIST:
      return FailureKind::exists;
    case EACCES:
    case EPERM:
    case EROFS:
      return FailureKind::denied;
    case ENOSPC:
    case EDQUOT:
      return FailureKind::full;
    case EISDIR:
    case ENOTDIR:
      return FailureKind::wrongType;
    case ENAMETOOLONG:
    case EILSEQ:
      return FailureKind::invalidName;
    case EFBIG:
      return FailureKind::tooLarge;
    case EBUSY:
    case ETXTBSY:
    case EWOULDBLOCK:
      return FailureKind::busy;
    default:
      return FailureKind::other;
  }
}

std::string wordsOfError(int error) {
  const char* words = ::strerrordesc_np(error);
  return words != nullptr ? words : "Error " + std::to_string(error);
}

Failure systemFailure(const std::string& path) {
  return failureOf(errno, path);
}

Failure failureOf(int error, const std::string& path) {
  return {kindOfError(error), path, wordsOfError(error)};
}

Status checkPath(const std::string& path) {
  if (path.empty()) return Failure{FailureKind::invalidName, path, "The name is empty"};
  if (path.find('\0') != std::string::npos) {
    return Failure{FailureKind::invalidName, path, "The name holds a zero byte"};
  }
  return Done();
}

}  // namespace kestra
