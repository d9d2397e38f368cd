#include "control/record_table.h"

#include "control/layout_table.h"

namespace kestra {
namespace {

using namespace layout_table;

constexpr FieldLayout discharge(Text name, int first) {
  return {name,
          first,
          10,
          10,
          FieldKind::discharge,
          std::nullopt,
          "frmHydrographData.grdTable column 1",
          "cfs",
          "inflow, one time step behind the value before it"};
}

constexpr FieldLayout kProject[] = {
    literal("format date", 11, 10, "01/01/2009", "mark of the format, never the date of the run"),
    wholeField("project", 21, 50, "frmProjectInformation.txtWatershedID", "project identifier, read with its blanks")};

constexpr auto kModel = ten("model", 11, "frmProjectInformation.optUser, .optSimple", "",
                            "surface model: COEFF, SIMPLE or DETAILED; DETAILED is read as SIMPLE");
constexpr auto kSurface = ten("surface", 21, "frmProjectInformation.optEarth, .optRipRap, .optBare", "",
                              "downstream surface: EARTH, RIPRAP or BARESOIL");
constexpr auto kNoSpillway = ten("spillway", 31, "frmPSType.optNone", "", "NOPS: no principal spillway; else blank");

constexpr FieldLayout kOption[] = {kModel, kSurface, kNoSpillway};
constexpr FieldLayout kOptionNoBreach[] = {
    kModel, kSurface, kNoSpillway,
    lastLiteral("analysis", 41, 10, "NOBREACH", "the dam is routed and does not breach; NOBA is accepted")};
constexpr FieldLayout kOptionDrawdown[] = {
    kModel,
    kSurface,
    kNoSpillway,
    literal("analysis", 41, 10, "DRAWDOWN", "the pool is drawn down; read as no breach analysis"),
    ten("drawdown level", 51, "frmHydrographData.txtDrawdownElevation", "ft or percent", "level to be drawn down to"),
    ten("drawdown unit", 61, "frmHydrographData.optPercent", "", "PERCENT or FEET; all but PERCENT is read as FEET"),
    freeField("drawdown time", 71, 10, "frmHydrographData.txtDrawdownTime", "h",
              "time allowed; 240 where the line ends before it")};

constexpr FieldLayout kComment[] = {wholeField("comment", 11, 60, "frmProjectInformation.txtComments",
                                               "one line of the wrapped comment, read with its blanks")};

constexpr FieldLayout kHeadcutModel1[] = {
    literal("model", 11, 10, "1", "number of the headcut erodibility model"),
    blank(21, 10),
    ten("detachment rate", 31, "Properties.txtKd", "(ft/h)/(lb/ft^2)", "detachment rate coefficient (erodibility)"),
    blank(41, 10),
    ten("critical shear", 51, "Properties.txtCriticalShearStress", "lb/ft^2", "critical shear stress"),
    freeField("headcut index", 61, 10, "Properties.txtHeadcutIndex", "(ft/h)/(ft/s^1/3)",
              "headcut advance coefficient")};
constexpr FieldLayout kHeadcutModel2[] = {
    literal("model", 11, 10, "2", "number of the headcut erodibility model"),
    ten("bulk density", 21, "Properties.txtBulkDensity", "lb/ft^3", "bulk density (total unit weight)"),
    ten("detachment rate", 31, "Properties.txtKd", "(ft/h)/(lb/ft^2)", "detachment rate coefficient (erodibility)"),
    ten("undrained shear", 41, "Properties.txtUndrainedShear", "lb/ft^2", "undrained shear strength"),
    freeField("critical shear", 51, 10, "Properties.txtCriticalShearStress", "lb/ft^2", "critical shear stress")};

constexpr auto kTitle = ten("title", 11, "frmHydrographData.txtTitle", "", "title of the hydrograph");
constexpr auto kStart = ten("start time", 31, "frmHydrographData.txtStartTime", "h", "time of the first value");
constexpr auto kAdjust = padded("adjust", 41, 1, "frmHydrographData.chkAdjustTimeIncrement", "",
                                "1: the time increment is adjusted; 0: it stands");
constexpr FieldLayout kHydrographC[] = {
    kTitle,
    ten("time increment", 21, "frmHydrographData.txtConst", "h", "time between two values"),
    kStart,
    kAdjust,
    literal("step", 42, 1, "C", "constant time step; all but V is read so"),
    blank(43, 8)};
constexpr FieldLayout kHydrographV[] = {
    kTitle,
    ten("time increment", 21, "frmHydrographData.txtDesired", "h", "time increment that is desired"),
    kStart,
    kAdjust,
    literal("step", 42, 1, "V", "variable time step"),
    blank(43, 8)};
constexpr FieldLayout kConstantRow[] = {discharge("discharge 1", 21), discharge("discharge 2", 31),
                                        discharge("discharge 3", 41), discharge("discharge 4", 51),
                                        discharge("discharge 5", 61)};
constexpr FieldLayout kVariableRow[] = {ten("time", 11, "frmHydrographData.varTable column 0", "h", "time"),
                                        ten("discharge", 21, "frmHydrographData.varTable column 1", "cfs", "inflow")};

constexpr FieldLayout kRoutingStart[] = {
    ten("start routing", 11, "frmStructureTable.txtStartRouting", "ft or cfs", "where the routing starts"),
    ten("dam base", 21, "frmStructureTable.txtValleyFloor", "ft", "elevation of the dam's base"),
    code("unit", 31, 4, 10, "frmStructureTable.optFeet",
         "FEET or CFS, of the start of the routing; all but CFS is read as FEET")};

constexpr FieldLayout kStructure[] = {
    ten("structure", 11, "frmStructureTable.txtStructureID", "", "structure identifier")};
constexpr FieldLayout kStructureRow[] = {
    ten("elevation", 21, "frmStructureTable.grdTable column 1", "ft", "water surface elevation"),
    ten("discharge", 31, "frmStructureTable.grdTable column 2", "cfs",
        "discharge of the principal spillway; with any value here the conduit records are not written"),
    ten("storage", 41, "frmStructureTable.grdTable column 3", "acre-ft", "storage volume of the reservoir"),
    ten("area", 51, "frmStructureTable.grdTable column 4", "acres", "surface area of the reservoir")};

constexpr FieldLayout kUpstream[] = {
    ten("slope", 11, "frmDamSurface.txtUpSlope", "H/V", "slope of the upstream face"),
    freeField("retardance", 21, 10, "frmDamSurface.txtUpRCI", "", "retardance curve index")};
constexpr FieldLayout kCrest[] = {
    ten("width", 11, "frmDamSurface.txtCrestWidth", "ft", "width of the dam's crest"),
    ten("retardance", 21, "frmDamSurface.txtCrestRCI", "", "retardance curve index"),
    ten("coefficient", 31, "frmDamSurface.txtCoeff", "", "discharge coefficient of the embankment")};

constexpr auto kDownSlope = ten("slope", 11, "frmDamSurface.txtDownSlope", "H/V", "slope of the downstream face");
constexpr Text kRetardance = "retardance curve index, or Manning's n";
constexpr FieldLayout kEarth[] = {
    kDownSlope,
    ten("retardance", 21, "frmDamSurface.txtDownRCI", "", kRetardance),
    ten("cover", 31, "frmDamSurface.txtDownVCF", "", "vegetal cover factor"),
    ten("maintenance", 41, "frmDamSurface.txtDownCode", "", "maintenance code"),
    ten("plasticity", 51, "frmDamSurface.txtDownPI", "", "plasticity index"),
    freeField("particle", 61, 10, "frmDamSurface.txtDownDiameter", "in", "particle diameter")};
constexpr FieldLayout kRiprap[] = {kDownSlope,
                                   ten("uniformity", 21, "frmDamSurface.txtRiprapU", "", "uniformity of the riprap"),
                                   ten("D50", 31, "frmDamSurface.txtRiprapD50", "ft", "median size of the riprap"),
                                   ten("thickness", 41, "frmDamSurface.txtRiprapT", "ft", "thickness of the riprap"),
                                   ten("porosity", 51, "frmDamSurface.txtRiprapP", "", "porosity of the riprap")};
constexpr FieldLayout kBareBreach[] = {kDownSlope,
                                       freeField("retardance", 21, 10, "frmDamSurface.txtDownRCI", "", kRetardance)};
constexpr FieldLayout kBare[] = {kDownSlope, ten("retardance", 21, "frmDamSurface.txtDownRCI", "", kRetardance)};

constexpr FieldLayout kCrestRow[] = {
    ten("station", 11, "frmDamSurface.grdTable row 1", "ft", "station along the crest"),
    ten("elevation", 21, "frmDamSurface.grdTable row 2", "ft", "elevation of the crest")};

constexpr FieldLayout kInlet[] = {
    ten("entrance loss", 11, "frmPSConduit.txtEntranceLossCoefficient", "", "entrance loss coefficient"),
    ten("weir length", 21, "frmPSConduit.txtWeirLength", "ft", "length of the inlet's weir"),
    ten("high stage crest", 31, "frmPSConduit.txtHighStageCrest", "ft", "elevation of the high stage crest"),
    ten("low stage crest", 41, "frmPSConduit.txtLowStageCrest", "ft",
        "elevation of the low stage crest; two-stage types only, as the two fields behind it"),
    ten("orifice height", 51, "frmPSConduit.txtOrificeHeight", "ft", "height of the low stage orifice"),
    ten("orifice width", 61, "frmPSConduit.txtOrificeWidth", "ft", "width of the low stage orifice")};
constexpr FieldLayout kConduit[] = {
    padded("conduits", 11, 5, "frmPSConduit.txtNumOfConduit", "", "number of conduits"),
    padded("length", 16, 5, "frmPSConduit.txtLengthOfConduit", "ft", "length of the conduit, in five columns only"),
    ten("diameter", 21, "frmPSConduit.txtDiameterOfConduit", "in or ft",
        "diameter in inches of a circular conduit, width in feet of a rectangular one"),
    ten("height", 31, "frmPSConduit.txtHeight", "ft", "height of a rectangular conduit"),
    ten("Manning's n", 41, "frmPSConduit.txtManning", "", "roughness of the conduit"),
    ten("invert at riser", 51, "frmPSConduit.txtInvertElevAtRiser", "ft", "invert elevation at the riser"),
    ten("invert at outlet", 61, "frmPSConduit.txtInvertElevAtOutlet", "ft", "invert elevation at the outlet"),
    code("type", 71, 2, 10, "frmPSType.optSingleCir, .optSingleRec, .optTwoCir, .optTwoRec, .optHood",
         "SC and SR single stage, TC and TR two stages, circular and rectangular; HD hood")};
constexpr FieldLayout kHood[] = {
    ten("inlet to bend", 11, "frmPSConduit.txtHorizInToBen", "ft", "horizontal distance from inlet to bend"),
    ten("bend to outlet", 21, "frmPSConduit.txtHorizBenToOut", "ft",
        "horizontal distance from bend to outlet; blank for a straight pipe"),
    ten("bend elevation", 31, "frmPSConduit.txtElevationAtBend", "ft", "elevation at bend; blank for a straight pipe"),
    ten("outlet elevation", 41, "frmPSConduit.txtElevationAtOutlet", "ft", "elevation at the outlet"),
    ten("weir inlet", 51, "frmPSConduit.txtWeirInletCoefficient", "",
        "weir inlet coefficient; read into txtHoodWeirInletCoefficient, which PSpCOEFFS then overwrites"),
    ten("entrance loss", 61, "frmPSConduit.txtEntranceLossCoefficient", "", "entrance loss coefficient"),
    code("bend", 71, 1, 1, "frmPSConduit.optBendInPipe, .optStraightPipe", "B: bend in the pipe; S: straight")};
constexpr FieldLayout kCoefficients[] = {
    ten("conduit orifice", 11, "frmPSConduit.txtConduitOrificeDischargeCoefficient", "",
        "discharge coefficient of the conduit's orifice"),
    ten("orifice area", 21, "frmPSConduit.txtConduitOrificeArea", "ft^2",
        "area of the conduit's entrance as an orifice"),
    ten("low stage weir", 31, "frmPSConduit.txtOrificeLowStageWeirFlow", "", "coefficient of low stage weir flow"),
    ten("low stage full", 41, "frmPSConduit.txtOrificeLowStageFullFlow", "", "coefficient of low stage full flow"),
    ten("weir", 51, "frmPSConduit.txtHighStageWeirCoefficient, .txtHoodWeirInletCoefficient", "",
        "weir coefficient: of the high stage, or of the hood for a hood inlet"),
    ten("fillet", 61, "frmPSConduit.txtFilletSize", "in", "fillet of a rectangular conduit")};

constexpr FieldLayout kTailwaterRow[] = {
    ten("elevation", 11, "frmPSRatingTable.grdTable column 1", "ft", "tailwater elevation"),
    ten("discharge", 21, "frmPSRatingTable.grdTable column 2", "cfs", "outflow of the reservoir")};

constexpr auto kNumber =
    padded("number", 11, 1, "", "", "number of the auxiliary spillway, 1 to 3; all else is read as 1");
constexpr auto kSpillwayName = padded("name", 12, 9, "frmAuxSpillways.txtsway(i)", "", "name of the spillway");
constexpr Text kAnalysisControl = "frmAuxSpillways.optNone(i), .optQUIL(i), .optStability(i)";
constexpr Text kAnalysis = "analysis: 0 none, 1 integrity, 2 stability";
constexpr FieldLayout kSpillwaySurface[] = {
    kNumber,
    kSpillwayName,
    ten("side slope", 21, "frmAuxSpillwayProfile.txtSide", "H/V", "side slope ratio"),
    padded("bottom width", 31, 9, "frmAuxSpillwayProfile.txtBottom", "ft", "bottom width"),
    padded("analysis", 40, 1, kAnalysisControl, "", kAnalysis),
    ten("topsoil", 41, "frmAuxSpillwayProfile.txtTopsoil", "ft or in",
        "depth of the topsoil fill in ft; with stability analysis the diameter of the surface material in inches"),
    freeField("end of channel", 51, 10, "frmAuxSpillwayProfile.txtEnd", "ft", "end of the constructed exit channel")};
constexpr FieldLayout kSpillwayRating[] = {kNumber, kSpillwayName,
                                           code("analysis", 21, 1, 1, kAnalysisControl, kAnalysis)};
constexpr FieldLayout kRatingRow[] = {
    ten("elevation", 11, "frmAuxRatingTable.grdTable(i) column 1", "ft", "water surface elevation"),
    ten("discharge", 21, "frmAuxRatingTable.grdTable(i) column 2", "cfs", "discharge of the spillway")};

constexpr FieldLayout kTemplate[] = {ten("label", 11, "", "", "read and dropped")};
constexpr Text kTemplateValue = "row of the table's column; nine blanks and X mark the crest";
constexpr FieldLayout kTemplateRow[] = {ten("row 1", 11, "frmDamSurface.xcTable", "ft", kTemplateValue),
                                        ten("row 2", 21, "frmDamSurface.xcTable", "ft", kTemplateValue),
                                        ten("row 3", 31, "frmDamSurface.xcTable", "ft", kTemplateValue)};

constexpr FieldLayout kOutput[] = {lastLiteral("extent", 11, 3, "ALL", "asks the solver for all of its output")};

constexpr Text kAlways = "always";
constexpr Text kWithConduit = "with a principal spillway, unless STRUCTURE holds discharges";

constexpr RecordLayout kRecords[] = {
    record("KESTRA", "KESTRA", "Project identity", kAlways, kProject),
    record("OPTION", "OPTION", "Analysis options, breach analysis",
           "breach analysis without drawdown; stops at column 30 with a principal spillway, else at column 40",
           kOption),
    record("OPTION NOBREACH", "OPTION", "Analysis options, no breach analysis", "no breach analysis, no drawdown",
           kOptionNoBreach, {}, mark(41, 10, "NOBREACH", "NOBA")),
    record("OPTION DRAWDOWN", "OPTION", "Analysis options, drawdown",
           "drawdown, but for a dam without principal spillway under breach analysis", kOptionDrawdown, {},
           mark(41, 10, "DRAWDOWN")),
    record("COMMENT", "*", "Comment line", "once a line of the wrapped comment; none for an empty comment", kComment),
    record("HCMODEL 1", "HCMODEL", "Headcut erodibility, model 1", "breach analysis, model 1", kHeadcutModel1, {},
           mark(11, 10, "1")),
    record("HCMODEL 2", "HCMODEL", "Headcut erodibility, model 2", "breach analysis, model 2", kHeadcutModel2),
    record("HYD C", "HYD", "Inflow hydrograph, constant time step", "always, unless the time step varies", kHydrographC,
           TableLayout{kConstantRow}),
    record("HYD V", "HYD", "Inflow hydrograph, variable time step", "always, where the time step varies", kHydrographV,
           TableLayout{kVariableRow, 21}, mark(42, 1, "V")),
    record("STROUTE", "STROUTE", "Start of the routing", kAlways, kRoutingStart),
    record("STRUCTURE", "STRUCTURE", "Principal spillway rating and reservoir", kAlways, kStructure,
           TableLayout{kStructureRow, 1, true}),
    record("UPSTREAM", "UPSTREAM", "Upstream face", kAlways, kUpstream),
    record("DAMCREST", "DAMCREST", "Crest", kAlways, kCrest),
    record("DWNSTREAM EARTH", "DWNSTREAM", "Downstream face of earth", "surface EARTH", kEarth),
    record("DWNSTREAM RIPRAP", "DWNSTREAM", "Downstream face of riprap", "surface RIPRAP", kRiprap),
    record("DWNSTREAM BARE BREACH", "DWNSTREAM", "Downstream face of bare soil, breach analysis",
           "surface BARESOIL, breach analysis", kBareBreach),
    record("DWNSTREAM BARE", "DWNSTREAM", "Downstream face of bare soil, no breach analysis",
           "surface BARESOIL, no breach analysis", kBare),
    record("CRESTPRFL", "CRESTPRFL", "Crest profile", kAlways, {}, TableLayout{kCrestRow, 1, true}),
    record("PSpINLET", "PSpINLET", "Principal spillway inlet", kWithConduit, kInlet),
    record("PSpDATA", "PSpDATA", "Principal spillway conduit", kWithConduit, kConduit),
    record("PSpHOOD", "PSpHOOD", "Hood inlet", "as PSpINLET, for the spillway type Hood", kHood),
    record("PSpCOEFFS", "PSpCOEFFS", "Principal spillway coefficients", kWithConduit, kCoefficients),
    record("TAILWATER", "TAILWATER", "Tailwater rating", kAlways, {}, TableLayout{kTailwaterRow, 1, true}),
    record("ASSURFACE", "ASSURFACE", "Auxiliary spillway, by its surface", "once an auxiliary spillway with a profile",
           kSpillwaySurface, TableLayout{kReachRow, 1, true}),
    record("ASRATING", "ASRATING", "Auxiliary spillway, by its rating",
           "once an auxiliary spillway with a rating table", kSpillwayRating, TableLayout{kRatingRow, 1, true}),
    inputOnly(record("TEMPLATE", "TEMPLATE", "Cross-section template", "never; accepted on input", kTemplate,
                     TableLayout{kTemplateRow})),
    record("OUTPUT", "OUTPUT", "Extent of the output", kAlways, kOutput),
    kTableEndRecord,
    kRunEndRecord,
};

}  // namespace

std::span<const RecordLayout> mainRunRecords() {
  return kRecords;
}

}  // namespace kestra
