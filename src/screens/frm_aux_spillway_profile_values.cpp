// Between the controls and the store of the spillway, and the walk over the spillways.
#include "controls/screen_host.h"
#include "screens/frm_aux_spillway_profile.h"
#include "screens/frm_aux_spillways.h"
#include "screens/put_value.h"
#include "screens/spillway_walk.h"

namespace kestra {
namespace {

struct StoredText {
  TextBox frmAuxSpillwayProfile::*box;
  std::string AuxProfile::*text;
};

constexpr std::array<StoredText, 7> kTexts = {{{&frmAuxSpillwayProfile::txtSide, &AuxProfile::txtSide},
                                               {&frmAuxSpillwayProfile::txtBottom, &AuxProfile::txtBottom},
                                               {&frmAuxSpillwayProfile::txtElevation, &AuxProfile::txtElevation},
                                               {&frmAuxSpillwayProfile::txtTopsoil, &AuxProfile::txtTopsoil},
                                               {&frmAuxSpillwayProfile::txtEnd, &AuxProfile::txtEnd},
                                               {&frmAuxSpillwayProfile::txtBreachDepth, &AuxProfile::txtBreachDepth},
                                               {&frmAuxSpillwayProfile::txtBarrier, &AuxProfile::txtBarrier}}};

}  // namespace

void frmAuxSpillwayProfile::setTableValues() {
  const int current = context_.base.state.curAuxSpillway;
  const bool another = shown_.spillway != current;
  Shown shown = shown_;
  shown.spillway = current;
  shown.rootDepth = !stability();
  setShown(shown);
  setFields();
  showProfile(context_.aux.auxProfile[static_cast<std::size_t>(current)]);
  if (another) showFirstRecord();
}

void frmAuxSpillwayProfile::showProfile(const AuxProfile& profile) {
  for (const StoredText& stored : kTexts) putValue(this->*stored.box, profile.*stored.text);
  putValue(chkCrest, profile.chkCrest);
  putValue(chkBarrier, profile.chkBarrier);
  for (std::size_t point = 0; point < kAuxPoints; ++point) {
    for (std::size_t value = 0; value < 2; ++value) {
      grdProfile.setCell(static_cast<int>(value) + 1, static_cast<int>(point) + 1, profile.points[point][value]);
    }
  }
  showConditions(profile);
  for (int fill : {kTopsoil, kGeneral}) {
    const FillChoice choice = profile.fill[static_cast<std::size_t>(fill)];
    auto& option = choice == FillChoice::none ? optNone : choice == FillChoice::inPlace ? optIn : optExternal;
    putSelected(option(fill));
    showFill(fill, profile.materNum[static_cast<std::size_t>(fill)]);
  }
}

AuxProfile frmAuxSpillwayProfile::enteredProfile() const {
  AuxProfile profile = context_.aux.auxProfile[static_cast<std::size_t>(shown_.spillway)];
  for (const StoredText& stored : kTexts) profile.*stored.text = (this->*stored.box).text();
  profile.chkCrest = chkCrest.checked();
  profile.chkBarrier = chkBarrier.checked();
  for (std::size_t point = 0; point < kAuxPoints; ++point) {
    for (std::size_t value = 0; value < 2; ++value) {
      profile.points[point][value] = grdProfile.cell(static_cast<int>(value) + 1, static_cast<int>(point) + 1);
    }
  }
  for (std::size_t reach = 0; reach < kShownReaches; ++reach) {
    for (std::size_t value = 0; value < profile.reaches[reach].size(); ++value) {
      profile.reaches[reach][value] = grdCond.cell(static_cast<int>(value), static_cast<int>(reach) + 1);
    }
  }
  for (int fill : {kTopsoil, kGeneral}) {
    profile.fill[static_cast<std::size_t>(fill)] = fillOf(fill);
    profile.materNum[static_cast<std::size_t>(fill)] =
        fillOf(fill) == FillChoice::external ? std::to_string(materials().count + 1 + fill) : materNum(fill).text();
  }
  return profile;
}

FillChoice frmAuxSpillwayProfile::fillOf(int fill) const {
  if (optIn(fill).selected()) return FillChoice::inPlace;
  return optExternal(fill).selected() ? FillChoice::external : FillChoice::none;
}

// The number of the fill's material: one of the spillway's for a fill in place, fixed for an external one.
void frmAuxSpillwayProfile::showFill(int fill, const std::string& chosen) {
  const FillChoice choice = fillOf(fill);
  std::vector<std::string> numbers;
  for (int n = 1; choice == FillChoice::inPlace && n <= materials().count; ++n) numbers.push_back(std::to_string(n));
  if (choice == FillChoice::external) numbers.push_back(std::to_string(materials().count + 1 + fill));
  const std::string number = choice == FillChoice::external ? numbers.front() : chosen;
  putEntries(materNum(fill), std::move(numbers), number);
  materNum(fill).setVisible(choice != FillChoice::none);
  (fill == kTopsoil ? lblNum1 : lblNum2).setVisible(choice != FillChoice::none);
}

void frmAuxSpillwayProfile::storeShown() {
  if (shown_.spillway < 0) return;
  storeShownMaterial();
  AuxProfile& stored = context_.aux.auxProfile[static_cast<std::size_t>(shown_.spillway)];
  AuxProfile entered = enteredProfile();
  if (entered == stored) return;
  keep(stored);
  stored = std::move(entered);
}

void frmAuxSpillwayProfile::refill() {
  if (!loaded()) return;
  setTableValues();
  showFirstRecord();
}

void frmAuxSpillwayProfile::showSpillway(int spillway) {
  storeShown();
  int& current = context_.base.state.curAuxSpillway;
  if (current != spillway) keep(current, false);
  current = spillway;
  if (!loaded()) return;
  SSTab1.setIndex(0);
  refill();
  setColNum();
}

void frmAuxSpillwayProfile::setShown(const Shown& shown) {
  if (shown != shown_) keep(shown_);
  shown_ = shown;
  const std::string number = std::to_string(shown_.material);
  if (lblNo.caption() != number) lblNo.setCaption(number);
}

void frmAuxSpillwayProfile::setNextCaption() {
  const ApplicationState& state = context_.base.state;
  const bool last = state.curAuxSpillway + 1 >= state.numAuxSpillways;
  const bool runs = last && !context_.screens.auxSpillways->anyIntegrity();
  cmdNext.setCaption(runs ? "&Run Simulation" : "&Next Screen");
}

void frmAuxSpillwayProfile::goNext() {
  storeShown();
  const ApplicationState& state = context_.base.state;
  if (state.curAuxSpillway + 1 >= state.numAuxSpillways) return endSpillwayWalk(context_, WalkEnd::run);
  showSpillway(state.curAuxSpillway + 1);
  setNextCaption();
  if (context_.screens.auxSpillways->optRating(state.curAuxSpillway).selected()) moveTo("frmAuxRatingTable");
}

void frmAuxSpillwayProfile::goPrevious() {
  storeShown();
  const frmAuxSpillways& spillways = *context_.screens.auxSpillways;
  const ApplicationState& state = context_.base.state;
  if (state.numAuxSpillways > 1) cmdNext.setCaption("&Next Screen");
  if (spillways.optRating(state.curAuxSpillway).selected()) return moveTo("frmAuxRatingTable");
  if (state.curAuxSpillway == 0 || state.numAuxSpillways <= 1) return moveTo("frmAuxSpillways");
  showSpillway(state.curAuxSpillway - 1);
  const int current = state.curAuxSpillway;
  if (spillways.optRating(current).selected() && !spillways.analysed(current)) moveTo("frmAuxRatingTable");
}

void frmAuxSpillwayProfile::goHome() {
  storeShown();
  toInputWindow();
}

}  // namespace kestra
