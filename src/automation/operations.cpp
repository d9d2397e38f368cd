#include "automation/operations.h"

#include <algorithm>

#include "controls/simple_controls.h"

namespace kestra {
namespace {

constexpr std::string_view kClick = "_Click";

bool isCommand(const Control& control) {
  return control.kind() == ControlKind::button || control.kind() == ControlKind::menu;
}

// The command that "screen.command_Click" names; null when there is none, or none with an action.
Command* commandNamed(const Application& application, const std::string& name) {
  const std::size_t dot = name.find('.');
  if (dot == std::string::npos || !name.ends_with(kClick)) return nullptr;
  const Screen* screen = application.host.find(name.substr(0, dot));
  if (screen == nullptr) return nullptr;
  Control* control = screen->find(name.substr(dot + 1, name.size() - dot - 1 - kClick.size()));
  if (control == nullptr || !isCommand(*control)) return nullptr;
  auto* command = static_cast<Command*>(control);
  return command->hasAction() ? command : nullptr;
}

void append(std::vector<Operation>& all, std::vector<Operation> family) {
  std::move(family.begin(), family.end(), std::back_inserter(all));
}

}  // namespace

Arguments::Arguments(const std::string& operation, const std::vector<std::string>& names, const Json& values)
    : operation_(operation), names_(names), values_(asList(values, "field \"args\"")) {
  if (values_.size() == names_.size()) return;
  std::string wanted;
  for (const auto& name : names_) wanted += (wanted.empty() ? "" : ", ") + name;
  throw RequestError(operation + "(" + wanted + ") takes " + std::to_string(names_.size()) + " arguments, not " +
                     std::to_string(values_.size()));
}

void requireDone(const Status& status) {
  if (!status) throw RequestError(status.failure().path + ": " + status.failure().reason);
}

const std::vector<Operation>& operations() {
  static const std::vector<Operation> kOperations = [] {
    std::vector<Operation> all;
    append(all, recordOperations());
    append(all, shellOperations());
    append(all, outputOperations());
    append(all, spillwayOperations());
    append(all, auxOperations());
    append(all, controlOperations());
    append(all, structureOperations());
    append(all, hydrographOperations());
    append(all, resultsOperations());
    append(all, runOperations());
    append(all, summaryOperations());
    append(all, graphOperations());
    return all;
  }();
  return kOperations;
}

Json callOperation(Application& application, const std::string& name, const Json& values) {
  const auto& all = operations();
  const auto at = std::find_if(all.begin(), all.end(), [&name](const Operation& o) { return o.name == name; });
  if (at != all.end()) return at->run(application, Arguments(at->name, at->arguments, values));
  Command* command = commandNamed(application, name);
  if (command == nullptr) throw RequestError("no operation named \"" + name + "\"");
  static const std::vector<std::string> kNoArguments;
  (void)Arguments(name, kNoArguments, values);
  application.host.load(command->screen());
  command->click();
  return nullptr;
}

Json listOperations(const Application& application) {
  Json list = Json::array();
  for (const Operation& operation : operations()) {
    list.push_back({{"name", operation.name}, {"arguments", operation.arguments}});
  }
  for (const Screen* screen : application.host.screens()) {
    for (const Control* control : screen->controls()) {
      if (!isCommand(*control) || !static_cast<const Command*>(control)->hasAction()) continue;
      list.push_back(
          {{"name", screen->name() + "." + control->name() + std::string(kClick)}, {"arguments", Json::array()}});
    }
  }
  return list;
}

}  // namespace kestra
