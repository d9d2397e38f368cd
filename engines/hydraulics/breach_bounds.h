#pragma once

// What breached dams have shown, as regressions against which a computed breach can be held. Lengths in ft, volumes in
// acre-ft, discharges in cfs, times in h.
namespace kestra {

struct BreachedDam {
  double waterDepth = 0;   // at failure, above the base of the breach
  double volume = 0;       // of water above the base at failure
  double sectionArea = 0;  // of the embankment's section, ft^2
  double crestLength = 0;
};

// Peak discharge by Technical Release 60: 65 Hw^1.85 from 103 ft of water on; below, 1000 (V Hw / A)^1.35, not less
// than 3.2 Hw^2.5 and not more than 65 Hw^1.85. A dam shorter than 65 Hw^0.35 / 0.416 has 0.416 L Hw^1.5 in place of
// 65 Hw^1.85.
double tr60Peak(const BreachedDam& dam);

// Peak discharge, 0.607 V^0.295 h^1.24 in m^3, m and m^3/s. Froehlich 1995.
double froehlichPeak(const BreachedDam& dam);

// Average width of the breach of an overtopped dam, 0.27 * 1.3 V^0.32 h^0.04 in m. Froehlich 2008.
double froehlichWidth(const BreachedDam& dam);

// Time in which it forms, 63.2 (V / (g h^2))^0.5 s in m. Froehlich 2008.
double froehlichHours(const BreachedDam& dam);

}  // namespace kestra
