#include "summary/summary_table_screen.h"

#include <map>

#include "base/runtime_fault.h"
#include "controls/screen_host.h"
#include "results/input_digest.h"
#include "results/result_files.h"

namespace kestra {
namespace {

constexpr const char* kCellFont = "Courier New";

}  // namespace

SummaryTableScreen::SummaryTableScreen(SummaryContext& context, std::string name, std::string title, std::string header)
    : Screen(std::move(name), std::move(title)), context_(context), header_(std::move(header)) {
  constexpr int kWidth = 10320;
  constexpr int kHeight = 6600;
  setSize(kWidth, kHeight);
  lbl_Header.setCaption(header_);
  for (Table* grid : {&sumTable, &metaSum}) grid->setFontName(kCellFont);
  joinCommands();
}

void SummaryTableScreen::load() {
  if (Table* dams = damGrid()) dams->setFontName(kCellFont);
  ComputeTableValues();
}

void SummaryTableScreen::unload() {
  shown_.clear();
  all_.clear();
  allOnShow_ = false;
}

void SummaryTableScreen::ComputeTableValues() {
  byRow_ = order() == kByRow;
  shown_ = condensedEntries();
  showList();
}

ShownRows SummaryTableScreen::condensedEntries() {
  ShownRows rows = kestra::ComputeTableValues(entries());
  markChangedInputs(rows);
  return rows;
}

ShownRows SummaryTableScreen::everyEntry() {
  SortEnteries();
  ShownRows rows = rowsOfAll(entries());
  markChangedInputs(rows);
  return rows;
}

void SummaryTableScreen::BuildTable() {
  ComputeTableValues();
}

// From 0; the number counts from 1.
std::size_t SummaryTableScreen::placeOfEntry(std::size_t number) {
  if (number < 1 || number > entries().size()) throw RuntimeFault("subscript out of range");
  return number - 1;
}

void SummaryTableScreen::UpdateEntryArray(std::size_t a, std::size_t b) {
  entries().UpdateEntryArray(placeOfEntry(a), placeOfEntry(b));
}

void SummaryTableScreen::ModifyEntryArray(std::size_t first, std::size_t position) {
  entries().ModifyEntryArray(placeOfEntry(first), placeOfEntry(position));
}

void SummaryTableScreen::ModifyTable(std::size_t entryIndex) {
  const std::string name = entries()[placeOfEntry(entryIndex)].name;
  BuildTable();
  select(name);
}

void SummaryTableScreen::StoreValues(std::size_t first, std::size_t last) {
  if (last == 0) last = first;
  if (first < 1 || last < first || last > entries().size()) throw RuntimeFault("subscript out of range");
  kestra::StoreValues(entries(), {first - 1, last - 1}, shown_);
  markChangedInputs(shown_);
  showList();
}

void SummaryTableScreen::ComputeSumTableValues() {
  const ShownRow* row = selectedRow();
  all_ = row == nullptr ? ShownRows() : kestra::ComputeSumTableValues(entries(), row->entry.name);
  markChangedInputs(all_);
}

void SummaryTableScreen::BuildAuxTable() {
  allOnShow_ = true;
  fillGrids();
}

void SummaryTableScreen::showAll(ShownRows rows, const std::string& header) {
  all_ = std::move(rows);
  markChangedInputs(all_);
  lbl_Header.setCaption(header);
  BuildAuxTable();
}

void SummaryTableScreen::showList() {
  allOnShow_ = false;
  lbl_Header.setCaption(header_);
  fillGrids();
}

SummaryTable SummaryTableScreen::table() {
  SummarySelection selection = context_.store.selection();
  if (damGrid() == nullptr) selection.selectedFields[static_cast<std::size_t>(SummaryLevel::dam)].clear();
  return makeSummaryTable(rowsOnShow(), selection, context_.store.catalogues());
}

// The entry that was selected stays so, in its row where it still stands there.
void SummaryTableScreen::fillGrids() {
  const CellPosition selected = metaSum.cursor();
  const auto nameAt = [this](CellPosition at) { return byRow_ ? metaSum.cell(at.row, 0) : metaSum.cell(0, at.column); };
  const std::string name = nameAt(selected);
  const SummaryTable content = table();
  if (Table* dams = damGrid()) fill(*dams, gridOfLevel(content, SummaryLevel::dam));
  fill(sumTable, gridOfLevel(content, SummaryLevel::instance));
  fill(metaSum, gridOfTypes(content));
  if (metaSum.holds(selected) && nameAt(selected) == name) return metaSum.setCursor(selected);
  select(name);
}

void SummaryTableScreen::fill(Table& grid, const TextGrid& content) {
  TextGrid shown = byRow_ ? content : turned(content);
  grid.become({shown.rows, shown.columns, 1, 1}, std::move(shown.cells));
}

int SummaryTableScreen::selectedIndex() const {
  const CellPosition cursor = metaSum.cursor();
  if (!metaSum.holds(cursor)) return -1;
  return (byRow_ ? cursor.row : cursor.column) - 1;
}

const ShownRow* SummaryTableScreen::selectedRow() const {
  const int index = selectedIndex();
  const ShownRows& rows = rowsOnShow();
  return index < 0 || index >= static_cast<int>(rows.size()) ? nullptr : &rows[static_cast<std::size_t>(index)];
}

void SummaryTableScreen::select(const std::string& name) {
  const ShownRows& rows = rowsOnShow();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].entry.name != name) continue;
    const int place = static_cast<int>(i) + 1;
    return metaSum.setCursor(byRow_ ? CellPosition{place, 1} : CellPosition{1, place});
  }
}

// Each run is looked at once.
void SummaryTableScreen::markChangedInputs(ShownRows& rows) {
  FileSystem& files = context_.ports().files;
  DigestPlaces places = digestPlaces();
  std::map<std::string, bool> ofRun;  // by what the names of its entries have in common
  std::map<std::string, bool> ofFile;
  for (ShownRow& row : rows) {
    const std::string run(runOfInstance(row.entry.name).value_or(row.entry.name));
    const auto [known, isNew] = ofRun.try_emplace(run);
    if (isNew) {
      const std::string base = placeOf(places, row.entry.name).run;
      const auto [file, isNewFile] = ofFile.try_emplace(base);
      if (isNewFile && !base.empty()) {
        const std::string input = base + ".KSC";
        file->second = inputHasChanged(files, input) || context_.runs.screensDiffer(input);
      }
      known->second = file->second;
    }
    row.inputChanged = known->second;
  }
}

void SummaryTableScreen::followInputs() {
  markChangedInputs(shown_);
  markChangedInputs(all_);
  fillGrids();
}

void SummaryTableScreen::GetFileToOpen() {
  const ShownRow* row = selectedRow();
  DigestPlaces places = digestPlaces();
  const EntryPlace place = row == nullptr ? EntryPlace() : placeOf(places, row->entry.name);
  const auto file = [&](const char* extension) {
    return place.stem.empty() ? std::string() : presentPath(context_.ports().files, place.stem + extension);
  };
  textFile_ = file(".OUT");
  graphFile_ = file(place.ofInstance ? ".V2D" : ".KSC");
  ofInstance_ = place.ofInstance;
}

void SummaryTableScreen::viewText() {
  GetFileToOpen();
  if (!textFile_.empty()) context_.runs.showText(textFile_, ofInstance_);
}

void SummaryTableScreen::viewGraphs() {
  GetFileToOpen();
  if (!graphFile_.empty()) context_.runs.showGraphs(graphFile_, ofInstance_);
}

}  // namespace kestra
