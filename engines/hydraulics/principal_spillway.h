#pragma once

#include "hydraulics/closed_conduit.h"
#include "hydraulics/rating_curve.h"

namespace kestra {

// The outlet end against which the head of a full pipe is counted when its outfall is free: this part of the conduit's
// height above its outlet invert. The pipe's centre line (0.5) is the other convention in use.
inline constexpr double kFreeOutletLevel = 0.6;

// A drop inlet: a riser with an overflow crest and perhaps a low stage opening, and conduits through the dam.
struct DropInlet {
  double weirCoefficient = 3.1;  // ft^0.5/s
  double weirLength = 0;         // ft
  double highCrest = 0;          // elevation, ft
  bool twoStage = false;
  double lowCrest = 0;              // elevation of the low stage sill, ft
  double orificeHeight = 0;         // ft; 0: a notch that is open to the top
  double orificeWidth = 0;          // ft
  double lowWeirCoefficient = 3.1;  // ft^0.5/s
  double lowOrificeCoefficient = 0.6;
};

// A conduit that begins as a pipe cut back under a hood.
struct HoodInlet {
  double invert = 0;           // elevation of the entrance, ft
  double weirCoefficient = 0;  // ft^0.5/s over a length of one diameter
  RatingCurve entrance;        // what the entrance passes at a head above its invert: see hoodEntrance
  bool primes = true;          // the pipe is steep enough to run full
};

struct Conduits {
  ConduitSection section;
  double count = 1;
  double length = 0;  // ft
  double manning = 0.013;
  double entranceLoss = 1;  // entrance, bend and riser together, velocity heads
  double outletInvert = 0;  // elevation, ft
  double orificeArea = 0;   // ft^2, of one conduit's entrance
  double orificeCoefficient = 0.6;
  double orificeCentre = 0;  // elevation, ft
};

// Flow into a riser, before any conduit limits it. The low stage runs as a weir up to its top and as an orifice from
// one and a half times its height; between, a straight line joins the two, so that the discharge never falls or jumps.
double inletDischarge(const DropInlet& inlet, double pool);

// All conduits flowing full between pool and tailwater (elevations, ft); 0 with the tailwater above the pool.
double fullFlow(const Conduits& conduits, double pool, double tailwater);

// The least of inlet, conduit entrance and full flow, each at the same pool.
double dropInletDischarge(const DropInlet& inlet, const Conduits& conduits, double pool, double tailwater);

// Flow that an open circular entrance takes at heads up to about one and a half diameters, by the head h above its
// invert: h/D = H_c/D + 0.0340 (Q / (a sqrt D))^1.5, H_c the energy of critical flow in the circle. Blaisdell and
// Donnelly 1958, Hydraulics of Closed Conduit Spillways, part X: The Hood Inlet; constants of a thin projecting pipe.
RatingCurve hoodEntrance(const ConduitSection& section);

// Coefficient of a weir in ft^0.5/s. A value below 1 is that of Poleni's formula, without a unit, and becomes
// 2/3 sqrt(2 g) times itself.
double dimensionalWeirCoefficient(double given);

// Weir flow into one hood at a head above its invert, the less of entrance and weir.
double hoodWeirDischarge(const HoodInlet& hood, const ConduitSection& section, double head);

// Weir flow up to a head of one diameter, full flow from 1.25 diameters, and a straight line between, where slugs of
// air pass. A pipe that does not prime runs as an orifice of coefficient 0.6 in place of full.
double hoodDischarge(const HoodInlet& hood, const Conduits& conduits, double pool, double tailwater);

// Whether a hood's pipe that falls `drop` ft over its length is steeper than the friction slope of its full flow at a
// head of 1.25 diameters, which it must be to fill.
bool hoodPrimes(const Conduits& conduits, double drop);

}  // namespace kestra
