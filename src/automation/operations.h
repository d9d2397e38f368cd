#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/application.h"
#include "automation/json.h"

namespace kestra {

// The arguments of a call, in their order, against the names that the operation gives them.
class Arguments {
 public:
  // RequestError unless there are as many values as names.
  Arguments(const std::string& operation, const std::vector<std::string>& names, const Json& values);

  const std::string& text(std::size_t index) const { return asText(values_[index], nameOf(index)); }
  int integer(std::size_t index) const { return asInteger(values_[index], nameOf(index)); }
  double number(std::size_t index) const { return asNumber(values_[index], nameOf(index)); }
  bool boolean(std::size_t index) const { return asBoolean(values_[index], nameOf(index)); }
  const Json& list(std::size_t index) const { return asList(values_[index], nameOf(index)); }

 private:
  std::string nameOf(std::size_t index) const { return operation_ + ": argument \"" + names_[index] + "\""; }

  const std::string& operation_;
  const std::vector<std::string>& names_;
  const Json& values_;
};

struct Operation {
  std::string name;
  std::vector<std::string> arguments;
  std::function<Json(Application&, const Arguments&)> run;
};

// The operations of the system that scripts can call, by family.
std::vector<Operation> graphOperations();
std::vector<Operation> hydrographOperations();
std::vector<Operation> recordOperations();
std::vector<Operation> resultsOperations();
std::vector<Operation> runOperations();
std::vector<Operation> shellOperations();
std::vector<Operation> outputOperations();    // of frmOutput
std::vector<Operation> spillwayOperations();  // of the principal spillway's screens
std::vector<Operation> auxOperations();
std::vector<Operation> structureOperations();  // of the tables of the dam, its reservoir and its tailwater
std::vector<Operation> controlOperations();    // on the control file
std::vector<Operation> summaryOperations();

// RequestError, with the path and the reason, for what the world has refused.
void requireDone(const Status& status);

// Every one of them.
const std::vector<Operation>& operations();

// Runs an operation, or the click handler of a command as "screen.command_Click", whether or not that can be seen or is
// enabled. RequestError for an unknown name or unfit arguments.
Json callOperation(Application& application, const std::string& name, const Json& values);

// Names of all that can be called, each with its argument names.
Json listOperations(const Application& application);

}  // namespace kestra
