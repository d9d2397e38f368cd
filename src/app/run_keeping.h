#pragma once

#include <string>
#include <vector>

#include "shell/shell.h"
#include "summary/summary_context.h"

namespace kestra {

// The files of runs as the summary deletes them, and the windows in which it shows them.
class RunKeeping : public RunKeeper {
 public:
  RunKeeping(Ports& ports, Shell& shell) : ports_(ports), shell_(shell) {}

  void deleteRuns(const std::vector<std::string>& stems) override;
  std::string checkedDirectory(const std::string& path) override;
  void showText(const std::string& path, bool ofInstance) override;
  void showGraphs(const std::string& path, bool ofInstance) override;
  void showPreview(const std::string& title, const CanvasLog& drawing) override;
  bool screensDiffer(const std::string& controlFile) override;
  void forgetShown() override;

 private:
  Ports& ports_;
  Shell& shell_;
};

}  // namespace kestra
