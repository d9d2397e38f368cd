#include "kestrasim/read_dam.h"

#include <fmt/format.h>

#include <map>
#include <set>

#include "base/numbers.h"
#include "base/text.h"
#include "kestrasim/number_fields.h"
#include "kestrasim/read_tables.h"
#include "kestrasim/spillway_profiles.h"

namespace kestra {
namespace {

constexpr NumberRange kSlopes{0, 1000};  // horizontal to 1 vertical
constexpr NumberRange kLengths{0, 1e5};  // ft
constexpr NumberRange kSizes{0, 1e4};    // of small things, in ft or in
constexpr NumberRange kCoefficients{0, 20};

constexpr NumberField<HeadcutRecord> kModel1[] = {{"detachment rate", &HeadcutRecord::erodibility, {0, 1e4}},
                                                  {"critical shear", &HeadcutRecord::criticalStress, {0, 1e4}},
                                                  {"headcut index", &HeadcutRecord::advance, {0, 1e5}}};
constexpr NumberField<HeadcutRecord> kModel2[] = {{"bulk density", &HeadcutRecord::bulkDensity, {0, 1e4}},
                                                  {"detachment rate", &HeadcutRecord::erodibility, {0, 1e4}},
                                                  {"undrained shear", &HeadcutRecord::strength, {0, 1e6}},
                                                  {"critical shear", &HeadcutRecord::criticalStress, {0, 1e4}}};
constexpr NumberField<RoutingStartRecord> kStart[] = {{"start routing", &RoutingStartRecord::start, {-1e4, 1e7}},
                                                      {"dam base", &RoutingStartRecord::damBase, kElevations}};
constexpr NumberField<FaceRecord> kUpstream[] = {{"slope", &FaceRecord::slope, kSlopes},
                                                 {"retardance", &FaceRecord::retardance, kRoughness}};
constexpr NumberField<CrestRecord> kCrest[] = {{"width", &CrestRecord::width, {0, 1e4}},
                                               {"retardance", &CrestRecord::retardance, kRoughness},
                                               {"coefficient", &CrestRecord::coefficient, {0.1, 10}}};
constexpr NumberField<DownstreamRecord> kEarth[] = {{"slope", &DownstreamRecord::slope, kSlopes},
                                                    {"retardance", &DownstreamRecord::retardance, kRoughness},
                                                    {"cover", &DownstreamRecord::cover, {0, 1}},
                                                    {"maintenance", &DownstreamRecord::maintenance, {1, 3}},
                                                    {"plasticity", &DownstreamRecord::plasticity, {0, 200}},
                                                    {"particle", &DownstreamRecord::particle, {0, 120}}};
constexpr NumberField<DownstreamRecord> kRiprap[] = {{"slope", &DownstreamRecord::slope, kSlopes},
                                                     {"uniformity", &DownstreamRecord::uniformity, {1, 100}},
                                                     {"D50", &DownstreamRecord::d50, {0.001, 100}},
                                                     {"thickness", &DownstreamRecord::thickness, {0, 1000}},
                                                     {"porosity", &DownstreamRecord::porosity, {0, 0.95}}};
constexpr NumberField<DownstreamRecord> kBare[] = {{"slope", &DownstreamRecord::slope, kSlopes},
                                                   {"retardance", &DownstreamRecord::retardance, kRoughness}};
constexpr NumberField<InletRecord> kInlet[] = {{"entrance loss", &InletRecord::entranceLoss, {0, 100}},
                                               {"weir length", &InletRecord::weirLength, {0, 1e4}},
                                               {"high stage crest", &InletRecord::highCrest, kElevations},
                                               {"low stage crest", &InletRecord::lowCrest, kElevations},
                                               {"orifice height", &InletRecord::orificeHeight, kSizes},
                                               {"orifice width", &InletRecord::orificeWidth, kSizes}};
constexpr NumberField<ConduitRecord> kConduit[] = {{"conduits", &ConduitRecord::count, {1, 1000}},
                                                   {"length", &ConduitRecord::length, kLengths},
                                                   {"diameter", &ConduitRecord::width, kSizes},
                                                   {"height", &ConduitRecord::height, kSizes},
                                                   {"Manning's n", &ConduitRecord::manning, {0.001, 1}},
                                                   {"invert at riser", &ConduitRecord::riserInvert, kElevations},
                                                   {"invert at outlet", &ConduitRecord::outletInvert, kElevations}};
constexpr NumberField<HoodRecord> kHood[] = {{"inlet to bend", &HoodRecord::toBend, kLengths},
                                             {"bend to outlet", &HoodRecord::toOutlet, kLengths},
                                             {"bend elevation", &HoodRecord::bendElevation, kElevations},
                                             {"outlet elevation", &HoodRecord::outletElevation, kElevations},
                                             {"weir inlet", &HoodRecord::weir, kCoefficients},
                                             {"entrance loss", &HoodRecord::entranceLoss, {0, 100}}};
constexpr NumberField<CoefficientRecord> kPipeCoefficients[] = {
    {"conduit orifice", &CoefficientRecord::orifice, kCoefficients},
    {"orifice area", &CoefficientRecord::orificeArea, {0, 1e5}},
    {"low stage weir", &CoefficientRecord::lowWeir, kCoefficients},
    {"low stage full", &CoefficientRecord::lowOrifice, kCoefficients},
    {"weir", &CoefficientRecord::weir, kCoefficients},
    {"fillet", &CoefficientRecord::filletInches, kSizes}};
constexpr NumberField<AuxiliaryRecord> kSurface[] = {{"side slope", &AuxiliaryRecord::sideSlope, kSlopes},
                                                     {"bottom width", &AuxiliaryRecord::bottomWidth, {0, 1e5}}};

std::string word(const ControlRecord& record, std::string_view field) {
  return toUpper(record.fields.named(field).text());
}

void readOptions(const ControlRecord& record, DamOptions& options, RunMessages& messages) {
  const Place place{"OPTION", record.lineNumber};
  options.line = record.lineNumber;
  const std::string model = word(record, "model");
  options.overflow = model == "COEFF" ? OverflowModel::coefficient : OverflowModel::surface;
  if (model == "DETAILED") {
    messages.warning(place, "a DETAILED surface is not computed", "SIMPLE is taken");
  } else if (model != "COEFF" && model != "SIMPLE") {
    messages.warning(place, fmt::format("the surface model \"{}\" is not known", model), "SIMPLE is taken");
  }
  const std::string surface = word(record, "surface");
  options.slope = surface == "RIPRAP" ? SlopeKind::riprap : surface == "BARESOIL" ? SlopeKind::bare : SlopeKind::earth;
  if (options.slope == SlopeKind::earth && surface != "EARTH") {
    messages.warning(place, fmt::format("the downstream surface \"{}\" is not known", surface), "EARTH is taken");
  }
  options.noPrincipal = word(record, "spillway") == "NOPS";
  const std::string_view layout = record.layout->id;
  options.analysis = layout == "OPTION NOBREACH"   ? Analysis::noBreach
                     : layout == "OPTION DRAWDOWN" ? Analysis::drawdown
                                                   : Analysis::breach;
  if (options.analysis != Analysis::drawdown) return;
  options.drawdownPercent = word(record, "drawdown unit") == "PERCENT";
  const NumberRange range = options.drawdownPercent ? NumberRange{0, 100} : kElevations;
  options.drawdownLevel =
      numberIn(record.fields.named("drawdown level").text(), "drawdown level", range, place, messages);
  options.drawdownHours =
      numberIn(record.fields.named("drawdown time").text(), "drawdown time", {0, 1e5}, place, messages);
}

ControlRecord inLayout(const ControlRecord& record, std::string_view id) {
  ControlRecord again = record;
  again.layout = findRecord(id);
  again.fields = takeApart(*again.layout, record.line);
  return again;
}

// The model is a number, as the system reads it; a record that ends before it has model 2.
void readHeadcut(const ControlRecord& record, DamModel& dam, RunMessages& messages) {
  constexpr int kModel = 11;
  HeadcutRecord headcut;
  headcut.line = record.lineNumber;
  headcut.modelText = trim(columns(record.line, kModel, 10));
  const double model = reaches(record.line, kModel) ? lenientNumber(headcut.modelText) : 2;
  headcut.model = model == 1 ? 1 : model == 2 ? 2 : 0;
  if (headcut.model != 0) {
    const ControlRecord again = inLayout(record, headcut.model == 1 ? "HCMODEL 1" : "HCMODEL 2");
    readNumbers<HeadcutRecord>(
        again, headcut.model == 1 ? std::span<const NumberField<HeadcutRecord>>(kModel1) : kModel2, headcut, messages);
  }
  dam.headcut = headcut;
}

std::span<const NumberField<DownstreamRecord>> downstreamFields(std::string_view layout) {
  if (layout == "DWNSTREAM RIPRAP") return kRiprap;
  if (layout == "DWNSTREAM EARTH") return kEarth;
  return kBare;
}

// Which layout DWNSTREAM has is told by OPTION, wherever that stands.
void readDownstream(const ControlRecord& record, SlopeKind kind, DownstreamRecord& downstream, RunMessages& messages) {
  const std::string_view id = kind == SlopeKind::riprap  ? "DWNSTREAM RIPRAP"
                              : kind == SlopeKind::earth ? "DWNSTREAM EARTH"
                                                         : "DWNSTREAM BARE";
  readNumbers<DownstreamRecord>(inLayout(record, id), downstreamFields(id), downstream, messages);
}

void readAuxiliary(const ControlRecord& record, DamModel& dam, RunMessages& messages) {
  const std::string_view number = record.fields.named("number").text();
  const std::size_t index = number == "2" ? 1 : number == "3" ? 2 : 0;
  const Place place{std::string(record.layout->keyword), record.lineNumber};
  if (number != "1" && number != "2" && number != "3") {
    messages.warning(place, "the number of the auxiliary spillway is not 1, 2 or 3", "1 is taken");
  }
  if (dam.auxiliary[index]) {
    messages.warning(place, fmt::format("auxiliary spillway {} is told twice", index + 1), "the last one counts");
  }
  AuxiliaryRecord spillway;
  spillway.byProfile = record.layout->keyword == "ASSURFACE";
  spillway.name = record.fields.named("name").text();
  const std::string_view analysis = record.fields.named("analysis").text();
  spillway.analysed = analysis == "1" || analysis == "2";
  if (spillway.byProfile) {
    readNumbers<AuxiliaryRecord>(record, kSurface, spillway, messages);
    spillway.reaches = readReaches(record, messages);
  } else {
    spillway.line = record.lineNumber;
    spillway.rating =
        readPoints(record, {"elevation", kElevations}, {"discharge", kDischarges}, Order::rising, messages);
  }
  dam.auxiliary[index] = spillway;
}

template <class Record, std::size_t N>
Record numbersOf(const ControlRecord& record, const NumberField<Record> (&fields)[N], RunMessages& messages) {
  Record read;
  readNumbers<Record>(record, fields, read, messages);
  return read;
}

using ReadRecord = void (*)(const ControlRecord&, DamModel&, RunMessages&);

// By the keyword of the catalogue. DWNSTREAM is read when OPTION is known.
const std::map<std::string_view, ReadRecord>& recordReaders() {
  using Record = const ControlRecord&;
  static const std::map<std::string_view, ReadRecord> kReaders = {
      {"KESTRA", [](Record r, DamModel& dam, RunMessages&) { dam.title = r.fields.named("project").text(); }},
      {"OPTION", [](Record r, DamModel& dam, RunMessages& m) { readOptions(r, dam.options, m); }},
      {"HCMODEL", readHeadcut},
      {"HYD", [](Record r, DamModel& dam, RunMessages& m) { dam.hydrograph = readHydrograph(r, m); }},
      {"STROUTE",
       [](Record r, DamModel& dam, RunMessages& m) {
         dam.start = numbersOf(r, kStart, m);
         dam.start.byOutflow = word(r, "unit") == "CFS";
       }},
      {"STRUCTURE", [](Record r, DamModel& dam, RunMessages& m) { dam.structure = readStructure(r, m); }},
      {"UPSTREAM", [](Record r, DamModel& dam, RunMessages& m) { dam.upstream = numbersOf(r, kUpstream, m); }},
      {"DAMCREST", [](Record r, DamModel& dam, RunMessages& m) { dam.crest = numbersOf(r, kCrest, m); }},
      {"CRESTPRFL",
       [](Record r, DamModel& dam, RunMessages& m) {
         dam.crestLine = r.lineNumber;
         dam.crestProfile = readPoints(r, {"station", kStations}, {"elevation", kElevations}, Order::notFalling, m);
       }},
      {"PSpINLET", [](Record r, DamModel& dam, RunMessages& m) { dam.inlet = numbersOf(r, kInlet, m); }},
      {"PSpDATA",
       [](Record r, DamModel& dam, RunMessages& m) {
         dam.conduit = numbersOf(r, kConduit, m);
         dam.conduit->type = word(r, "type");
       }},
      {"PSpHOOD",
       [](Record r, DamModel& dam, RunMessages& m) {
         dam.hood = numbersOf(r, kHood, m);
         dam.hood->bend = word(r, "bend") == "B";
       }},
      {"PSpCOEFFS",
       [](Record r, DamModel& dam, RunMessages& m) { dam.coefficients = numbersOf(r, kPipeCoefficients, m); }},
      {"TAILWATER",
       [](Record r, DamModel& dam, RunMessages& m) {
         dam.tailwaterLine = r.lineNumber;
         dam.tailwater = readPoints(r, {"elevation", kElevations}, {"discharge", kDischarges}, Order::any, m);
       }},
      {"ASSURFACE", readAuxiliary},
      {"ASRATING", readAuxiliary},
      {"TEMPLATE",
       [](Record r, DamModel&, RunMessages& m) {
         m.warning({"TEMPLATE", r.lineNumber}, "a cross section by stations is not computed with",
                   "the section of UPSTREAM, DAMCREST and DWNSTREAM is taken");
       }},
  };
  return kReaders;
}

// Records of which each stands for itself.
bool mayRepeat(std::string_view keyword) {
  return keyword == "*" || keyword == "ASSURFACE" || keyword == "ASRATING" || keyword == kTableEnd;
}

void tellRepeated(const ControlRecord& record, std::set<std::string_view>& seen, RunMessages& messages) {
  const std::string_view keyword = record.layout->keyword;
  if (mayRepeat(keyword) || seen.insert(keyword).second) return;
  messages.warning({std::string(keyword), record.lineNumber}, "the record stands more than once",
                   "the last one counts");
}

// The records whose absence shows in no field that is asked for.
void tellMissing(const std::set<std::string_view>& seen, RunMessages& messages) {
  if (!seen.contains("KESTRA")) messages.warning({"KESTRA"}, "the record is missing", "the dam has no name");
  if (!seen.contains("OPTION")) {
    messages.warning({"OPTION"}, "the record is missing", "SIMPLE, EARTH and no breach are taken");
  }
}

}  // namespace

DamModel readDam(const std::vector<ControlRun>& runs, RunMessages& messages) {
  DamModel dam;
  if (runs.empty()) return dam;
  const ControlRun& main = runs.front();
  const ControlRecord* downstream = nullptr;
  std::set<std::string_view> seen;
  for (const ControlRecord& record : main.records) {
    tellRepeated(record, seen, messages);
    if (record.layout->keyword == "DWNSTREAM") downstream = &record;
    const auto reader = recordReaders().find(record.layout->keyword);
    if (reader != recordReaders().end()) reader->second(record, dam, messages);
  }
  tellMissing(seen, messages);
  for (const UnknownLine& line : main.unknown) {
    messages.warning({"", line.lineNumber}, "the line is no record", "it is passed over");
  }
  if (!main.ended) messages.warning({"ENDRUN"}, "the run has no end", "the end of the file is taken for it");
  if (downstream != nullptr) readDownstream(*downstream, dam.options.slope, dam.downstream, messages);
  takeSpillwayProfiles(runs, dam, messages);
  return dam;
}

}  // namespace kestra
