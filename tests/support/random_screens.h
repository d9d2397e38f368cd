#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <string_view>

#include "sampling/distribution_catalogue.h"
#include "screens/input_screen_set.h"

namespace kestra {

// What of the screens' values is random.
struct Randomness {
  int longestText = 5;                        // characters of a field
  std::string_view alphabet = "0123456789.";  // of fields and cells
  bool gaps = false;                          // blank rows within tables, values without those before them
  bool hidden = false;                        // fields of choices that are not in force
};

// Fills all input screens and stores with random values. The same seed gives the same values everywhere.
class RandomScreens {
 public:
  RandomScreens(InputScreenSet& screens, ApplicationState& state, std::uint32_t seed, const Randomness& how)
      : screens_(screens), state_(state), random_(seed), how_(how) {}

  void fill() {
    for (Screen* screen : screens_.sequence()) {
      if (screen != &screens_.auxSpillwayProfile) fillControls(*screen);
    }
    screens_.projectInformation.txtComments.setText(comment());
    settle();
    state_.numAuxSpillways = static_cast<int>(below(4));
    screens_.auxSpillways.setCount(state_.numAuxSpillways);
    for (int i = 0; i < kAuxSpillways; ++i) {
      if (how_.hidden || i < state_.numAuxSpillways) fillSpillway(i);
    }
    state_.totalInstances = std::to_string(1 + below(99));
    state_.lhsSeed = std::to_string(below(1000));
  }

 private:
  // Not the standard's distributions, whose values differ from library to library.
  std::uint32_t below(std::uint32_t end) { return static_cast<std::uint32_t>(random_() % end); }
  bool chance(std::uint32_t inverse) { return below(inverse) == 0; }

  std::string text(bool mayBeBlank = true) {
    const auto most = static_cast<std::uint32_t>(how_.longestText);
    const std::uint32_t length = mayBeBlank ? below(most + 1) : 1 + below(most);
    std::string value;
    for (std::uint32_t i = 0; i < length; ++i)
      value += how_.alphabet[below(static_cast<std::uint32_t>(how_.alphabet.size()))];
    return value;
  }

  std::string comment() {
    std::string value;
    for (std::uint32_t line = below(5); line > 0; --line) {
      const std::uint32_t words = how_.gaps ? below(20) : 1 + below(8);
      for (std::uint32_t word = 0; word < words; ++word)
        value += (word == 0 ? "" : " ") + std::string(1 + below(6), 'w');
      value += "\r\n";
    }
    return value;
  }

  void fillControls(Screen& screen) {
    for (Control* control : screen.controls()) {
      if (control->kind() == ControlKind::text) static_cast<TextBox*>(control)->setText(text());
      if (control->kind() == ControlKind::check) static_cast<CheckBox*>(control)->setChecked(chance(2));
      if (control->kind() == ControlKind::option && chance(2)) static_cast<OptionButton*>(control)->setSelected(true);
      if (control->kind() == ControlKind::table) fillTable(*static_cast<Table*>(control));
    }
  }

  // Points down the rows or, in tables of few rows, along the columns; as many as fit in rare cases.
  void fillTable(Table& table) {
    const bool along = table.rows() < 10;
    const int room = (along ? table.columns() : table.rows()) - 1;
    const int points = static_cast<int>(chance(10) ? static_cast<std::uint32_t>(room) : below(20));
    for (int point = 1; point <= std::min(points, room); ++point) {
      if (how_.gaps && chance(6)) continue;
      const int lines = along ? table.rows() : table.columns();
      for (int line = along ? table.fixedRows() : table.fixedColumns(); line < lines; ++line) {
        const std::string value = text(how_.gaps);
        along ? table.setCell(line, point, value) : table.setCell(point, line, value);
      }
    }
  }

  // Takes back what the file is known not to bring back as it was.
  void settle() {
    const bool breach = screens_.projectInformation.optBreachAnalysis.selected();
    if (breach) screens_.hydrographData.chk10daydrawdown.setChecked(false);
    if (!how_.hidden) screens_.hydrographData.txtDrawdownTime.setText("96");
    if (chance(2)) {
      for (int row = 1; row < 51; ++row) screens_.structureTable.grdTable.setCell(row, 2, "");
    }
    if (!how_.hidden && screens_.psType.optHood.selected()) {
      screens_.psConduit.txtLengthOfConduit.setText("");
      screens_.psConduit.txtWeirInletCoefficient.setText("");
    }
  }

  void fillSpillway(int spillway) {
    AuxProfile& profile = screens_.context.aux.auxProfile[static_cast<std::size_t>(spillway)];
    AuxMaterials& materials = screens_.context.aux.auxMaterials[static_cast<std::size_t>(spillway)];
    for (std::string* value :
         {&profile.txtSide, &profile.txtBottom, &profile.txtElevation, &profile.txtTopsoil, &profile.txtEnd}) {
      *value = text();
    }
    fillRows(profile.points, 100);
    fillRows(profile.reaches, 20);
    profile.chkBarrier = chance(2);
    profile.chkCrest = chance(2);
    if (profile.chkBarrier || how_.hidden) profile.txtBarrier = text(how_.hidden);
    if (profile.chkCrest || how_.hidden) profile.txtBreachDepth = text();
    const std::uint32_t count = chance(10) ? 100 : below(5);
    for (std::uint32_t i = 0; i < count; ++i) materials.add();
    for (int number = 1; number <= materials.count + 2; ++number) fillMaterial(materials.material(number));
    fillFills(profile, materials);
    if (chance(4)) profile.hydroDist[below(2)] = distribution();
  }

  template <class Row>
  void fillRows(std::vector<Row>& rows, std::uint32_t most) {
    const std::uint32_t count = chance(10) ? most : std::min(below(8), most);
    for (std::uint32_t i = 0; i < count; ++i) {
      if (how_.gaps && chance(6)) continue;
      for (std::string& value : rows[i]) value = text(how_.gaps);
    }
  }

  void fillMaterial(AuxMaterial& material) {
    material.description = text();
    material.byDetachment = chance(2);
    for (std::size_t i = 0; i < material.values.size(); ++i) {
      const bool other = static_cast<MaterialProperty>(i) ==
                         (material.byDetachment ? MaterialProperty::percentClay : MaterialProperty::detachmentRate);
      if (other && !how_.hidden) continue;
      material.values[i] = text();
      if (material.values[i].starts_with('-')) material.values[i].erase(0, 1);
      if (!other && chance(6)) {
        material.values[i] = "PDF";
        material.distributions[i] = distribution();
      }
    }
    material.points.assign(below(8), {});
    fillRows(material.points, static_cast<std::uint32_t>(material.points.size()));
    while (!material.points.empty() && material.points.back() == StationElevation()) material.points.pop_back();
  }

  void fillFills(AuxProfile& profile, const AuxMaterials& materials) {
    for (std::size_t fill = 0; fill < 2; ++fill) {
      profile.fill[fill] = static_cast<FillChoice>(below(materials.count == 0 ? 1 : 3));
      profile.materNum[fill] = "";
      if (profile.fill[fill] == FillChoice::inPlace) {
        profile.materNum[fill] = std::to_string(1 + below(static_cast<std::uint32_t>(materials.count)));
      } else if (profile.fill[fill] == FillChoice::external) {
        profile.materNum[fill] = std::to_string(materials.count + 1 + static_cast<int>(fill));
      }
    }
  }

  Distribution distribution() {
    const auto& forms = distributionCatalogue();
    Distribution drawn;
    do {
      drawn.name = forms[below(static_cast<std::uint32_t>(forms.size()))].name;
    } while (drawn.name == "CONSTANT");
    for (std::string& parameter : drawn.parameters) parameter = text();
    drawn.inUse = true;
    return drawn;
  }

  InputScreenSet& screens_;
  ApplicationState& state_;
  std::mt19937 random_;
  Randomness how_;
};

}  // namespace kestra
