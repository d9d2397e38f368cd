#include "control/spillway_run_reader.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "control/sampling_rows.h"
#include "screens/frm_aux_spillways.h"
#include "screens/frm_headcut.h"

namespace kestra {
namespace {

constexpr std::size_t kPairsInRow = 3;
constexpr int kMostSamples = (kMaterialSlots - 1) * static_cast<int>(kMaterialProperties) + 2;

std::optional<int> numberIn(std::string_view text, int most) {
  const auto number = wholeNumber(text);
  if (!number || *number < 1 || *number > most) return std::nullopt;
  return static_cast<int>(*number);
}

// A row of the materials, which waits until it is known which of them belong to fills.
struct MaterialRow {
  std::optional<int> number;
  std::string_view line;
  std::size_t lineNumber = 0;
};

class SpillwayRunReader {
 public:
  SpillwayRunReader(InputContext& input, ScreenFields& fields, int spillway, ReadPlace& place)
      : input_(input),
        fields_(fields),
        spillway_(spillway),
        profile_(input.aux.auxProfile.at(static_cast<std::size_t>(spillway))),
        materials_(input.aux.auxMaterials.at(static_cast<std::size_t>(spillway))),
        place_(place) {}

  // What needs the materials comes behind all else, wherever it stands; and how many of them are the spillway's own is
  // known from the count of boundaries.
  void read(std::string_view text) {
    eachRecord(text, RunKind::spillway, [this](const ControlRecord& record) {
      if (record.layout->keyword == "ASCOORD") ++boundaries_;
    });
    for (const bool ofMaterials : {false, true}) {
      eachRecord(text, RunKind::spillway, [&](const ControlRecord& record) {
        if (needsMaterials(record.layout->keyword) != ofMaterials) return;
        place_ = {record.lineNumber, record.layout->keyword};
        take(record);
      });
    }
  }

 private:
  using Handler = void (SpillwayRunReader::*)(const ControlRecord&);
  struct Entry {
    std::string_view keyword;
    Handler handler;
  };

  static bool needsMaterials(std::string_view keyword) { return keyword == "ASCOORD" || keyword == "LHS"; }

  void take(const ControlRecord& record) {
    static constexpr auto kHandlers = std::to_array<Entry>({{"QUIL", &SpillwayRunReader::takeLabel},
                                                            {"POOLDATA", &SpillwayRunReader::put},
                                                            {"ASSPRFL", &SpillwayRunReader::takeProfile},
                                                            {"ASSURFACE", &SpillwayRunReader::takeReaches},
                                                            {"ASDATA", &SpillwayRunReader::put},
                                                            {"BTMWIDTH", &SpillwayRunReader::put},
                                                            {"ASMATERIAL", &SpillwayRunReader::takeMaterials},
                                                            {"ASCOORD", &SpillwayRunReader::takeBoundary},
                                                            {"ORLEN", &SpillwayRunReader::takeThreshold},
                                                            {"LHS", &SpillwayRunReader::takeSamples}});
    const auto found = std::ranges::find(kHandlers, record.layout->keyword, &Entry::keyword);
    if (found != kHandlers.end()) (this->*found->handler)(record);
  }

  void put(const ControlRecord& record) { putFields(fields_, *record.layout, record.line, spillway_); }

  // The label stands in the main run as well; there it may be blank in files of other hands.
  void takeLabel(const ControlRecord& record) {
    const std::string_view name = record.fields.named("name").text();
    if (name.empty() || !input_.screens.auxSpillways->label(spillway_).empty()) return;
    fields_.put(*findField(record.layout->fields, "name"), name, spillway_);
  }

  void takeProfile(const ControlRecord& record) {
    takeLabel(record);
    const FieldText topsoil = record.fields.named("topsoil");
    if (topsoil.reached()) profile_.txtTopsoil = topsoil.text();
    takePairs(record, profile_.points);
  }

  // Rows of three points; the store has room for them or it is a fault.
  void takePairs(const ControlRecord& record, std::vector<StationElevation>& points) {
    eachRow(record, place_, [&](int row, std::string_view line) {
      const FieldTexts texts = takeApartRow(*record.layout, line);
      for (std::size_t i = 0; i < kPairsInRow; ++i) {
        const StationElevation point = {std::string(texts[2 * i].text()), std::string(texts[2 * i + 1].text())};
        if (point[0].empty() && point[1].empty()) continue;
        const std::size_t place = static_cast<std::size_t>(row - 1) * kPairsInRow + i;
        if (place >= kAuxPoints) throw RuntimeFault("more rows than the table holds");
        if (place >= points.size()) points.resize(place + 1);
        points[place] = point;
      }
    });
  }

  void takeReaches(const ControlRecord& record) {
    put(record);
    eachRow(record, place_, [&](int row, std::string_view line) {
      if (row > kAuxPoints) throw RuntimeFault("more rows than the table holds");
      const FieldTexts texts = takeApartRow(*record.layout, line);
      for (std::size_t i = 0; i < texts.size() && texts[i].reached(); ++i) {
        profile_.reaches[static_cast<std::size_t>(row - 1)][i] = texts[i].text();
      }
    });
  }

  void takeMaterials(const ControlRecord& record) {
    std::vector<MaterialRow> rows;
    eachRow(record, place_, [&](int, std::string_view line) {
      if (rows.size() == kMaterialSlots - 1) throw RuntimeFault("more rows than the table holds");
      const std::string_view number = takeApartRow(*record.layout, line).named("number").text();
      rows.push_back({numberIn(number, kMaterialSlots - 1), line, place_.line});
    });
    const std::array<std::string_view, 2> fills = {record.fields.named("topsoil fill").text(),
                                                   record.fields.named("general fill").text()};
    materials_.clear();
    materials_.count = countOf(rows, fills);
    takeFills(fills);
    int next = 1;
    for (const MaterialRow& row : rows) {
      place_.line = row.lineNumber;
      const int number = row.number && *row.number <= materials_.count + 2 ? *row.number : next;
      takeMaterial(materials_.material(number), *record.layout, row.line);
      next = number + 1;
    }
  }

  // How many of the rows are materials of the spillway itself. With the integrity analysed each of those has a
  // boundary; behind them stand those of the fills that have their own.
  int countOf(const std::vector<MaterialRow>& rows, const std::array<std::string_view, 2>& fills) const {
    const int most = std::min(static_cast<int>(rows.size()), kMostMaterials);
    if (!input_.screens.auxSpillways->optQUIL(spillway_).selected()) return most;
    const auto isFill = [&](const MaterialRow& row) {
      return row.number && std::ranges::find(fills, std::to_string(*row.number)) != fills.end();
    };
    if (boundaries_ == 0 && !std::all_of(rows.begin(), rows.end(), isFill)) return most;
    return std::min(boundaries_, most);
  }

  void takeFills(const std::array<std::string_view, 2>& fills) {
    for (std::size_t i = 0; i < fills.size(); ++i) {
      const int own = materials_.count + 1 + static_cast<int>(i);
      profile_.materNum[i] = fills[i];
      profile_.fill[i] = fills[i].empty()                  ? FillChoice::none
                         : fills[i] == std::to_string(own) ? FillChoice::external
                                                           : FillChoice::inPlace;
    }
  }

  static void takeMaterial(AuxMaterial& material, const RecordLayout& layout, std::string_view line) {
    const FieldTexts texts = takeApartRow(layout, line);
    const auto give = [&](MaterialProperty property, std::string_view field) {
      material.value(property) = texts.named(field).text();
    };
    give(MaterialProperty::plasticityIndex, "plasticity");
    give(MaterialProperty::representativeDiameter, "diameter");
    give(MaterialProperty::dryDensity, "density");
    give(MaterialProperty::headCutIndex, "head cut index");
    std::string_view erosion = texts.named("erosion").text();
    material.byDetachment = erosion.starts_with('-');
    if (material.byDetachment) erosion.remove_prefix(1);
    material.value(material.byDetachment ? MaterialProperty::detachmentRate : MaterialProperty::percentClay) = erosion;
  }

  void takeBoundary(const ControlRecord& record) {
    constexpr int kBarrier = 41;
    const FieldTexts& fields = record.fields;
    const auto number = numberIn(fields.named("number").text(), materials_.count);
    if (!number) return;
    AuxMaterial& material = materials_.material(*number);
    material.description = fields.named("description").text();
    takePairs(record, material.points);
    if (!reaches(record.line, kBarrier)) return;
    profile_.txtBarrier = fields.named("barrier").text();
    profile_.txtBreachDepth = fields.named("breach depth").text();
    profile_.chkBarrier = !profile_.txtBarrier.empty();
    profile_.chkCrest = fields.named("crest").text() == "Y";
  }

  void takeThreshold(const ControlRecord& record) {
    input_.base.host.load(*input_.screens.headcut);
    input_.screens.headcut->optORLEN.setSelected(true);
    put(record);
  }

  void takeSamples(const ControlRecord& record) {
    MessageBoxes& boxes = input_.base.ports.boxes;
    ApplicationState& state = input_.base.state;
    const auto number = [&](std::string_view field, std::string& value) {
      const std::string_view given = record.fields.named(field).text();
      if (!wholeNumber(given)) {
        boxes.tell("Warning", "Using default value for " + std::string(field == "seed" ? "Seed" : "totalInstances"),
                   BoxIcon::warning);
      }
      value = wholeNumber(given) ? std::string(given) : "1";
    };
    number("instances", state.totalInstances);
    number("seed", state.lhsSeed);
    state.bRandomSample = record.fields.named("random sample").text() == "1";
    state.bRandomPairing = record.fields.named("random pairing").text() == "1";
    takeSampleRows(record);
  }

  // The rows up to one that cannot be read; all that is to be told of the others in one box.
  void takeSampleRows(const ControlRecord& record) {
    MessageBoxes& boxes = input_.base.ports.boxes;
    std::vector<std::string> told;
    bool sound = true;
    eachRow(record, place_, [&](int row, std::string_view line) {
      if (row > kMostSamples) throw RuntimeFault("more rows than the table holds");
      sound = sound && takeSample(record, line, told);
    });
    if (!told.empty()) boxes.tell("Warning", fmt::format("{}", fmt::join(told, "\r\n")), BoxIcon::warning);
    if (sound) return;
    boxes.tell("Error", "Invalid File Format with improper Probability Distribution Information", BoxIcon::critical);
  }

  bool takeSample(const ControlRecord& record, std::string_view line, std::vector<std::string>& told) {
    const FieldTexts texts = takeApartRow(*record.layout, line);
    Distribution distribution;
    distribution.name = texts.named("distribution").text();
    constexpr std::array<std::string_view, 4> kNames = {"parameter 1", "parameter 2", "parameter 3", "parameter 4"};
    for (std::size_t i = 0; i < kNames.size(); ++i) distribution.parameters[i] = texts.named(kNames[i]).text();
    const SamplingRow row = {std::string(texts.named("material").text()), std::string(texts.named("property").text()),
                             &distribution};
    return takeSamplingRow(profile_, materials_, row, told);
  }

  InputContext& input_;
  ScreenFields& fields_;
  int spillway_;
  AuxProfile& profile_;
  AuxMaterials& materials_;
  ReadPlace& place_;
  int boundaries_ = 0;
};

}  // namespace

int namedSpillway(std::string_view runText) {
  int spillway = -1;
  bool first = true;
  eachRecord(runText, RunKind::spillway, [&](const ControlRecord& record) {
    if (std::exchange(first, false) && record.layout->keyword == "QUIL") {
      spillway = numberIn(record.fields.named("number").text(), kAuxSpillways).value_or(0) - 1;
    }
  });
  return spillway;
}

void readSpillwayRun(InputContext& input, ScreenFields& fields, int spillway, std::string_view text, ReadPlace& place) {
  SpillwayRunReader(input, fields, spillway, place).read(text);
}

}  // namespace kestra
