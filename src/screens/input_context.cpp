#include "screens/input_context.h"

#include "base/text.h"
#include "controls/table.h"

namespace kestra {

bool hasStructureDischarge(const Table& structureTable) {
  constexpr int kDischarge = 2;
  constexpr int kLastRow = 50;
  for (int row = 1; row <= kLastRow; ++row) {
    if (!trim(structureTable.cell(row, kDischarge)).empty()) return true;
  }
  return false;
}

bool hasStructureDischarge(const InputContext& context) {
  const Screen* screen = context.base.host.find("frmStructureTable");
  if (screen == nullptr) return false;
  const Control* table = screen->find("grdTable");
  return table != nullptr && hasStructureDischarge(static_cast<const Table&>(*table));
}

}  // namespace kestra
