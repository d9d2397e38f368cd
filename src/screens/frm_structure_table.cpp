#include "screens/frm_structure_table.h"

#include <algorithm>

#include "base/text.h"
#include "controls/undo_history.h"
#include "platform/files.h"
#include "screens/file_choice.h"
#include "screens/frm_project_information.h"
#include "screens/hydrograph_fault.h"

namespace kestra {
namespace {

constexpr const char* kHeadings[] = {"Elevation, ft", "Principal Spillway Discharge, cfs ",
                                     "Reservoir Storage Volume, acre-ft", "Reservoir Surface Area, acres"};
constexpr const char* kStructureFilter = "All Files (*.*)|*.*|Structure Table Files (*.STR)|*.STR";
constexpr const char* kTextFilter = "All Files (*.*)|*.*|Text Files (*.txt)|*.txt";
constexpr const char* kTorveFilter = "All Files (*.*)|*.*| Torve Output File (*.OUT)|*.OUT";
constexpr const char* kFileBox = "Select File";  // title of what is told of a file that was read
constexpr NoNameBox kNoFile = {"Select a File", "No filename is provided"};

FileDialog dialog(FileDialog::Kind kind, const char* title, const char* filter) {
  return {kind, title, filter, 2, {}, false};
}

bool holdsValues(const std::vector<StructureRow>& rows) {
  const auto filled = [](const std::string& text) { return !trim(text).empty(); };
  return std::any_of(rows.begin(), rows.end(),
                     [&filled](const StructureRow& row) { return std::any_of(row.begin(), row.end(), filled); });
}

TableRules rules() {
  TableRules rules;
  rules.values = 4;
  rules.everyValueRequired = false;
  return rules;
}

}  // namespace

frmStructureTable::frmStructureTable(InputContext& context)
    : InputScreen(context, "frmStructureTable", "Structure Table", "html\\StructureTable.htm"),
      editMenu(*this, context.base.ports, PointDirection::downRows, [this]() -> Table& { return grdTable; }),
      editor_(grdTable, rules(), context.base.ports, cmdNext) {
  alsoCalled(optFEET, "optFeet");
  grdTable.onFocus = [this] { editor_.cursorOnFirstCell(); };
}

void frmStructureTable::load() {
  for (int i = 0; i < 4; ++i) grdTable.setCell(0, i + 1, kHeadings[i]);
  setRowNum();
  setColWidth();
  setRowHeight();
}

void frmStructureTable::setRowNum() {
  numberRows(grdTable);
}

void frmStructureTable::setColWidth() {
  grdTable.setColumnWidth(0, 500);
  for (int column = 1; column < grdTable.columns(); ++column) {
    grdTable.setColumnWidth(column, 1750);
    grdTable.setCentred(column, true);
  }
}

void frmStructureTable::setRowHeight() {
  grdTable.setRowHeight(0, 560);
}

void frmStructureTable::clearTable() {
  const Gesture gesture(host().history(), nullptr);
  grdTable.clearData();
  grdTable.userEdited();
}

void frmStructureTable::activate() {
  showStart();
  if (!optCFS.visible() && !optFEET.selected()) optFEET.setSelected(true);
}

void frmStructureTable::showStart() {
  const frmProjectInformation* project = context_.screens.projectInformation;
  optCFS.setVisible(project != nullptr && project->optNoBreachAnalysis.selected());
}

void frmStructureTable::mnuImportTorve_Click() {
  Ports& ports = context_.base.ports;
  const auto file = chooseNamedFile(ports, dialog(FileDialog::Kind::open, "Open File", kTorveFilter),
                                    {"Open File", "No filename provided."});
  if (!file) return;
  const auto text = readLines(ports, *file);
  if (!text) return;
  if (const auto rating = readTorveRating(text.value())) takeRows(*rating);
}

void frmStructureTable::mnuOpen_Click() {
  Ports& ports = context_.base.ports;
  const auto name = chooseNamedFile(ports, dialog(FileDialog::Kind::open, "Select a file", kStructureFilter), kNoFile);
  if (!name) return;
  const auto text = readLines(ports, *name);
  if (!text) return;
  const auto file = readStructureFile(text.value());
  if (!file) {
    ports.boxes.tell(kFileBox, "The selected file is not in the correct format.", BoxIcon::warning);
    return;
  }
  const Gesture gesture(host().history(), nullptr);
  if (takeFile(*name, *file) && file->identifier) txtStructureID.setText(*file->identifier);
}

bool frmStructureTable::takeFile(const std::string& path, const StructureFile& file) {
  const auto tell = [this](const std::string& text) {
    context_.base.ports.boxes.tell(kFileBox, text, BoxIcon::warning);
  };
  const bool taken = holdsValues(file.rows) || (file.ended && file.fault.empty());
  if (taken) takeRows(file.rows);
  if (!file.fault.empty()) {
    tell(path + ", " + file.fault);
  } else if (!taken) {
    tell("The file holds no points.");
  } else if (file.points > file.rows.size()) {
    tell(morePointsThanTaken(file.points, file.rows.size()));
  }
  return taken;
}

void frmStructureTable::mnuSave_Click() {
  const auto file = chooseFile(context_.base.ports, dialog(FileDialog::Kind::save, "Save File", kStructureFilter));
  if (file && !file->empty()) saveStructureTable(*file);
}

void frmStructureTable::mnuImport_Click() {
  Ports& ports = context_.base.ports;
  const auto file = chooseNamedFile(ports, dialog(FileDialog::Kind::open, "Select a file", kTextFilter), kNoFile);
  if (!file) return;
  const auto text = readLines(ports, *file);
  if (!text) return;
  StructureFile read;
  read.rows = readStructureTabs(text.value(), static_cast<std::size_t>(grdTable.rows() - 1), &read.fault, &read.points);
  takeFile(*file, read);
}

void frmStructureTable::mnuExport_Click() {
  Ports& ports = context_.base.ports;
  const auto file = chooseNamedFile(ports, dialog(FileDialog::Kind::save, "Select a file", kTextFilter), kNoFile);
  if (file) (void)writeWholeFile(ports.files, *file, structureTabsText(rows()));
}

void frmStructureTable::saveStructureTable(const std::string& fileName) {
  Ports& ports = context_.base.ports;
  const std::string tooLong = valuesTooLong(rows());
  if (!writeWholeFile(ports.files, fileName, structureFileText(txtStructureID.text(), rows()))) return;
  if (tooLong.empty()) return;
  ports.boxes.tell("Save File", "These values do not fit their ten columns: " + tooLong + ".", BoxIcon::warning);
}

std::vector<StructureRow> frmStructureTable::rows() const {
  std::vector<StructureRow> all;
  for (int row = 1; row < grdTable.rows(); ++row) {
    all.push_back({grdTable.cell(row, 1), grdTable.cell(row, 2), grdTable.cell(row, 3), grdTable.cell(row, 4)});
  }
  return all;
}

void frmStructureTable::takeRows(const std::vector<StructureRow>& taken) {
  const Gesture gesture(host().history(), nullptr);
  clearTable();
  int row = 1;
  for (const StructureRow& texts : taken) {
    for (int value = 0; value < 4; ++value) grdTable.setCell(row, value + 1, texts[static_cast<std::size_t>(value)]);
    ++row;
  }
  grdTable.userEdited();
}

}  // namespace kestra
