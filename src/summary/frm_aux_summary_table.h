#pragma once

#include "summary/summary_table_screen.h"

namespace kestra {

// The instances of one spillway of a run, from the digests that stand in the run's directory.
class frmAuxSummaryTable : public SummaryTableScreen {
 public:
  explicit frmAuxSummaryTable(SummaryContext& context);

  // Makes the entries anew: one for each digest "<run><spillway>_<instance>.DIS" in the directory of a run, by the
  // numbers of the instances, the run's name counting up to its first dot. False, after a box and with an empty table,
  // where there is no such directory.
  bool LoadAuxSumDISFiles(const std::string& folder, int spillway);
  void followRun();  // a run has written digests: reads them again
  EntryList& entries() override { return entries_; }

  std::function<void()> onReturn;  // the user wants to see the runs again

 protected:
  void unload() override;
  std::string order() override { return readSummaryOrder(context_.ports().settings); }
  EntryPlace placeOf(DigestPlaces&, const std::string& name) override;
  void viewAll() override;
  void viewDam() override {
    if (onReturn) onReturn();
  }

 private:
  void readDigests();

  EntryList entries_;
  std::string folder_;  // that of the run whose instances these are
  std::string start_;   // what the names of their digests begin with
};

}  // namespace kestra
