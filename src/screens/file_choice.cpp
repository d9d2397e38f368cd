#include "screens/file_choice.h"

#include <algorithm>
#include <string_view>

#include "platform/files.h"

namespace kestra {

std::optional<std::string> chooseFile(Ports& ports, const FileDialog& dialog) {
  const auto files = ports.dialogs.chooseFiles(dialog);
  if (!files) return std::nullopt;
  return files->empty() ? std::string() : files->front();
}

std::optional<std::string> chooseNamedFile(Ports& ports, const FileDialog& dialog, const NoNameBox& noName) {
  auto file = chooseFile(ports, dialog);
  if (!file || !file->empty()) return file;
  ports.boxes.tell(noName.title, noName.text, BoxIcon::warning);
  return std::nullopt;
}

bool mayWrite(Ports& ports, const std::string& path, const std::string& title) {
  if (!exists(ports.files, path)) return true;
  return ports.boxes.confirm(title, "The file " + path + " already exists. Do you want to replace it?");
}

Result<std::string> readLines(Ports& ports, const std::string& path) {
  auto read = ports.files.read(path, kReadLimit);
  if (!read) return read;
  std::string_view rest = read.value();
  if (rest.starts_with("\xEF\xBB\xBF")) rest.remove_prefix(3);
  std::string text;
  text.reserve(rest.size());
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\r'), rest.size());
    text += rest.substr(0, end);
    rest.remove_prefix(end);
    const std::size_t returns = std::min(rest.find_first_not_of('\r'), rest.size());
    rest.remove_prefix(returns);
    if (!rest.starts_with('\n')) text.append(returns, '\n');
  }
  return text;
}

}  // namespace kestra
