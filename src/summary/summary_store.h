#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports.h"
#include "shell/application_state.h"
#include "summary/digest_places.h"
#include "summary/entry_list.h"
#include "summary/summary_fields.h"
#include "summary/summary_file.h"

namespace kestra {

inline constexpr const char* kByRow = "1";  // summaryOrder: one entry a row
inline constexpr const char* kByColumn = "2";

// The order that the user's settings hold.
std::string readSummaryOrder(SettingsStore& settings);

// Tells of a store that could not be saved.
void tellUnsaved(MessageBoxes& boxes, const Status& written);

// The summary of the open project: its runs with their digests, and which fields of them the user wants to see. It is
// kept in the project's SUMMARY.IDE; the order of the tables in the user's settings. One object, owned by the
// application; it lives as long as a project is open.
class SummaryStore {
 public:
  SummaryStore(Ports& ports, const ApplicationState& state, const FieldCatalogues& catalogues)
      : ports_(ports), state_(state), catalogues_(catalogues) {}

  // Reads the project's file and the digests of all entries. Without an open project, without the dam's field titles
  // and without the file the store is empty. A file that cannot be read or understood is told of in a box; what of it
  // could be understood is there. An entry whose own digest is missing has "N/A" in the fields of a dam; a digest of
  // fewer lines leaves the values behind them empty.
  void LoadSummaryStore();

  // Writes the file, over one whose name differs in letter case alone, and the order into the settings. The entries of
  // a project's file that was not read, for want of titles, stay in it; one that cannot be read is not written over.
  Status SaveSummaryStore(const std::string& path);
  // The same with another selection, and without the settings.
  Status writeFile(const std::string& path, const SummarySelection& selection);

  // Enters a digest under a name, behind `fieldOffset` positions: 0 for a dam, 25 for an instance. A new name is added
  // at the end. A digest that is not there gives "N/A". That of its dam leaves an instance the positions behind the
  // 25th; one of the entry's own name makes it a dam's. Gives the number of the entry, from 1; a fault for an offset
  // outside of the positions.
  std::size_t LoadDigestEntry(int fieldOffset, const std::string& digestPath, const std::string& entryName);

  const std::vector<SummaryEntry>& entries() const { return entries_.all(); }
  EntryList& list() { return entries_; }
  std::vector<std::string> entryNames() const;
  const FieldCatalogues& catalogues() const { return catalogues_; }

  const SummarySelection& selection() const { return selection_; }
  void setSelection(SummarySelection selection) { selection_ = std::move(selection); }
  const std::string& summaryOrder() const { return summaryOrder_; }
  void setSummaryOrder(const std::string& order) { summaryOrder_ = order; }

  std::string projectFile() const;  // path of the open project's summary file, whatever its letter case

 private:
  std::size_t damFields() const { return catalogues_.fieldTitles[0].size(); }
  void clear();
  void tellUnreadable();
  void loadEntry(DigestPlaces& places, const std::string& name);
  void takeDamDigest(EntryValues& values, const std::string& path, std::size_t most);

  Ports& ports_;
  const ApplicationState& state_;
  const FieldCatalogues& catalogues_;
  EntryList entries_;
  EntryValues damValues_;  // of the digest of a dam that was read last, while entries are loaded
  std::string damPath_;
  SummarySelection selection_;
  std::string summaryOrder_ = kByColumn;
  bool fileUnread_ = false;  // the project's file holds what the store does not know
};

}  // namespace kestra
