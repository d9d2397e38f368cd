#include "control/word_fields.h"

#include <algorithm>
#include <array>

namespace kestra {
namespace {

constexpr WordChoice kModel[] = {{"frmProjectInformation.optUser", "COEFF"},
                                 {"frmProjectInformation.optSimple", "SIMPLE"}};
constexpr WordChoice kModelRead[] = {{"frmProjectInformation.optUser", "COEFF"},
                                     {"frmProjectInformation.optSimple", "SIMPLE"},
                                     {"frmProjectInformation.optSimple", "DETAILED"}};
constexpr WordChoice kSurface[] = {{"frmProjectInformation.optEarth", "EARTH"},
                                   {"frmProjectInformation.optRipRap", "RIPRAP"},
                                   {"frmProjectInformation.optBare", "BARESOIL"}};
constexpr WordChoice kNoSpillway[] = {{"frmPSType.optNone", "NOPS"}};
constexpr WordChoice kDrawdownUnit[] = {{"frmHydrographData.optPercent", "PERCENT"}};
constexpr WordChoice kRoutingWritten[] = {{"frmStructureTable.optFeet", "FEET"}};
constexpr WordChoice kRoutingRead[] = {{"frmStructureTable.optCFS", "CFS"}};
constexpr WordChoice kTypes[] = {{"frmPSType.optSingleCir", "SC"},
                                 {"frmPSType.optSingleRec", "SR"},
                                 {"frmPSType.optTwoCir", "TC"},
                                 {"frmPSType.optTwoRec", "TR"},
                                 {"frmPSType.optHood", "HD"}};
constexpr WordChoice kPipe[] = {{"frmPSConduit.optBendInPipe", "B"}, {"frmPSConduit.optStraightPipe", "S"}};
constexpr WordChoice kAnalysis[] = {{"frmAuxSpillways.optNone(i)", "0"}, {"frmAuxSpillways.optQUIL(i)", "1"}};
constexpr WordChoice kAnalysisRead[] = {{"frmAuxSpillways.optQUIL(i)", "1"}, {"frmAuxSpillways.optStability(i)", "2"}};
constexpr WordChoice kForm[] = {{"frmHeadcut.optSemiLog", "0"}};

constexpr auto kFields = std::to_array<WordField>(
    {{"frmProjectInformation.optUser, .optSimple", kModel, "DETAILED", kModelRead, ""},
     {"frmProjectInformation.optEarth, .optRipRap, .optBare", std::span(kSurface).first(2), "BARESOIL", kSurface, ""},
     {"frmPSType.optNone", kNoSpillway, "", kNoSpillway, ""},
     {"frmHydrographData.optPercent", kDrawdownUnit, "FEET", kDrawdownUnit, "frmHydrographData.optFeet"},
     {"frmStructureTable.optFeet", kRoutingWritten, "CFS", kRoutingRead, "frmStructureTable.optFeet"},
     {"frmPSType.optSingleCir, .optSingleRec, .optTwoCir, .optTwoRec, .optHood", std::span(kTypes).first(4), "HD",
      kTypes, ""},
     {"frmPSConduit.optBendInPipe, .optStraightPipe", std::span(kPipe).first(1), "S", kPipe, ""},
     {"frmAuxSpillways.optNone(i), .optQUIL(i), .optStability(i)", kAnalysis, "2", kAnalysisRead,
      "frmAuxSpillways.optNone(i)"},
     {"frmHeadcut.optLogLog, .optSemiLog", kForm, "1", kForm, "frmHeadcut.optLogLog"}});

}  // namespace

const WordField* findWordField(std::string_view control) {
  const auto found = std::ranges::find(kFields, control, &WordField::control);
  return found == kFields.end() ? nullptr : &*found;
}

}  // namespace kestra
