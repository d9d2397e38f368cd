#include "app/run_summary.h"

#include "run/file_steps.h"

namespace kestra {

int RunSummary::LoadDigestEntry(int fieldOffset, const std::string& digestPath, const std::string& entryName) {
  return static_cast<int>(store_.LoadDigestEntry(fieldOffset, digestPath, entryName));
}

void RunSummary::SaveSummaryStore(const std::string& path) {
  require(store_.SaveSummaryStore(path));
}

void RunSummary::ModifyTable(int entryIndex) {
  if (onModifyTable) onModifyTable(entryIndex);
}

void RunSummary::refreshTable() {
  if (onRefreshTable) onRefreshTable();
}

void RunSummary::refreshOpenFiles() {
  if (onRefreshOpenFiles) onRefreshOpenFiles();
}

}  // namespace kestra
