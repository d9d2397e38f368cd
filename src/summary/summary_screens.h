#pragma once

#include "summary/frm_aux_summary_table.h"
#include "summary/frm_summary_fields.h"
#include "summary/frm_summary_graphics.h"
#include "summary/frm_summary_selections.h"
#include "summary/frm_summary_table.h"

namespace kestra {

// The screens of the summary, made once and joined to each other.
class SummaryScreens {
 public:
  SummaryScreens(PictureDesk& desk, const LineSettings& lines, SummaryStore& store, RunKeeper& runs);

  SummaryContext context;
  frmSummaryFields fields;
  frmSummaryTable table{context};
  frmAuxSummaryTable auxTable{context};
  frmSummaryGraphics graphics{context};
  frmSummarySelections selections{context, graphics};

  void enterAll(ScreenHost& host);
  void closeAll();  // another project is open: what is on show belongs to none
  // The store has changed: a table that is open shows it.
  void followStore();
  void followRun(int entry);  // a run has been entered, by its number from 1: likewise
  void followInputs();        // the input of a run has: likewise

 private:
  void viewSpillway(const std::string& folder, int spillway);
  void select(SummaryTableScreen& table);
  const ShownRows& rows();

  SummaryTableScreen* source_ = nullptr;  // the table whose rows are to be drawn; null: that of the project
};

}  // namespace kestra
