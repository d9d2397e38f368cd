#include "platform/native/terminal_dialogs.h"

#include "base/paths.h"

namespace kestra {

void TerminalDialogs::tell(std::string_view kind, std::string_view title) {
  lines_ << "cancelled: " << kind << " dialog";
  if (!title.empty()) lines_ << " \"" << title << '"';
  lines_ << '\n' << std::flush;
}

std::optional<std::vector<std::string>> TerminalDialogs::chooseFiles(const FileDialog& dialog) {
  const std::string& offered = dialog.defaultName;
  if (yes_ && dialog.kind == FileDialog::Kind::save && isAbsolutePath(offered) && offered != confirmed_) {
    confirmed_ = offered;
    lines_ << "confirmed: save dialog \"" << dialog.title << "\": " << offered << '\n' << std::flush;
    return std::vector<std::string>{offered};
  }
  tell(dialog.kind == FileDialog::Kind::open ? "open" : "save", dialog.title);
  return std::nullopt;
}

std::optional<std::string> TerminalDialogs::chooseDirectory(const std::string& title, const std::string&) {
  tell("directory", title);
  return std::nullopt;
}

std::optional<std::uint32_t> TerminalDialogs::chooseColor(std::uint32_t) {
  tell("colour", "");
  return std::nullopt;
}

std::optional<FontChoice> TerminalDialogs::chooseFont(const FontChoice&) {
  tell("font", "");
  return std::nullopt;
}

std::optional<PrintChoice> TerminalDialogs::choosePrint(const PrintChoice&) {
  tell("print", "");
  return std::nullopt;
}

}  // namespace kestra
