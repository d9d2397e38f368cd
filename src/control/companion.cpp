#include "control/companion.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>

#include "base/text.h"
#include "control/companion_spillways.h"
#include "control/companion_tables.h"
#include "control/main_run_writer.h"
#include "control/read_back.h"
#include "control/record_writer.h"
#include "control/spillway_run_writer.h"

namespace kestra {
namespace {

constexpr const char* kDigest = "digest";
constexpr const char* kControls = "controls";
constexpr const char* kOptions = "options";
constexpr const char* kTables = "tables";
constexpr const char* kSpillways = "spillways";
constexpr const char* kSampling = "sampling";

// Texts that only people read.
constexpr auto kWords = std::to_array<std::string_view>(
    {"frmProjectInformation.txtWatershedID", "frmHydrographData.txtTitle", "frmStructureTable.txtStructureID",
     "frmAuxSpillways.txtsway(0)", "frmAuxSpillways.txtsway(1)", "frmAuxSpillways.txtsway(2)"});
constexpr std::string_view kComments = "frmProjectInformation.txtComments";
constexpr std::string_view kCount = "frmAuxSpillways.cmbAuxSpillways";
// Whether the dam breaches is what the file says, a drawdown included.
constexpr std::string_view kBreach = "frmProjectInformation.optBreachAnalysis";

// 64-bit FNV-1a, with the length behind it.
std::string digestOf(std::string_view bytes) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return fmt::format("fnv1a64:{:016x}:{}", hash, bytes.size());
}

// What the screens write, and the controls whose texts that are.
struct Written {
  std::string text;
  std::set<std::string> controls;
};

Written writeOut(InputScreenSet& screens, const ApplicationState& state) {
  ScreenFields fields(screens.context);
  Written written;
  written.text = composeMainRun(screens.context, fields, composeHydrograph(screens.context, fields, nullptr), nullptr);
  for (int i = 0; i < state.numAuxSpillways; ++i) {
    if (screens.auxSpillways.analysed(i)) written.text += composeSpillwayRun(screens.context, fields, i, {}, nullptr);
  }
  written.controls = std::move(fields.used);
  return written;
}

// Whether an end that is cut off a number counts as lost. It does where the file would not be written again as it is.
enum class CutNumbers { stayCut, areKept };

class Comparison {
 public:
  Comparison(const std::set<std::string>& written, const std::set<std::string>& read, CutNumbers cut)
      : written_(written), read_(read), cut_(cut) {}

  Json take() { return std::move(kept_); }

  void compare(const Screen& entered, const Screen& read) {
    for (std::size_t i = 0; i < entered.controls().size(); ++i) {
      const Control& control = *entered.controls()[i];
      const std::string name = entered.name() + "." + control.name();
      switch (control.kind()) {
        case ControlKind::text:
          compareTexts(name, as<TextBox>(control).text(), as<TextBox>(*read.controls()[i]).text());
          break;
        case ControlKind::check:
          if (as<CheckBox>(control).checked() != as<CheckBox>(*read.controls()[i]).checked()) {
            kept_[kControls][name] = as<CheckBox>(control).checked();
          }
          break;
        case ControlKind::option:
          compareOptions(name, as<OptionButton>(control), as<OptionButton>(*read.controls()[i]));
          break;
        case ControlKind::table:
          compareTables(name, as<Table>(control), as<Table>(*read.controls()[i]));
          break;
        case ControlKind::combo:
          compareCounts(name, as<ComboBox>(control), as<ComboBox>(*read.controls()[i]));
          break;
        default:
          break;
      }
    }
  }

 private:
  template <class C>
  static const C& as(const Control& control) {
    return static_cast<const C&>(control);
  }

  // Whether the file holds the control: it was written, and opening the file gives it something.
  bool holds(const std::string& name) const { return written_.contains(name) && read_.contains(name); }

  void compareTexts(const std::string& name, const std::string& entered, const std::string& read) {
    if (entered == read) return;
    const bool isWord = std::ranges::find(kWords, name) != kWords.end();
    const bool lost = name == kComments ? wrapComment(entered) != wrapComment(read)
                                        : isWord || !holds(name) || cut_ == CutNumbers::areKept;
    if (lost) kept_[kControls][name] = textJson(entered);
  }

  void compareOptions(const std::string& name, const OptionButton& entered, const OptionButton& read) {
    if (entered.selected() && !read.selected() && name != kBreach) kept_[kOptions].push_back(name);
  }

  void compareCounts(const std::string& name, const ComboBox& entered, const ComboBox& read) {
    if (name == kCount && entered.index() > 0 && entered.index() != read.index()) {
      kept_[kControls][name] = entered.text();
    }
  }

  void compareTables(const std::string& name, const Table& entered, const Table& read) {
    Json table = keptTable(name, entered, read, cut_ == CutNumbers::areKept);
    if (!table.is_null()) kept_[kTables][name] = std::move(table);
  }

  const std::set<std::string>& written_;
  const std::set<std::string>& read_;
  CutNumbers cut_;
  Json kept_ = Json::object();
};

void keepSpillways(Json& kept, const AuxStore& entered, const AuxStore& read, CutNumbers cut) {
  Json list = Json::array();
  bool any = false;
  for (std::size_t i = 0; i < kAuxSpillways; ++i) {
    list.push_back(keptSpillway({entered.auxProfile[i], entered.auxMaterials[i]},
                                {read.auxProfile[i], read.auxMaterials[i]}, cut == CutNumbers::areKept));
    any = any || !list.back().is_null();
  }
  if (any) kept[kSpillways] = std::move(list);
}

void keepSampling(Json& kept, const ApplicationState& entered, const ApplicationState& read) {
  const auto keep = [&](const char* name, const auto& value, const auto& other) {
    if (value != other) kept[kSampling][name] = Json(value);
  };
  keep("totalInstances", entered.totalInstances, read.totalInstances);
  keep("lhsSeed", entered.lhsSeed, read.lhsSeed);
  keep("bRandomSample", entered.bRandomSample, read.bRandomSample);
  keep("bRandomPairing", entered.bRandomPairing, read.bRandomPairing);
}

// A control by the name that a companion has for it; null where there is none, or its screen holds no input.
Control* controlNamed(const ScreenContext& context, const std::string& name) {
  const std::size_t dot = name.find('.');
  Screen* screen = context.host.find(name.substr(0, dot));
  if (screen == nullptr || dot == std::string::npos || !screen->holdsInput()) return nullptr;
  Control* control = screen->find(name.substr(dot + 1));
  if (control != nullptr) context.host.load(*screen);
  return control;
}

const Json& under(const Json& json, const char* key) {
  static const Json kNothing = Json::object();
  const auto found = json.find(key);
  return found == json.end() || !found->is_structured() ? kNothing : *found;
}

void giveBackControl(Control& control, const Json& value) {
  std::string text;
  if (control.kind() == ControlKind::check && value.is_boolean()) {
    static_cast<CheckBox&>(control).setChecked(value.get<bool>());
  } else if (control.kind() == ControlKind::text && takeText(value, text)) {
    static_cast<TextBox&>(control).setText(text);
  } else if (control.kind() == ControlKind::combo && takeText(value, text)) {
    static_cast<ComboBox&>(control).setText(text);
  }
}

void giveBackSampling(ApplicationState& state, const Json& kept) {
  const auto give = [&](const char* name, auto& value) {
    const auto found = kept.find(name);
    if (found != kept.end() && found->type() == Json(value).type()) found->get_to(value);
  };
  if (!kept.is_object()) return;
  give("totalInstances", state.totalInstances);
  give("lhsSeed", state.lhsSeed);
  give("bRandomSample", state.bRandomSample);
  give("bRandomPairing", state.bRandomPairing);
}

Json whatIsLost(InputScreenSet& screens, const ApplicationState& state, const Written& written, ReadBack& back,
                CutNumbers cut) {
  Comparison comparison(written.controls, back.used(), cut);
  const std::vector<Screen*> entered = screens.sequence();
  const std::vector<Screen*> read = back.screens().sequence();
  for (std::size_t i = 0; i < entered.size(); ++i) {
    if (entered[i] != &screens.auxSpillwayProfile) comparison.compare(*entered[i], *read[i]);
  }
  Json kept = comparison.take();
  keepSpillways(kept, screens.context.aux, back.screens().context.aux, cut);
  keepSampling(kept, state, back.state());
  return kept;
}

}  // namespace

std::optional<std::string> composeCompanion(InputScreenSet& screens, ScreenContext& context, const ControlTexts& texts,
                                            std::string_view file, std::string_view name) {
  const Written written = writeOut(screens, context.state);
  std::string companion;
  for (const CutNumbers cut : {CutNumbers::stayCut, CutNumbers::areKept}) {
    ReadBack back(context.ports, texts);
    const Json kept = whatIsLost(screens, context.state, written, back, cut);
    Json json = {{"of", textJson(std::string(name))}, {kDigest, digestOf(file)}};
    json.update(kept);
    companion = kept.empty() ? std::string() : json.dump(1) + "\n";
    giveBackCompanion(back.screens(), back.context(), companion, file);
    if (writeOut(back.screens(), back.state()).text == written.text) break;
  }
  if (companion.empty()) return std::nullopt;
  return companion;
}

void giveBackCompanion(InputScreenSet& screens, ScreenContext& context, std::string_view companion,
                       std::string_view file) {
  const Json json = Json::parse(companion, nullptr, false);
  if (!json.is_object() || json.value(kDigest, Json()) != Json(digestOf(file))) return;
  for (const auto& [name, value] : under(json, kControls).items()) {
    if (Control* control = controlNamed(context, name)) giveBackControl(*control, value);
  }
  for (const auto& name : under(json, kOptions)) {
    Control* control = name.is_string() ? controlNamed(context, name.get<std::string>()) : nullptr;
    if (control != nullptr && control->kind() == ControlKind::option) {
      static_cast<OptionButton*>(control)->setSelected(true);
    }
  }
  for (const auto& [name, value] : under(json, kTables).items()) {
    Control* control = controlNamed(context, name);
    if (control != nullptr && control->kind() == ControlKind::table) takeTable(value, static_cast<Table&>(*control));
  }
  const Json& spillways = under(json, kSpillways);
  for (std::size_t i = 0; i < std::min<std::size_t>(spillways.size(), kAuxSpillways); ++i) {
    if (!spillways.is_array() || !spillways[i].is_object()) continue;
    takeSpillway(spillways[i], screens.context.aux.auxProfile[i], screens.context.aux.auxMaterials[i]);
  }
  giveBackSampling(context.state, under(json, kSampling));
}

}  // namespace kestra
