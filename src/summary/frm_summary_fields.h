#pragma once

#include <string>
#include <vector>

#include "controls/choices.h"
#include "controls/control_array.h"
#include "controls/simple_controls.h"
#include "screens/screen_context.h"
#include "summary/summary_store.h"

namespace kestra {

// Which fields the summary shows, in which order: a list of those to choose from and one of those chosen, for dams
// (index 0) and for instances (index 1). OK takes the choice into the store and saves it; what is shown before that
// belongs to nobody, but for the order of the tables, which Cancel takes back. The buttons between the lists are found
// without an index too, as those of the level whose list was touched last.
class frmSummaryFields : public Screen {
 public:
  frmSummaryFields(ScreenContext& context, SummaryStore& store);

  ControlArray<Label> lblAvailable{*this, "lblAvailable", 0, 2};
  ControlArray<ListBox> lstAvailable{*this, "lstAvailable", 0, 2};
  ControlArray<Button> cmdTransfer{*this, "cmdTransfer", 0, 2, "&Insert ->"};
  ControlArray<Button> cmdDelete{*this, "cmdDelete", 0, 2, "<- &Remove"};
  ControlArray<Button> cmdClear{*this, "cmdClear", 0, 2, "Remove &All"};
  ControlArray<Label> lblSelected{*this, "lblSelected", 0, 2};
  ControlArray<ListBox> lstSelected{*this, "lstSelected", 0, 2};
  Frame frameOrder{*this, "frameOrder", "Entries"};
  OptionGroup order;
  OptionButton optRow{*this, "optRow", order, "By Row"};
  OptionButton optColumn{*this, "optColumn", order, "By Column", true};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};
  Menu mnuSummaryLoad{*this, "mnuSummaryLoad", "&Open"};
  Menu mnuSummarySaveAs{*this, "mnuSummarySaveAs", "Save &As"};

  std::function<void()> onAccepted;  // the summary's tables follow the new choice

 protected:
  void load() override;
  void unload() override;

 private:
  void takeUp(int level);
  std::vector<int>& selected(int level) { return choice_.selectedFields[static_cast<std::size_t>(level)]; }
  std::vector<int> available(int level) const;
  void showLevel(int level, int selectedIndex = -1, int availableIndex = -1);
  void showChoice();

  void transfer(int level);
  void remove(int level);
  void accept();
  void openSelection();
  void saveSelection();

  ScreenContext& context_;
  SummaryStore& store_;
  SummarySelection choice_;
  std::string orderBefore_;
  bool accepted_ = false;
};

}  // namespace kestra
