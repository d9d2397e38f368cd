#pragma once

#include <string>
#include <string_view>

namespace kestra {

// How the hydrograph of a spillway is told to vary.
struct HydrographCheck {
  bool valid = true;
  bool sampled = false;
};

// The samples of a spillway's run, as a build needs them. Each operation shows its own message and gives false when it
// fails. `stem` is the control file's name with the spillway's number, 1 to 3, behind it.
class Sampling {
 public:
  virtual ~Sampling() = default;
  // Reads the sampling block of a spillway's records; the number of instances becomes what it asks for.
  virtual bool readBlock(const std::string& records) = 0;
  virtual HydrographCheck checkHydrograph(const std::string& records) = 0;
  virtual bool drawSamples(const std::string& stem, bool useHydrographDistribution, int spillwayNumber) = 0;
  virtual bool readSamples(const std::string& stem, int spillwayNumber) = 0;
  // Writes `base`_0.V2D and on, one file an instance.
  virtual bool writeInstances(const std::string& base, const std::string& records, bool useHydrographDistribution,
                              const HydrographCheck& hydrograph, int spillwayNumber) = 0;
};

// Whether a spillway's records hold a sampling block: an LHS record and at least one more before the ENDTABLE behind
// it.
bool holdsSamplingBlock(std::string_view records);

// The one instance of a spillway without samples: its records, ENDJOB and ENDRUN last.
std::string singleInstance(std::string_view records);

}  // namespace kestra
