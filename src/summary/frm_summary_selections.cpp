#include "summary/frm_summary_selections.h"

#include <algorithm>

#include "controls/screen_host.h"

namespace kestra {

frmSummarySelections::frmSummarySelections(SummaryContext& context, frmSummaryGraphics& graphics)
    : Screen("frmSummarySelections", "Summary Selections"), context_(context), graphics_(graphics) {
  lstSumFields.setCaption(lblSumFields.caption());
  txtX.setCaption(lblX.caption());
  txtY.setCaption(lblY.caption());
  optScatter.standIn(frameGraphType);
  optLine.standIn(frameGraphType);
  cmdChooseX.onClick = [this] { choose(x_); };
  cmdChooseY.onClick = [this] { choose(y_); };
  txtX.onChange = [this] { typed(x_); };
  txtY.onChange = [this] { typed(y_); };
  cmdSumGraph.onClick = [this] { view(); };
  cmdCancel.onClick = [this] { host().unload(*this); };
  cmdHeop.onClick = [this] { context_.ports().help.showTopic("html\\SummarySelections.htm"); };
  allowView();
}

void frmSummarySelections::load() {
  x_.field = {};
  y_.field = {};
  listFields();
}

void frmSummarySelections::activate() {
  listFields();
  SetOptToShow();
  allowView();
}

void frmSummarySelections::SetOptToShow() {
  (graphics_.isLineGraph() ? optLine : optScatter).setSelected(true);
}

void frmSummarySelections::listFields() {
  const int index = lstSumFields.index();
  std::vector<std::string> titles;
  fields_.clear();
  for (const SummaryLevel level : {SummaryLevel::dam, SummaryLevel::instance}) {
    for (const int number : context_.store.selection().of(level)) {
      fields_.push_back(PlotField::of(level, number));
      titles.push_back(context_.store.catalogues().title(level, number));
    }
  }
  lstSumFields.setItems(std::move(titles));
  lstSumFields.setIndex(index);
}

void frmSummarySelections::choose(Choice& choice) {
  const int index = lstSumFields.index();
  if (index < 0) return;
  choice.text.setText(lstSumFields.text());
  choice.field = fields_[static_cast<std::size_t>(index)];
  allowView();
}

// A title that is typed stands for its field; any other text for none.
void frmSummarySelections::typed(Choice& choice) {
  const std::vector<std::string>& titles = lstSumFields.items();
  const auto at = std::find(titles.begin(), titles.end(), choice.text.text());
  choice.field = at == titles.end() ? PlotField() : fields_[static_cast<std::size_t>(at - titles.begin())];
  allowView();
}

void frmSummarySelections::allowView() {
  cmdSumGraph.setEnabled(!txtX.text().empty() && !txtY.text().empty());
}

void frmSummarySelections::view() {
  host().hide(*this);
  graphics_.ShowScreen(x_.field, y_.field, optLine.selected());
}

}  // namespace kestra
