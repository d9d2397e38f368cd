#include "screens/file_choice.h"

#include <utility>

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

Result<std::string> readLines(Ports& ports, const std::string& path) {
  auto read = ports.files.read(path, kReadLimit);
  if (!read) return read;
  std::string text = std::move(read).value();
  if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
  for (std::size_t at = text.find('\r'); at != std::string::npos; at = text.find('\r', at + 1)) {
    if (at + 1 == text.size() || text[at + 1] != '\n') text[at] = '\n';
  }
  return text;
}

}  // namespace kestra
