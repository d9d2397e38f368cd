#pragma once

#include <functional>
#include <string>

#include "controls/simple_controls.h"
#include "controls/table.h"
#include "summary/digest_places.h"
#include "summary/summary_context.h"
#include "summary/summary_table.h"

namespace kestra {

// A table of runs: one of a project, or one of the instances of a spillway. A run of several instances is condensed
// into three rows. The grids hold an entry a row or, with summaryOrder "2", a column; the first of it is its name. Rows
// are selected in metaSum. On an empty table no command does anything.
class SummaryTableScreen : public Screen {
 public:
  SummaryTableScreen(SummaryContext& context, std::string name, std::string title, std::string header);

  Label lbl_Header{*this, "lbl_Header"};
  Table sumTable{*this, "sumTable", {1, 1, 1, 1}};  // fields of instances
  Table metaSum{*this, "metaSum", {1, 1, 1, 1}};    // types, and whose input has changed
  Button cmdViewAll{*this, "cmdViewAll", "View All"};
  Button cmdViewDam{*this, "cmdViewDam", "View Dam"};
  Button cmdDelete{*this, "cmdDelete", "&Delete"};
  Button cmdDelAll{*this, "cmdDelAll", "Delete &All"};
  Button cmdGraph{*this, "cmdGraph", "View &Graphs"};
  Button cmdText{*this, "cmdText", "View &Text"};
  Button cmdSumGraph{*this, "cmdSumGraph", "&Summary Graphs"};
  Menu mnuDelete{*this, "mnuDelete", "&Delete"};
  Menu mnuDeleteAll{*this, "mnuDeleteAll", "Delete &All"};
  Menu mnuExport{*this, "mnuExport", "&Export..."};
  Menu mnuPrint{*this, "mnuPrint", "&Print..."};
  Menu mnuExit{*this, "mnuExit", "E&xit"};
  Menu mnuGraph{*this, "mnuGraph", "View &Graphs"};
  Menu mnuText{*this, "mnuText", "View &Text"};
  Menu mnuSummaryGraphs{*this, "mnuSummaryGraphs", "&Summary Graphs"};
  Menu mnuCascade{*this, "mnuCascade", "&Cascade"};
  Menu mnuTile{*this, "mnuTile", "&Tile"};

  void ComputeTableValues();  // the rows of the entries as they are now; on a loaded screen they are shown
  void BuildTable();          // the same
  // Shows an entry that was entered anew, by its number from 1: the grids are those of BuildTable. A fault for a number
  // that no entry has.
  void ModifyTable(std::size_t entryIndex);
  void ComputeSumTableValues();  // finds the instances of the selected row's run; none without such a row
  void BuildAuxTable();          // shows those that were found, a row each
  void SortEnteries() { entries().SortEnteries(); }
  // Those of EntryList, by the numbers of entries, from 1. A fault outside of the entries.
  void UpdateEntryArray(std::size_t a, std::size_t b);
  void ModifyEntryArray(std::size_t first, std::size_t position);
  void DiscardEntryOfSameType(const std::string& name) { entries().discard({name}); }
  // Adds the rows of entries `first` to `last`, from 1, to those of the table; a last of 0: of the first alone. A fault
  // outside of the entries.
  void StoreValues(std::size_t first, std::size_t last);
  void followInputs();  // tells anew whose input has changed
  // Works out which text and which graphs the selected row leads to; empty without one.
  void GetFileToOpen();

  ShownRows condensedEntries();  // the rows that the list has, whatever is on show
  ShownRows everyEntry();        // a row for each entry

  virtual EntryList& entries() = 0;
  const ShownRows& shownRows() const { return shown_; }  // the list, condensed
  const ShownRows& rowsOnShow() const { return allOnShow_ ? all_ : shown_; }
  std::size_t allInstancesCount() const { return all_.size(); }
  const std::string& textFile() const { return textFile_; }
  const std::string& graphFile() const { return graphFile_; }

  std::function<void()> onSummaryGraphs;  // the user wants to see two fields against each other
  std::function<void()> onDeleted;        // entries are gone from the store
  std::function<void()> onAllDeleted;     // all entries of this table are

 protected:
  void load() override;
  void unload() override;
  virtual std::string order() = 0;              // summaryOrder
  virtual Table* damGrid() { return nullptr; }  // fields of dams, where the screen has them
  virtual void viewAll() = 0;
  virtual void viewDam() = 0;

  const ShownRow* selectedRow() const;  // null: none
  virtual EntryPlace placeOf(DigestPlaces& places, const std::string& name) { return places.place(name); }
  DigestPlaces digestPlaces() { return {context_.ports().files, context_.state().projectDir}; }
  void showAll(ShownRows rows, const std::string& header);  // in place of the list
  void showList();

  SummaryContext& context_;

 private:
  void joinCommands();
  std::size_t placeOfEntry(std::size_t number);
  void fillGrids();
  void fill(Table& grid, const TextGrid& content);
  int selectedIndex() const;
  void select(const std::string& name);
  bool mayDelete(const std::string& question);
  void deleteSelected();
  void deleteAll();
  void deleteEntries(const std::vector<std::string>& names);
  void exportTable();
  Result<std::string> exported(const std::string& path);
  void print();
  void viewGraphs();
  void viewText();
  void markChangedInputs(ShownRows& rows);
  SummaryTable table();

  std::string header_;
  ShownRows shown_;
  ShownRows all_;           // the instances of one run, as they were found last
  bool allOnShow_ = false;  // these stand in the grids
  bool byRow_ = false;
  std::string textFile_;
  std::string graphFile_;
  bool ofInstance_ = false;  // these are an instance's
};

}  // namespace kestra
