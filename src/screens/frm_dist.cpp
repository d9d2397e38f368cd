#include "screens/frm_dist.h"

#include <algorithm>

#include "controls/screen_host.h"
#include "controls/undo_history.h"
#include "sampling/distribution_catalogue.h"
#include "screens/frm_aux_spillway_profile.h"

namespace kestra {
namespace {

constexpr const char* kConstant = "CONSTANT";

// The properties in the order of the list.
constexpr std::array<MaterialProperty, kMaterialProperties> kListed = {
    MaterialProperty::plasticityIndex, MaterialProperty::dryDensity,     MaterialProperty::headCutIndex,
    MaterialProperty::percentClay,     MaterialProperty::detachmentRate, MaterialProperty::representativeDiameter};

std::vector<std::string> catalogueNames() {
  std::vector<std::string> names;
  for (const DistributionForm& form : distributionCatalogue()) names.emplace_back(form.name);
  return names;
}

}  // namespace

frmDist::frmDist(InputContext& context) : Screen("frmDist", "Material Property Distributions"), context_(context) {
  cmbDist.setItems(catalogueNames());
  cmbDist.setText(kConstant);
  lblDist.standIn(formDist);
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    labels_[i]->standIn(formDist);
    texts_[i]->standIn(formDist);
  }
  for (Control* control : std::initializer_list<Control*>{&lblInstance, &txtInstance, &lblSeed, &txtSeed, &lblSampling,
                                                          &optRandomSample, &optLatinHypercube}) {
    control->standIn(frameGlobal);
  }
  showForm();
  Combo1.onClick = [this] {
    leaveProperty();
    property_ = kListed[static_cast<std::size_t>(Combo1.index())];
    showProperty();
  };
  cmbDist.onClick = [this] { showForm(); };
  cmdOK.onClick = [this] { accept(); };
  cmdCancel.onClick = [this] { host().hide(*this); };
}

void frmDist::load() {
  choose(MaterialProperty::plasticityIndex);
}

void frmDist::choose(MaterialProperty property) {
  host().load(*this);
  host().load(*context_.screens.auxSpillwayProfile);
  const ApplicationState& state = context_.base.state;
  distributions_ = context_.screens.auxSpillwayProfile->shownDistributions();
  txtSeed.setText(state.lhsSeed);
  txtInstance.setText(state.totalInstances);
  (state.bRandomSample ? optRandomSample : optLatinHypercube).setSelected(true);
  select(property);
}

void frmDist::showProperty() {
  const Distribution& shown = distributions_[static_cast<std::size_t>(property_)];
  cmbDist.setText(findDistribution(shown.name) != nullptr ? shown.name : kConstant);
  for (std::size_t i = 0; i < texts_.size(); ++i) texts_[i]->setText(shown.parameters[i]);
  showForm();
}

void frmDist::leaveProperty() {
  Distribution& left = distributions_[static_cast<std::size_t>(property_)];
  left.name = cmbDist.text();
  left.inUse = left.name != kConstant;
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    left.parameters[i] = texts_[i]->ownVisible() ? texts_[i]->text() : "";
  }
}

// Captions and explanation of the chosen distribution; fields that it does not have are hidden.
void frmDist::showForm() {
  const DistributionForm* form = findDistribution(cmbDist.text());
  if (form == nullptr) return;
  lblDist.setCaption(std::string(form->explanation));
  for (std::size_t i = 0; i < texts_.size(); ++i) {
    labels_[i]->setCaption(std::string(form->parameters[i]));
    labels_[i]->setVisible(!form->parameters[i].empty());
    texts_[i]->setVisible(!form->parameters[i].empty());
  }
}

bool frmDist::passes() {
  std::string_view fault;
  if (txtSeed.text().empty()) {
    fault = "Please enter the Seed Value";
  } else if (txtInstance.text().empty()) {
    fault = "Please enter the Number of Instances";
  } else {
    fault = faultToShow();
  }
  if (fault.empty()) return true;
  context_.base.ports.boxes.tell("Data Check", std::string(fault), BoxIcon::warning);
  return false;
}

// What is wrong with the property on show, or else with another that is drawn, which then comes on show. A constant
// that is not on show may be without a value: not every property is needed.
std::string_view frmDist::faultToShow() {
  const auto faultOf = [this](MaterialProperty property) {
    return distributionFault(distributions_[static_cast<std::size_t>(property)]);
  };
  if (const std::string_view fault = faultOf(property_); !fault.empty()) return fault;
  for (const MaterialProperty property : kListed) {
    const bool drawn = distributions_[static_cast<std::size_t>(property)].inUse;
    if (!drawn || faultOf(property).empty()) continue;
    select(property);
    return faultOf(property);
  }
  return {};
}

void frmDist::select(MaterialProperty property) {
  property_ = property;
  Combo1.setIndex(static_cast<int>(std::find(kListed.begin(), kListed.end(), property) - kListed.begin()));
  showProperty();
}

void frmDist::accept() {
  leaveProperty();
  if (!passes()) return;
  UndoHistory* history = host().history();
  const Gesture gesture(history, nullptr);
  ApplicationState& state = context_.base.state;
  const auto put = [history](auto& value, const auto& next) {
    if (value == next) return;
    if (history != nullptr) history->keep(value);
    value = next;
  };
  put(state.lhsSeed, txtSeed.text());
  put(state.totalInstances, txtInstance.text());
  put(state.bRandomSample, optRandomSample.selected());
  context_.screens.auxSpillwayProfile->takeDistributions(distributions_);
  host().hide(*this);
}

bool frmDist::queryUnload(CloseReason reason, bool bExiting) {
  if (bExiting || reason == CloseReason::program) return true;
  cmdOK.click();
  return false;
}

}  // namespace kestra
