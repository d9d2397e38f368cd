#include "automation/operations.h"
#include "base/runtime_fault.h"

namespace kestra {
namespace {

std::int16_t asInt16(int value) {
  if (value < INT16_MIN || value > INT16_MAX) throw RuntimeFault("overflow");
  return static_cast<std::int16_t>(value);
}

Json pop(Application& application, const Arguments&) {
  const auto value = application.shell.output.Pop();
  return {{"value", value.value_or(0)}, {"flag", value.has_value()}};
}

}  // namespace

std::vector<Operation> outputOperations() {
  return {
      {"frmOutput.GenerateTopoGraph",
       {"text", "flag"},
       [](Application& application, const Arguments& given) -> Json {
         std::string text = given.text(0);
         (void)given.integer(1);
         application.shell.output.GenerateTopoGraph(text, application.shell.controlFiles.texts.auxRunText);
         return text;
       }},
      {"frmOutput.Push",
       {"value"},
       [](Application& application, const Arguments& given) -> Json {
         return application.shell.output.Push(asInt16(given.integer(0)));
       }},
      {"frmOutput.Pop", {}, pop},
  };
}

}  // namespace kestra
