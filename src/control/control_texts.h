#pragma once

#include <array>
#include <string>

namespace kestra {

// The texts of a control file on their way between the screens and the disk, each with its line ends.
struct ControlTexts {
  std::string controlText;     // the main run: as last built, or as last read
  std::string workText;        // a copy that was taken apart from its front
  std::string hydrographText;  // the HYD block as last built, without its final line end
  // The runs of the auxiliary spillways, 0 to 2 in use: as last built by spillway, or as last read by position.
  std::array<std::string, 101> auxRunText;
};

// All that a save of the screens writes.
struct ControlSnapshot {
  std::string file;       // the control file
  std::string companion;  // what has no place in it; empty: nothing

  bool operator==(const ControlSnapshot&) const = default;
};

// A field whose text is longer than its columns in the control file.
struct CutField {
  std::string field;  // "Principal spillway conduit, length"
  std::string value;  // as entered
  std::string lost;   // its end, which the file does not hold
};

}  // namespace kestra
