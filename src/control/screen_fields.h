#pragma once

#include <set>
#include <span>
#include <string>
#include <string_view>

#include "control/catalogue.h"
#include "controls/table.h"
#include "controls/text_box.h"
#include "screens/input_context.h"

namespace kestra {

// Where the rows of a table of the control file stand on a screen: a column of a table, or a row of one whose points
// run along its columns.
struct CellLine {
  Table* table = nullptr;
  int line = 0;  // the column, or the row
  bool alongColumns = false;

  int points() const { return (alongColumns ? table->columns() : table->rows()) - 1; }  // headings not counted
  const std::string& cell(int point) const;
  void put(int point, std::string_view text) const;  // a point that the table does not have is a fault
};

// A field whose value stands in the store of its spillway.
struct StoredField {
  std::string_view control;  // "frmAuxSpillwayProfile.txtSide"
  std::string_view name;     // "txtSide"
  std::string AuxProfile::*text;
};

std::span<const StoredField> storedFields();

// The controls and stores behind the fields of the catalogue, found by the names that the catalogue gives them.
class ScreenFields {
 public:
  explicit ScreenFields(InputContext& input) : input_(input) {}

  // What a field holds: the text of a box or of the store, "1" or "0" of a check box, the word of a choice. `spillway`
  // counts from 0. The field names a control.
  std::string_view text(const FieldLayout& field, int spillway);
  // The reverse. A word that selects nothing leaves the choice.
  void put(const FieldLayout& field, std::string_view text, int spillway);

  CellLine cells(const FieldLayout& field, int spillway);

  // The value of the spillway's store that goes by that name; null for a field of a control.
  std::string* stored(std::string_view control, int spillway);

  // Names of the controls that were asked for their text, or given one: "frmDamSurface.txtCrestWidth".
  std::set<std::string> used;

 private:
  Control& control(std::string_view name, int spillway);
  Control& loaded(Control& target);
  bool isSelected(std::string_view option, int spillway);
  void select(std::string_view option, int spillway);
  std::string_view boxName(std::string_view control) const;

  InputContext& input_;
};

}  // namespace kestra
