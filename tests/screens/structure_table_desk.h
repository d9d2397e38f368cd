#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "screens/frm_project_information.h"
#include "screens/frm_structure_table.h"
#include "support/input_desk.h"

namespace kestra {

using Boxes = std::vector<std::string>;

struct StructureTable : testing::Test {
  InputDesk desk;
  frmProjectInformation project{desk.context};
  frmStructureTable screen{desk.context};
  PlainScreen damSurface{"frmDamSurface"};
  PlainScreen hydrograph{"frmHydrographData"};

  StructureTable() {
    desk.context.screens.projectInformation = &project;
    for (Screen* each : std::initializer_list<Screen*>{&project, &screen, &damSurface, &hydrograph}) {
      desk.host.enter(*each);
    }
    desk.host.show(screen);
  }
  void choose(const std::string& path) { desk.dialogs.files.push_back(std::vector<std::string>{path}); }
  void cancel() { desk.dialogs.files.push_back(std::nullopt); }
  std::vector<std::string> row(int n) {
    return {screen.grdTable.cell(n, 1), screen.grdTable.cell(n, 2), screen.grdTable.cell(n, 3),
            screen.grdTable.cell(n, 4)};
  }
  void enterAt(int row, int column) {
    screen.grdTable.userFocus();
    screen.grdTable.userSelect({row, column}, {row, column});
    typeInto(screen.grdTable, "\r");
  }
};

}  // namespace kestra
