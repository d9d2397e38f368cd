#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "control/control_texts.h"
#include "platform/file_system.h"

// Input that was not saved, as it is kept in the project: .kestra/unsaved-N.json, N counting up from 1 over the files
// that are there. A JSON text with the name of the control file and all that a save would write.
namespace kestra {

struct UnsavedInput {
  std::string name;  // of the control file, without its directory; empty: a file that has no name yet
  ControlSnapshot input;
};

std::string composeUnsavedInput(const UnsavedInput& kept);
// Nothing for a text that is none.
std::optional<UnsavedInput> parseUnsavedInput(std::string_view text);

std::string unsavedInputFile(std::string_view projectDir, std::uint64_t number);
// The numbers of the files in a project, the newest first; none where the directory cannot be listed.
std::vector<std::uint64_t> unsavedInputNumbers(FileSystem& files, std::string_view projectDir);

// Nothing for a file that is not there, or holds something else.
std::optional<UnsavedInput> readUnsavedInput(FileSystem& files, std::string_view projectDir, std::uint64_t number);
// Written whole or not at all; the directory is made where it is missing.
Status writeUnsavedInput(FileSystem& files, std::string_view projectDir, std::uint64_t number,
                         const UnsavedInput& kept);

}  // namespace kestra
