#include "automation/operations.h"

namespace kestra {
namespace {

// An operation of the structure table's screen, which is loaded first.
Operation onTable(const std::string& name, void (frmStructureTable::*action)()) {
  return {"frmStructureTable." + name, {}, [action](Application& application, const Arguments&) -> Json {
            frmStructureTable& screen = application.shell.input.structureTable;
            application.host.load(screen);
            (screen.*action)();
            return nullptr;
          }};
}

}  // namespace

std::vector<Operation> structureOperations() {
  return {
      {"hasStructureDischarge",
       {},
       [](Application& a, const Arguments&) -> Json { return hasStructureDischarge(a.shell.input.context); }},
      onTable("clearTable", &frmStructureTable::clearTable),
      onTable("setRowNum", &frmStructureTable::setRowNum),
      onTable("setColWidth", &frmStructureTable::setColWidth),
      onTable("setRowHeight", &frmStructureTable::setRowHeight),
      onTable("mnuImportTorve_Click", &frmStructureTable::mnuImportTorve_Click),
      onTable("mnuOpen_Click", &frmStructureTable::mnuOpen_Click),
      onTable("mnuSave_Click", &frmStructureTable::mnuSave_Click),
      onTable("mnuImport_Click", &frmStructureTable::mnuImport_Click),
      onTable("mnuExport_Click", &frmStructureTable::mnuExport_Click),
      {"frmStructureTable.saveStructureTable",
       {"fileName"},
       [](Application& application, const Arguments& arguments) -> Json {
         frmStructureTable& screen = application.shell.input.structureTable;
         application.host.load(screen);
         screen.saveStructureTable(arguments.text(0));
         return nullptr;
       }},
  };
}

}  // namespace kestra
