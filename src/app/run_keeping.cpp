#include "app/run_keeping.h"

#include "run/checked_directory.h"
#include "run/old_run_files.h"

namespace kestra {

void RunKeeping::deleteRuns(const std::vector<std::string>& stems) {
  deleteFilesOfStems(ports_.files, stems);
}

std::string RunKeeping::checkedDirectory(const std::string& path) {
  return kestra::checkedDirectory(ports_, path);
}

void RunKeeping::showText(const std::string& path, bool ofInstance) {
  shell_.editor.OpenFile(path, ofInstance ? frmEditor::kSpillwayOutput : frmEditor::kDamOutput);
}

void RunKeeping::showGraphs(const std::string& path, bool ofInstance) {
  shell_.graphs.output.OpenFile(path, ofInstance);
}

void RunKeeping::showPreview(const std::string& title, const CanvasLog& drawing) {
  shell_.graphs.preview.showGraph(title, drawing);
}

bool RunKeeping::screensDiffer(const std::string& controlFile) {
  return shell_.runInputs.screensDiffer(controlFile);
}

void RunKeeping::forgetShown() {
  shell_.editor.forgetFiles();
  shell_.graphs.output.forgetFile();
}

}  // namespace kestra
