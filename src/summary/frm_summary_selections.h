#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/choices.h"
#include "controls/simple_controls.h"
#include "controls/text_box.h"
#include "summary/frm_summary_graphics.h"

namespace kestra {

// Which two fields frmSummaryGraphics shows against each other. The list has the selected fields of dams, then those of
// instances.
class frmSummarySelections : public Screen {
 public:
  frmSummarySelections(SummaryContext& context, frmSummaryGraphics& graphics);

  Label lblSumFields{*this, "lblSumFields", "Summary Fields"};
  ListBox lstSumFields{*this, "lstSumFields"};
  Label lblX{*this, "lblX", "X - Coordinate"};
  TextBox txtX{*this, "txtX"};
  Button cmdChooseX{*this, "cmdChooseX", "Choose ==>"};
  Label lblY{*this, "lblY", "Y - Coordinate"};
  TextBox txtY{*this, "txtY"};
  Button cmdChooseY{*this, "cmdChooseY", "Choose ==>"};
  Frame frameGraphType{*this, "frameGraphType", "Graph Type"};
  OptionGroup graphType;
  OptionButton optScatter{*this, "optScatter", graphType, "Scatter Plot", true};
  OptionButton optLine{*this, "optLine", graphType, "Line Graph"};
  Button cmdSumGraph{*this, "cmdSumGraph", "&View"};
  Button cmdCancel{*this, "cmdCancel", "&Cancel"};
  Button cmdHeop{*this, "cmdHeop", "&Help"};

  void SetOptToShow();  // the kind that the graph shows

 protected:
  void load() override;
  void activate() override;

 private:
  struct Choice {
    TextBox& text;
    PlotField field;
  };

  void listFields();
  void choose(Choice& choice);
  void typed(Choice& choice);
  void allowView();
  void view();

  SummaryContext& context_;
  frmSummaryGraphics& graphics_;
  std::vector<PlotField> fields_;  // of the list, in its order
  Choice x_{txtX, {}};
  Choice y_{txtY, {}};
};

}  // namespace kestra
