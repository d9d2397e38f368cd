#include "automation/control_verbs.h"

#include <algorithm>
#include <vector>

#include "base/text.h"
#include "controls/canvas_control.h"
#include "controls/choices.h"
#include "controls/directory_list.h"
#include "controls/ranges.h"
#include "controls/screen.h"
#include "controls/simple_controls.h"
#include "controls/table.h"
#include "controls/text_box.h"

namespace kestra {
namespace {

std::string placeOf(const Control& control) {
  return control.screen().name() + "." + control.name();
}

[[noreturn]] void refuse(const Control& control, const std::string& why) {
  throw RequestError(placeOf(control) + " " + why);
}

// The control as the class that its kind stands for.
template <class C>
C& as(Control& control) {
  return static_cast<C&>(control);
}
template <class C>
const C& as(const Control& control) {
  return static_cast<const C&>(control);
}

template <class C, class AnyControl>
auto& ofKind(AnyControl& control, ControlKind kind) {
  if (control.kind() != kind) refuse(control, "is no " + std::string(nameOf(kind)));
  return as<C>(control);
}

void describeText(const Control& control, Json& out) {
  out["value"] = as<TextBox>(control).text();
  out["maxLength"] = as<TextBox>(control).maxLength();
}

void describeChoice(const Control& control, Json& out) {
  const auto& choice = as<ChoiceList>(control);
  out["value"] = choice.text();
  out["items"] = choice.items();
  out["index"] = choice.index();
}

void describeTable(const Control& control, Json& out) {
  const auto& table = as<Table>(control);
  out["value"] = table.currentText();
  out["rows"] = table.rows();
  out["columns"] = table.columns();
  out["fixedRows"] = table.fixedRows();
  out["fixedColumns"] = table.fixedColumns();
  out["row"] = table.cursor().row;
  out["column"] = table.cursor().column;
}

void describeRange(const Control& control, Json& out) {
  const auto& range = as<Range>(control);
  out["value"] = range.value();
  out["min"] = range.minimum();
  out["max"] = range.maximum();
}

void describeKind(const Control& control, Json& out) {
  switch (control.kind()) {
    case ControlKind::text:
      return describeText(control, out);
    case ControlKind::option:
      out["value"] = as<OptionButton>(control).selected();
      return;
    case ControlKind::check:
      out["value"] = as<CheckBox>(control).checked();
      return;
    case ControlKind::combo:
    case ControlKind::list:
      return describeChoice(control, out);
    case ControlKind::menu:
      out["checked"] = as<Menu>(control).checked();
      return;
    case ControlKind::table:
      return describeTable(control, out);
    case ControlKind::tabs:
      out["value"] = as<Tabs>(control).index();
      out["captions"] = as<Tabs>(control).captions();
      return;
    case ControlKind::slider:
    case ControlKind::gauge:
      return describeRange(control, out);
    case ControlKind::canvas:
      out["scale"] = as<CanvasControl>(control).state().scale;
      return;
    case ControlKind::directory:
      out["value"] = as<DirectoryList>(control).path();
      return;
    case ControlKind::button:
    case ControlKind::label:
    case ControlKind::frame:
      return;
  }
}

// Each of these refuses a value that does not fit before the user has touched the control.
void setText(Control& control, const Json& value) {
  const std::string& text = asText(value, placeOf(control));
  control.userFocus();
  as<TextBox>(control).userReplace(text);
}

void setOption(Control& control, const Json& value) {
  if (!asBoolean(value, placeOf(control))) refuse(control, "is cleared by selecting another option");
  control.userFocus();
  as<OptionButton>(control).userSelect();
}

void setCheck(Control& control, const Json& value) {
  const bool checked = asBoolean(value, placeOf(control));
  control.userFocus();
  as<CheckBox>(control).userSet(checked);
}

void setChoiceByIndex(Control& control, const Json& value) {
  auto& choice = as<ChoiceList>(control);
  const int index = Fields(value).integer("index");
  if (index < 0 || index >= static_cast<int>(choice.items().size())) refuse(control, "has no entry " + oneLine(value));
  control.userFocus();
  choice.userSelect(index);
}

void setChoice(Control& control, const Json& value) {
  if (value.is_object()) return setChoiceByIndex(control, value);
  auto& choice = as<ChoiceList>(control);
  const std::string& text = asText(value, placeOf(control));
  const auto& items = choice.items();
  const bool offered = choice.editable() || std::find(items.begin(), items.end(), text) != items.end();
  if (!offered) refuse(control, "has no entry " + oneLine(value));
  control.userFocus();
  choice.userSelect(std::string_view(text));
}

void setSlider(Control& control, const Json& value) {
  const double number = asNumber(value, placeOf(control));
  control.userFocus();
  as<Slider>(control).userMove(number);
}

void setTabs(Control& control, const Json& value) {
  auto& tabs = as<Tabs>(control);
  const int index = asInteger(value, placeOf(control));
  if (index < 0 || index >= static_cast<int>(tabs.captions().size())) refuse(control, "has no tab " + oneLine(value));
  control.userFocus();
  tabs.userSelect(index);
}

void setDirectory(Control& control, const Json& value) {
  auto& list = as<DirectoryList>(control);
  const std::string& path = asText(value, placeOf(control));
  if (list.accepts && !list.accepts(path)) refuse(control, "cannot choose " + path + ": no such directory");
  control.userFocus();
  list.userChoose(path);
}

void appendKeys(std::vector<Key>& keys, std::string_view text) {
  while (!text.empty()) keys.push_back({popCharacter(text), {}});
}

// A key by its name; those that are characters go by their character.
Key namedKey(const std::string& name) {
  if (name == "Enter" || name == "Return") return {kEnter, {}};
  if (name == "Backspace") return {kBackspace, {}};
  return {0, name};
}

std::vector<Key> keysOf(const Json& given) {
  std::vector<Key> keys;
  for (const Json& item : given.is_array() ? given : Json::array({given})) {
    if (item.is_string()) {
      appendKeys(keys, item.get_ref<const std::string&>());
    } else if (item.is_object()) {
      keys.push_back(namedKey(Fields(item).text("key")));
    } else {
      throw RequestError("keys must be texts or {\"key\": NAME}");
    }
  }
  return keys;
}

bool takesFocus(ControlKind kind) {
  return kind != ControlKind::label && kind != ControlKind::frame && kind != ControlKind::menu &&
         kind != ControlKind::gauge;
}

}  // namespace

Json describeControl(const Control& control) {
  Json out = {{"kind", nameOf(control.kind())},
              {"value", nullptr},
              {"caption", control.caption()},
              {"visible", control.visible()},
              {"enabled", control.enabled()}};
  describeKind(control, out);
  return out;
}

void setControl(Control& control, const Json& value) {
  switch (control.kind()) {
    case ControlKind::text:
      return setText(control, value);
    case ControlKind::option:
      return setOption(control, value);
    case ControlKind::check:
      return setCheck(control, value);
    case ControlKind::combo:
    case ControlKind::list:
      return setChoice(control, value);
    case ControlKind::slider:
      return setSlider(control, value);
    case ControlKind::tabs:
      return setTabs(control, value);
    case ControlKind::directory:
      return setDirectory(control, value);
    default:
      refuse(control, "cannot be set: it is a " + std::string(nameOf(control.kind())));
  }
}

void checkClickable(const Control& control) {
  if (!control.visible()) refuse(control, "is hidden");
  if (!control.enabled()) refuse(control, "is disabled");
}

void clickControl(Control& control) {
  checkClickable(control);
  switch (control.kind()) {
    case ControlKind::button:
    case ControlKind::menu: {
      auto& command = as<Command>(control);
      if (!command.hasAction()) refuse(control, "has no action");
      if (control.kind() == ControlKind::button) control.userFocus();
      return command.click();
    }
    case ControlKind::option:
      return as<OptionButton>(control).userSelect();
    case ControlKind::check:
      return as<CheckBox>(control).userSet(!as<CheckBox>(control).checked());
    default:
      refuse(control, "cannot be clicked: it is a " + std::string(nameOf(control.kind())));
  }
}

void doubleClickControl(Control& control) {
  switch (control.kind()) {
    case ControlKind::combo:
    case ControlKind::list:
      return as<ChoiceList>(control).userDoubleClick();
    case ControlKind::table:
      return as<Table>(control).userDoubleClick();
    case ControlKind::canvas:
      return as<CanvasControl>(control).userDoubleClick();
    default:
      refuse(control, "cannot be double-clicked: it is a " + std::string(nameOf(control.kind())));
  }
}

void typeKeys(Control& control, const Json& keys) {
  if (!takesFocus(control.kind())) refuse(control, "takes no keys: it is a " + std::string(nameOf(control.kind())));
  const std::vector<Key> presses = keysOf(keys);
  control.userFocus();
  for (const Key& key : presses) control.userKey(key);
}

Json tableCells(const Control& control, const Fields& request) {
  const auto& table = ofKind<Table>(control, ControlKind::table);
  const int row = request.integer("row", 0);
  const int column = request.integer("column", 0);
  const bool block = request.has("row") || request.has("column");
  const int rows = request.integer("rows", block ? 1 : table.rows());
  const int columns = request.integer("columns", block ? 1 : table.columns());
  const bool inside = row >= 0 && column >= 0 && rows >= 0 && columns >= 0 && rows <= table.rows() - row &&
                      columns <= table.columns() - column;
  if (!inside) refuse(control, "does not hold this block");
  Json result = Json::array();
  for (int r = row; r < row + rows; ++r) {
    Json line = Json::array();
    for (int c = column; c < column + columns; ++c) line.push_back(table.cell(r, c));
    result.push_back(std::move(line));
  }
  return result;
}

void setTableCells(Control& control, const Fields& request) {
  auto& table = ofKind<Table>(control, ControlKind::table);
  const int row = request.integer("row");
  const int column = request.integer("column");
  const Json& values = request.list("values");
  std::vector<std::vector<std::string>> texts;
  std::size_t widest = 0;
  for (const Json& line : values) {
    widest = std::max(widest, asList(line, "a row of \"values\"").size());
    texts.emplace_back();
    for (const Json& cell : line) texts.back().push_back(asText(cell, "a cell of \"values\""));
  }
  const bool inside = row >= 0 && column >= 0 && row <= table.rows() && column <= table.columns() &&
                      values.size() <= static_cast<std::size_t>(table.rows() - row) &&
                      widest <= static_cast<std::size_t>(table.columns() - column);
  if (!inside) refuse(control, "does not hold this block");
  table.userSetBlock({row, column}, texts);
}

void setTableCursor(Control& control, const Fields& request) {
  auto& table = ofKind<Table>(control, ControlKind::table);
  const CellPosition from = {request.integer("row"), request.integer("column")};
  const CellPosition to = {request.integer("toRow", from.row), request.integer("toColumn", from.column)};
  if (!table.holds(from) || !table.holds(to)) refuse(control, "does not hold this cell");
  control.userFocus();
  table.userSelect(from, to);
}

void useMouse(Control& control, const Fields& request) {
  auto& canvas = ofKind<CanvasControl>(control, ControlKind::canvas);
  const std::string& name = request.text("event");
  MouseEvent event;
  if (name == "down") {
    event.type = MouseEvent::Type::down;
  } else if (name == "up") {
    event.type = MouseEvent::Type::up;
  } else if (name == "dblclick") {
    event.type = MouseEvent::Type::doubleClick;
  } else if (name != "move") {
    throw RequestError("field \"event\" must be down, move, up or dblclick");
  }
  event.button = request.integer("button", 0);
  if (event.button < 0 || event.button > 2) throw RequestError("field \"button\" must be 0, 1 or 2");
  event.x = request.number("x");
  event.y = request.number("y");
  canvas.userMouse(event);
}

Json describeCalls(const CanvasLog& log) {
  Json calls = Json::array();
  for (const CanvasCall& call : log.calls()) {
    Json entry = Json::array({nameOf(call.op)});
    const CallForm& form = formOf(call.op);
    for (int i = 0; i < form.numbers; ++i) {
      const double number = call.numbers[static_cast<std::size_t>(i)];
      entry.push_back(i < form.wholeFrom ? Json(number) : Json(static_cast<std::int64_t>(number)));
    }
    if (form.text) entry.push_back(log.textOf(call));
    if (form.flag) entry[1] = call.numbers[0] != 0;
    calls.push_back(std::move(entry));
  }
  return calls;
}

Json canvasCalls(const Control& control) {
  return describeCalls(ofKind<CanvasControl>(control, ControlKind::canvas).log());
}

}  // namespace kestra
