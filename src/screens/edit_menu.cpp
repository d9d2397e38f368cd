#include "screens/edit_menu.h"

#include <utility>

namespace kestra {
namespace {

const char* pick(PointDirection direction, const char* alongColumns, const char* downRows) {
  return direction == PointDirection::alongColumns ? alongColumns : downRows;
}

}  // namespace

EditMenu::EditMenu(InputScreen& screen, Ports& ports, PointDirection direction, std::function<Table&()> table)
    : mnuExit(screen, "mnuExit", "E&xit"),
      mnuCopy(screen, "mnuCopy", "&Copy"),
      mnuCut(screen, "mnuCut", "Cu&t"),
      mnuPaste(screen, "mnuPaste", "&Paste"),
      mnuDelete(screen, "mnuDelete", "&Delete"),
      mnuSelectAll(screen, "mnuSelectAll", "Select &All"),
      mnuInsertCell(screen, "mnuInsertCell", "&Insert Cell"),
      mnuDeleteCell(screen, "mnuDeleteCell", "Delete C&ell"),
      mnuInsertPoint(screen, pick(direction, "mnuInsertColumn", "mnuInsertRow"),
                     pick(direction, "Insert Co&lumn", "Insert &Row")),
      mnuDeletePoint(screen, pick(direction, "mnuDeleteColumn", "mnuDeleteRow"),
                     pick(direction, "Delete Colu&mn", "Delete Ro&w")) {
  Clipboard& clipboard = ports.clipboard;
  mnuExit.onClick = [&screen] { screen.cmdPrevious.click(); };
  mnuCopy.onClick = [table, &clipboard] { copyBlock(table(), clipboard); };
  mnuCut.onClick = [table, &clipboard] { cutBlock(table(), clipboard); };
  mnuPaste.onClick = [table, &clipboard] { pasteText(table(), clipboard.text()); };
  mnuDelete.onClick = [table] { deleteBlock(table()); };
  mnuSelectAll.onClick = [table] { selectAllCells(table()); };
  mnuInsertCell.onClick = [table, direction] { insertCell(table(), direction); };
  mnuDeleteCell.onClick = [table, direction] { deleteCell(table(), direction); };
  mnuInsertPoint.onClick = [table, direction] { insertPoint(table(), direction); };
  mnuDeletePoint.onClick = [table, direction] { deletePoint(table(), direction); };
}

}  // namespace kestra
