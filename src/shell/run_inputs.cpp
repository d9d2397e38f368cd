#include "shell/run_inputs.h"

#include "base/text.h"
#include "control/file_names.h"
#include "results/input_digest.h"

namespace kestra {

bool RunInputs::changed(const std::string& controlFile) {
  return inputHasChanged(desk_.files(), controlFile) || screensDiffer(controlFile);
}

bool RunInputs::screensDiffer(const std::string& controlFile) {
  const ApplicationState& state = desk_.state();
  if (!state.fileDirty || state.currentFile.empty()) return false;
  const bool isOpen = equalIgnoringCase(withoutExtension(controlFile), withoutExtension(state.currentFile));
  return isOpen && differsFromRun(desk_.files(), controlFile, digestOfScreens());
}

std::uint64_t RunInputs::digestOfScreens() {
  const ApplicationState& state = desk_.state();
  if (edits_ == state.edits) return digest_;
  edits_ = state.edits;
  digest_ = inputDigest(builder_->builtText(state.currentFile).value_or(""));
  return digest_;
}

}  // namespace kestra
