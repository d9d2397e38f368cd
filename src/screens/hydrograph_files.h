#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/simple_controls.h"
#include "screens/input_context.h"
#include "screens/tab_hydrographs.h"

namespace kestra {

class frmHydrographData;

// The import and export commands of the hydrograph screen. A file that cannot be read, or written, is told in a box and
// changes nothing; a value that is none ends an import with a box and the rows before it.
class HydrographFiles {
 public:
  HydrographFiles(frmHydrographData& screen, InputContext& context);

  Menu mnuImportBasix;
  Menu mnuImportRivex;
  Menu mnuImportTorve;
  Menu mnuImportQT40;
  Menu mnuImportTab;
  Menu mnuExport;  // constant-time hydrographs only
  Menu mnuExportTab;

  void LoadHydrographForms(const std::string& fileName);  // a .THY file
  void SaveTable(const std::string& fileName);            // the constant-time table as a .THY file

 private:
  struct TextFile {
    std::string trap;  // title of the box over a failure
    std::string text;
  };
  using ClockedReader = std::optional<TabHydrograph> (*)(std::string_view text, std::size_t mostRows);

  void importClocked(const Menu& command, ClockedReader read);
  void importTorve();
  void importVhy(const TextFile& file, const std::string& code);
  void importQt40();
  void importTab();
  void exportThy();
  void exportTab();

  std::optional<TextFile> chooseText(const Menu& command, const char* filter);
  std::optional<TextFile> readText(const std::string& path, const std::string& trap);
  void write(const std::string& path, std::string_view text);
  // The code that the user chooses among entries, shown modally; nothing when he chooses none.
  std::optional<std::string> chooseEntry(std::vector<std::string> entries);
  void takeThy(std::string_view text);
  void takeVariable(const std::vector<HydrographRow>& rows);
  void tellFault(const std::string& trap, const std::string& fault);

  frmHydrographData& screen_;
  InputContext& context_;
};

}  // namespace kestra
