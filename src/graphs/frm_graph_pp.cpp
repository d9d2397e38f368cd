#include "graphs/frm_graph_pp.h"

#include <exception>

namespace kestra {

frmGraphPP::frmGraphPP(GraphContext& context) : Screen("frmGraphPP", "Print Preview"), context_(context) {
  mnuExit.onClick = [this] { host().unload(*this); };
}

void frmGraphPP::showGraph(const std::string& graphName, const CanvasLog& drawing) {
  try {
    host().show(*this);
    setTitle(graphName + " Print Preview");
    GraphicsPicture.show(drawing);
    GraphicsPicture2.show(drawing);
    for (CanvasControl* picture : {&GraphicsPicture, &GraphicsPicture2}) picture->tellChanged(Property::drawing);
  } catch (const std::exception& fault) {
    context_.base.ports.boxes.tell("Error Message", fault.what(), BoxIcon::critical);
  }
}

}  // namespace kestra
