#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "summary/entry_list.h"

namespace kestra {

// Puts one text into `count` positions from `offset` (from 0) on.
void fillValues(EntryValues& values, std::size_t offset, std::size_t count, std::string_view text);

// Puts the lines of a digest, at most so many, into the positions behind `offset`; those behind its last line are
// empty. "N/A" when it cannot be read. Blanks and double quotes around a line are not part of its value.
void takeDigest(FileSystem& files, EntryValues& values, const std::string& path, std::size_t offset, std::size_t most);

}  // namespace kestra
