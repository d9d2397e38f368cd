#pragma once

#include <string>
#include <vector>

#include "controls/control_array.h"
#include "controls/simple_controls.h"
#include "controls/table.h"
#include "run/error_rows.h"
#include "screens/input_screen_set.h"

namespace kestra {

// What the integrity checkers found, a row a finding, with the way to the screen that holds the value. The way is taken
// from the column "Error or Warning": by a double click, Enter or the menu.
class frmErrorTable : public Screen {
 public:
  frmErrorTable(ScreenContext& context, InputScreenSet& input);

  Table errTable{*this, "errTable", {.rows = 1, .columns = 7, .fixedRows = 1, .fixedColumns = 1}};
  Menu mnuElement{*this, "mnuElement", "&Go to Screen"};
  Menu mnuExit{*this, "mnuExit", "E&xit"};
  ControlArray<Menu> mnuWindowsArray{*this, "mnuWindowsArray", kFirstSlot, kLastSlot};

  // The findings of the rows. Gone with the window.
  std::vector<ErrorRow> errorRows;

  void BuildTable();  // no rows, and the titles of the columns
  // Puts the findings of an error file behind the first `rowCount` rows; gives how many rows there are then.
  int ReadDamFindings(const std::string& errPath, int rowCount);
  int ReadSpillwayFindings(const std::string& errPath, int rowCount);
  // Shows the findings that are kept of a control file's last check. `errPath`: as for CountFindings. False, and the
  // screen is unloaded, where there are none.
  bool showFindings(const std::string& errPath);

 protected:
  void load() override;
  void unload() override;

 private:
  int take(const std::vector<ErrorRow>& found, int rowCount);
  void showRow(int row, const ErrorRow& finding);
  void goToScreen();
  void tellGlobal(const ErrorRow& finding);
  void goTo(const ErrorRow& finding);
  int screenFor(const ErrorRow& finding) const;

  ScreenContext& context_;
  InputScreenSet& input_;
};

}  // namespace kestra
