#include "control/spillway_run_writer.h"

#include <algorithm>

#include "base/text.h"
#include "control/run_text.h"
#include "control/sampling_rows.h"
#include "screens/frm_aux_spillways.h"
#include "screens/frm_headcut.h"

namespace kestra {
namespace {

constexpr std::size_t kPairsInRow = 3;

std::string_view valueOf(const AuxMaterial& material, MaterialProperty property) {
  return material.value(property);
}

class SpillwayRunWriter {
 public:
  SpillwayRunWriter(InputContext& input, ScreenFields& fields, int spillway, std::vector<CutField>* cuts)
      : input_(input),
        profile_(input.aux.auxProfile.at(static_cast<std::size_t>(spillway))),
        materials_(input.aux.auxMaterials.at(static_cast<std::size_t>(spillway))),
        integrity_(input.screens.auxSpillways->optQUIL(spillway).selected()),
        stability_(input.screens.auxSpillways->optStability(spillway).selected()),
        number_(std::to_string(spillway + 1)),
        out_(fields, RunKind::spillway, cuts) {
    out_.spillway = spillway;
  }

  std::string compose(const DamLink& link) {
    out_.record("QUIL", {{"number", number_}});
    out_.record("HYD");
    out_.row({});
    out_.endTable();
    out_.record("POOLDATA");
    writeProfile();
    out_.record("ASSURFACE");
    writeReaches(out_, profile_, stability_);
    out_.record("ASDATA");
    out_.record("BTMWIDTH");
    writeMaterials();
    if (integrity_) writeIntegrity();
    out_.record("GRAPHICS");
    out_.record("GO,HYD");
    out_.record("KESTRA", {{"number", number_}, {"file", link.controlFile}});
    if (!link.outputDate.empty()) out_.record("MODIFIED", {{"date", link.outputDate}});
    writeSamples();
    out_.record("ENDJOB");
    out_.line(kRunEnd);
    return out_.take();
  }

 private:
  // Rows of three points, and one of the point behind the last whole row.
  void writeProfile() {
    out_.record("ASSPRFL");
    const auto& points = profile_.points;
    for (std::size_t first = 0; first < points.size(); first += kPairsInRow) {
      if (trim(points[first][0]).empty()) continue;
      if (first + kPairsInRow <= points.size()) {
        writePairs(points, first);
      } else {
        out_.row(std::array<std::string_view, 2>{points[first][0], points[first][1]}, RunText::LastValue::open);
      }
    }
    out_.endTable();
  }

  void writePairs(const std::vector<StationElevation>& points, std::size_t first) {
    std::array<std::string_view, 2 * kPairsInRow> values;
    for (std::size_t i = 0; i < kPairsInRow && first + i < points.size(); ++i) {
      values[2 * i] = points[first + i][0];
      values[2 * i + 1] = points[first + i][1];
    }
    out_.row(values);
  }

  // The fills that have a material of their own, by the numbers behind the others'.
  std::vector<int> ownFillMaterials() const {
    std::vector<int> numbers;
    for (int fill : {kTopsoil, kGeneral}) {
      if (fillOf(fill) == FillChoice::external) numbers.push_back(materials_.count + 1 + fill);
    }
    return numbers;
  }

  FillChoice fillOf(int fill) const { return profile_.fill[static_cast<std::size_t>(fill)]; }

  std::string fillNumber(int fill) const {
    if (fillOf(fill) == FillChoice::none) return {};
    if (fillOf(fill) == FillChoice::external) return std::to_string(materials_.count + 1 + fill);
    return profile_.materNum[static_cast<std::size_t>(fill)];
  }

  // The numbers of the fills; the last is not padded, unless both fills have a material of their own.
  void writeFills() {
    const std::string topsoil = fillNumber(kTopsoil);
    std::string general = fillNumber(kGeneral);
    if (fillOf(kGeneral) == FillChoice::none) {
      const bool none = fillOf(kTopsoil) == FillChoice::none;
      return out_.record("ASMATERIAL", {{"topsoil fill", topsoil}}, none ? 0 : 1, RunText::LastValue::open);
    }
    if (ownFillMaterials().size() == 2) general = PadField(general, 10);
    out_.record("ASMATERIAL", {{"topsoil fill", topsoil}, {"general fill", general}});
  }

  void writeMaterials() {
    writeFills();
    for (int number = 1; number <= materials_.count; ++number) writeMaterial(number);
    if (integrity_) {
      for (const int number : ownFillMaterials()) writeMaterial(number);
    }
    out_.endTable();
  }

  void writeMaterial(int number) {
    const AuxMaterial& material = materials_.material(number);
    const std::string name = std::to_string(number);
    const std::string rate = "-" + std::string(trim(valueOf(material, MaterialProperty::detachmentRate)));
    out_.row(std::array<std::string_view, 6>{
        name, valueOf(material, MaterialProperty::plasticityIndex),
        valueOf(material, MaterialProperty::representativeDiameter),
        material.byDetachment ? std::string_view(rate) : valueOf(material, MaterialProperty::percentClay),
        valueOf(material, MaterialProperty::dryDensity), valueOf(material, MaterialProperty::headCutIndex)});
  }

  void writeIntegrity() {
    for (int number = 1; number <= materials_.count; ++number) writeBoundary(number);
    if (input_.screens.headcut->optORLEN.selected()) out_.record("ORLEN");
  }

  void writeBoundary(int number) {
    const AuxMaterial& material = materials_.material(number);
    out_.record("ASCOORD",
                {{"number", std::to_string(number)},
                 {"description", material.description},
                 {"option", "N"},
                 {"barrier", profile_.chkBarrier ? profile_.txtBarrier : ""},
                 {"breach depth", profile_.chkCrest ? profile_.txtBreachDepth : ""},
                 {"crest", profile_.chkCrest ? "Y" : "N"}},
                number == 1 ? 6 : 2);
    const auto& points = material.points;
    const auto blank = [](const StationElevation& point) { return trim(point[0]).empty(); };
    const std::vector<StationElevation> given(points.begin(), std::find_if(points.begin(), points.end(), blank));
    for (std::size_t first = 0; first < given.size(); first += kPairsInRow) writePairs(given, first);
    out_.endTable();
  }

  void writeSamples() {
    std::vector<int> numbers;
    for (int number = 1; number <= materials_.count; ++number) numbers.push_back(number);
    if (integrity_) {
      for (const int number : ownFillMaterials()) numbers.push_back(number);
    }
    const std::vector<SamplingRow> rows = samplingRows(profile_, materials_, numbers);
    if (rows.empty()) return;
    const ApplicationState& state = input_.base.state;
    out_.record("LHS", {{"instances", state.totalInstances},
                        {"seed", state.lhsSeed},
                        {"random sample", state.bRandomSample ? "1" : "0"},
                        {"random pairing", state.bRandomPairing ? "1" : "0"}});
    for (const SamplingRow& row : rows) {
      const auto& parameters = row.distribution->parameters;
      out_.row(std::array<std::string_view, 7>{row.material, row.property, row.distribution->name, parameters[0],
                                               parameters[1], parameters[2], parameters[3]});
    }
    out_.endTable();
  }

  InputContext& input_;
  const AuxProfile& profile_;
  const AuxMaterials& materials_;
  bool integrity_;
  bool stability_;
  std::string number_;
  RunText out_;
};

}  // namespace

std::string composeSpillwayRun(InputContext& input, ScreenFields& fields, int spillway, const DamLink& link,
                               std::vector<CutField>* cuts) {
  return SpillwayRunWriter(input, fields, spillway, cuts).compose(link);
}

}  // namespace kestra
