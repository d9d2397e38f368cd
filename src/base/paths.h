#pragma once

#include <string>
#include <string_view>

// Paths as the user types and sees them: bytes, with the separator of this platform.
namespace kestra {

#ifdef _WIN32
inline constexpr char kSeparator = '\\';
#else
inline constexpr char kSeparator = '/';
#endif

// The part behind the last separator, found from the end; the whole path when there is none.
std::string_view ParsePathName(std::string_view path);

// The part before the last separator, "/" for a file in the root; empty when there is no separator.
std::string_view directoryOf(std::string_view path);

// `directory`, a separator, `name`; no second separator behind a directory that ends in one.
std::string joinPath(std::string_view directory, std::string_view name);

bool isAbsolutePath(std::string_view path);

// `path` made absolute against `directory`, with "." and ".." taken out and no separator at its end (but for a root).
std::string absolutePath(std::string_view path, std::string_view directory);

}  // namespace kestra
