#pragma once

#include <string>

#include "base/result.h"

namespace kestra {

// What an error number of the system means.
FailureKind kindOfError(int error);

// The system's own words for it, in English whatever the locale.
std::string wordsOfError(int error);

// The failure that errno tells of.
Failure systemFailure(const std::string& path);
Failure failureOf(int error, const std::string& path);

// Why the system could not even be asked about such a path: it is empty or holds a zero byte. A success otherwise.
Status checkPath(const std::string& path);

}  // namespace kestra
