#pragma once

#include "graphs/frm_graph_pp.h"
#include "graphs/frm_output_graph.h"
#include "graphs/frm_update_colors.h"
#include "graphs/frm_update_lines.h"

namespace kestra {

// The graph screens, made once and joined to each other.
class GraphScreens {
 public:
  GraphScreens(ScreenContext& base, LineSettings& lines) : context{{base}, lines} {}

  GraphContext context;
  frmGraphPP preview{context};
  frmUpdateColors updateColors{context};
  frmUpdateLines updateLines{context};
  frmOutputGraph output{context, {preview, updateColors, updateLines}};

  void enterAll(ScreenHost& host) {
    for (Screen* screen : {static_cast<Screen*>(&output), static_cast<Screen*>(&preview),
                           static_cast<Screen*>(&updateColors), static_cast<Screen*>(&updateLines)}) {
      host.enter(*screen);
    }
  }
};

}  // namespace kestra
