#pragma once

#include <vector>

#include "hydraulics/dam_routing.h"

namespace kestra {

// A grassed dam of 30 ft with a riser and a bywash, under a triangular flood that runs over it.
inline RoutingInput sampleDam(double peakInflow = 3000) {
  RoutingInput dam;
  const std::vector<StorageRow> rows{{0, 0, 0}, {10, 0, 8}, {20, 0, 25}, {30, 0, 50}, {36, 0, 70}};
  dam.storage = StageStorage(rows, StorageBasis::areas);
  DropInletSpillway riser;
  riser.inlet.highCrest = 18;
  riser.inlet.weirLength = 12;
  riser.conduits.section = circularSection(30);
  riser.conduits.length = 160;
  riser.conduits.entranceLoss = 0.8;
  riser.conduits.outletInvert = 1;
  riser.conduits.orificeArea = riser.conduits.section.area;
  riser.conduits.orificeCentre = 3;
  dam.outlets.principal = riser;
  dam.outlets.auxiliary[0] = RatingCurve({25, 27, 30, 34}, {0, 150, 700, 1900}, RatingCurve::Shape::straight);
  dam.outlets.crest = CrestOverflow({{0, 33}, {60, 30}, {240, 30.1}, {400, 30.5}, {460, 33}},
                                    UnitDischarge::fromSurface({12, 5.6, 3, 5.6}, 15));
  dam.outlets.tailwater = LinearTable({0, 200, 1000, 4000, 20000}, {0, 2, 4, 7, 12});
  dam.inflow = LinearTable({0, 2, 8, 12}, {0, peakInflow, 0, 0});
  dam.rowHours = 0.1;
  dam.startPool = 18;
  dam.erosion.breach = false;
  dam.erosion.section = {30, 0, 3, 12, 2.5, 460, {}};
  dam.erosion.slope.cover.roughness = 5.6;
  dam.erosion.slope.cover.coverFactor = 0.75;
  dam.erosion.slope.cover.maintenanceCode = 2;
  dam.erosion.slope.plasticityIndex = 10;
  return dam;
}

// The same in a soil that the flood breaches.
inline RoutingInput breachedDam(double erodibility = 4) {
  RoutingInput dam = sampleDam(6000);
  dam.erosion.breach = true;
  dam.erosion.slope.plasticityIndex = 0;
  dam.erosion.slope.cover.maintenanceCode = 3;
  dam.erosion.soil.erodibility = erodibility;
  dam.erosion.soil.advanceCoefficient = 2 * erodibility;
  return dam;
}

}  // namespace kestra
