#pragma once

// Steady flow in a trapezoidal channel. Chow 1959, Open-Channel Hydraulics. Feet, cfs; depths are measured upright. A
// roughness is Manning's n below 1 and a retardance curve index from there on.
namespace kestra {

struct Trapezoid {
  double bottom = 0;     // width, ft
  double sideSlope = 0;  // horizontal to 1 vertical

  double area(double depth) const { return depth * (bottom + sideSlope * depth); }
  double topWidth(double depth) const { return bottom + 2 * sideSlope * depth; }
  double perimeter(double depth) const;
};

// A channel has a bottom width or a side slope above 0; discharges and depths are above 0.
double specificEnergy(const Trapezoid& channel, double discharge, double depth);  // ft above the bed

// Depth at which Q^2 T / (g A^3) is 1.
double criticalDepth(const Trapezoid& channel, double discharge);

// Manning's formula, (n Q)^2 / (2.208 A^2 R^(4/3)), n at this depth's VR.
double frictionSlope(const Trapezoid& channel, double discharge, double depth, double roughness);

// Depth of uniform flow on a slope above 0. n and the depth are found together.
double normalDepth(const Trapezoid& channel, double discharge, double slope, double roughness);

// Manning's friction slope of wide flow, (n q)^2 / (2.208 y^(10/3)), where VR is q.
double wideFrictionSlope(double q, double depth, double roughness);

}  // namespace kestra
