#pragma once

namespace kestra {

// What is left of the free flow over a broad crest when the tailwater stands `tailwaterHead` ft above the crest under a
// head of `head` ft: 1 up to a ratio of 0.67, then 1 - 27.8 (ratio - 0.67)^3, 0 from a ratio of 1 on. The broad-crested
// form that Fread's breach model uses.
double submergenceFactor(double head, double tailwaterHead);

}  // namespace kestra
