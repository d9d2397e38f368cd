#pragma once

#include <array>
#include <functional>
#include <string>

#include "controls/choices.h"
#include "controls/control_array.h"
#include "controls/ranges.h"
#include "controls/table.h"
#include "controls/text_box.h"
#include "controls/undo_history.h"
#include "screens/aux_store.h"
#include "screens/edit_menu.h"
#include "screens/input_screen.h"
#include "screens/table_editor.h"

namespace kestra {

// One auxiliary spillway at a time: its surface profile, channel, surface conditions and materials, on six pages. The
// values of all spillways stand in the stores; the screen is filled from them and stores what it shows before it shows
// something else, and when it is left.
class frmAuxSpillwayProfile : public InputScreen {
 public:
  explicit frmAuxSpillwayProfile(InputContext& context);

  Button cmdPlot{*this, "cmdPlot", "P&lot"};
  Tabs SSTab1{*this,
              "SSTab1",
              {"Profile Properties", "Profile Parameters", "Material Properties", "Fill Options",
               "Topsoil Material Properties", "Fill Material Properties"}};

  Frame frameSurfaceProfile{*this, "frameSurfaceProfile", "Surface Profile"};
  Table grdProfile{*this, "grdProfile", {3, kAuxPoints + 1, 1, 1}};  // ft
  Frame frameSurfaceConditions{*this, "frameSurfaceConditions", "Surface Conditions"};
  Table grdCond{*this, "grdCond", {6, kShownReaches + 1, 0, 1}};  // stations and root depth in ft

  Label lblBottom{*this, "lblBottom", "Bottom Width, Feet:"};
  TextBox txtBottom{*this, "txtBottom"};
  Label lblSide{*this, "lblSide", "Side Slope Ratio:"};
  TextBox txtSide{*this, "txtSide"};  // horizontal to vertical
  Label lblElevation{*this, "lblElevation", "Elevation of Valley Floor, Feet:"};
  TextBox txtElevation{*this, "txtElevation"};
  Label lblTopsoil{*this, "lblTopsoil", "Topsoil Fill Depth, Feet:"};
  TextBox txtTopsoil{*this, "txtTopsoil"};
  Label lblEnd{*this, "lblEnd", "End of Constructed Exit Channel, Feet:"};
  TextBox txtEnd{*this, "txtEnd"};
  Frame CrestBarrierFrame{*this, "CrestBarrierFrame"};
  CheckBox chkCrest{*this, "chkCrest", "Crest Barrier"};
  Label lblBreachDepth{*this, "lblBreachDepth", "Breach Depth, Feet:"};
  TextBox txtBreachDepth{*this, "txtBreachDepth"};
  Frame BarrierFrame{*this, "BarrierFrame"};
  CheckBox chkBarrier{*this, "chkBarrier", "Barrier"};
  Label lblBarrier{*this, "lblBarrier", "Station, Feet:"};
  TextBox txtBarrier{*this, "txtBarrier"};

  // The material on show. lblNo is its number.
  Frame Frame4{*this, "Frame4"};
  Label lblNumber{*this, "lblNumber", "Material Number:"};
  Label lblNo{*this, "lblNo", "1"};
  Label lblDescript{*this, "lblDescript", "Description:"};
  TextBox txtDescript{*this, "txtDescript"};
  Frame Frame5{*this, "Frame5"};
  Label lblPlastic{*this, "lblPlastic", "Plasticity Index:"};
  TextBox txtPlastic{*this, "txtPlastic"};
  Button cmdPlastic{*this, "cmdPlastic", "Range"};
  Label lblDry{*this, "lblDry", "Dry Density     (lb/ft^3):"};
  TextBox txtDry{*this, "txtDry"};
  Button cmdDry{*this, "cmdDry", "Range"};
  Label lblHead{*this, "lblHead", "Head Cut Index:"};
  TextBox txtHead{*this, "txtHead"};
  Button cmdHeadCut{*this, "cmdHeadCut", "Range"};
  Label lblRepresent{*this, "lblRepresent", "Representative Dia (in):"};
  TextBox txtRepresent{*this, "txtRepresent"};
  Button cmdRep{*this, "cmdRep", "Range"};
  Frame Frame6{*this, "Frame6"};
  OptionGroup erosion;
  OptionButton optPercent{*this, "optPercent", erosion, "Percent Clay:", true};
  TextBox txtPercent{*this, "txtPercent"};
  Button cmdPercent{*this, "cmdPercent", "Range"};
  OptionButton optDetach{*this, "optDetach", erosion, "Detach. Rate:"};
  TextBox txtDetach{*this, "txtDetach"};  // (ft/h)/(lb/ft^2)
  Button cmdDetach{*this, "cmdDetach", "Range"};
  Table grdTable{*this, "grdTable", {3, kShownBoundary + 1, 1, 1}};  // upper boundary of the material, ft
  Button cmdAddMaterial{*this, "cmdAddMaterial", "Add Material"};
  Button cmdInsertMaterial{*this, "cmdInsertMaterial", "Insert Material"};
  Button cmdDeleteMaterial{*this, "cmdDeleteMaterial", "Delete Material"};
  Button cmdNextMaterial{*this, "cmdNextMaterial", "Next Material"};
  Button cmdPreMaterial{*this, "cmdPreMaterial", "Previous Material"};

  // The fills, by index: 0 topsoil, 1 general.
  Frame frameTopsoilFill{*this, "frameTopsoilFill", "Topsoil Fill"};
  Frame frameGeneralFill{*this, "frameGeneralFill", "General Fill"};
  std::array<OptionGroup, 2> fills;
  ControlArray<OptionButton> optNone{*this, "optNone", 0, fills, "None", true};
  ControlArray<OptionButton> optIn{*this, "optIn", 0, fills, "In - Place Material"};
  ControlArray<OptionButton> optExternal{*this, "optExternal", 0, fills, "External Material"};
  Label lblNum1{*this, "lblNum1", "Material No.:"};
  Label lblNum2{*this, "lblNum2", "Material No.:"};
  ControlArray<ComboBox> materNum{*this, "materNum", 0, 2};

  EditMenu edit{*this, context_.base.ports, PointDirection::alongColumns,
                [this]() -> Table& { return *editedTable(); }};

  static constexpr int kShownReaches = 20;   // of the 100 that the store holds
  static constexpr int kShownBoundary = 21;  // points of a material's boundary, likewise

  // Between the boxes and record n of the spillway being edited, 1 to 102; another number is a fault. What is typed
  // before there is a material is material 1.
  void storeMaterial(int n);
  void showMaterial(int n);
  void clearMaterial();  // blanks the boxes; the number is 1, the erosion by percent clay

  void setTableValues();  // the spillway being edited: title, captions, fields on show, and the values of the store
  void setColNum();       // point numbers over the columns; grdCond has no row for them
  void setColWidth();     // 1000 twips and centred, 1250 for the labels

  // Makes `spillway` the one being edited and shows it from its first page and material on; what was shown before is
  // stored.
  void showSpillway(int spillway);
  // Puts what is shown into the stores; who reads them does this first. Without effect while the screen is not loaded.
  void storeShown();
  // Shows what the stores hold, for who has just filled them; what was shown before is forgotten.
  void refill();
  // Shows what follows from values that were undone or redone, which is no step of its own. Without effect while the
  // screen is not loaded.
  void followUndo();

  // The material on show as the distribution dialog needs it. `takeDistributions` puts the chosen ones into the boxes
  // and, with the boxes, into the material's record.
  using Distributions = std::array<Distribution, kMaterialProperties>;
  Distributions shownDistributions() const;
  void takeDistributions(const Distributions& chosen);

 protected:
  void load() override;
  void activate() override;
  void unload() override {
    shown_ = {};
    changed_ = {};
  }
  void goNext() override;
  void goPrevious() override;
  void goHome() override;
  void undone() override;

 private:
  // What the controls hold.
  struct Shown {
    int spillway = -1;
    int material = 1;
    bool external = false;  // a fill's own material
    bool rootDepth = true;  // grdCond shows its last row
    bool operator==(const Shown&) const = default;
  };

  void placeFields();
  void prepareTables();
  void prepareFields();
  void prepareMaterials();
  void setFields();  // captions and visibility by the analysis, title
  void setNextCaption();
  bool showsCurrent() const;
  bool integrity() const;
  bool stability() const;
  Table* editedTable();  // that the Edit menu acts on; null on a page without one
  void editConditions(const std::function<void()>& command, bool wholeTable);
  void clipSelection();
  int lastCondition() const;  // the last row of grdCond that is shown
  void setChanged(std::size_t place, bool changed);
  void checkNotNegative(TextBox& box, const char* message);
  void condKey(const Key& key);
  bool condEnter();

  AuxProfile enteredProfile() const;
  void showProfile(const AuxProfile& profile);
  void showConditions(const AuxProfile& profile);
  FillChoice fillOf(int fill) const;
  void showFill(int fill, const std::string& chosen);
  void showFills();
  void moveFills(int number, int by);

  AuxMaterials& materials() { return context_.aux.auxMaterials[static_cast<std::size_t>(spillway())]; }
  const AuxMaterials& materials() const { return context_.aux.auxMaterials[static_cast<std::size_t>(spillway())]; }
  int spillway() const { return shown_.spillway >= 0 ? shown_.spillway : context_.base.state.curAuxSpillway; }
  AuxMaterial enteredMaterial(const AuxMaterial& stored) const;
  bool onFillPage() const;  // a page of a fill's own material
  void showRecord(const AuxMaterial& material, int number);
  void showFirstRecord();  // that the page begins with: the first material, or the fill's own
  void showMaterialCommands();
  void storeShownMaterial();
  void keepMaterials(int number);
  void setMaterialCommands();
  void addMaterial(bool insert);
  void deleteMaterial();
  void stepMaterial(int by);
  void changePage();
  void setShown(const Shown& shown);

  template <class T>
  void keep(T& value, bool isData = true) {
    if (UndoHistory* history = host().history()) history->keep(value, nullptr, Property::value, isData);
  }

  const std::array<TextBox*, kMaterialProperties> boxes_ = {&txtPlastic, &txtRepresent, &txtPercent,
                                                            &txtDetach,  &txtDry,       &txtHead};
  const std::array<Button*, kMaterialProperties> ranges_ = {&cmdPlastic, &cmdRep, &cmdPercent,
                                                            &cmdDetach,  &cmdDry, &cmdHeadCut};
  static constexpr TableRules kPoints = {PointDirection::alongColumns, 2, "0123456789.-", true};
  static constexpr TableRules kReaches = {PointDirection::alongColumns, 6, "0123456789.", false, false, false};
  TableEditor profileEditor_{grdProfile, kPoints, context_.base.ports, cmdNext};
  TableEditor boundaryEditor_{grdTable, kPoints, context_.base.ports, cmdNext};
  TableEditor condEditor_{grdCond, kReaches, context_.base.ports, cmdNext};
  Table* lastTable_ = &grdProfile;  // of the two on the first page, the one that had the focus last
  std::array<bool, 2> changed_{};   // txtBottom, txtSide: since they were last checked
  Shown shown_;
};

}  // namespace kestra
