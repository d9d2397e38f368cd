#include "screens/frm_aux_spillways.h"

#include <algorithm>
#include <vector>

#include "screens/frm_aux_spillway_profile.h"

namespace kestra {
namespace {

// By the entry of the count, "Select" first. The one for three lacks its blank, which is kept.
constexpr std::array<const char*, 5> kNextCaptions = {"&Next Screen", "&Run Simulation", "&Next Screen", "&Next Screen",
                                                      "&NextScreen"};

bool holdsEqual(std::vector<std::string> labels) {
  std::sort(labels.begin(), labels.end());
  return std::adjacent_find(labels.begin(), labels.end()) != labels.end();
}

}  // namespace

frmAuxSpillways::frmAuxSpillways(InputContext& context)
    : InputScreen(context, "frmAuxSpillways", "Auxiliary Spillways", "html\\AuxiliarySpillways.htm") {
  placeOptions();
  showRows();
  cmbAuxSpillways.onClick = [this] { showRows(); };
  cmbAuxSpillways.onKeyPress = [this](const Key& key) {
    if (key.character != kEnter) return;
    count() > 0 ? txtsway(0).takeFocus() : cmdNext.takeFocus();
  };
}

void frmAuxSpillways::placeOptions() {
  for (int i = 0; i < kAuxSpillways; ++i) {
    lblsway(i).setCaption("AS " + std::to_string(i + 1));
    for (auto* options : {&optProfile, &optRating}) (*options)(i).standIn(frameInputType(i));
    for (auto* options : {&optQUIL, &optStability, &optNone}) (*options)(i).standIn(frameAnalysisType(i));
  }
}

void frmAuxSpillways::showRows() {
  for (int i = 0; i < kAuxSpillways; ++i) {
    const std::initializer_list<Control*> row = {&lblsway(i), &txtsway(i), &frameInputType(i), &frameAnalysisType(i)};
    for (Control* control : row) {
      control->setVisible(i < count());
      control->setEnabled(i < count());
    }
    for (auto* options : {&optProfile, &optRating, &optQUIL, &optStability, &optNone}) {
      (*options)(i).setEnabled(i < count());
    }
  }
  cmdNext.setCaption(kNextCaptions[static_cast<std::size_t>(count() + 1)]);
}

bool frmAuxSpillways::anyIntegrity() const {
  for (int i = 0; i < context_.base.state.numAuxSpillways; ++i) {
    if (optQUIL(i).selected()) return true;
  }
  return false;
}

void frmAuxSpillways::goNext() {
  if (!labelsPass()) return;
  ApplicationState& state = context_.base.state;
  state.numAuxSpillways = count();
  if (count() == 0) return runSimulation();
  context_.screens.auxSpillwayProfile->showSpillway(0);
  moveTo(optProfile(0).selected() ? "frmAuxSpillwayProfile" : "frmAuxRatingTable");
}

bool frmAuxSpillways::labelsPass() {
  if (count() < 0) {
    warn("Input Data", "Select the number of auxiliary spillways ");
    return false;
  }
  std::vector<std::string> labels;
  for (int i = 0; i < count(); ++i) labels.push_back(label(i));
  if (std::find(labels.begin(), labels.end(), "") != labels.end()) {
    warn("Input Data", count() == 1 ? "Enter the label for the spillway " : "Enter the labels for the spillways ");
    return false;
  }
  if (!holdsEqual(labels)) return true;
  warn("Input Error", "Enter distinct labels for the spillways ");
  return false;
}

void frmAuxSpillways::warn(const std::string& title, const std::string& text) {
  context_.base.ports.boxes.tell(title, text, BoxIcon::warning);
}

}  // namespace kestra
