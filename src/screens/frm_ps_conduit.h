#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "controls/choices.h"
#include "controls/ranges.h"
#include "controls/text_box.h"
#include "screens/input_screen.h"

namespace kestra {

// The dimensions and coefficients of the principal spillway. Which fields are on show follows its type, 1 to 5 as
// frmPSType::type() counts; a hidden field keeps its text.
class frmPSConduit : public InputScreen {
 public:
  explicit frmPSConduit(InputContext& context);

  Tabs SSTab1{*this, "SSTab1", {"Inlet", "Conduit", "Coefficients"}};

  // Inlet.
  Label lblLowStageCrest{*this, "lblLowStageCrest", "Low Stage Orifice Crest Elevation, Feet:"};
  TextBox txtLowStageCrest{*this, "txtLowStageCrest"};
  Label lblOrificeWidth{*this, "lblOrificeWidth", "Low Stage Orifice Width, Feet:"};
  TextBox txtOrificeWidth{*this, "txtOrificeWidth"};
  Label lblOrificeHeight{*this, "lblOrificeHeight", "Low Stage Orifice Height, Feet:"};
  TextBox txtOrificeHeight{*this, "txtOrificeHeight"};
  Label lblHighStageCrest{*this, "lblHighStageCrest", "Crest Elevation, Feet:"};
  TextBox txtHighStageCrest{*this, "txtHighStageCrest"};
  Label lblWeirLength{*this, "lblWeirLength", "Weir Length, Feet:"};
  TextBox txtWeirLength{*this, "txtWeirLength"};

  // Conduit.
  Label lblNumOfConduit{*this, "lblNumOfConduit", "Number of Conduits:"};
  TextBox txtNumOfConduit{*this, "txtNumOfConduit"};
  Label lblLengthOfConduit{*this, "lblLengthOfConduit", "Length of Conduits, Feet:"};
  TextBox txtLengthOfConduit{*this, "txtLengthOfConduit"};
  Label lblDiameterOfConduit{*this, "lblDiameterOfConduit"};  // in inches; in feet where it is a width
  TextBox txtDiameterOfConduit{*this, "txtDiameterOfConduit"};
  Label lblHeight{*this, "lblHeight", "Conduit Height, Feet:"};
  TextBox txtHeight{*this, "txtHeight"};
  Label lblManning{*this, "lblManning", "Conduit Manning's \"n\" Value:"};
  TextBox txtManning{*this, "txtManning"};
  Label lblInvertElevAtRiser{*this, "lblInvertElevAtRiser", "Conduit Invert Elevation at Riser, Feet:"};
  TextBox txtInvertElevAtRiser{*this, "txtInvertElevAtRiser"};
  Label lblInvertElevAtOutlet{*this, "lblInvertElevAtOutlet", "Conduit Invert Elevation at Outlet, Feet:"};
  TextBox txtInvertElevAtOutlet{*this, "txtInvertElevAtOutlet"};
  Frame Frame3{*this, "Frame3"};
  OptionGroup pipe;
  OptionButton optStraightPipe{*this, "optStraightPipe", pipe, "Straight Pipe", true};
  OptionButton optBendInPipe{*this, "optBendInPipe", pipe, "Bend in Pipe"};
  Label lblHorizInToBen{*this, "lblHorizInToBen"};
  TextBox txtHorizInToBen{*this, "txtHorizInToBen"};
  Label lblHorizBenToOut{*this, "lblHorizBenToOut", "Horiz. Distance, Bend to Outlet, Feet:"};
  TextBox txtHorizBenToOut{*this, "txtHorizBenToOut"};
  Label lblElevationAtBend{*this, "lblElevationAtBend", "Elevation at Bend, Feet: "};
  TextBox txtElevationAtBend{*this, "txtElevationAtBend"};
  Label lblElevationAtOutlet{*this, "lblElevationAtOutlet", "Elevation at Outlet, Feet:"};
  TextBox txtElevationAtOutlet{*this, "txtElevationAtOutlet"};

  // Coefficients.
  Label lblEntranceLossCoefficient{*this, "lblEntranceLossCoefficient", "Entrance Loss Coefficient, Ke:"};
  TextBox txtEntranceLossCoefficient{*this, "txtEntranceLossCoefficient"};
  Label lblWeirInletCoefficient{*this, "lblWeirInletCoefficient", "Weir Coefficient:"};
  TextBox txtWeirInletCoefficient{*this, "txtWeirInletCoefficient"};
  Label lblHoodWeirInletCoefficient{*this, "lblHoodWeirInletCoefficient", "Weir Coefficient:"};
  TextBox txtHoodWeirInletCoefficient{*this, "txtHoodWeirInletCoefficient"};
  Frame Frame4a{*this, "Frame4a"};
  Label lblHighStageWeirCoefficient{*this, "lblHighStageWeirCoefficient", "Weir Coefficient:"};
  TextBox txtHighStageWeirCoefficient{*this, "txtHighStageWeirCoefficient"};
  Frame Frame4b{*this, "Frame4b", "Low Stage Orifice"};
  Label lblOrificeLowStageFullFlow{*this, "lblOrificeLowStageFullFlow", "Orifice Discharge Coefficient:"};
  TextBox txtOrificeLowStageFullFlow{*this, "txtOrificeLowStageFullFlow"};
  Label lblOrificeLowStageWeirFlow{*this, "lblOrificeLowStageWeirFlow", "Weir Coefficient:"};
  TextBox txtOrificeLowStageWeirFlow{*this, "txtOrificeLowStageWeirFlow"};
  Frame Frame4c{*this, "Frame4c", "Conduit"};
  Label lblConduitOrificeArea{*this, "lblConduitOrificeArea", "Entrance (Orifice) Area (sq. ft.):"};
  TextBox txtConduitOrificeArea{*this, "txtConduitOrificeArea"};
  Label lblConduitOrificeDischargeCoefficient{*this, "lblConduitOrificeDischargeCoefficient",
                                              "Entrance Orifice Discharge Coefficient:"};
  TextBox txtConduitOrificeDischargeCoefficient{*this, "txtConduitOrificeDischargeCoefficient"};
  Label lblFilletSize{*this, "lblFilletSize", "Rectangular Conduit Fillet (inches):"};
  TextBox txtFilletSize{*this, "txtFilletSize"};

  // Shows the fields of a type, 1 to 5, under its title; no effect for any other number.
  void Initialize(int type);

 protected:
  void activate() override;
  void undone() override;
  void unload() override;
  void goNext() override { moveTo("frmPSRatingTable"); }
  void goPrevious() override { moveTo("frmPSType"); }
  std::string helpTopic() const override;

 private:
  struct Field {
    Label& label;
    TextBox& box;
    std::string_view types;  // the numbers of the types that have it
  };
  // A check when the user leaves a field that has been typed into since the last check.
  struct LeaveCheck {
    TextBox& box;
    bool (*refuses)(double value);
    const char* message;
    bool changed = false;
  };

  std::vector<Field> fields();
  void placeFields();
  void showFields();
  void showPipe();
  void focusFirstField();
  void setChanged(LeaveCheck& check, bool changed);
  void leave(LeaveCheck& check);

  int type_ = 1;
  std::array<LeaveCheck, 4> checks_;
};

}  // namespace kestra
