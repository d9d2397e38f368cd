#pragma once

#include "controls/control_array.h"
#include "summary/summary_table_screen.h"

namespace kestra {

// The runs of the project, from its store, which is read when the screen opens.
class frmSummaryTable : public SummaryTableScreen {
 public:
  explicit frmSummaryTable(SummaryContext& context);

  Table damSum{*this, "damSum", {1, 1, 1, 1}};  // fields of dams
  ControlArray<Button> cmdView{*this, "cmdView", 1, 3, std::string()};
  ControlArray<Menu> mnuWindowsArray{*this, "mnuWindowsArray", kFirstSlot, kLastSlot};

  // Shows the instances of one spillway of the selected row's run, 1 to 3; nothing without such a row.
  void ComputeAuxTableValues(int spillway);
  EntryList& entries() override { return context_.store.list(); }

  std::function<void(const std::string& folder, int spillway)> onViewSpillway;

 protected:
  void load() override;
  void activate() override;
  void unload() override;
  std::string order() override { return context_.store.summaryOrder(); }
  Table* damGrid() override { return &damSum; }
  void viewAll() override;
  void viewDam() override { showList(); }

 private:
  bool opening_ = false;
};

}  // namespace kestra
