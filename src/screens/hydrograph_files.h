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

// The import and export commands of the hydrograph screen. A file that cannot be read, or written, or holds no
// hydrograph is told in a box and changes nothing (a .VHY file without a known record: no box; two columns of text
// without a row: the table is emptied). A value that is none ends an import with a box: the form is switched and the
// rows before the value stay; what an import does behind its rows is left out.
// Points that the table does not take are told.
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

  void LoadHydrographForms(const std::string& fileName);  // a .THY file; times are numbered
  void SaveTable(const std::string& fileName);            // the constant-time table as a .THY file

 private:
  struct TextFile {
    std::string path;
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
  bool takeThy(const TextFile& file);  // false: there was something to tell
  void takeVariable(const std::vector<HydrographRow>& rows);
  // Takes discharges at the steps of txtConst; an import that has ended at a fault leaves them without times.
  void takeConstant(const std::vector<std::string>& flows, bool ended);
  bool tellFault(const TextFile& file, const std::string& fault);              // false: there is none
  void tellRest(const TextFile& file, std::size_t points, std::size_t taken);  // nothing where all were taken
  void warn(const std::string& title, const std::string& text);

  frmHydrographData& screen_;
  InputContext& context_;
};

}  // namespace kestra
