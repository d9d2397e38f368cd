#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "platform/dialogs.h"

namespace kestra {

// Cancels every dialog, after a line that says which one was asked for: cancelled: open dialog "TITLE". With `yes` a
// save dialog that offers a whole path is confirmed with it: confirmed: save dialog "TITLE": PATH. Asked for the same
// path again it is cancelled, since the path was not good.
class TerminalDialogs : public Dialogs {
 public:
  explicit TerminalDialogs(std::ostream& lines, bool yes = false) : lines_(lines), yes_(yes) {}

  std::optional<std::vector<std::string>> chooseFiles(const FileDialog& dialog) override;
  std::optional<std::string> chooseDirectory(const std::string& title, const std::string& start) override;
  std::optional<std::uint32_t> chooseColor(std::uint32_t start) override;
  std::optional<FontChoice> chooseFont(const FontChoice& start) override;
  std::optional<PrintChoice> choosePrint(const PrintChoice& start) override;

 private:
  void tell(std::string_view kind, std::string_view title);

  std::ostream& lines_;
  bool yes_;
  std::string confirmed_;  // the path confirmed last
};

}  // namespace kestra
