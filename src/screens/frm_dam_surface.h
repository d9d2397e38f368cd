#pragma once

#include "controls/table.h"
#include "controls/text_box.h"
#include "screens/edit_menu.h"
#include "screens/input_screen.h"
#include "screens/table_editor.h"

namespace kestra {

// The profile of the dam's crest and the surfaces of the embankment. The choices on frmProjectInformation decide at
// each activation which fields are on show; a hidden field keeps its text.
class frmDamSurface : public InputScreen {
 public:
  explicit frmDamSurface(InputContext& context);

  Button cmdPlot{*this, "cmdPlot", "P&lot"};

  Frame frameCrestProfile{*this, "frameCrestProfile", "Dam Crest Profile"};
  Table grdTable{*this, "grdTable", {3, 102, 1, 1}};  // stations and elevations in ft, up to 101 points
  EditMenu edit{*this, context_.base.ports, PointDirection::alongColumns, [this]() -> Table& { return grdTable; }};

  Frame frameCrest{*this, "frameCrest", "Dam Crest"};
  Label lblCrestWidth{*this, "lblCrestWidth", "Dam Crest Width (ft)"};
  TextBox txtCrestWidth{*this, "txtCrestWidth"};
  Label lblCrestRCI{*this, "lblCrestRCI", "Retardance Curve Index"};
  TextBox txtCrestRCI{*this, "txtCrestRCI"};
  Label lblCoeff{*this, "lblCoeff", "Embankment Discharge Coefficient"};
  TextBox txtCoeff{*this, "txtCoeff"};

  Frame frameUpstream{*this, "frameUpstream", "Upstream Embankment"};
  Label lblUpSlope{*this, "lblUpSlope", "Slope (H/V)"};
  TextBox txtUpSlope{*this, "txtUpSlope"};
  Label lblUpRCI{*this, "lblUpRCI", "Retardance Curve Index"};
  TextBox txtUpRCI{*this, "txtUpRCI"};

  Frame frameDownstream{*this, "frameDownstream", "Downstream Dam Face"};
  Label lblDownSlope{*this, "lblDownSlope", "Slope (H/V)"};
  TextBox txtDownSlope{*this, "txtDownSlope"};
  Label lblDownRCI{*this, "lblDownRCI", "Retardance Curve Index        (or Manning's n)"};
  TextBox txtDownRCI{*this, "txtDownRCI"};
  Label lblDownVCF{*this, "lblDownVCF", "Vegetal Cover Factor"};
  TextBox txtDownVCF{*this, "txtDownVCF"};
  Label lblDownCode{*this, "lblDownCode", "Maintenance Code"};
  TextBox txtDownCode{*this, "txtDownCode"};
  Label lblDownPI{*this, "lblDownPI", "Plasticity Index"};
  TextBox txtDownPI{*this, "txtDownPI"};
  Label lblDownDiameter{*this, "lblDownDiameter", "Particle Diameter (in)"};
  TextBox txtDownDiameter{*this, "txtDownDiameter"};
  Label lblRiprapD50{*this, "lblRiprapD50", "Riprap D50 (ft)"};
  TextBox txtRiprapD50{*this, "txtRiprapD50"};
  Label lblRiprapU{*this, "lblRiprapU", "Riprap Uniformity"};
  TextBox txtRiprapU{*this, "txtRiprapU"};
  Label lblRiprapP{*this, "lblRiprapP", "Riprap Porosity"};
  TextBox txtRiprapP{*this, "txtRiprapP"};
  Label lblRiprapT{*this, "lblRiprapT", "Riprap Thickness (ft)"};
  TextBox txtRiprapT{*this, "txtRiprapT"};
  Label lblCSS{*this, "lblCSS", "Critical Shear Stress (lb/ft^2)"};  // never on show, as its field
  TextBox txtCSS{*this, "txtCSS"};

  // Never on show: a typical cross section, as files of other tools bring it.
  Frame frameDamCrossSection{*this, "frameDamCrossSection", "Dam Cross Section - Typical"};
  Table xcTable{*this, "xcTable", {4, 102, 1, 1}};

  void setColNum();     // point numbers over the columns
  void setColWidth();   // 1000 twips and centred, 1250 for the labels
  void setRowHeight();  // 300 twips

 protected:
  void load() override;
  void activate() override;
  void undone() override { activate(); }
  void goNext() override { moveTo("frmStructureTable"); }
  void goPrevious() override;

 private:
  void placeFields();
  void showCrestAndUpstream();
  void showDownstream();

  TableEditor editor_{grdTable, {PointDirection::alongColumns, 2, "0123456789.-", true}, context_.base.ports, cmdNext};
};

}  // namespace kestra
