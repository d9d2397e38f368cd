// The material on show, the commands on materials, and the pages that show them.
#include <algorithm>

#include "base/numbers.h"
#include "controls/screen_host.h"
#include "screens/frm_aux_spillway_profile.h"
#include "screens/frm_dist.h"
#include "screens/put_value.h"
#include "screens/show_controls.h"

namespace kestra {
namespace {

constexpr int kMaterialPage = 2;
constexpr int kFillPage = 3;
constexpr int kTopsoilPage = 4;
constexpr int kGeneralPage = 5;
constexpr const char* kDrawn = "PDF";

bool isBlank(const StationElevation& point) {
  return point[0].empty() && point[1].empty();
}

// Without the blank points behind the last that is not.
void cutBlankEnd(std::vector<StationElevation>& points) {
  while (!points.empty() && isBlank(points.back())) points.pop_back();
}

bool isBlank(const AuxMaterial& material) {
  const auto empty = [](const std::string& value) { return value.empty(); };
  return material.description.empty() && std::all_of(material.values.begin(), material.values.end(), empty) &&
         material.points.empty() && !material.byDetachment;
}

}  // namespace

void frmAuxSpillwayProfile::prepareMaterials() {
  SSTab1.onClick = [this](int) { changePage(); };
  cmdAddMaterial.onClick = [this] { addMaterial(false); };
  cmdInsertMaterial.onClick = [this] { addMaterial(true); };
  cmdDeleteMaterial.onClick = [this] { deleteMaterial(); };
  cmdNextMaterial.onClick = [this] { stepMaterial(1); };
  cmdPreMaterial.onClick = [this] { stepMaterial(-1); };
  for (std::size_t i = 0; i < ranges_.size(); ++i) {
    ranges_[i]->onClick = [this, i] {
      context_.screens.dist->choose(static_cast<MaterialProperty>(i));
      host().showModal(*context_.screens.dist);
      ranges_[i]->takeFocus();
    };
  }
}

void frmAuxSpillwayProfile::storeMaterial(int n) {
  const bool first = n == 1 && materials().count == 0 && !shown_.external;
  if (first && isBlank(enteredMaterial({}))) return;
  if (first) {
    keepMaterials(1);
    materials().add();
    showFills();
  }
  AuxMaterial& stored = materials().material(n);
  AuxMaterial entered = enteredMaterial(stored);
  if (entered == stored) return;
  keep(stored);
  stored = std::move(entered);
}

void frmAuxSpillwayProfile::storeShownMaterial() {
  if (!shown_.external && shown_.material > std::max(materials().count, 1)) return;
  storeMaterial(shown_.material);
}

void frmAuxSpillwayProfile::showMaterial(int n) {
  showRecord(materials().material(n), n);
}

void frmAuxSpillwayProfile::clearMaterial() {
  showRecord({}, 1);
}

bool frmAuxSpillwayProfile::onFillPage() const {
  return SSTab1.index() == kTopsoilPage || SSTab1.index() == kGeneralPage;
}

void frmAuxSpillwayProfile::showFirstRecord() {
  const AuxMaterials& all = materials();
  const int number = onFillPage() ? all.count + 1 + (SSTab1.index() - kTopsoilPage) : 1;
  onFillPage() || all.count > 0 ? showRecord(all.material(number), number) : clearMaterial();
  setMaterialCommands();
  cmdDeleteMaterial.setEnabled(true);
}

void frmAuxSpillwayProfile::showRecord(const AuxMaterial& material, int number) {
  putValue(txtDescript, material.description);
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    putValue(*boxes_[i], material.distributions[i].inUse ? kDrawn : material.values[i]);
  }
  putSelected(material.byDetachment ? optDetach : optPercent);
  for (std::size_t point = 0; point < kShownBoundary; ++point) {
    for (std::size_t value = 0; value < 2; ++value) {
      const bool given = point < material.points.size();
      grdTable.setCell(static_cast<int>(value) + 1, static_cast<int>(point) + 1,
                       given ? material.points[point][value] : "");
    }
  }
  Shown shown = shown_;
  shown.material = number;
  shown.external = onFillPage();
  setShown(shown);
}

// What the boxes hold. A property whose box no longer says so is not drawn; points that are not on show stay.
AuxMaterial frmAuxSpillwayProfile::enteredMaterial(const AuxMaterial& stored) const {
  AuxMaterial material = stored;
  material.description = txtDescript.text();
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    material.values[i] = boxes_[i]->text();
    if (material.values[i] != kDrawn) material.distributions[i].inUse = false;
  }
  material.byDetachment = optDetach.selected();
  material.points.resize(std::max<std::size_t>(material.points.size(), kShownBoundary));
  for (std::size_t point = 0; point < kShownBoundary; ++point) {
    for (std::size_t value = 0; value < 2; ++value) {
      material.points[point][value] = grdTable.cell(static_cast<int>(value) + 1, static_cast<int>(point) + 1);
    }
  }
  cutBlankEnd(material.points);
  return material;
}

// Keeps for undoing what a command on material `number` may change.
void frmAuxSpillwayProfile::keepMaterials(int number) {
  AuxMaterials& all = materials();
  keep(all.order);
  keep(all.count);
  for (int n : {number, all.count, all.count + 1, all.count + 2, all.count + 3}) {
    if (n >= 1 && n < kMaterialSlots) keep(all.material(n));
  }
}

void frmAuxSpillwayProfile::setMaterialCommands() {
  const int count = materials().count;
  cmdAddMaterial.setEnabled(count < kMostMaterials);
  cmdInsertMaterial.setEnabled(count < kMostMaterials);
  cmdNextMaterial.setEnabled(shown_.material < count);
  cmdPreMaterial.setEnabled(shown_.material > 1);
}

// Boundaries and commands belong to the materials, not to those of the fills.
void frmAuxSpillwayProfile::showMaterialCommands() {
  showControls(!onFillPage(),
               {&grdTable, &cmdAddMaterial, &cmdInsertMaterial, &cmdDeleteMaterial, &cmdNextMaterial, &cmdPreMaterial});
}

// A material was put in before `number`, or taken out at it: the fills in place go along with their materials.
void frmAuxSpillwayProfile::moveFills(int number, int by) {
  for (int fill : {kTopsoil, kGeneral}) {
    const auto chosen = wholeNumber(materNum(fill).text());
    if (fillOf(fill) != FillChoice::inPlace || !chosen || *chosen < number) continue;
    const bool gone = by < 0 && *chosen == number;
    showFill(fill, gone ? std::string() : std::to_string(*chosen + by));
  }
}

void frmAuxSpillwayProfile::showFills() {
  for (int fill : {kTopsoil, kGeneral}) showFill(fill, materNum(fill).text());
}

void frmAuxSpillwayProfile::addMaterial(bool insert) {
  if (shown_.external) return;
  storeShownMaterial();
  AuxMaterials& all = materials();
  if (all.count < kMostMaterials) {
    const int number = insert ? std::min(shown_.material, all.count + 1) : all.count + 1;
    keepMaterials(number);
    insert ? all.insert(number) : all.add();
    showRecord({}, number);
    cmdDeleteMaterial.setEnabled(true);
    if (insert) moveFills(number, 1);
    showFills();
    host().tellEdited(*this, txtDescript);
  }
  setMaterialCommands();
  cmdPreMaterial.setEnabled(true);
  cmdNextMaterial.setEnabled(false);
  txtDescript.takeFocus();
}

void frmAuxSpillwayProfile::deleteMaterial() {
  if (shown_.external) return;
  AuxMaterials& all = materials();
  const int number = shown_.material;
  if (number <= all.count) {
    keepMaterials(number);
    host().tellEdited(*this, txtDescript);
  }
  all.remove(number);
  moveFills(number, -1);
  showFills();
  if (all.count == 0) return showFirstRecord();
  const int next = std::min(number, all.count);
  showRecord(all.material(next), next);
  setMaterialCommands();
  if (all.count > 1) return;
  cmdPreMaterial.setEnabled(false);
  cmdDeleteMaterial.setEnabled(false);
}

void frmAuxSpillwayProfile::stepMaterial(int by) {
  if (shown_.external) return;
  storeShownMaterial();
  const int number = shown_.material + by;
  if (number >= 1 && number <= materials().count) showRecord(materials().material(number), number);
  setMaterialCommands();
}

// The page has changed. What the boxes held is stored, since the pages share them.
void frmAuxSpillwayProfile::changePage() {
  if (shown_.spillway < 0) return;
  storeShown();
  showMaterialCommands();
  const int page = SSTab1.index();
  if (page == kMaterialPage || onFillPage() || shown_.external) showFirstRecord();
  if (page == kMaterialPage && materials().count == 0) txtDescript.takeFocus();
  if (page == kFillPage) showFills();
}

frmAuxSpillwayProfile::Distributions frmAuxSpillwayProfile::shownDistributions() const {
  const int number = shown_.material;
  const bool stored = shown_.external || number <= materials().count;
  Distributions shown = stored ? materials().material(number).distributions : Distributions{};
  for (std::size_t i = 0; i < shown.size(); ++i) {
    const std::string& text = boxes_[i]->text();
    if (text == kDrawn && shown[i].inUse) continue;
    shown[i] = {};
    if (text != kDrawn) shown[i].parameters[0] = text;
  }
  return shown;
}

void frmAuxSpillwayProfile::takeDistributions(const Distributions& chosen) {
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    putValue(*boxes_[i], chosen[i].inUse ? kDrawn : chosen[i].parameters[0]);
  }
  storeShownMaterial();
  if (!shown_.external && shown_.material > materials().count) return;
  AuxMaterial& stored = materials().material(shown_.material);
  if (stored.distributions != chosen) {
    keep(stored);
    stored.distributions = chosen;
  }
  host().tellEdited(*this, txtDescript);
}

}  // namespace kestra
