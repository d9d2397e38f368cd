#include "screens/file_choice.h"

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

}  // namespace kestra
