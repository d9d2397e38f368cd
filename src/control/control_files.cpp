#include "control/control_files.h"

namespace kestra {

int ControlFiles::BuildControlText(const std::string&) {
  return 0;
}
void ControlFiles::BuildHydrographText() {}
void ControlFiles::BuildAuxRunText(int, const std::string&) {}
void ControlFiles::WriteSpillwayRun(int, const std::string&) {}
bool ControlFiles::WriteControlFiles(const std::string&) {
  return false;
}
std::vector<CutField> ControlFiles::cutFields() {
  (void)screens_, (void)context_;
  return {};
}
void ControlFiles::tellCutFields() {}
bool ControlFiles::SameControlFiles(const std::string&, const std::string&) {
  return false;
}
bool ControlFiles::ControlFileUnchanged() {
  return false;
}
Status ControlFiles::checkLoadable(const std::string&) {
  return Done{};
}
std::string ControlFiles::refusal(const Failure& failure) {
  return failure.path + ": " + failure.reason;
}
void ControlFiles::ReadControlFile(const std::string&) {}
void ControlFiles::ParseControlText() {}
void ControlFiles::ReadSpillwayRun(const std::string&, int) {}

}  // namespace kestra
