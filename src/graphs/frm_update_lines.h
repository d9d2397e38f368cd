#pragma once

#include "controls/choices.h"
#include "controls/control_array.h"
#include "graphs/legend_screen.h"

namespace kestra {

// The lines of all graphs, 1 to 13: colour, width and style.
class frmUpdateLines : public LegendScreen {
 public:
  static constexpr int kFirst = 1;
  static constexpr int kCount = 13;

  explicit frmUpdateLines(GraphContext& context);

  ControlArray<ComboBox> styleCombo{*this, "styleCombo", kFirst, kCount};
  ControlArray<ComboBox> widthCombo{*this, "widthCombo", kFirst, kCount};

 protected:
  void activate() override;
  void drawRow(int row, double top) override;
  void drawHeader() override;
  double headerHeight() const override { return 1; }

 private:
  void takeStyle(int row);
  void takeWidth(int row);
};

}  // namespace kestra
