#pragma once

// Full flow in pipes and culverts. National Engineering Handbook, section 5, Hydraulics.
namespace kestra {

struct ConduitSection {
  double area = 0;             // ft^2
  double hydraulicRadius = 0;  // ft
  double height = 0;           // ft, the diameter of a circular one
};

ConduitSection circularSection(double diameterInches);

// Leg of the largest fillet that a conduit has room for, ft.
double largestFillet(double width, double height);

// Width and height in ft, with 45-degree fillets of leg `filletInches` in all four corners:
// a = b h - 2 f^2, p = 2 (b + h) - 4 f (2 - sqrt 2). A leg beyond the largest counts as that.
ConduitSection rectangularSection(double width, double height, double filletInches);

// Friction loss of a foot of full conduit in velocity heads: K_p = 29.16 n^2 / r^(4/3). For a circle this is
// 5087 n^2 / d^(4/3), d in inches.
double conduitLossPerFoot(const ConduitSection& section, double manning);

// Discharge of one conduit that flows full under `head` ft: a sqrt(2 g H / (1 + K)), K all losses but the exit's, in
// velocity heads. 0 without head.
double fullConduitDischarge(const ConduitSection& section, double losses, double head);

// C a sqrt(2 g h), h above the centre of the opening; 0 without head.
double orificeDischarge(double coefficient, double area, double head);

// C L h^1.5; 0 without head.
double weirDischarge(double coefficient, double length, double head);

struct CircleFlow {
  double discharge = 0;  // cfs
  double energy = 0;     // specific energy, ft above the invert
};

// Critical flow in a circle of that diameter (ft) whose water surface spans `angle` radians at the centre, above 0 and
// below 2 pi.
CircleFlow criticalFlowInCircle(double diameter, double angle);

}  // namespace kestra
