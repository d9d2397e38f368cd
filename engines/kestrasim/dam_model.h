#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// What the records of a control file tell of a dam, in their units: ft, acres, acre-ft, cfs, h unless a name says
// otherwise. A number is absent where its field is blank.
namespace kestra {

using Number = std::optional<double>;

// A row of a table of two columns.
struct TablePoint {
  double first = 0;
  double second = 0;
  std::size_t line = 0;
};

enum class OverflowModel { coefficient, surface };
enum class SlopeKind { earth, riprap, bare };
enum class Analysis { breach, noBreach, drawdown };

struct DamOptions {
  std::size_t line = 0;
  OverflowModel overflow = OverflowModel::surface;
  SlopeKind slope = SlopeKind::earth;
  bool noPrincipal = false;
  Analysis analysis = Analysis::noBreach;  // without an OPTION, as the system counts such a file
  Number drawdownLevel;                    // elevation or percent
  bool drawdownPercent = false;
  Number drawdownHours;
};

struct HeadcutRecord {
  std::size_t line = 0;
  int model = 2;          // 0 for one that is neither 1 nor 2
  std::string modelText;  // as it stands in the record
  Number bulkDensity;     // lb/ft^3
  Number erodibility;     // (ft/h)/(lb/ft^2)
  Number strength;        // lb/ft^2
  Number criticalStress;
  Number advance;  // (ft/h)/(ft/s^(1/3))
};

struct HydrographRecord {
  std::size_t line = 0;
  bool constant = true;
  Number step;
  Number start;
  std::vector<TablePoint> points;  // h, cfs; with a constant step the times follow from step and start
};

struct RoutingStartRecord {
  std::size_t line = 0;
  Number start;
  Number damBase;
  bool byOutflow = false;  // the start is an outflow and no elevation
};

struct StructureRow {
  double elevation = 0;
  Number discharge;
  Number volume;
  Number area;
  std::size_t line = 0;
};

struct StructureRecord {
  std::size_t line = 0;
  std::string name;
  std::vector<StructureRow> rows;
};

struct FaceRecord {
  std::size_t line = 0;
  Number slope;
  Number retardance;
};

struct CrestRecord {
  std::size_t line = 0;
  Number width;
  Number retardance;
  Number coefficient;
};

struct DownstreamRecord {
  std::size_t line = 0;
  Number slope;
  Number retardance;
  Number cover;
  Number maintenance;
  Number plasticity;
  Number particle;  // in
  Number uniformity;
  Number d50;
  Number thickness;
  Number porosity;
};

struct InletRecord {
  std::size_t line = 0;
  Number entranceLoss;
  Number weirLength;
  Number highCrest;
  Number lowCrest;
  Number orificeHeight;
  Number orificeWidth;
};

struct ConduitRecord {
  std::size_t line = 0;
  std::string type;  // SC, SR, TC, TR, HD
  Number count;
  Number length;
  Number width;  // in of a circular conduit, ft of a rectangular one
  Number height;
  Number manning;
  Number riserInvert;
  Number outletInvert;
};

struct HoodRecord {
  std::size_t line = 0;
  bool bend = false;
  Number toBend;
  Number toOutlet;
  Number bendElevation;
  Number outletElevation;
  Number weir;
  Number entranceLoss;
};

struct CoefficientRecord {
  std::size_t line = 0;
  Number orifice;
  Number orificeArea;
  Number lowWeir;
  Number lowOrifice;
  Number weir;
  Number filletInches;
};

struct ReachRow {
  Number begin;
  Number end;
  Number retardance;
  std::size_t line = 0;
};

struct AuxiliaryRecord {
  std::size_t line = 0;
  bool byProfile = false;
  std::string name;
  bool analysed = false;
  Number sideSlope;
  Number bottomWidth;
  std::vector<ReachRow> reaches;
  std::vector<TablePoint> rating;   // ft, cfs
  std::vector<TablePoint> profile;  // stations and elevations of the spillway's own run
};

struct DamModel {
  std::string title;
  DamOptions options;
  std::optional<HeadcutRecord> headcut;
  HydrographRecord hydrograph;
  RoutingStartRecord start;
  StructureRecord structure;
  FaceRecord upstream;
  CrestRecord crest;
  DownstreamRecord downstream;
  std::size_t crestLine = 0;
  std::vector<TablePoint> crestProfile;  // stations and elevations
  std::optional<InletRecord> inlet;
  std::optional<ConduitRecord> conduit;
  std::optional<HoodRecord> hood;
  std::optional<CoefficientRecord> coefficients;
  std::size_t tailwaterLine = 0;
  std::vector<TablePoint> tailwater;  // elevation, cfs
  std::array<std::optional<AuxiliaryRecord>, 3> auxiliary;
};

}  // namespace kestra
