#include "screens/hydrograph_files.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "controls/undo_history.h"
#include "platform/files.h"
#include "screens/file_choice.h"
#include "screens/frm_hydrograph_data.h"
#include "screens/frm_hydrograph_select.h"
#include "screens/hydrograph_fault.h"
#include "screens/qt40_file.h"
#include "screens/thy_file.h"
#include "screens/vhy_file.h"

namespace kestra {
namespace {

constexpr const char* kTextFilter = "All Files (*.*)|*.*| Text Files (*.txt)|*.txt";
constexpr const char* kTorveFilter = "All Files (*.*)|*.*| Hydrograph Files (*.VHY)|*.VHY";
constexpr const char* kThyFilter = "All Files (*.*)|*.*|Hydrograph Data Files (*.THY)|*.THY";
constexpr const char* kTabFilter = "All Files (*.*)|*.*|Text Files (*.txt)|*.txt";
constexpr const char* kExportTrap = "Export File Error";
constexpr const char* kNoHydrograph = "The file holds no hydrograph.";
constexpr const char* kNoPoints = "The record holds no points.";
constexpr int kVhyColumn = 1;  // the files do not tell theirs

std::size_t pointsOf(const Table& table) {
  return static_cast<std::size_t>(table.rows() - 1);
}

std::vector<std::string> textsOf(const std::vector<HydrographRow>& rows, std::string HydrographRow::*text) {
  std::vector<std::string> texts;
  for (const HydrographRow& row : rows) texts.push_back(row.*text);
  return texts;
}

bool holdsFlows(const std::vector<HydrographRow>& rows) {
  return std::any_of(rows.begin(), rows.end(), [](const HydrographRow& row) { return !trim(row.flow).empty(); });
}

bool holdsPoints(const std::vector<HydrographRow>& rows) {
  const auto filled = [](const HydrographRow& row) { return !trim(row.time).empty() || !trim(row.flow).empty(); };
  return std::any_of(rows.begin(), rows.end(), filled);
}

}  // namespace

HydrographFiles::HydrographFiles(frmHydrographData& screen, InputContext& context)
    : mnuImportBasix(screen, "mnuImportBasix", "Import BASIX"),
      mnuImportRivex(screen, "mnuImportRivex", "Import RIVEX"),
      mnuImportTorve(screen, "mnuImportTorve", "Import TORVE"),
      mnuImportQT40(screen, "mnuImportQT40", "Import QT-40"),
      mnuImportTab(screen, "mnuImportTab", "ImportTab-delimited Text"),
      mnuExport(screen, "mnuExport", "Export TORVE"),
      mnuExportTab(screen, "mnuExportTab", "Export Tab-delimited Text"),
      screen_(screen),
      context_(context) {
  mnuImportBasix.onClick = [this] { importClocked(mnuImportBasix, readBasix); };
  mnuImportRivex.onClick = [this] { importClocked(mnuImportRivex, readRivex); };
  mnuImportTorve.onClick = [this] { importTorve(); };
  mnuImportQT40.onClick = [this] { importQt40(); };
  mnuImportTab.onClick = [this] { importTab(); };
  mnuExport.onClick = [this] { exportThy(); };
  mnuExportTab.onClick = [this] { exportTab(); };
}

std::optional<HydrographFiles::TextFile> HydrographFiles::readText(const std::string& path, const std::string& trap) {
  auto text = readLines(context_.base.ports, path);
  if (text) return TextFile{path, trap, std::move(text).value()};
  warn(trap, path + ": " + text.failure().reason);
  return std::nullopt;
}

std::optional<HydrographFiles::TextFile> HydrographFiles::chooseText(const Menu& command, const char* filter) {
  const auto path = chooseNamedFile(context_.base.ports, {FileDialog::Kind::open, "Open File", filter, 2, {}, false},
                                    {"Open File", "No filename provided."});
  if (!path) return std::nullopt;
  const bool isTab = &command == &mnuImportTab;  // its caption lacks a blank
  return readText(*path, (isTab ? "Import Tab-delimited Text" : command.caption()) + " File Error");
}

void HydrographFiles::warn(const std::string& title, const std::string& text) {
  context_.base.ports.boxes.tell(title, text, BoxIcon::warning);
}

bool HydrographFiles::tellFault(const TextFile& file, const std::string& fault) {
  if (!fault.empty()) warn(file.trap, file.path + ", " + fault);
  return !fault.empty();
}

void HydrographFiles::tellRest(const TextFile& file, std::size_t points, std::size_t taken) {
  if (points > taken) warn(file.trap, morePointsThanTaken(points, taken));
}

void HydrographFiles::takeVariable(const std::vector<HydrographRow>& rows) {
  screen_.selectForm(false);
  Table& table = screen_.varTable;
  fillColumn(table, kHydrographTime, textsOf(rows, &HydrographRow::time));
  fillColumn(table, kHydrographFlow, textsOf(rows, &HydrographRow::flow));
  table.userEdited();
}

void HydrographFiles::takeConstant(const std::vector<std::string>& flows, bool ended) {
  screen_.selectForm(true);
  Table& table = screen_.grdTable;
  fillColumn(table, kHydrographFlow, flows);
  ended ? fillColumn(table, kHydrographTime, {}) : screen_.renumber();
  table.userEdited();
}

void HydrographFiles::importClocked(const Menu& command, ClockedReader read) {
  const auto file = chooseText(command, kTextFilter);
  if (!file) return;
  const auto hydrograph = read(file->text, pointsOf(screen_.varTable));
  if (!hydrograph) return warn("File Import Error", "Invalid tab-delimited Rivex File");
  if (!holdsFlows(hydrograph->rows) && hydrograph->fault.empty()) return warn(file->trap, kNoHydrograph);
  takeVariable(hydrograph->rows);
  if (tellFault(*file, hydrograph->fault)) return;
  for (const int column : {kHydrographTime, kHydrographFlow}) screen_.varTable.setRightAligned(column, true);
  screen_.txtStartTime.setText("0.0");
  screen_.setIncrement("");
  screen_.txtTitle.setText(hydrograph->title);
  screen_.txtTitle.takeFocus();
  tellRest(*file, hydrograph->points, hydrograph->rows.size());
}

void HydrographFiles::importTab() {
  const auto file = chooseText(mnuImportTab, kTextFilter);
  if (!file) return;
  std::string fault;
  std::size_t points = 0;
  const std::vector<HydrographRow> rows = readTabRows(file->text, kMostHydrographPoints, &fault, &points);
  takeVariable(rows);
  if (tellFault(*file, fault)) return;
  if (!holdsPoints(rows)) warn(file->trap, kNoHydrograph);
  screen_.setIncrement("");
  tellRest(*file, points, rows.size());
}

std::optional<std::string> HydrographFiles::chooseEntry(std::vector<std::string> entries) {
  frmHydrographSelect* select = context_.screens.hydrographSelect;
  if (select == nullptr || entries.empty()) return std::nullopt;
  select->List1.setItems(std::move(entries));
  select->List1.setIndex(0);
  screen_.setHydrographCode("");
  context_.base.host.showModal(*select);
  if (screen_.hydrographCode().empty()) return std::nullopt;
  return screen_.hydrographCode();
}

void HydrographFiles::importQt40() {
  const auto file = chooseText(mnuImportQT40, kTextFilter);
  if (!file) return;
  std::vector<std::string> headers = qt40Headers(file->text);
  if (headers.empty()) return warn(file->trap, kNoHydrograph);
  if (!chooseEntry(std::move(headers))) return;
  screen_.hydrographSelected = std::max(context_.screens.hydrographSelect->List1.index(), 0);
  const Qt40Hydrograph hydrograph =
      readQt40(file->text, static_cast<std::size_t>(screen_.hydrographSelected), kMostHydrographPoints);
  if (hydrograph.flows.empty() && hydrograph.fault.empty()) return warn(file->trap, kNoPoints);
  screen_.txtTitle.setText(hydrograph.title);
  screen_.txtStartTime.setText(hydrograph.startTime);
  screen_.setIncrement(hydrograph.increment);
  screen_.setHeadings();
  takeConstant(hydrograph.flows, !hydrograph.fault.empty());
  tellFault(*file, hydrograph.fault);
  tellRest(*file, hydrograph.points, hydrograph.flows.size());
}

void HydrographFiles::importTorve() {
  const auto file = chooseText(mnuImportTorve, kTorveFilter);
  if (!file) return;
  const VhyContent content = scanVhy(file->text);
  if (content.isThy) {
    if (takeThy(*file)) context_.base.host.show(screen_);
    return;
  }
  std::vector<std::string> names;
  std::string code;
  for (const auto& named : frmHydrographSelect::namedCodes()) {
    if (std::find(content.codes.begin(), content.codes.end(), named.code) == content.codes.end()) continue;
    names.emplace_back(named.name);
    code = named.code;
  }
  if (names.empty() && !content.codes.empty()) return warn(file->trap, kNoHydrograph);
  if (names.size() > 1) code = chooseEntry(std::move(names)).value_or("");
  if (!code.empty()) importVhy(*file, code);
}

void HydrographFiles::importVhy(const TextFile& file, const std::string& code) {
  const VhyHydrograph hydrograph = readVhy(file.text, code, kVhyColumn, kMostHydrographPoints);
  if (!holdsFlows(hydrograph.rows)) {
    if (!tellFault(file, hydrograph.fault)) warn(file.trap, kNoPoints);
    return;
  }
  const bool ended = !hydrograph.fault.empty();
  screen_.txtStartTime.setText(hydrograph.startTime);
  takeVariable(hydrograph.rows);
  if (!ended) {
    screen_.txtDesired.setText(hydrograph.increment);
    screen_.setIncrement(hydrograph.increment);
    screen_.txtTitle.setText("");
  }
  takeConstant(textsOf(hydrograph.rows, &HydrographRow::flow), ended);
  tellRest(file, hydrograph.points, hydrograph.rows.size());
  if (!tellFault(file, hydrograph.fault)) context_.base.host.show(screen_);
}

// A record without points empties the table: so an empty table was written.
bool HydrographFiles::takeThy(const TextFile& file) {
  const auto hydrograph = readThy(file.text);
  if (!hydrograph) {
    warn(file.trap, kNoHydrograph);
    return false;
  }
  if (hydrograph->title) screen_.txtTitle.setText(*hydrograph->title);
  screen_.setIncrement(hydrograph->increment);
  takeConstant(hydrograph->flows, !hydrograph->fault.empty());
  if (hydrograph->flows.empty() && hydrograph->fault.empty()) warn(file.trap, kNoPoints);
  tellRest(file, hydrograph->points, std::min<std::size_t>(hydrograph->points, kMostHydrographPoints));
  return !tellFault(file, hydrograph->fault);
}

void HydrographFiles::LoadHydrographForms(const std::string& fileName) {
  const Gesture gesture(context_.base.host.history(), nullptr);
  if (const auto file = readText(fileName, "Import TORVE File Error")) takeThy(*file);
}

void HydrographFiles::SaveTable(const std::string& fileName) {
  ConstantHydrograph hydrograph{screen_.txtTitle.text(), screen_.txtConst.text(), {}};
  for (int row = 1; row < screen_.grdTable.rows(); ++row) {
    hydrograph.flows.push_back(screen_.grdTable.cell(row, kHydrographFlow));
  }
  if (!write(fileName, thyText(hydrograph))) return;
  for (const std::string& lost : lostInThy(hydrograph)) warn(kExportTrap, lost);
}

bool HydrographFiles::write(const std::string& path, std::string_view text) {
  const Status written = writeWholeFile(context_.base.ports.files, path, text);
  if (written) return true;
  warn(kExportTrap, written.failure().path + ": " + written.failure().reason);
  return false;
}

void HydrographFiles::exportThy() {
  if (!screen_.optConst.selected()) {
    return warn(kExportTrap, "Only a hydrograph with a constant time increment can be exported in this form.");
  }
  Ports& ports = context_.base.ports;
  auto path = chooseFile(ports, {FileDialog::Kind::save, "Save File", kThyFilter, 2, {}, false});
  if (!path) return;
  if (path->empty()) {
    const std::string& project = context_.base.state.projectDir;
    const std::string directory = project.empty() ? ports.files.currentDirectory() : project;
    ports.boxes.tell("Save File", "No filename was provided, default to " + joinPath(directory, "hydro.THY"),
                     BoxIcon::warning);
    path = joinPath(directory, "torve.THY");
  }
  SaveTable(*path);
}

void HydrographFiles::exportTab() {
  const auto path =
      chooseNamedFile(context_.base.ports, {FileDialog::Kind::save, "Select a file", kTabFilter, 2, {}, false},
                      {"Select a File", "No filename is provided"});
  if (!path) return;
  const bool constant = screen_.optConst.selected();
  const Table& table = constant ? screen_.grdTable : screen_.varTable;
  std::vector<HydrographRow> rows;
  for (int row = 1; row <= kMostHydrographPoints; ++row) {
    HydrographRow point{table.cell(row, kHydrographTime), table.cell(row, kHydrographFlow)};
    if (!constant || !point.flow.empty()) rows.push_back(std::move(point));
  }
  write(*path, tabRowsText(rows));
}

}  // namespace kestra
