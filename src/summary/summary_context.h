#pragma once

#include <string>
#include <vector>

#include "graphics/line_settings.h"
#include "screens/picture_desk.h"
#include "summary/summary_store.h"

namespace kestra {

// What the summary asks of those who know runs and show them. Implemented where they are joined.
class RunKeeper {
 public:
  virtual ~RunKeeper() = default;
  // Deletes the files of runs: of each `stem`.* and what stands in the directory `stem`, the user's input excepted.
  virtual void deleteRuns(const std::vector<std::string>& stems) = 0;
  // The directory of a path as the disk spells it; empty, after a box, when there is none.
  virtual std::string checkedDirectory(const std::string& path) = 0;
  // Show the text and the graphs of a run; of an instance the first of the spillway graphs.
  virtual void showText(const std::string& path, bool ofInstance) = 0;
  virtual void showGraphs(const std::string& path, bool ofInstance) = 0;
  virtual void showPreview(const std::string& title, const CanvasLog& drawing) = 0;
  // Whether the screens hold that control file with another input than its run was made from.
  virtual bool screensDiffer(const std::string& controlFile) = 0;
  virtual void forgetShown() = 0;  // all runs are gone: the viewers show none
};

// What the screens of the summary are given.
struct SummaryContext {
  PictureDesk& desk;
  const LineSettings& lines;
  SummaryStore& store;
  RunKeeper& runs;

  Ports& ports() const { return desk.base.ports; }
  ApplicationState& state() const { return desk.base.state; }
  ScreenHost& host() const { return desk.base.host; }
};

}  // namespace kestra
