#pragma once

#include <optional>
#include <string>

#include "platform/ports.h"

namespace kestra {

// Asks for one file. Nothing when the dialog is cancelled, which is not commented on.
std::optional<std::string> chooseFile(Ports& ports, const FileDialog& dialog);

// The same; an empty name is answered by a warning box and counts as nothing.
struct NoNameBox {
  const char* title;
  const char* text;
};
std::optional<std::string> chooseNamedFile(Ports& ports, const FileDialog& dialog, const NoNameBox& noName);

// Whether a file may be written: there is none of that name yet, or the user lets it be replaced.
bool mayWrite(Ports& ports, const std::string& path, const std::string& title);

// The text of a file that is read line by line, up to kReadLimit, each line ended by a line feed: a lone carriage
// return has become one, those before a line feed are gone, and so is a byte order mark at the front.
Result<std::string> readLines(Ports& ports, const std::string& path);

}  // namespace kestra
