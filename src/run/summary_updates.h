#pragma once

#include <string>

namespace kestra {

// The summary of the project and the windows that show results, as a run needs them. Implemented where they are joined.
class SummaryUpdates {
 public:
  virtual ~SummaryUpdates() = default;
  // Enters a digest under a name, its values from position fieldOffset + 1 on; the entry's index, from 1.
  virtual int LoadDigestEntry(int fieldOffset, const std::string& digestPath, const std::string& entryName) = 0;
  virtual void SaveSummaryStore(const std::string& path) = 0;
  virtual void LoadSummaryStore() = 0;

  // While the summary table and the output graph are open:
  virtual void ModifyTable(int entryIndex) = 0;  // shows an entry that was entered anew
  virtual void refreshTable() = 0;
  virtual void refreshOpenFiles() = 0;  // GetFileToOpen of the table, GetGraphToOpen of the graph
};

}  // namespace kestra
