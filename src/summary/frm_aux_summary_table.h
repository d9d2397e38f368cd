#pragma once

#include "summary/summary_table_screen.h"

namespace kestra {

// The instances of one spillway of a run, from the digests that stand in the run's directory.
class frmAuxSummaryTable : public SummaryTableScreen {
 public:
  explicit frmAuxSummaryTable(SummaryContext& context);

  // Makes the entries anew: one for each digest "<run><spillway>_<instance>.DIS" in the directory of a run, by the
  // numbers of the instances, and takes the order of the table from the settings. False, after a box and with an empty
  // table, where there is no such directory.
  bool LoadAuxSumDISFiles(const std::string& folder, int spillway);
  EntryList& entries() override { return entries_; }

  std::function<void()> onReturn;  // the user wants to see the runs again

 protected:
  void unload() override;
  std::string order() override { return order_; }
  void viewAll() override;
  void viewDam() override {
    if (onReturn) onReturn();
  }

 private:
  EntryList entries_;
  std::string order_ = kByColumn;
};

}  // namespace kestra
