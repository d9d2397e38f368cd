#include "automation/variables.h"

#include <functional>
#include <map>

#include "automation/aux_values.h"
#include "automation/graph_values.h"
#include "automation/summary_values.h"
#include "base/numbers.h"

namespace kestra {
namespace {

using Reader = std::function<Json(const Application&)>;

Json windowFlags(const ApplicationState& state) {
  Json flags = Json::array();
  for (int slot = kFirstSlot; slot <= kLastSlot; ++slot) {
    flags.push_back(state.windowOpen[static_cast<std::size_t>(slot)]);
  }
  return flags;
}

Json focusOf(const Application& application) {
  const Control* focus = application.host.focus();
  if (focus == nullptr) return nullptr;
  return {{"screen", focus->screen().name()}, {"control", focus->name()}};
}

template <class Member>
Reader fromState(Member member) {
  return [member](const Application& application) -> Json { return application.state.*member; };
}

template <class Member>
Reader fromRun(Member member) {
  return [member](const Application& application) -> Json { return application.runTables.*member; };
}

Reader fromSummary(Json (*describe)(const SummaryStore&)) {
  return [describe](const Application& application) { return describe(application.summary); };
}

Reader fromSummaryTable(Json (*describe)(const SummaryTableScreen&)) {
  return [describe](const Application& application) { return describe(application.summaryScreens.table); };
}

const std::map<std::string, Reader>& readers() {
  using State = ApplicationState;
  static const std::map<std::string, Reader> kReaders = [] {
    std::map<std::string, Reader> all = {
        {"projectDir", fromState(&State::projectDir)},
        {"currentFile", fromState(&State::currentFile)},
        {"fileDirty", fromState(&State::fileDirty)},
        {"fileIsNew", fromState(&State::fileIsNew)},
        {"fileHasName", fromState(&State::fileHasName)},
        {"bExiting", fromState(&State::bExiting)},
        {"projectReadOnly", fromState(&State::projectReadOnly)},
        {"inputScreens", fromState(&State::inputScreens)},
        {"solverPath", fromState(&State::solverPath)},
        {"crlf", fromState(&State::crlf)},
        {"numAuxSpillways", fromState(&State::numAuxSpillways)},
        {"curAuxSpillway", fromState(&State::curAuxSpillway)},
        {"currentSpillwayNumber", fromState(&State::currentSpillwayNumber)},
        {"totalInstances", fromState(&State::totalInstances)},
        {"lhsSeed", fromState(&State::lhsSeed)},
        {"bRandomSample", fromState(&State::bRandomSample)},
        {"bRandomPairing", fromState(&State::bRandomPairing)},
        {"controlText", [](const Application& a) -> Json { return a.shell.controlFiles.texts.controlText; }},
        {"workText", [](const Application& a) -> Json { return a.shell.controlFiles.texts.workText; }},
        {"hydrographText", [](const Application& a) -> Json { return a.shell.controlFiles.texts.hydrographText; }},
        {"auxRunText", [](const Application& a) -> Json { return a.shell.controlFiles.texts.auxRunText; }},
        {"windowOpen", [](const Application& a) { return windowFlags(a.state); }},
        {"recentProjects", [](const Application& a) -> Json { return a.shell.topScreen.recent().paths(); }},
        {"ColorList", [](const Application& a) -> Json { return a.shell.lines.ColorList; }},
        {"ComboList", [](const Application& a) -> Json { return a.shell.lines.ComboList; }},
        {"WidthList", [](const Application& a) -> Json { return a.shell.lines.WidthList; }},
        {"fieldTitles", [](const Application& a) { return describeFieldTitles(a.shell.catalogues); }},
        {"fieldCount", [](const Application& a) { return describeFieldCount(a.shell.catalogues); }},
        {"digestFields", fromRun(&RunTables::digestFields)},
        {"spillwayName", fromRun(&RunTables::spillwayName)},
        {"spillwayAnalysisFlag", fromRun(&RunTables::spillwayAnalysisFlag)},
        {"spillwayRatingFlag", fromRun(&RunTables::spillwayRatingFlag)},
        {"entryCount", [](const Application& a) -> Json { return a.summary.entries().size(); }},
        {"entryNames", [](const Application& a) -> Json { return a.summary.entryNames(); }},
        {"entryValues", fromSummary(describeEntryValues)},
        {"selectedCount", fromSummary(describeSelectedCount)},
        {"selectedFields", fromSummary(describeSelectedFields)},
        {"fieldSelected", fromSummary(describeFieldSelected)},
        {"summaryOrder", [](const Application& a) -> Json { return a.summary.summaryOrder(); }},
        {"shownCount", [](const Application& a) -> Json { return a.summaryScreens.table.shownRows().size(); }},
        {"shownNames", fromSummaryTable(describeShownNames)},
        {"shownValues", fromSummaryTable(describeShownValues)},
        {"shownIsCondensed", fromSummaryTable(describeShownIsCondensed)},
        {"allInstancesCount", [](const Application& a) -> Json { return a.summaryScreens.table.allInstancesCount(); }},
        {"textFileToOpen", [](const Application& a) -> Json { return a.summaryScreens.table.textFile(); }},
        {"graphFileToOpen", [](const Application& a) -> Json { return a.summaryScreens.table.graphFile(); }},
        {"xField", [](const Application& a) -> Json { return a.summaryScreens.graphics.xField(); }},
        {"yField", [](const Application& a) -> Json { return a.summaryScreens.graphics.yField(); }},
        {"isLineGraph", [](const Application& a) -> Json { return a.summaryScreens.graphics.isLineGraph(); }},
        {"graphShown", [](const Application& a) -> Json { return a.summaryScreens.graphics.graphShown(); }},
        {"hydrographSelected",
         [](const Application& a) -> Json { return a.shell.input.hydrographData.hydrographSelected; }},
        {"auxProfile", [](const Application& a) { return describeAuxProfiles(a.shell.input.context.aux); }},
        {"auxMaterials", [](const Application& a) { return describeAuxMaterials(a.shell.input.context.aux); }},
        {"auxMaterialOrder", [](const Application& a) { return describeMaterialOrder(a.shell.input.context.aux); }},
    };
    all.merge(graphVariables());
    return all;
  }();
  return kReaders;
}

// A property of a screen: "frmTopScreen.Caption", "Width", "Height" (twips), "BackColor".
Json screenProperty(const Application& application, const std::string& name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string::npos) return nullptr;
  const Screen* screen = application.host.find(name.substr(0, dot));
  if (screen == nullptr) return nullptr;
  const std::string property = name.substr(dot + 1);
  if (property == "Caption") return screen->title();
  if (property == "Width") return screen->width();
  if (property == "Height") return screen->height();
  if (property == "BackColor") return screen->backColor();
  return nullptr;
}

// One element of a variable that is a list: "ColorList(3)", counted from the list's own first index.
Json element(const Application& application, const std::string& name) {
  const std::size_t open = name.find('(');
  if (open == std::string::npos || !name.ends_with(')')) return nullptr;
  const std::string whole = name.substr(0, open);
  const auto at = readers().find(whole);
  const auto index = wholeNumber(std::string_view(name).substr(open + 1, name.size() - open - 2));
  if (at == readers().end() || !index) return nullptr;
  const Json list = at->second(application);
  const long long first = whole == "windowOpen" || whole == "inputScreens" ? 1 : 0;
  if (!list.is_array() || *index < first) return nullptr;
  const auto place = static_cast<std::size_t>(*index - first);
  return place < list.size() ? list[place] : Json();
}

}  // namespace

Json readVariable(const Application& application, const std::string& name) {
  const auto at = readers().find(name);
  if (at != readers().end()) return at->second(application);
  if (Json one = element(application, name); !one.is_null()) return one;
  Json property = screenProperty(application, name);
  if (property.is_null()) throw RequestError("no variable named \"" + name + "\"");
  return property;
}

Json describeState(const Application& application) {
  Json state = Json::object();
  for (const char* name :
       {"projectDir", "currentFile", "fileDirty", "fileIsNew", "fileHasName", "bExiting", "windowOpen",
        "numAuxSpillways", "curAuxSpillway", "totalInstances", "lhsSeed", "bRandomSample", "recentProjects"}) {
    state[name] = readVariable(application, name);
  }
  state["visible"] = Json::array();
  for (const Screen* screen : application.host.shown()) state["visible"].push_back(screen->name());
  state["titles"] = Json::object();
  for (const Screen* screen : application.host.screens()) {
    if (screen->loaded()) state["titles"][screen->name()] = screen->title();
  }
  state["focus"] = focusOf(application);
  return state;
}

}  // namespace kestra
