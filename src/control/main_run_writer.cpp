#include "control/main_run_writer.h"

#include "base/fields.h"
#include "base/text.h"
#include "control/run_text.h"
#include "screens/frm_aux_spillways.h"
#include "screens/frm_dam_surface.h"
#include "screens/frm_hydrograph_data.h"
#include "screens/frm_project_information.h"
#include "screens/frm_ps_conduit.h"
#include "screens/frm_ps_type.h"
#include "screens/frm_structure_table.h"
#include "screens/properties.h"

namespace kestra {
namespace {

constexpr int kLastStart = 4996;  // row at which the last line of a hydrograph may begin

class MainRunWriter {
 public:
  MainRunWriter(InputContext& input, ScreenFields& fields, std::vector<CutField>* cuts)
      : input_(input), screens_(input.screens), fields_(fields), out_(fields, RunKind::main, cuts) {}

  std::string compose(const std::string& hydrograph) {
    out_.record("KESTRA");
    writeOption();
    for (const std::string& line : wrapComment(screens_.projectInformation->txtComments.text())) {
      out_.record("COMMENT", {{"comment", line}});
    }
    if (!screens_.projectInformation->optNoBreachAnalysis.selected()) {
      out_.record(screens_.properties->optHcModel(1).selected() ? "HCMODEL 1" : "HCMODEL 2");
    }
    out_.append(hydrograph);
    writeDam();
    if (!screens_.psType->optNone.selected() && !hasStructureDischarge(screens_.structureTable->grdTable)) {
      writeConduit();
    }
    writeTable("TAILWATER", {.needed = 2});
    for (int i = 0; i < input_.base.state.numAuxSpillways; ++i) writeSpillway(i);
    out_.record("OUTPUT");
    out_.line(kRunEnd);
    return out_.take();
  }

 private:
  void writeTable(std::string_view id, const RowRule& rule) {
    out_.record(id);
    writeRows(out_, fields_, rule);
  }

  void writeOption() {
    const bool none = screens_.psType->optNone.selected();
    const bool noBreach = screens_.projectInformation->optNoBreachAnalysis.selected();
    const bool drawdown = screens_.hydrographData->chk10daydrawdown.checked();
    if (drawdown && (noBreach || !none)) return out_.record("OPTION DRAWDOWN");
    if (noBreach) return out_.record("OPTION NOBREACH");
    out_.record("OPTION", {}, none ? 3 : 2);
  }

  void writeDam() {
    out_.record("STROUTE");
    writeTable("STRUCTURE", {.needed = 1});
    out_.record("UPSTREAM");
    out_.record("DAMCREST");
    out_.record(downstreamLayout());
    writeTable("CRESTPRFL", {.needed = 2});
  }

  std::string_view downstreamLayout() const {
    const frmProjectInformation& project = *screens_.projectInformation;
    if (project.optEarth.selected()) return "DWNSTREAM EARTH";
    if (project.optRipRap.selected()) return "DWNSTREAM RIPRAP";
    return project.optBreachAnalysis.selected() ? "DWNSTREAM BARE BREACH" : "DWNSTREAM BARE";
  }

  void writeConduit() {
    const frmPSType& type = *screens_.psType;
    const frmPSConduit& conduit = *screens_.psConduit;
    const bool twoStage = type.optTwoCir.selected() || type.optTwoRec.selected();
    const bool rectangular = type.optSingleRec.selected() || type.optTwoRec.selected();
    out_.record("PSpINLET", {}, twoStage ? 6 : 3);
    rectangular ? out_.record("PSpDATA") : out_.record("PSpDATA", {{"height", ""}});
    if (type.optHood.selected()) {
      const bool bend = conduit.optBendInPipe.selected();
      bend ? out_.record("PSpHOOD") : out_.record("PSpHOOD", {{"bend to outlet", ""}, {"bend elevation", ""}});
    }
    out_.record("PSpCOEFFS");
  }

  void writeSpillway(int spillway) {
    out_.spillway = spillway;
    const std::string number = std::to_string(spillway + 1);
    if (screens_.auxSpillways->optProfile(spillway).selected()) {
      out_.record("ASSURFACE", {{"number", number}});
      const AuxProfile& profile = input_.aux.auxProfile.at(static_cast<std::size_t>(spillway));
      writeReaches(out_, profile, screens_.auxSpillways->optStability(spillway).selected());
    } else {
      out_.record("ASRATING", {{"number", number}});
      writeRows(out_, fields_, {.needed = 2, .ends = false});
    }
  }

  InputContext& input_;
  InputScreens& screens_;
  ScreenFields& fields_;
  RunText out_;
};

// Five discharges a line; a line whose first is blank ends the table and is not written.
void writeConstantRows(RunText& out, const Table& table) {
  constexpr int kFlow = 1;
  std::array<std::string_view, 5> values;
  for (int row = 1; row <= kLastStart;) {
    for (std::string_view& value : values) value = table.cell(row++, kFlow);
    if (trim(values.front()).empty()) break;
    out.row(values);
  }
}

}  // namespace

std::string composeHydrograph(InputContext& input, ScreenFields& fields, std::vector<CutField>* cuts) {
  const frmHydrographData& screen = *input.screens.hydrographData;
  RunText out(fields, RunKind::main, cuts);
  out.record(screen.optConst.selected() ? "HYD C" : "HYD V");
  if (screen.optConst.selected()) {
    writeConstantRows(out, screen.grdTable);
    out.endTable();
  } else {
    writeRows(out, fields, {.needed = 2, .most = kLastStart});
  }
  std::string text = out.take();
  text.resize(text.size() - kCrLf.size());
  return text;
}

std::string composeMainRun(InputContext& input, ScreenFields& fields, const std::string& hydrograph,
                           std::vector<CutField>* cuts) {
  return MainRunWriter(input, fields, cuts).compose(hydrograph);
}

}  // namespace kestra
