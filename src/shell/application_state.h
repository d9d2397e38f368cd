#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/fields.h"

namespace kestra {

// The windows of the application that have a slot of their own.
enum class WindowSlot { input = 1, summaryTable, outputGraph, editor, summaryGraphics, errorTable };
inline constexpr int kFirstSlot = 1;
inline constexpr int kLastSlot = 6;

// The values that all screens share. One object, owned by the application.
struct ApplicationState {
  std::string projectDir;        // of the open project; empty: none
  std::string currentFile;       // full path of the open control file; empty: none
  bool fileDirty = false;        // the screens were edited since the last save or load
  std::uint64_t edits = 0;       // how often they were edited since the start of the program
  bool fileIsNew = false;        // a new, still unnamed file is being edited
  bool fileHasName = false;      // the file was opened or saved under a name
  bool bExiting = false;         // the system itself is closing windows: screens ask nothing
  bool projectReadOnly = false;  // another program has the project open: look, but write nothing

  std::vector<std::string>
      inputScreens;  // names of the input screens in their Next order, once the input window is there

  std::string solverPath;  // kept as configured; nothing starts it
  std::string crlf = std::string(kCrLf);

  int numAuxSpillways = 0;            // auxiliary spillways in use, 0 to 3
  int curAuxSpillway = 0;             // the one being edited, from 0
  std::string currentSpillwayNumber;  // the same as a text, from "1"

  std::string totalInstances = "1";  // instances of a sampled run, a text that holds a number
  std::string lhsSeed = "1";
  bool bRandomSample = false;   // random rather than Latin hypercube samples
  bool bRandomPairing = false;  // samples of different variables are paired at random

  std::array<bool, kLastSlot + 1> windowOpen{};  // by slot, 1 to 6

  // The flag of a slot; a slot outside 1 to 6 is a fault.
  bool& window(int slot);

  void noteEdit();  // the user has edited the screens

  // Gives the values that belong to the input, of spillways and sampling, their initial ones.
  void forgetInput();
};

}  // namespace kestra
