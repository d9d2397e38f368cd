#pragma once

#include <functional>

#include "run/summary_updates.h"
#include "summary/summary_store.h"

namespace kestra {

// The project's summary as runs enter themselves in it, and the windows that show results. A window sets its functions
// when it is joined; until then there is nothing to refresh.
class RunSummary : public SummaryUpdates {
 public:
  explicit RunSummary(SummaryStore& store) : store_(store) {}

  int LoadDigestEntry(int fieldOffset, const std::string& digestPath, const std::string& entryName) override;
  void SaveSummaryStore(const std::string& path) override;  // RuntimeFault when it cannot be written
  void LoadSummaryStore() override { store_.LoadSummaryStore(); }
  void ModifyTable(int entryIndex) override;
  void refreshTable() override;
  void refreshOpenFiles() override;

  std::function<void(int entryIndex)> onModifyTable;
  std::function<void()> onRefreshTable;
  std::function<void()> onRefreshOpenFiles;

 private:
  SummaryStore& store_;
};

}  // namespace kestra
