#include "automation/operations.h"
#include "controls/undo_history.h"
#include "screens/frm_aux_rating_table.h"
#include "screens/frm_aux_spillway_profile.h"

namespace kestra {
namespace {

template <class S>
using Action = std::function<void(S&, const Arguments&)>;

// An operation of a screen, which is loaded first; what it changes is one step to undo.
template <class S>
Operation ofScreen(const std::string& name, std::vector<std::string> arguments, S InputScreenSet::*screen,
                   const Action<S>& action) {
  return {name, std::move(arguments), [screen, action](Application& application, const Arguments& given) -> Json {
            S& target = application.shell.input.*screen;
            application.host.load(target);
            const Gesture gesture(application.host.history(), nullptr);
            action(target, given);
            return nullptr;
          }};
}

}  // namespace

std::vector<Operation> auxOperations() {
  using Profile = frmAuxSpillwayProfile;
  using Rating = frmAuxRatingTable;
  using Given = Arguments;
  const auto profile = [](const std::string& name, std::vector<std::string> arguments, const Action<Profile>& action) {
    return ofScreen<Profile>("frmAuxSpillwayProfile." + name, std::move(arguments), &InputScreenSet::auxSpillwayProfile,
                             action);
  };
  const auto rating = [](const std::string& name, const Action<Rating>& action) {
    return ofScreen<Rating>("frmAuxRatingTable." + name, {}, &InputScreenSet::auxRatingTable, action);
  };
  return {
      profile("storeMaterial", {"n"}, [](Profile& screen, const Given& a) { screen.storeMaterial(a.integer(0)); }),
      profile("showMaterial", {"n"}, [](Profile& screen, const Given& a) { screen.showMaterial(a.integer(0)); }),
      profile("clearMaterial", {}, [](Profile& screen, const Given&) { screen.clearMaterial(); }),
      profile("setTableValues", {}, [](Profile& screen, const Given&) { screen.setTableValues(); }),
      profile("setColNum", {}, [](Profile& screen, const Given&) { screen.setColNum(); }),
      profile("setColWidth", {}, [](Profile& screen, const Given&) { screen.setColWidth(); }),
      rating("setRowNum", [](Rating& screen, const Given&) { screen.setRowNum(); }),
      rating("setColWidth", [](Rating& screen, const Given&) { screen.setColWidth(); }),
      rating("setRowHeight", [](Rating& screen, const Given&) { screen.setRowHeight(); }),
      {"ClearAuxData",
       {},
       [](Application& application, const Given&) -> Json {
         application.shell.input.context.aux.ClearAuxData();
         application.shell.input.auxSpillwayProfile.refill();
         return nullptr;
       }},
  };
}

}  // namespace kestra
