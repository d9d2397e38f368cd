#include "controls/screen_host.h"
#include "graphics/table_pages.h"
#include "platform/files.h"
#include "results/input_digest.h"
#include "screens/file_choice.h"
#include "summary/summary_table_screen.h"
#include "summary/table_formats.h"

namespace kestra {
namespace {

constexpr const char* kDelete = "Delete All";
constexpr const char* kExport = "Export Summary File";

struct FixedMetrics : TextMetrics {
  TextSize measure(std::string_view text, double, bool) const override { return fixedTextSize(text); }
};

}  // namespace

void SummaryTableScreen::joinCommands() {
  const struct {
    std::initializer_list<Command*> commands;
    std::function<void()> action;
  } actions[] = {
      {{&cmdViewAll}, [this] { viewAll(); }},
      {{&cmdViewDam}, [this] { viewDam(); }},
      {{&cmdDelete, &mnuDelete}, [this] { deleteSelected(); }},
      {{&cmdDelAll, &mnuDeleteAll}, [this] { deleteAll(); }},
      {{&cmdGraph, &mnuGraph}, [this] { viewGraphs(); }},
      {{&cmdText, &mnuText}, [this] { viewText(); }},
      {{&cmdSumGraph, &mnuSummaryGraphs},
       [this] {
         if (onSummaryGraphs && !rowsOnShow().empty()) onSummaryGraphs();
       }},
      {{&mnuExport}, [this] { exportTable(); }},
      {{&mnuPrint}, [this] { print(); }},
      {{&mnuExit}, [this] { host().unload(*this); }},
  };
  for (const auto& [commands, action] : actions) {
    for (Command* command : commands) command->onClick = action;
  }
  const auto arranges = [this](Menu& menu, WindowArrangement arrangement) {
    menu.onClick = [this, arrangement] {
      if (host().onArrange) host().onArrange(arrangement);
    };
  };
  arranges(mnuCascade, WindowArrangement::cascade);
  arranges(mnuTile, WindowArrangement::tile);
}

bool SummaryTableScreen::mayDelete(const std::string& question) {
  MessageBoxes& boxes = context_.ports().boxes;
  if (!context_.state().projectReadOnly) return boxes.confirm(kDelete, question);
  boxes.tell(kDelete, "The project is open in another program.", BoxIcon::warning);
  return false;
}

void SummaryTableScreen::deleteSelected() {
  const ShownRow* row = selectedRow();
  if (row == nullptr) return;
  if (!mayDelete("Do you really want to delete the selected entry and all the corresponding files?")) return;
  const std::string name = row->entry.name;
  deleteEntries(row->isCondensed() ? namesOfRun(entries(), name) : std::vector<std::string>{name});
}

void SummaryTableScreen::deleteAll() {
  if (entries().size() == 0) return;
  if (!mayDelete("Do you really want to delete all entries and corresponding output files?")) return;
  std::vector<std::string> names;
  for (const SummaryEntry& entry : entries().all()) names.push_back(entry.name);
  deleteEntries(names);
  context_.runs.forgetShown();
  if (onAllDeleted) onAllDeleted();
}

void SummaryTableScreen::deleteEntries(const std::vector<std::string>& names) {
  DigestPlaces places(context_.ports().files, context_.state().projectDir);
  std::vector<std::string> stems;
  for (const std::string& name : names) {
    const EntryPlace place = places.place(name);
    if (place.stem.empty()) continue;
    stems.push_back(place.stem);
    if (!place.ofInstance) dropInputDigest(context_.ports().files, place.run + ".KSC");
  }
  context_.runs.deleteRuns(stems);
  entries().discard(names);
  context_.store.list().discard(names);
  tellUnsaved(context_.ports().boxes, context_.store.SaveSummaryStore(context_.store.projectFile()));
  const std::string header = lbl_Header.caption();
  ShownRows left = allOnShow_ ? kestra::ComputeSumTableValues(entries(), names.front()) : ShownRows();
  BuildTable();
  if (!left.empty()) showAll(std::move(left), header);
  if (onDeleted) onDeleted();
}

void SummaryTableScreen::exportTable() {
  const auto path = chooseNamedFile(
      context_.ports(),
      {FileDialog::Kind::save, kExport, "All Files (*.*)|*.*|Text Files (*.txt)|*.txt", 2, {}, false},
      {"Select a File", "No filename is provided"});
  if (!path || !mayWrite(context_.ports(), *path, kExport)) return;
  const Result<std::string> content = exported(*path);
  const Status written =
      content ? writeWholeFile(context_.ports().files, *path, content.value()) : Status(content.failure());
  if (!written) tellFailure(context_.desk, written.failure());
}

Result<std::string> SummaryTableScreen::exported(const std::string& path) {
  const SummaryTable content = table();
  const auto grid = [&] { return byRow_ ? gridOfAll(content) : turned(gridOfAll(content)); };
  switch (tableForm(path)) {
    case TableForm::csv:
      return csvText(grid());
    case TableForm::json:
      return jsonText(content);
    case TableForm::xlsx:
      return xlsxTable(content);
    case TableForm::tabs:
      break;
  }
  return tabText(grid());
}

void SummaryTableScreen::print() {
  constexpr PictureSize kPage = {1123, 794};  // A4, lying
  const FixedMetrics fixed;
  const TextMetrics& metrics = context_.desk.pictures == nullptr ? fixed : context_.desk.pictures->metrics(kPage);
  const TextGrid grid = byRow_ ? gridOfAll(table()) : turned(gridOfAll(table()));
  const std::vector<CanvasLog> pages = tablePages({title(), grid.columns, grid.cells}, metrics);
  std::vector<const CanvasLog*> drawings;
  for (const CanvasLog& page : pages) drawings.push_back(&page);
  printPictures(context_.desk, drawings, kPage, "Unable to print the table, check printer.");
}

}  // namespace kestra
