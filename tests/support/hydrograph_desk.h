#pragma once

#include <string>
#include <vector>

#include "screens/frm_hydrograph_data.h"
#include "screens/frm_hydrograph_select.h"
#include "screens/frm_project_information.h"
#include "screens/frm_structure_table.h"
#include "support/input_desk.h"

namespace kestra {

// The hydrograph screen with the screens that it reads and leads to.
struct HydrographDesk : InputDesk {
  frmProjectInformation project{context};
  frmStructureTable structure{context};
  frmHydrographData screen{context};
  frmHydrographSelect select{context};
  PlainScreen spillwayType{"frmPSType"};
  PlainScreen tailwater{"frmPSRatingTable"};

  HydrographDesk() {
    context.screens.projectInformation = &project;
    context.screens.structureTable = &structure;
    context.screens.hydrographData = &screen;
    context.screens.hydrographSelect = &select;
    for (Screen* each :
         std::initializer_list<Screen*>{&project, &structure, &screen, &select, &spillwayType, &tailwater}) {
      host.enter(*each);
    }
  }
  ~HydrographDesk() { history.clear(); }  // before the screens that its steps are of

  // Writes texts down a column, from row 1 on, as a program does.
  static void put(Table& table, int column, const std::vector<std::string>& texts) {
    int row = 1;
    for (const std::string& text : texts) table.setCell(row++, column, text);
  }
  static std::vector<std::string> column(const Table& table, int column, int rows) {
    std::vector<std::string> texts;
    for (int row = 1; row <= rows; ++row) texts.push_back(table.cell(row, column));
    return texts;
  }
  // The last row with a discharge; 0: none.
  static int lastFilled(const Table& table) {
    int row = table.rows() - 1;
    while (row > 0 && table.cell(row, 1).empty()) --row;
    return row;
  }
};

}  // namespace kestra
