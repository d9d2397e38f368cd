#include "automation/operations.h"

namespace kestra {
namespace {

Json initializeConduit(Application& application, const Arguments& arguments) {
  frmPSConduit& conduit = application.shell.input.psConduit;
  application.host.load(conduit);
  conduit.Initialize(arguments.integer(0));
  return nullptr;
}

}  // namespace

std::vector<Operation> spillwayOperations() {
  return {{"frmPSConduit.Initialize", {"type"}, initializeConduit}};
}

}  // namespace kestra
