#include "shell/frm_error_table.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "controls/ranges.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr int kSlot = static_cast<int>(WindowSlot::errorTable);
constexpr int kKind = 1;  // the column that says whether it is an error, and from which the way leads
constexpr int kMessage = 3;
constexpr std::array<const char*, 7> kErrorColumns = {
    "Number",      "Error or Warning", "Error/Warning Code", "Error/Warning Message",
    "Screen Name", "Tab Number",       "Current Value(s)"};
constexpr std::array<int, 7> kWidths = {800, 1400, 1600, 3200, 2600, 1100, 2600};  // twips

// By the number that a finding has for them.
constexpr std::array<const char*, kCheckedScreens + 1> kScreens = {"",
                                                                   "frmProjectInformation",
                                                                   "Properties",
                                                                   "frmDamSurface",
                                                                   "frmStructureTable",
                                                                   "frmHydrographData",
                                                                   "frmPSType",
                                                                   "frmPSConduit",
                                                                   "frmPSRatingTable",
                                                                   "frmAuxSpillways",
                                                                   "frmAuxSpillwayProfile",
                                                                   "frmAuxRatingTable",
                                                                   "frmKestra"};
constexpr int kSpillways = 9;
constexpr int kSpillwayProperties = 10;
constexpr int kSpillwayRating = 11;

// A line of the table holds some 26 characters of the message.
int heightFor(std::string_view message) {
  constexpr int kLine = 225;  // twips
  constexpr int kCharacters = 26;
  return static_cast<int>(charCount(message)) / kCharacters * kLine + kLine;
}

}  // namespace

frmErrorTable::frmErrorTable(ScreenContext& context, InputScreenSet& input)
    : Screen("frmErrorTable", "Error Table"), context_(context), input_(input) {
  constexpr int kWidth = 13500;
  constexpr int kHeight = 6000;
  setSize(kWidth, kHeight);
  for (Menu& entry : mnuWindowsArray) entry.setVisible(false);
  for (std::size_t i = 0; i < kWidths.size(); ++i) errTable.setColumnWidth(static_cast<int>(i), kWidths[i]);
  errTable.onDoubleClick = [this] { goToScreen(); };
  errTable.onKeyPress = [this](const Key& key) {
    if (key.character == kEnter) goToScreen();
  };
  mnuElement.onClick = [this] { goToScreen(); };
  mnuExit.onClick = [this] { context_.host.unload(*this); };
}

void frmErrorTable::load() {
  context_.state.window(kSlot) = true;
  BuildTable();
}

void frmErrorTable::unload() {
  context_.state.window(kSlot) = false;
  errorRows.clear();
}

void frmErrorTable::BuildTable() {
  context_.host.load(*this);
  errorRows.clear();
  errTable.restoreDesign();
  for (std::size_t i = 0; i < kErrorColumns.size(); ++i) errTable.setCell(0, static_cast<int>(i), kErrorColumns[i]);
}

int frmErrorTable::ReadDamFindings(const std::string& errPath, int rowCount) {
  return take(readDamFindings(context_.ports.files, errPath), rowCount);
}

int frmErrorTable::ReadSpillwayFindings(const std::string& errPath, int rowCount) {
  return take(readSpillwayFindings(context_.ports.files, errPath), rowCount);
}

int frmErrorTable::take(const std::vector<ErrorRow>& found, int rowCount) {
  std::vector<ErrorRow> rows = errorRows;
  rows.resize(std::min(rows.size(), static_cast<std::size_t>(std::max(rowCount, 0))));
  rows.insert(rows.end(), found.begin(), found.end());
  BuildTable();
  errorRows = std::move(rows);
  const int count = static_cast<int>(errorRows.size());
  errTable.growTo(count + errTable.fixedRows());
  for (int row = 1; row <= count; ++row) showRow(row, errorRows[static_cast<std::size_t>(row - 1)]);
  errTable.setCursor({1, kKind});
  return count;
}

void frmErrorTable::showRow(int row, const ErrorRow& finding) {
  const std::string message(messageOf(finding));
  const std::array<std::string, kErrorColumns.size()> cells = {std::to_string(row),
                                                               finding.isError ? "Error" : "Warning",
                                                               std::to_string(finding.code),
                                                               message,
                                                               std::string(screenNameOf(finding)),
                                                               std::to_string(finding.tabNumber),
                                                               valuesOf(finding)};
  for (std::size_t i = 0; i < cells.size(); ++i) errTable.setCell(row, static_cast<int>(i), cells[i]);
  errTable.setRowHeight(row, heightFor(message));
}

bool frmErrorTable::showFindings(const std::string& errPath) {
  BuildTable();
  int rows = ReadDamFindings(errPath + "0", 0);
  for (int spillway = 1; spillway <= kAuxSpillways; ++spillway) {
    rows = ReadSpillwayFindings(errPath + std::to_string(spillway), rows);
  }
  rows > 0 ? context_.host.show(*this) : static_cast<void>(context_.host.unload(*this));
  return rows > 0;
}

void frmErrorTable::goToScreen() {
  const CellPosition at = errTable.cursor();
  if (at.column != kKind || at.row < 1 || at.row > static_cast<int>(errorRows.size())) return;
  const ErrorRow& finding = errorRows[static_cast<std::size_t>(at.row - 1)];
  const bool global = finding.code == kDateFinding || finding.code == kGlobalFinding;
  global ? tellGlobal(finding) : goTo(finding);
}

void frmErrorTable::tellGlobal(const ErrorRow& finding) {
  const char* text =
      "Save or Import the control file to update the QUIL Date Field before checking this warning/error.";
  if (finding.code == kDateFinding) {
    text = "Save or Import the control file to update the QUIL Date Field.";
  } else if (errorRows.front().code != kDateFinding) {
    text = "Global Error Message -- Check Input File.";
  }
  context_.ports.boxes.tell("Global Error", text, BoxIcon::information);
}

// The checker of the dam cannot tell which spillway it means; that of a spillway means its properties where they can be
// seen.
int frmErrorTable::screenFor(const ErrorRow& finding) const {
  const int number = finding.screenNumber;
  const bool ofOne = number == kSpillwayProperties || number == kSpillwayRating;
  if (finding.spillwayNumber < 1) return ofOne ? kSpillways : number;
  return number == kSpillways && input_.auxSpillwayProfile.loaded() ? kSpillwayProperties : number;
}

void frmErrorTable::goTo(const ErrorRow& finding) {
  Screen* target = context_.host.find(kScreens.at(static_cast<std::size_t>(screenFor(finding))));
  if (target == nullptr || !target->loaded()) {
    return context_.ports.boxes.tell("Error", "Screen Not Loaded -- Check Input File.", BoxIcon::warning);
  }
  const int spillway = std::clamp<int>(finding.spillwayNumber - 1, 0, kAuxSpillways - 1);
  input_.auxSpillwayProfile.showSpillway(spillway);
  context_.host.show(*target);
  Control* tabs = target->find("SSTab1");
  if (tabs != nullptr && tabs->kind() == ControlKind::tabs) static_cast<Tabs*>(tabs)->userSelect(finding.tabNumber - 1);
}

}  // namespace kestra
