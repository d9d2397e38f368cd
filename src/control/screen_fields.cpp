#include "control/screen_fields.h"

#include <array>

#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "control/word_fields.h"
#include "controls/choices.h"
#include "controls/screen_host.h"
#include "screens/frm_ps_type.h"

namespace kestra {
namespace {

constexpr std::array<StoredField, 7> kStored = {
    {{"frmAuxSpillwayProfile.txtSide", "txtSide", &AuxProfile::txtSide},
     {"frmAuxSpillwayProfile.txtBottom", "txtBottom", &AuxProfile::txtBottom},
     {"frmAuxSpillwayProfile.txtElevation", "txtElevation", &AuxProfile::txtElevation},
     {"frmAuxSpillwayProfile.txtTopsoil", "txtTopsoil", &AuxProfile::txtTopsoil},
     {"frmAuxSpillwayProfile.txtEnd", "txtEnd", &AuxProfile::txtEnd},
     {"frmAuxSpillwayProfile.txtBreachDepth", "txtBreachDepth", &AuxProfile::txtBreachDepth},
     {"frmAuxSpillwayProfile.txtBarrier", "txtBarrier", &AuxProfile::txtBarrier}}};

// The weir coefficient of the inlet stands in a box of its own with a hood.
constexpr std::string_view kWeir = "frmPSConduit.txtHighStageWeirCoefficient, .txtHoodWeirInletCoefficient";
constexpr std::string_view kHighStageWeir = "frmPSConduit.txtHighStageWeirCoefficient";
constexpr std::string_view kHoodWeir = "frmPSConduit.txtHoodWeirInletCoefficient";

// A name with the index of the spillway in the place of "(i)".
std::string indexed(std::string_view name, int spillway) {
  std::string text(name);
  const std::size_t place = text.find("(i)");
  if (place != std::string::npos) text.replace(place + 1, 1, std::to_string(spillway));
  return text;
}

}  // namespace

std::span<const StoredField> storedFields() {
  return kStored;
}

const std::string& CellLine::cell(int point) const {
  return alongColumns ? table->cell(line, point) : table->cell(point, line);
}

void CellLine::put(int point, std::string_view text) const {
  if (point > points()) throw RuntimeFault("more rows than the table holds");
  alongColumns ? table->setCell(line, point, std::string(text)) : table->setCell(point, line, std::string(text));
}

Control& ScreenFields::control(std::string_view name, int spillway) {
  const std::string whole = indexed(name, spillway);
  const std::size_t dot = whole.find('.');
  Screen* screen = input_.base.host.find(whole.substr(0, dot));
  Control* found = screen == nullptr ? nullptr : screen->find(whole.substr(dot + 1));
  if (found == nullptr) throw RuntimeFault("there is no control " + whole);
  used.insert(whole);
  return *found;
}

// A screen that is given something is loaded, so that unloading it takes that away again.
Control& ScreenFields::loaded(Control& target) {
  input_.base.host.load(target.screen());
  return target;
}

std::string_view ScreenFields::boxName(std::string_view control) const {
  if (control != kWeir) return control;
  return input_.screens.psType->optHood.selected() ? kHoodWeir : kHighStageWeir;
}

std::string* ScreenFields::stored(std::string_view control, int spillway) {
  for (const StoredField& field : kStored) {
    if (field.control == control) return &(input_.aux.auxProfile.at(static_cast<std::size_t>(spillway)).*field.text);
  }
  return nullptr;
}

bool ScreenFields::isSelected(std::string_view option, int spillway) {
  return static_cast<OptionButton&>(control(option, spillway)).selected();
}

void ScreenFields::select(std::string_view option, int spillway) {
  static_cast<OptionButton&>(loaded(control(option, spillway))).setSelected(true);
}

std::string_view ScreenFields::text(const FieldLayout& field, int spillway) {
  if (const std::string* value = stored(field.control, spillway)) return *value;
  if (const WordField* words = findWordField(field.control)) {
    for (const WordChoice& choice : words->written) {
      if (isSelected(choice.option, spillway)) return choice.word;
    }
    return words->otherwise;
  }
  Control& target = control(boxName(field.control), spillway);
  if (target.kind() == ControlKind::check) return static_cast<CheckBox&>(target).checked() ? "1" : "0";
  return static_cast<TextBox&>(target).text();
}

void ScreenFields::put(const FieldLayout& field, std::string_view text, int spillway) {
  if (std::string* value = stored(field.control, spillway)) {
    *value = text;
  } else if (const WordField* words = findWordField(field.control)) {
    for (const WordChoice& choice : words->read) {
      if (choice.word == text) return select(choice.option, spillway);
    }
    if (!words->readOtherwise.empty()) select(words->readOtherwise, spillway);
  } else {
    Control& target = loaded(control(boxName(field.control), spillway));
    if (target.kind() == ControlKind::check) return static_cast<CheckBox&>(target).setChecked(text == "1");
    static_cast<TextBox&>(target).setText(std::string(text));
  }
}

CellLine ScreenFields::cells(const FieldLayout& field, int spillway) {
  constexpr std::string_view kColumn = " column ";
  constexpr std::string_view kRow = " row ";
  const bool alongColumns = field.control.find(kRow) != std::string_view::npos;
  const std::string_view word = alongColumns ? kRow : kColumn;
  const std::size_t place = field.control.find(word);
  const auto line = wholeNumber(field.control.substr(place + word.size()));
  return {&static_cast<Table&>(control(field.control.substr(0, place), spillway)), static_cast<int>(*line),
          alongColumns};
}

}  // namespace kestra
