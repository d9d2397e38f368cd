#pragma once

#include <string>

#include "controls/choices.h"
#include "controls/text_box.h"
#include "screens/edit_menu.h"
#include "screens/hydrograph_files.h"
#include "screens/hydrograph_tables.h"
#include "screens/table_editor.h"

namespace kestra {

// The reservoir's inflow hydrograph, as discharges at constant steps or as times and discharges, and the conversion
// between the two.
class frmHydrographData : public InputScreen {
 public:
  static constexpr int kRows = 5001;         // of both tables: a heading and 5000 points
  static constexpr int kMostRows = 100'001;  // to which a conversion lets them grow

  explicit frmHydrographData(InputContext& context);

  Label lblTitle{*this, "lblTitle", "Title:"};
  TextBox txtTitle{*this, "txtTitle"};
  Label lblStartTime{*this, "lblStartTime", "Start Time (hrs):"};
  TextBox txtStartTime{*this, "txtStartTime"};

  Frame frameDataInputFormat{*this, "frameDataInputFormat", "Data Input Format"};
  OptionGroup format;
  OptionButton optConst{*this, "optConst", format, "Constant Time Increment (hrs):", true};
  TextBox txtConst{*this, "txtConst"};  // hours
  OptionButton optVariable{*this, "optVariable", format, "Variable Time Increment:"};
  Table grdTable{*this, "grdTable", {kRows, 2, 1, 1}};  // computed time, hours; discharge, cfs
  Table varTable{*this, "varTable", {kRows, 2, 1, 0}};  // time, hours; discharge, cfs

  Frame frameConversion{*this, "frameConversion", "Hydrograph Data Conversion"};
  Label Label3{*this, "Label3", "Final Time Increment (hrs):"};
  TextBox txtDesired{*this, "txtDesired"};  // hours
  Button cmdConvert{*this, "cmdConvert", "Convert from Constant Time to Variable Time"};

  Frame frameAdjust{*this, "frameAdjust", "Adjust Computational Time Increment"};
  CheckBox chkAdjustTimeIncrement{*this, "chkAdjustTimeIncrement", "Automatically adjust time increment during run"};

  Frame Frame3{*this, "Frame3"};  // only without breach analysis
  CheckBox chk10daydrawdown{*this, "chk10daydrawdown", "Compute drawdown:"};
  Label lblDrawdownTime{*this, "lblDrawdownTime", "Reference Time (hrs):"};
  TextBox txtDrawdownTime{*this, "txtDrawdownTime", "240"};
  Label lblDrawdownElevation{*this, "lblDrawdownElevation", "Reference Elevation:"};
  TextBox txtDrawdownElevation{*this, "txtDrawdownElevation"};
  OptionGroup drawdownUnit;
  OptionButton optPercent{*this, "optPercent", drawdownUnit, "%", true};
  OptionButton optFeet{*this, "optFeet", drawdownUnit, "ft"};

  Button cmdPlot{*this, "cmdPlot", "P&lot"};
  EditMenu editMenu;  // of the table on show
  HydrographFiles files;

  std::string lastConst;       // the last accepted text of txtConst
  bool bConstChanged = false;  // the user has changed txtConst since it was last looked at
  bool bTitleChanged = false;  // likewise txtTitle
  bool bConverted = false;     // a conversion has been made
  int hydrographSelected = 0;  // index of the one that was chosen last in a QT40 file

  void clearTable();  // blanks the cells of the table on show; the cursor goes to the first of them
  // Writes the time column of grdTable: 0, dt, 2 dt, ... hours.
  void setRowNum(double dt);
  // Mode 1: the constant-time table becomes a variable-time one, dt being its step. Mode 2: the reverse, dt being the
  // step wanted. Any other mode is a RuntimeFault. Too many points for a count are told in a box and change nothing.
  void convertHydrograph(double dt, int mode);
  // Resamples the constant-time table to another step.
  void retimeHydrograph(double oldDt, double newDt);

  void selectForm(bool constant);       // selects the option of the form and shows what belongs to it
  void setIncrement(std::string text);  // of txtConst, as one that has been accepted
  void renumber();                      // times by txtConst; none where it is empty
  void setHeadings();
  void setHydrographCode(const std::string& code) { hydrographCode_ = code; }  // from frmHydrographSelect
  const std::string& hydrographCode() const { return hydrographCode_; }

 protected:
  void load() override;
  void activate() override;
  void unload() override;
  void goNext() override;
  void goPrevious() override { moveTo("frmStructureTable"); }
  void undone() override;

 private:
  static constexpr const char* kConstantStep = "Constant time increment must greater than 0.";
  static constexpr const char* kFinalStep = "Time increment must greater than 0.";

  Table& tableOnShow() { return optConst.selected() ? grdTable : varTable; }
  bool breach() const;  // whether the dam may breach
  void showForm();      // what belongs to the selected option
  void showDrawdown();
  void convert();
  void convertToVariable(double dt);
  void convertToConstant(double dt, int rows);  // grdTable grows to `rows`
  // False, after a box, when nothing was changed. `shown` is the text of the new step.
  bool retime(double oldDt, double newDt, const std::string& shown);
  bool resample(double dt, const HydrographPoints& points, ResampledHydrograph& result);
  void takeFlows(const ResampledHydrograph& resampled);
  void leaveIncrement();
  void resampleAsTyped(double before, double dt);
  void leaveDesired();
  void leaveTitle();
  void warn(const std::string& text);  // under "Hydrograph Error"
  void refuse(TextBox& field, const std::string& text);
  void intoData(Table& table);
  void setLastConst(const std::string& text);

  TableEditor constantEditor_;
  TableEditor variableEditor_;
  std::string hydrographCode_;
};

}  // namespace kestra
