#pragma once

#include "graphs/legend_screen.h"

namespace kestra {

// The colours of all graphs, 0 to 109.
class frmUpdateColors : public LegendScreen {
 public:
  explicit frmUpdateColors(GraphContext& context);

 protected:
  void drawRow(int row, double top) override;
};

}  // namespace kestra
