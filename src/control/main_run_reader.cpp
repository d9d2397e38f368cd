#include "control/main_run_reader.h"

#include <algorithm>
#include <array>

#include "base/fields.h"
#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "screens/frm_aux_spillways.h"
#include "screens/frm_dam_surface.h"
#include "screens/frm_hydrograph_data.h"
#include "screens/frm_project_information.h"
#include "screens/frm_ps_conduit.h"
#include "screens/frm_ps_type.h"
#include "screens/frm_structure_table.h"
#include "screens/properties.h"

namespace kestra {
namespace {

constexpr std::string_view kNotTold = "SC";  // type of the principal spillway where no record tells one
constexpr std::string_view kHood = "HD";

class MainRunReader {
 public:
  MainRunReader(InputContext& input, ScreenFields& fields, ReadPlace& place)
      : input_(input), screens_(input.screens), fields_(fields), place_(place) {}

  void read(std::string_view text) {
    eachRecord(text, RunKind::main, [this](const ControlRecord& record) { findType(record); });
    try {
      eachRecord(text, RunKind::main, [this](const ControlRecord& record) {
        place_ = {record.lineNumber, record.layout->keyword};
        take(record);
      });
    } catch (const RuntimeFault&) {
      showComment();
      throw;
    }
    showComment();
  }

 private:
  using Handler = void (MainRunReader::*)(const ControlRecord&);
  struct Entry {
    std::string_view keyword;
    Handler handler;
  };

  static constexpr int kTypeColumn = 71;

  // PSpINLET stands before PSpDATA, which tells the type.
  void findType(const ControlRecord& record) {
    if (record.keyword == "PSpHOOD") {
      type_ = kHood;
      input_.base.host.load(*screens_.psType);
      screens_.psType->optHood.setSelected(true);
    } else if (record.keyword == "PSpDATA" && reaches(record.line, kTypeColumn)) {
      const std::string_view word = fieldText(*record.layout, record.line, "type");
      constexpr std::array<std::string_view, 4> kWords = {"SC", "TC", "SR", "TR"};
      if (std::ranges::find(kWords, word) != kWords.end()) type_ = word;
    }
  }

  void take(const ControlRecord& record) {
    static constexpr auto kHandlers = std::to_array<Entry>({{"OPTION", &MainRunReader::takeOption},
                                                            {"*", &MainRunReader::takeComment},
                                                            {"HCMODEL", &MainRunReader::takeHeadcutModel},
                                                            {"HYD", &MainRunReader::takeHydrograph},
                                                            {"STROUTE", &MainRunReader::takeRoutingStart},
                                                            {"STRUCTURE", &MainRunReader::takeStructure},
                                                            {"DWNSTREAM", &MainRunReader::takeDownstream},
                                                            {"CRESTPRFL", &MainRunReader::takePairs},
                                                            {"PSpDATA", &MainRunReader::takeConduit},
                                                            {"PSpHOOD", &MainRunReader::takeHood},
                                                            {"TAILWATER", &MainRunReader::takePairs},
                                                            {"ASSURFACE", &MainRunReader::takeSurface},
                                                            {"ASRATING", &MainRunReader::takeRating},
                                                            {"TEMPLATE", &MainRunReader::takeTemplate}});
    const auto found = std::ranges::find(kHandlers, record.layout->keyword, &Entry::keyword);
    found == kHandlers.end() ? put(*record.layout, record) : (this->*found->handler)(record);
  }

  void put(const RecordLayout& layout, const ControlRecord& record) {
    putFields(fields_, layout, record.line, spillway_);
  }

  void takeOption(const ControlRecord& record) {
    constexpr int kAnalysis = 41;
    constexpr int kDrawdownTime = 71;
    put(*record.layout, record);
    if (!reaches(record.line, kAnalysis)) return;
    frmHydrographData& hydrograph = *screens_.hydrographData;
    frmProjectInformation& project = *screens_.projectInformation;
    const bool drawdown = record.layout->id == "OPTION DRAWDOWN";
    const bool breach = !drawdown && record.layout->id != "OPTION NOBREACH";
    (breach ? project.optBreachAnalysis : project.optNoBreachAnalysis).setSelected(true);
    hydrograph.chk10daydrawdown.setChecked(drawdown);
    if (drawdown && !reaches(record.line, kDrawdownTime)) hydrograph.txtDrawdownTime.setText("240");
  }

  void takeComment(const ControlRecord& record) {
    const FieldText text = record.fields.named("comment");
    if (text.reached()) comment_.append(text.raw).append(kCrLf);
  }

  void showComment() { screens_.projectInformation->txtComments.setText(comment_); }

  void takeHeadcutModel(const ControlRecord& record) {
    constexpr int kModel = 11;
    const auto model = reaches(record.line, kModel) ? lenientNumber(columns(record.line, kModel, 10)) : 2;
    if (model != 1 && model != 2) return;
    const int number = model == 1 ? 1 : 2;
    screens_.properties->optHcModel(number).setSelected(true);
    put(*findRecord(number == 1 ? "HCMODEL 1" : "HCMODEL 2"), record);
  }

  void takeHydrograph(const ControlRecord& record) {
    const bool variable = record.layout->id == "HYD V";
    frmHydrographData& screen = *screens_.hydrographData;
    screen.chkAdjustTimeIncrement.setChecked(false);
    put(*record.layout, record);
    screen.selectForm(!variable);
    variable ? takeVariableRows(record) : takeConstantRows(record);
  }

  // Rows without a time are passed over.
  void takeVariableRows(const ControlRecord& record) {
    const CellLine times = cellsOf(record, 0);
    const CellLine flows = cellsOf(record, 1);
    int point = 0;
    eachRow(record, place_, [&](int, std::string_view line) {
      const FieldTexts texts = takeApartRow(*record.layout, line);
      if (texts[0].text().empty()) return;
      times.put(++point, texts[0].text());
      flows.put(point, texts[1].text());
    });
  }

  // Discharges one behind the other; blank fields are passed over.
  void takeConstantRows(const ControlRecord& record) {
    const CellLine flows = cellsOf(record, 0);
    int point = 0;
    eachRow(record, place_, [&](int, std::string_view line) {
      const FieldTexts texts = takeApartRow(*record.layout, line);
      for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!texts[i].text().empty()) flows.put(++point, texts[i].text());
      }
    });
  }

  CellLine cellsOf(const ControlRecord& record, std::size_t field) {
    const CellLine cells = fields_.cells(record.layout->table->fields[field], spillway_);
    input_.base.host.load(cells.table->screen());
    return cells;
  }

  // A line that ends before the unit is in feet.
  void takeRoutingStart(const ControlRecord& record) {
    put(*record.layout, record);
    const FieldLayout& unit = *findField(record.layout->fields, "unit");
    if (!reaches(record.line, unit.first)) fields_.put(unit, "", spillway_);
  }

  // Each cell that the line reaches, row by row.
  void takeStructure(const ControlRecord& record) {
    put(*record.layout, record);
    takeCells(record, {21, 31, 41, 51});
  }

  // Both cells of a line that is longer than 20.
  void takePairs(const ControlRecord& record) { takeCells(record, {21, 21}); }

  // Row n of the table from line n, each cell where the line has the column that is told for it.
  void takeCells(const ControlRecord& record, std::initializer_list<int> needed) {
    std::vector<CellLine> cells;
    for (std::size_t i = 0; i < needed.size(); ++i) cells.push_back(cellsOf(record, i));
    eachRow(record, place_, [&](int row, std::string_view line) {
      const FieldTexts texts = takeApartRow(*record.layout, line);
      for (std::size_t i = 0; i < cells.size(); ++i) {
        if (reaches(line, needed.begin()[i])) cells[i].put(row, texts[i].text());
      }
    });
  }

  // The line does not tell its layout; the surface on the screen does.
  void takeDownstream(const ControlRecord& record) {
    const frmProjectInformation& project = *screens_.projectInformation;
    const bool earth = project.optEarth.selected();
    const bool riprap = project.optRipRap.selected();
    put(*findRecord(earth ? "DWNSTREAM EARTH" : riprap ? "DWNSTREAM RIPRAP" : "DWNSTREAM BARE"), record);
  }

  void takeConduit(const ControlRecord& record) {
    frmPSType& type = *screens_.psType;
    fields_.put(*findField(record.layout->fields, "type"), type_, spillway_);
    const FieldTexts texts = takeApart(*record.layout, record.line);
    const bool rectangular = type.optSingleRec.selected() || type.optTwoRec.selected();
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const std::string_view name = texts.layout(i).name;
      const bool hidden = (name == "length" && type_ == kHood) || (name == "height" && !rectangular);
      if (name == "type" || hidden || !texts[i].reached()) continue;
      fields_.put(texts.layout(i), texts[i].text(), spillway_);
    }
  }

  // The weir coefficient goes to the box of the hood, which PSpCOEFFS then overwrites.
  void takeHood(const ControlRecord& record) {
    const FieldTexts texts = takeApart(*record.layout, record.line);
    for (std::size_t i = 0; i < texts.size(); ++i) {
      if (!texts[i].reached()) continue;
      if (texts.layout(i).name == "weir inlet") {
        input_.base.host.load(*screens_.psConduit);
        screens_.psConduit->txtHoodWeirInletCoefficient.setText(std::string(texts[i].text()));
      } else {
        fields_.put(texts.layout(i), texts[i].text(), spillway_);
      }
    }
  }

  // Makes the spillway that the record names the one of the fields behind; anything but 1 to 3 is the first.
  void takeNumber(const ControlRecord& record) {
    const std::string_view number = fieldText(*record.layout, record.line, "number");
    const bool known = number == "1" || number == "2" || number == "3";
    spillway_ = known ? number.front() - '1' : 0;
    int& count = input_.base.state.numAuxSpillways;
    count = std::max(count, spillway_ + 1);
  }

  // The fields but for the number, which is not of a screen.
  void takeSurface(const ControlRecord& record) {
    takeNumber(record);
    screens_.auxSpillways->optProfile(spillway_).setSelected(true);
    put(*record.layout, record);
    auto& reaches = input_.aux.auxProfile.at(static_cast<std::size_t>(spillway_)).reaches;
    eachRow(record, place_, [&](int row, std::string_view line) {
      if (row > kAuxPoints) throw RuntimeFault("more rows than the table holds");
      const FieldTexts texts = takeApartRow(*record.layout, line);
      for (std::size_t i = 0; i < texts.size() && texts[i].reached(); ++i) {
        reaches[static_cast<std::size_t>(row - 1)][i] = texts[i].text();
      }
    });
  }

  void takeRating(const ControlRecord& record) {
    takeNumber(record);
    screens_.auxSpillways->optRating(spillway_).setSelected(true);
    put(*record.layout, record);
    takeCells(record, {12, 22});
  }

  // A column of the table a line; the column behind the last one repeats the first, which closes the section. The mark
  // of the crest keeps its blanks.
  void takeTemplate(const ControlRecord& record) {
    constexpr std::string_view kCrest = "         X";
    Table& table = screens_.damSurface->xcTable;
    input_.base.host.load(*screens_.damSurface);
    eachRow(record, place_, [&](int column, std::string_view line) {
      if (column >= table.columns()) throw RuntimeFault("more rows than the table holds");
      const FieldTexts texts = takeApartRow(*record.layout, line);
      for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string_view text = texts[i].raw == kCrest ? kCrest : texts[i].text();
        table.setCell(static_cast<int>(i) + 1, column, std::string(text));
      }
      for (int row = 1; column > 1 && row < table.rows(); ++row) table.setCell(row, column + 1, table.cell(row, 1));
    });
  }

  InputContext& input_;
  InputScreens& screens_;
  ScreenFields& fields_;
  ReadPlace& place_;
  std::string_view type_ = kNotTold;
  std::string comment_;
  int spillway_ = 0;
};

void setDefaults(InputContext& input) {
  const InputScreens& screens = input.screens;
  input.base.state.numAuxSpillways = 0;
  for (Screen* screen :
       std::initializer_list<Screen*>{screens.projectInformation, screens.auxSpillways, screens.structureTable,
                                      screens.properties, screens.hydrographData}) {
    input.base.host.load(*screen);
    if (screen->visible()) input.base.host.hide(*screen);
  }
  for (OptionButton* option : {&screens.projectInformation->optSimple, &screens.projectInformation->optEarth,
                               &screens.projectInformation->optBreachAnalysis}) {
    option->setSelected(true);
  }
  for (int i = 0; i < kAuxSpillways; ++i) screens.auxSpillways->optNone(i).setSelected(true);
}

}  // namespace

void readMainRun(InputContext& input, ScreenFields& fields, std::string_view text, ReadPlace& place) {
  setDefaults(input);
  MainRunReader(input, fields, place).read(text);
}

}  // namespace kestra
