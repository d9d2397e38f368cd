#pragma once

#include <functional>

#include "controls/simple_controls.h"
#include "screens/input_screen.h"
#include "screens/table_commands.h"

namespace kestra {

// The File and Edit menus of a screen with tables. The commands act on the table that `table` gives, the one on show.
class EditMenu {
 public:
  EditMenu(InputScreen& screen, Ports& ports, PointDirection direction, std::function<Table&()> table);

  Menu mnuExit;  // Previous
  Menu mnuCopy;
  Menu mnuCut;
  Menu mnuPaste;
  Menu mnuDelete;
  Menu mnuSelectAll;
  Menu mnuInsertCell;
  Menu mnuDeleteCell;
  Menu mnuInsertPoint;  // "mnuInsertColumn", or "mnuInsertRow" where points run down rows
  Menu mnuDeletePoint;  // "mnuDeleteColumn" or "mnuDeleteRow"
};

}  // namespace kestra
