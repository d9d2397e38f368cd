#include <algorithm>
#include <cstdint>

#include "automation/operations.h"
#include "base/paths.h"

namespace kestra {
namespace {

using Action = std::function<void(frmTopScreen&, const Arguments&)>;

// An operation of the frame: known by its name alone and behind the screen's name.
void add(std::vector<Operation>& list, const std::string& name, const std::vector<std::string>& arguments,
         const std::function<Json(Application&, const Arguments&)>& run) {
  list.push_back({name, arguments, run});
  list.push_back({"frmTopScreen." + name, arguments, run});
}

// A number below 0 turns it off.
void setAutosave(Autosave& autosave, double seconds) {
  constexpr double kNanoseconds = 1e9;
  constexpr double kLongest = 3600;
  if (seconds < 0) return autosave.turnOff();
  autosave.turnOn(static_cast<std::int64_t>(std::min(seconds, kLongest) * kNanoseconds));
}

void addAction(std::vector<Operation>& list, const std::string& name, const std::vector<std::string>& arguments,
               const Action& action) {
  add(list, name, arguments, [action](Application& application, const Arguments& given) -> Json {
    action(application.shell.topScreen, given);
    return nullptr;
  });
}

}  // namespace

std::vector<Operation> shellOperations() {
  std::vector<Operation> list;
  using Top = frmTopScreen;
  using Given = Arguments;
  addAction(list, "Initialize", {}, [](Top& top, const Given&) { top.Initialize(); });
  addAction(list, "AddData", {"slot"}, [](Top& top, const Given& a) { top.windows().AddData(a.integer(0)); });
  addAction(list, "RemoveData", {"slot"}, [](Top& top, const Given& a) { top.windows().RemoveData(a.integer(0)); });
  add(list, "IsAvailable", {"slot"}, [](Application& application, const Given& a) -> Json {
    return application.shell.topScreen.windows().IsAvailable(a.integer(0));
  });
  addAction(list, "FindFormToBuildItems", {}, [](Top& top, const Given&) { top.windows().FindFormToBuildItems(); });
  addAction(list, "LoadOrUnload", {}, [](Top& top, const Given&) { top.windows().LoadOrUnload(); });
  addAction(list, "RaiseScreen", {"slot"}, [](Top& top, const Given& a) { top.windows().RaiseScreen(a.integer(0)); });
  addAction(list, "UpdateRecentProjects", {"path"},
            [](Top& top, const Given& a) { top.UpdateRecentProjects(a.text(0)); });
  addAction(list, "RemoveRecentProject", {"path"},
            [](Top& top, const Given& a) { top.RemoveRecentProject(a.text(0)); });
  add(list, "ParsePathName", {"path"},
      [](Application&, const Given& a) -> Json { return std::string(ParsePathName(a.text(0))); });
  list.push_back({"Autosave", {"seconds"}, [](Application& application, const Given& a) -> Json {
                    setAutosave(application.shell.autosave, a.number(0));
                    return nullptr;
                  }});
  list.push_back({"UnloadAllScreens", {}, [](Application& application, const Given&) -> Json {
                    UnloadAllScreens(application.shell.input.context);
                    return nullptr;
                  }});
  list.push_back({"HideInputScreens", {}, [](Application& application, const Given&) -> Json {
                    HideInputScreens(application.host);
                    return nullptr;
                  }});
  list.push_back({"LoadFieldCatalogues", {}, [](Application& application, const Given&) -> Json {
                    application.shell.loadCatalogues();
                    return nullptr;
                  }});
  list.push_back({"InitColors", {}, [](Application& application, const Given&) -> Json {
                    application.shell.lines.InitColors(application.ports.settings, application.ports.entropy);
                    return nullptr;
                  }});
  list.push_back({"InitLines", {}, [](Application& application, const Given&) -> Json {
                    application.shell.lines.InitLines(application.ports.settings);
                    return nullptr;
                  }});
  return list;
}

}  // namespace kestra
