#pragma once

#include <string>
#include <vector>

#include "controls/choices.h"
#include "controls/text_box.h"
#include "screens/edit_menu.h"
#include "screens/structure_files.h"
#include "screens/table_editor.h"

namespace kestra {

// The stage-storage relation of the reservoir and, where no conduit is modelled, the rating of the principal spillway.
class frmStructureTable : public InputScreen {
 public:
  explicit frmStructureTable(InputContext& context);

  Label lblStructureID{*this, "lblStructureID", "Structure Identifier:"};
  TextBox txtStructureID{*this, "txtStructureID"};
  Label lblValleyFloor{*this, "lblValleyFloor", "Dam Base Elevation, ft:"};
  TextBox txtValleyFloor{*this, "txtValleyFloor"};
  Label lblStartRouting{*this, "lblStartRouting", "Start Routing, ft:"};
  TextBox txtStartRouting{*this, "txtStartRouting"};
  OptionGroup startRouting;
  OptionButton optFEET{*this, "optFEET", startRouting, "elevation, ft", true};  // also found as "optFeet"
  OptionButton optCFS{*this, "optCFS", startRouting, "output, cfs"};            // only without breach analysis
  Label lblTable{*this, "lblTable", "Principal Spillway Rating and Reservoir Stage-Storage"};
  Table grdTable{*this, "grdTable", {51, 5, 1, 1}};  // number; ft; cfs; acre-ft; acres
  Button cmdPlot{*this, "cmdPlot", "P&lot"};
  EditMenu editMenu;

  // File operations. A dialog that is cancelled and a file that cannot be read or written end them without a word; the
  // table is blanked once a file of the right form has been read. A .STR file or text that holds nothing is told and
  // changes nothing; one with a value that is no number is told and taken up to it; and so are points that the table
  // does not take, and values that a .STR file cannot hold.
  void mnuImportTorve_Click();  // rating in the output of the spillway program
  void mnuOpen_Click();         // structure-table file
  void mnuSave_Click();
  void mnuImport_Click();  // tab-delimited text
  void mnuExport_Click();
  void saveStructureTable(const std::string& fileName);

  void clearTable();    // blanks all cells but the headings; the cursor goes to the first of them
  void setRowNum();     // point numbers before the rows
  void setColWidth();   // 1750 twips and centred, 500 for the numbers
  void setRowHeight();  // 560 twips for the headings

 protected:
  void load() override;
  void activate() override;
  void goNext() override { moveTo("frmHydrographData"); }
  void goPrevious() override { moveTo("frmDamSurface"); }
  void undone() override { showStart(); }

 private:
  void showStart();                                       // the options that the analysis leaves
  std::vector<StructureRow> rows() const;                 // all data rows
  void takeRows(const std::vector<StructureRow>& taken);  // blanks the table and fills it from row 1 on
  // The same with what was read of a file, telling what was not. False: nothing was, and nothing is changed.
  bool takeFile(const std::string& path, const StructureFile& file);

  TableEditor editor_;
};

}  // namespace kestra
