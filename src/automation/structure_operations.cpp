#include "automation/operations.h"

namespace kestra {
namespace {

// An operation of a screen, which is loaded first.
template <class S>
Operation ofScreen(const std::string& name, S InputScreenSet::*which, void (S::*action)()) {
  return {name, {}, [which, action](Application& application, const Arguments&) -> Json {
            S& screen = application.shell.input.*which;
            application.host.load(screen);
            (screen.*action)();
            return nullptr;
          }};
}

Operation onTable(const std::string& name, void (frmStructureTable::*action)()) {
  return ofScreen("frmStructureTable." + name, &InputScreenSet::structureTable, action);
}

Operation onDam(const std::string& name, void (frmDamSurface::*action)()) {
  return ofScreen("frmDamSurface." + name, &InputScreenSet::damSurface, action);
}

Operation onTailwater(const std::string& name, void (frmPSRatingTable::*action)()) {
  return ofScreen("frmPSRatingTable." + name, &InputScreenSet::psRatingTable, action);
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
      onDam("setColNum", &frmDamSurface::setColNum),
      onDam("setColWidth", &frmDamSurface::setColWidth),
      onDam("setRowHeight", &frmDamSurface::setRowHeight),
      onTailwater("setRowNum", &frmPSRatingTable::setRowNum),
      onTailwater("setColWidth", &frmPSRatingTable::setColWidth),
      onTailwater("setRowHeight", &frmPSRatingTable::setRowHeight),
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
