#pragma once

#include <string>
#include <string_view>

namespace kestra {

// The records of a control file about its hydrograph, and what they ask of a run. The texts together are the whole
// file, with the system's line ends.
struct DamRecords {
  std::string beforeHyd;
  std::string hydText;  // of the first HYD record up to and with its ENDTABLE
  std::string afterHydText;
  bool drawdown = false;      // DRAWDOWN in columns 41 to 50 of the last OPTION record
  bool iterate = false;       // "1" in column 41 of the HYD record
  bool variableStep = false;  // "V" in column 42

  std::string_view hydRecord() const;  // its first line
};

DamRecords readDamRecords(std::string_view text);

}  // namespace kestra
