#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestra {

struct FileDialog {
  enum class Kind { open, save };
  Kind kind = Kind::open;
  std::string title;
  std::string filter;       // "All Files (*.*)|*.*|KSC Files (*.KSC)|*.KSC"
  int filterIndex = 1;      // the filter shown first, from 1
  std::string defaultName;  // what stands in the name field at first
  bool several = false;     // open: more than one file may be chosen
};

struct FontChoice {
  std::string name;
  double size = 10;  // points
  bool bold = false;
  bool italic = false;
};

struct PrintChoice {
  int firstPage = 0;  // 0: all pages
  int lastPage = 0;
  int copies = 1;
  std::string device;
};

// Port: the dialogs of the platform. Each waits for the user and gives what was chosen, nothing when it was cancelled.
// A file dialog may be confirmed with an empty name: one entry, empty. Never fails.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual std::optional<std::vector<std::string>> chooseFiles(const FileDialog& dialog) = 0;
  virtual std::optional<std::string> chooseDirectory(const std::string& title, const std::string& start) = 0;
  // Colours are numbers with red in the low byte: red + 256 * green + 65536 * blue.
  virtual std::optional<std::uint32_t> chooseColor(std::uint32_t start) = 0;
  // The custom colours of the colour dialog; true, and they are as the user left them, when it is confirmed. Where the
  // dialog has no custom colours they stay.
  virtual bool chooseCustomColors(std::array<std::uint32_t, 16>& colors) { return chooseColor(colors[0]).has_value(); }
  virtual std::optional<FontChoice> chooseFont(const FontChoice& start) = 0;
  virtual std::optional<PrintChoice> choosePrint(const PrintChoice& start) = 0;
};

}  // namespace kestra
