#pragma once

#include "control/catalogue.h"

// The words in which the tables of records are written down. A field is told by its name, first column, width, control,
// unit and meaning.
namespace kestra::layout_table {

using Text = std::string_view;

constexpr FieldLayout padded(Text name, int first, int width, Text control, Text unit, Text meaning) {
  return {name, first, width, width, FieldKind::padded, std::nullopt, control, unit, meaning};
}

constexpr FieldLayout ten(Text name, int first, Text control, Text unit, Text meaning) {
  return padded(name, first, 10, control, unit, meaning);
}

constexpr FieldLayout freeField(Text name, int first, int width, Text control, Text unit, Text meaning) {
  return {name, first, width, width, FieldKind::free, std::nullopt, control, unit, meaning};
}

// A free field that is read as it stands, with the blanks around its text.
constexpr FieldLayout wholeField(Text name, int first, int width, Text control, Text meaning) {
  FieldLayout field = freeField(name, first, width, control, "", meaning);
  field.keepsBlanks = true;
  return field;
}

constexpr FieldLayout code(Text name, int first, int width, int readWidth, Text control, Text meaning) {
  return {name, first, width, readWidth, FieldKind::code, std::nullopt, control, "", meaning};
}

constexpr FieldLayout literal(Text name, int first, int width, Text text, Text meaning) {
  return {name, first, width, width, FieldKind::padded, text, "", "", meaning};
}

constexpr FieldLayout lastLiteral(Text name, int first, int width, Text text, Text meaning) {
  return {name, first, width, width, FieldKind::code, text, "", "", meaning};
}

constexpr FieldLayout blank(int first, int width) {
  return literal("", first, width, "", "not used");
}

constexpr LayoutMark mark(int column, int width, Text word, Text other = {}) {
  return {column, width, {word, other.empty() ? word : other}};
}

constexpr RecordLayout record(Text id, Text keyword, Text title, Text presence,
                              std::span<const FieldLayout> fields = {}, std::optional<TableLayout> table = {},
                              std::optional<LayoutMark> told = {}) {
  return {id, keyword, title, presence, fields, table, told, true};
}

constexpr RecordLayout inputOnly(RecordLayout layout) {
  layout.written = false;
  return layout;
}

inline constexpr auto kTableEndRecord =
    record("ENDTABLE", kTableEnd, "End of a table", "behind the rows of each table");
inline constexpr auto kRunEndRecord = record("ENDRUN", kRunEnd, "End of a run", "last record of each run");

// A reach of an auxiliary spillway, in the main run and in the spillway's own.
inline constexpr FieldLayout kReachRow[] = {
    ten("begin", 11, "frmAuxSpillwayProfile.grdCond row 0", "ft", "station at which the reach begins"),
    ten("end", 21, "frmAuxSpillwayProfile.grdCond row 1", "ft", "station at which the reach ends"),
    ten("retardance", 31, "frmAuxSpillwayProfile.grdCond row 2", "", "retardance curve index"),
    ten("cover", 41, "frmAuxSpillwayProfile.grdCond row 3", "", "vegetal cover factor"),
    ten("maintenance", 51, "frmAuxSpillwayProfile.grdCond row 4", "", "maintenance code"),
    ten("root depth", 61, "frmAuxSpillwayProfile.grdCond row 5", "",
        "potential root depth; blank with stability analysis")};

}  // namespace kestra::layout_table
