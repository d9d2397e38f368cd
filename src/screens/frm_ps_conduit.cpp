#include "screens/frm_ps_conduit.h"

#include "base/numbers.h"
#include "base/text.h"
#include "controls/screen_host.h"
#include "controls/undo_history.h"
#include "screens/frm_ps_type.h"
#include "screens/show_controls.h"

namespace kestra {
namespace {

struct TypeText {
  const char* title;
  const char* helpTopic;
};

constexpr int kHood = 5;
constexpr std::array<TypeText, kHood> kTypes = {
    {{"Principal Spillway: Single Stage Inlet, Circular Conduit", "html\\SingleStageInletCircularConduit.htm"},
     {"Principal Spillway: Single Stage Inlet, Rectangular Conduit", "html\\SingleStageInletRectangularConduit.htm"},
     {"Principal Spillway: Two Stage Inlet, Circular Conduit", "html\\TwoStageInletCircularConduit.htm"},
     {"Principal Spillway: Two Stage Inlet, Rectangular Conduit", "html\\TwoStageInletRectangularConduit.htm"},
     {"Principal Spillway: Hood Inlet", "html\\HoodInletCircularConduit.htm"}}};

constexpr std::string_view kAll = "12345";
constexpr std::string_view kRiser = "1234";  // all but the hood
constexpr std::string_view kTwoStage = "34";
constexpr std::string_view kRectangular = "24";
constexpr std::string_view kHoodOnly = "5";

bool isOf(std::string_view types, int type) {
  return types.find(static_cast<char>('0' + type)) != std::string_view::npos;
}

const TypeText& textOf(int type) {
  return kTypes[static_cast<std::size_t>(type - 1)];
}

bool notPositive(double value) {
  return value <= 0;
}
bool belowOne(double value) {
  return value < 1;
}

}  // namespace

frmPSConduit::frmPSConduit(InputContext& context)
    : InputScreen(context, "frmPSConduit", "Principal Spillway: Conduit", {}),
      checks_{{{txtLengthOfConduit, notPositive, "Length Of Conduit must be greater than 0."},
               {txtManning, notPositive, "Manning's n value must be greater than 0."},
               {txtNumOfConduit, belowOne, "Minimum Number Of Conduits is 1."},
               {txtWeirLength, notPositive, "Weir Length must be greater than 0."}}} {
  placeFields();
  showFields();
  optStraightPipe.onClick = [this] { showPipe(); };
  optBendInPipe.onClick = [this] { showPipe(); };
  for (LeaveCheck& check : checks_) {
    check.box.onChange = [this, &check] { setChanged(check, true); };
    check.box.onLeave = [this, &check] { leave(check); };
  }
}

std::vector<frmPSConduit::Field> frmPSConduit::fields() {
  return {{lblHighStageCrest, txtHighStageCrest, kAll},
          {lblWeirLength, txtWeirLength, kRiser},
          {lblLowStageCrest, txtLowStageCrest, kTwoStage},
          {lblOrificeWidth, txtOrificeWidth, kTwoStage},
          {lblOrificeHeight, txtOrificeHeight, kTwoStage},
          {lblNumOfConduit, txtNumOfConduit, kAll},
          {lblLengthOfConduit, txtLengthOfConduit, kRiser},
          {lblDiameterOfConduit, txtDiameterOfConduit, kAll},
          {lblHeight, txtHeight, kRectangular},
          {lblManning, txtManning, kAll},
          {lblInvertElevAtRiser, txtInvertElevAtRiser, kRiser},
          {lblInvertElevAtOutlet, txtInvertElevAtOutlet, kRiser},
          {lblHorizInToBen, txtHorizInToBen, kHoodOnly},
          {lblElevationAtOutlet, txtElevationAtOutlet, kHoodOnly},
          {lblEntranceLossCoefficient, txtEntranceLossCoefficient, kAll},
          {lblHighStageWeirCoefficient, txtHighStageWeirCoefficient, kRiser},
          {lblWeirInletCoefficient, txtWeirInletCoefficient, kRiser},
          {lblHoodWeirInletCoefficient, txtHoodWeirInletCoefficient, kHoodOnly},
          {lblOrificeLowStageFullFlow, txtOrificeLowStageFullFlow, kTwoStage},
          {lblOrificeLowStageWeirFlow, txtOrificeLowStageWeirFlow, kTwoStage},
          {lblConduitOrificeArea, txtConduitOrificeArea, kRiser},
          {lblConduitOrificeDischargeCoefficient, txtConduitOrificeDischargeCoefficient, kRiser},
          {lblFilletSize, txtFilletSize, kRectangular}};
}

void frmPSConduit::placeFields() {
  standIn(Frame3, {&optStraightPipe, &optBendInPipe});
  standIn(Frame4a, {&lblHighStageWeirCoefficient, &txtHighStageWeirCoefficient});
  standIn(Frame4b, {&lblOrificeLowStageFullFlow, &txtOrificeLowStageFullFlow, &lblOrificeLowStageWeirFlow,
                    &txtOrificeLowStageWeirFlow});
  standIn(Frame4c, {&lblConduitOrificeArea, &txtConduitOrificeArea, &lblConduitOrificeDischargeCoefficient,
                    &txtConduitOrificeDischargeCoefficient});
}

void frmPSConduit::Initialize(int type) {
  if (type < 1 || type > kHood) return;
  type_ = type;
  setTitle(textOf(type).title);
  showFields();
}

void frmPSConduit::showFields() {
  const bool twoStage = isOf(kTwoStage, type_);
  const bool riser = isOf(kRiser, type_);
  for (const Field& field : fields()) showControls(isOf(field.types, type_), {&field.label, &field.box});
  showControls(riser, {&Frame4a, &Frame4c});
  Frame4b.setVisible(twoStage);
  Frame4a.setCaption(twoStage ? "High Stage Inlet" : "Inlet");
  lblHighStageCrest.setCaption(twoStage ? "High Stage Crest Elevation, Feet:" : "Crest Elevation, Feet:");
  lblDiameterOfConduit.setCaption(isOf(kRectangular, type_) ? "Conduit Width, Feet:" : "Conduit Diameter, Inches:");
  showPipe();
}

void frmPSConduit::showPipe() {
  const bool hood = type_ == kHood;
  const bool bend = optBendInPipe.selected();
  showControls(hood, {&Frame3, &optStraightPipe, &optBendInPipe});
  showControls(hood && bend, {&lblHorizBenToOut, &txtHorizBenToOut, &lblElevationAtBend, &txtElevationAtBend});
  lblHorizInToBen.setCaption(bend ? "Horiz. Distance, Inlet to Bend, Feet:"
                                  : "Horiz. Distance, Inlet to Outlet, Feet:");
}

void frmPSConduit::undone() {
  Initialize(context_.screens.psType->type());
}

void frmPSConduit::activate() {
  Initialize(context_.screens.psType->type());
  SSTab1.setIndex(0);
  focusFirstField();
}

void frmPSConduit::focusFirstField() {
  for (TextBox* box : {&txtLowStageCrest, &txtHighStageCrest, &txtDiameterOfConduit}) {
    if (box->visible()) return box->takeFocus();
  }
}

void frmPSConduit::unload() {
  type_ = 1;
  for (LeaveCheck& check : checks_) check.changed = false;
}

std::string frmPSConduit::helpTopic() const {
  return textOf(type_).helpTopic;
}

void frmPSConduit::setChanged(LeaveCheck& check, bool changed) {
  if (UndoHistory* history = host().history()) history->keep(check.changed, nullptr, Property::value, false);
  check.changed = changed;
}

// An empty field has no value, so that there is nothing to refuse.
void frmPSConduit::leave(LeaveCheck& check) {
  if (!check.changed) return;
  setChanged(check, false);
  if (trim(check.box.text()).empty() || !check.refuses(lenientNumber(check.box.text()))) return;
  dataCheck(check.message);
  check.box.setText("");
  check.box.takeFocus();
}

}  // namespace kestra
