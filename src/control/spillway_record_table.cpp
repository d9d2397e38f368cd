#include "control/layout_table.h"
#include "control/record_table.h"

namespace kestra {
namespace {

using namespace layout_table;

constexpr FieldLayout kIdentity[] = {
    literal("format date", 11, 10, "02/09/2002", "mark of the format, never the date of the run"),
    ten("number", 21, "", "", "number of the auxiliary spillway, 1 to 3, to which the run is put back"),
    freeField("name", 31, 9, "frmAuxSpillways.txtsway(i)", "", "name of the spillway")};

constexpr FieldLayout kHydrograph[] = {literal("place", 11, 10, "9", "place of the hydrograph"), blank(21, 10),
                                       lastLiteral("step", 31, 1, "C", "constant time step")};
constexpr FieldLayout kHydrographRow[] = {
    lastLiteral("value", 11, 1, "1", "stands in for the inflow, which comes from the dam's run")};

constexpr FieldLayout kPool[] = {
    literal("kind", 11, 10, "ELEV", "the level is an elevation"), blank(21, 40),
    ten("valley floor", 61, "frmAuxSpillwayProfile.txtElevation", "ft", "elevation of the valley floor")};

constexpr auto kElement = literal("element", 11, 10, "41", "number of the element that the records belong to");
constexpr FieldLayout kProfile[] = {
    kElement, ten("topsoil", 21, "frmAuxSpillwayProfile.txtTopsoil", "ft or in", "as in ASSURFACE of the main run"),
    blank(31, 10), freeField("name", 41, 9, "frmAuxSpillways.txtsway(i)", "", "name of the spillway")};
constexpr Text kProfileStation = "frmAuxSpillwayProfile.grdProfile row 1";
constexpr Text kProfileElevation = "frmAuxSpillwayProfile.grdProfile row 2";
constexpr Text kStationMeaning = "station of the centre line";
constexpr Text kElevationMeaning = "elevation of the centre line";
constexpr FieldLayout kProfileRow[] = {ten("station 1", 11, kProfileStation, "ft", kStationMeaning),
                                       ten("elevation 1", 21, kProfileElevation, "ft", kElevationMeaning),
                                       ten("station 2", 31, kProfileStation, "ft", kStationMeaning),
                                       ten("elevation 2", 41, kProfileElevation, "ft", kElevationMeaning),
                                       ten("station 3", 51, kProfileStation, "ft", kStationMeaning),
                                       freeField("elevation 3", 61, 10, kProfileElevation, "ft", kElevationMeaning)};

constexpr FieldLayout kSurface[] = {kElement, freeField("end of channel", 21, 10, "frmAuxSpillwayProfile.txtEnd", "ft",
                                                        "end of the constructed exit channel")};

constexpr FieldLayout kData[] = {kElement, blank(21, 20),
                                 ten("side slope", 41, "frmAuxSpillwayProfile.txtSide", "H/V", "side slope ratio")};

constexpr FieldLayout kWidth[] = {
    literal("unit", 11, 10, "FEET", "unit of the widths"),
    freeField("bottom width", 21, 50, "frmAuxSpillwayProfile.txtBottom", "ft",
              "bottom width; up to five alternatives in ten columns each, where they were entered so")};

constexpr Text kFillControl = "frmAuxSpillwayProfile.materNum(0)";
constexpr FieldLayout kFills[] = {
    ten("topsoil fill", 11, kFillControl, "",
        "number of the topsoil fill's material; not padded where nothing follows. One above the count of materials: "
        "the fill has a material of its own"),
    code("general fill", 21, 10, 10, "frmAuxSpillwayProfile.materNum(1)",
         "number of the general fill's material, padded where both fills have their own. Two above the count: the fill "
         "has a material of its own")};
constexpr FieldLayout kMaterialRow[] = {
    ten("number", 11, "frmAuxSpillwayProfile.lblNo", "", "number of the material, from 1"),
    ten("plasticity", 21, "frmAuxSpillwayProfile.txtPlastic", "", "plasticity index; PDF where it is drawn, as below"),
    ten("diameter", 31, "frmAuxSpillwayProfile.txtRepresent", "in", "representative diameter"),
    ten("erosion", 41, "frmAuxSpillwayProfile.txtPercent, .txtDetach", "% or (ft/h)/(lb/ft^2)",
        "percent of clay; or, behind a minus sign that tells the two apart, the detachment rate"),
    ten("density", 51, "frmAuxSpillwayProfile.txtDry", "lb/ft^3", "dry density"),
    freeField("head cut index", 61, 10, "frmAuxSpillwayProfile.txtHead", "", "head cut index")};

constexpr FieldLayout kBoundary[] = {
    ten("number", 11, "frmAuxSpillwayProfile.lblNo", "", "number of the material"),
    ten("description", 21, "frmAuxSpillwayProfile.txtDescript", "",
        "description of the material; the fields behind it stand with the first material only"),
    ten("option", 31, "", "", "N"),
    ten("barrier", 41, "frmAuxSpillwayProfile.txtBarrier", "ft", "station of the barrier; blank without one"),
    ten("breach depth", 51, "frmAuxSpillwayProfile.txtBreachDepth", "ft",
        "breach depth of the crest barrier; blank without one"),
    code("crest", 61, 1, 1, "frmAuxSpillwayProfile.chkCrest", "Y with a crest barrier, else N")};
constexpr Text kBoundaryStation = "frmAuxSpillwayProfile.grdTable row 1";
constexpr Text kBoundaryElevation = "frmAuxSpillwayProfile.grdTable row 2";
constexpr Text kUpperStation = "station of the material's upper boundary";
constexpr Text kUpperElevation = "elevation of the material's upper boundary";
constexpr FieldLayout kBoundaryRow[] = {ten("station 1", 11, kBoundaryStation, "ft", kUpperStation),
                                        ten("elevation 1", 21, kBoundaryElevation, "ft", kUpperElevation),
                                        ten("station 2", 31, kBoundaryStation, "ft", kUpperStation),
                                        ten("elevation 2", 41, kBoundaryElevation, "ft", kUpperElevation),
                                        ten("station 3", 51, kBoundaryStation, "ft", kUpperStation),
                                        ten("elevation 3", 61, kBoundaryElevation, "ft", kUpperElevation)};

constexpr FieldLayout kThreshold[] = {
    ten("a1", 11, "frmHeadcut.txta1", "ft^3/s", "threshold coefficient"),
    ten("b1", 21, "frmHeadcut.txtb1", "", "threshold exponent"),
    ten("a2", 31, "frmHeadcut.txta2", "(ft/h)/(ft^3/s)^1/3", "rate coefficient"),
    ten("b2", 41, "frmHeadcut.txtb2", "", "rate exponent, or rate constant of the logarithmic form"),
    ten("c2", 51, "frmHeadcut.txtc2", "(ft/h)/(ft^3/s)^1/3", "rate limit"),
    code("form", 61, 1, 1, "frmHeadcut.optLogLog, .optSemiLog", "0: semi-log; 1: log-log")};

constexpr FieldLayout kGraphics[] = {lastLiteral("extent", 11, 1, "I", "asks the solver for its graph files")};
constexpr FieldLayout kGo[] = {literal("list", 11, 10, "L", "starts the analysis"), blank(21, 20),
                               literal("count", 41, 10, "1", "number of hydrographs")};
constexpr FieldLayout kLink[] = {
    ten("number", 11, "", "", "number of the auxiliary spillway"),
    freeField("file", 21, 260, "", "", "control file of the dam, whose output holds the inflow of the spillway")};
constexpr FieldLayout kModified[] = {
    freeField("date", 11, 20, "", "", "when the dam's output was last written, MM/DD/YYYY hh:mm:ss")};

constexpr FieldLayout kSampling[] = {
    ten("instances", 11, "frmDist.txtInstance", "", "number of instances"),
    ten("seed", 21, "frmDist.txtSeed", "", "seed of the samples"),
    ten("random sample", 31, "frmDist.optRandomSample", "", "1: random samples; 0: Latin hypercube"),
    ten("random pairing", 41, "", "", "1: the samples of the variables are paired at random; 0: they are not")};
constexpr Text kParameter = "parameter of the distribution, as the dialog of distributions captions it";
constexpr FieldLayout kSamplingRow[] = {
    ten("material", 11, "", "", "number of the material; blank for the hydrograph"),
    ten("property", 21, "frmDist.Combo1", "",
        "1 plasticity index, 2 representative diameter, 3 percent clay, 4 detachment rate, 5 dry density, 6 head cut "
        "index; of the hydrograph 1 peak, 2 duration"),
    padded("distribution", 31, 30, "frmDist.cmbDist", "", "name of the distribution"),
    ten("parameter 1", 61, "frmDist.txtOne", "", kParameter),
    ten("parameter 2", 71, "frmDist.txtTwo", "", kParameter),
    ten("parameter 3", 81, "frmDist.txtThree", "", kParameter),
    ten("parameter 4", 91, "frmDist.txtFour", "", kParameter)};

constexpr Text kAlways = "always";

constexpr RecordLayout kRecords[] = {
    record("QUIL", "QUIL", "Identity of the spillway's run", kAlways, kIdentity),
    record("HYD", "HYD", "Inflow hydrograph of the spillway", kAlways, kHydrograph, TableLayout{kHydrographRow}),
    record("POOLDATA", "POOLDATA", "Pool", kAlways, kPool),
    record("ASSPRFL", "ASSPRFL", "Profile of the centre line", kAlways, kProfile, TableLayout{kProfileRow}),
    record("ASSURFACE", "ASSURFACE", "Surface conditions", kAlways, kSurface, TableLayout{kReachRow, 1, true}),
    record("ASDATA", "ASDATA", "Channel", kAlways, kData),
    record("BTMWIDTH", "BTMWIDTH", "Bottom width", kAlways, kWidth),
    record("ASMATERIAL", "ASMATERIAL", "Fills and materials", kAlways, kFills, TableLayout{kMaterialRow}),
    record("ASCOORD", "ASCOORD", "Upper boundary of a material", "integrity analysis, once a material", kBoundary,
           TableLayout{kBoundaryRow}),
    record("ORLEN", "ORLEN", "Threshold and rate equations", "integrity analysis with the ORLEN equations", kThreshold),
    record("GRAPHICS", "GRAPHICS", "Graph files", kAlways, kGraphics),
    record("GO,HYD", "GO,HYD", "Start of the analysis", kAlways, kGo),
    record("KESTRA", "KESTRA", "Link to the dam's run", kAlways, kLink),
    record("MODIFIED", "MODIFIED", "Date of the dam's output", "where the dam has been run", kModified),
    record("LHS", "LHS", "Samples", "where a property of the spillway's materials, or its hydrograph, is drawn",
           kSampling, TableLayout{kSamplingRow}),
    record("ENDJOB", "ENDJOB", "End of the job", kAlways),
    kTableEndRecord,
    kRunEndRecord,
};

}  // namespace

std::span<const RecordLayout> spillwayRunRecords() {
  return kRecords;
}

}  // namespace kestra
