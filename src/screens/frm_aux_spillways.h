#pragma once

#include <algorithm>
#include <array>
#include <string>

#include "controls/choices.h"
#include "controls/control_array.h"
#include "controls/text_box.h"
#include "screens/aux_store.h"
#include "screens/input_screen.h"

namespace kestra {

// How many auxiliary spillways the dam has, their labels, and for each how it is described and what is analysed. Rows
// beyond the count are hidden and keep what was entered.
class frmAuxSpillways : public InputScreen {
 public:
  explicit frmAuxSpillways(InputContext& context);

  Label lblAuxSpillways{*this, "lblAuxSpillways", "Number of Auxiliary Spillways"};
  ComboBox cmbAuxSpillways{*this, "cmbAuxSpillways", {"Select", "0", "1", "2", "3"}, 0};

  Label lblUserLabel{*this, "lblUserLabel", "User Label"};
  ControlArray<Label> lblsway{*this, "lblsway", 0, kAuxSpillways};
  ControlArray<TextBox> txtsway{*this, "txtsway", 0, kAuxSpillways, "", kLabelLength};

  ControlArray<Frame> frameInputType{*this, "frameInputType", 0, kAuxSpillways, "Input Type"};
  std::array<OptionGroup, kAuxSpillways> inputTypes;
  ControlArray<OptionButton> optProfile{*this, "optProfile", 0, inputTypes, "Surface Profile", true};
  ControlArray<OptionButton> optRating{*this, "optRating", 0, inputTypes, "Rating Table"};

  ControlArray<Frame> frameAnalysisType{*this, "frameAnalysisType", 0, kAuxSpillways, "Analysis Type"};
  std::array<OptionGroup, kAuxSpillways> analysisTypes;
  ControlArray<OptionButton> optQUIL{*this, "optQUIL", 0, analysisTypes, "Integrity"};
  ControlArray<OptionButton> optStability{*this, "optStability", 0, analysisTypes, "Stability"};
  ControlArray<OptionButton> optNone{*this, "optNone", 0, analysisTypes, "None", true};

  static constexpr int kLabelLength = 9;  // characters: the label's field in the control file

  // The count that is chosen: 0 to 3; -1 while it is "Select". Setting it is the program's doing, not the user's.
  int count() const { return std::max(cmbAuxSpillways.index() - 1, -1); }
  void setCount(int count) { cmbAuxSpillways.setIndex(count + 1); }

  const std::string& label(int spillway) const { return txtsway(spillway).text(); }
  // Whether the erosion or the stability of the spillway is analysed.
  bool analysed(int spillway) const { return optQUIL(spillway).selected() || optStability(spillway).selected(); }
  // Whether the integrity of any spillway in use is analysed; then the headcut screen ends the sequence.
  bool anyIntegrity() const;

 protected:
  void activate() override { showRows(); }
  void goNext() override;
  void goPrevious() override { moveTo("frmPSRatingTable"); }
  void undone() override { showRows(); }

 private:
  void showRows();
  void placeOptions();
  bool labelsPass();
  void warn(const std::string& title, const std::string& text);
};

}  // namespace kestra
