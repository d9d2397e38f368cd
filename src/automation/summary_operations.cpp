#include <algorithm>

#include "automation/operations.h"
#include "base/runtime_fault.h"

namespace kestra {
namespace {

using Given = Arguments;

// An operation of a screen, which is loaded first.
template <class Of>
Operation onScreen(const std::string& name, const std::vector<std::string>& arguments, Of SummaryScreens::*screen,
                   const std::function<Json(Of&, const Given&)>& action) {
  return {name, arguments, [screen, action](Application& application, const Given& given) -> Json {
            Of& one = application.summaryScreens.*screen;
            application.host.load(one);
            return action(one, given);
          }};
}

template <class Action>
std::function<Json(SummaryTableScreen&, const Given&)> silent(const Action& action) {
  return [action](SummaryTableScreen& table, const Given& given) -> Json {
    action(table, given);
    return nullptr;
  };
}

// The number of an entry; of none for one below 0.
std::size_t numberOf(int entry) {
  return static_cast<std::size_t>(std::max(entry, 0));
}

EntryRange rangeOf(const EntryList& entries, const Given& given) {
  const int first = given.integer(0);
  const int last = given.integer(1);
  if (first < 1 || last < first || last > static_cast<int>(entries.size())) {
    throw RuntimeFault("subscript out of range");
  }
  return {static_cast<std::size_t>(first - 1), static_cast<std::size_t>(last - 1)};
}

template <class Find>
std::function<Json(SummaryTableScreen&, const Given&)> finding(const Find& find) {
  return [find](SummaryTableScreen& table, const Given& given) -> Json {
    const EntryList& entries = table.entries();
    return find(entries, rangeOf(entries, given)) + 1;
  };
}

struct TableOperation {
  std::string name;
  std::vector<std::string> arguments;
  std::function<Json(SummaryTableScreen&, const Given&)> action;
};

// What both tables do.
std::vector<TableOperation> tableOperations() {
  using Table = SummaryTableScreen;
  return {
      {"BuildTable", {}, silent([](Table& t, const Given&) { t.BuildTable(); })},
      {"ModifyTable", {"entryIndex"}, silent([](Table& t, const Given& a) { t.ModifyTable(numberOf(a.integer(0))); })},
      {"GetFileToOpen", {}, silent([](Table& t, const Given&) { t.GetFileToOpen(); })},
      {"BuildAuxTable", {}, silent([](Table& t, const Given&) { t.BuildAuxTable(); })},
      {"ComputeTableValues", {}, silent([](Table& t, const Given&) { t.ComputeTableValues(); })},
      {"ComputeSumTableValues", {}, silent([](Table& t, const Given&) { t.ComputeSumTableValues(); })},
      {"SortEnteries", {}, silent([](Table& t, const Given&) { t.SortEnteries(); })},
      {"UpdateEntryArray", {"a", "b"}, silent([](Table& t, const Given& a) {
         t.UpdateEntryArray(numberOf(a.integer(0)), numberOf(a.integer(1)));
       })},
      {"ModifyEntryArray", {"first", "position"}, silent([](Table& t, const Given& a) {
         t.ModifyEntryArray(numberOf(a.integer(0)), numberOf(a.integer(1)));
       })},
      {"DiscardEntryOfSameType", {"name"}, silent([](Table& t, const Given& a) {
         t.DiscardEntryOfSameType(a.text(0));
       })},
      {"StoreValues", {"first", "last"}, silent([](Table& t, const Given& a) {
         t.StoreValues(numberOf(a.integer(0)), numberOf(a.integer(1)));
       })},
      {"FindMaxFile", {"first", "last"}, finding(FindMaxFile)},
      {"FindMinFile", {"first", "last"}, finding(FindMinFile)},
      {"FindMeanFile", {"first", "last"}, finding(FindMeanFile)},
  };
}

// Those of the project's table go by their names alone as well, and then leave a window that is not open as it is.
void appendTableOperations(std::vector<Operation>& all) {
  for (const TableOperation& each : tableOperations()) {
    all.push_back(
        onScreen<frmSummaryTable>("frmSummaryTable." + each.name, each.arguments, &SummaryScreens::table, each.action));
    all.push_back(onScreen<frmAuxSummaryTable>("frmAuxSummaryTable." + each.name, each.arguments,
                                               &SummaryScreens::auxTable, each.action));
    all.push_back({each.name, each.arguments, [action = each.action](Application& application, const Given& given) {
                     return action(application.summaryScreens.table, given);
                   }});
  }
}

Json describeScale(const AxisScale& axis) {
  return {{"low", axis.low}, {"high", axis.high}, {"step", axis.step}};
}

std::vector<Operation> storeOperations() {
  return {
      {"LoadSummaryStore",
       {},
       [](Application& application, const Given&) -> Json {
         application.summary.LoadSummaryStore();
         return nullptr;
       }},
      {"SaveSummaryStore",
       {"path"},
       [](Application& application, const Given& a) -> Json {
         requireDone(application.summary.SaveSummaryStore(a.text(0)));
         return nullptr;
       }},
      {"LoadDigestEntry",
       {"fieldOffset", "digestPath", "entryName"},
       [](Application& application, const Given& a) -> Json {
         return application.summary.LoadDigestEntry(a.integer(0), a.text(1), a.text(2));
       }},
  };
}

}  // namespace

std::vector<Operation> summaryOperations() {
  std::vector<Operation> all = storeOperations();
  appendTableOperations(all);
  const auto computeAux = [](frmSummaryTable& table, const Given& a) -> Json {
    table.ComputeAuxTableValues(a.integer(0));
    return nullptr;
  };
  const auto loadAux = [](frmAuxSummaryTable& table, const Given& a) -> Json {
    table.LoadAuxSumDISFiles(a.text(0), a.integer(1));
    return nullptr;
  };
  for (const char* name : {"ComputeAuxTableValues", "frmSummaryTable.ComputeAuxTableValues"}) {
    all.push_back(onScreen<frmSummaryTable>(name, {"spillway"}, &SummaryScreens::table, computeAux));
  }
  for (const char* name : {"LoadAuxSumDISFiles", "frmAuxSummaryTable.LoadAuxSumDISFiles"}) {
    all.push_back(onScreen<frmAuxSummaryTable>(name, {"folder", "spillway"}, &SummaryScreens::auxTable, loadAux));
  }
  using Graphics = frmSummaryGraphics;
  all.push_back(onScreen<Graphics>("frmSummaryGraphics.ShowScreen", {"xField", "yField", "isLineGraph"},
                                   &SummaryScreens::graphics, [](Graphics& g, const Given& a) -> Json {
                                     g.ShowScreen({a.integer(0), {}}, {a.integer(1), {}}, a.boolean(2));
                                     return nullptr;
                                   }));
  all.push_back(onScreen<Graphics>("frmSummaryGraphics.RedrawMe", {}, &SummaryScreens::graphics,
                                   [](Graphics& g, const Given&) -> Json {
                                     g.RedrawMe();
                                     return nullptr;
                                   }));
  all.push_back({"frmSummaryGraphics.Scaling", {"low", "high"}, [](Application&, const Given& a) {
                   return describeScale(Graphics::Scaling(a.number(0), a.number(1)));
                 }});
  all.push_back(onScreen<frmSummarySelections>("frmSummarySelections.SetOptToShow", {}, &SummaryScreens::selections,
                                               [](frmSummarySelections& s, const Given&) -> Json {
                                                 s.SetOptToShow();
                                                 return nullptr;
                                               }));
  return all;
}

}  // namespace kestra
