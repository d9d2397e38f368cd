#include "screens/frm_structure_table.h"

#include "controls/undo_history.h"
#include "platform/files.h"
#include "screens/file_choice.h"
#include "screens/frm_project_information.h"

namespace kestra {
namespace {

constexpr const char* kHeadings[] = {"Elevation, ft", "Principal Spillway Discharge, cfs ",
                                     "Reservoir Storage Volume, acre-ft", "Reservoir Surface Area, acres"};
constexpr const char* kStructureFilter = "All Files (*.*)|*.*|Structure Table Files (*.STR)|*.STR";
constexpr const char* kTextFilter = "All Files (*.*)|*.*|Text Files (*.txt)|*.txt";
constexpr const char* kTorveFilter = "All Files (*.*)|*.*| Torve Output File (*.OUT)|*.OUT";
constexpr NoNameBox kNoFile = {"Select a File", "No filename is provided"};

FileDialog dialog(FileDialog::Kind kind, const char* title, const char* filter) {
  return {kind, title, filter, 2, {}, false};
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
    ports.boxes.tell("Select File", "The selected file is not in the correct format.", BoxIcon::warning);
    return;
  }
  const Gesture gesture(host().history(), nullptr);
  takeRows(file->rows);
  if (file->identifier) txtStructureID.setText(*file->identifier);
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
  if (text) takeRows(readStructureTabs(text.value(), static_cast<std::size_t>(grdTable.rows() - 1)));
}

void frmStructureTable::mnuExport_Click() {
  Ports& ports = context_.base.ports;
  const auto file = chooseNamedFile(ports, dialog(FileDialog::Kind::save, "Select a file", kTextFilter), kNoFile);
  if (file) (void)writeWholeFile(ports.files, *file, structureTabsText(rows()));
}

void frmStructureTable::saveStructureTable(const std::string& fileName) {
  (void)writeWholeFile(context_.base.ports.files, fileName, structureFileText(txtStructureID.text(), rows()));
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
