#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "control/control_texts.h"
#include "screens/input_screen_set.h"

namespace kestra {

// The control file both ways: its texts from the screens, the screens from its texts, and the files themselves. Boxes
// are shown where a call says so. Nothing here asks whether the screens were edited, or clears them before a load.
class ControlFiles {
 public:
  ControlFiles(InputScreenSet& screens, ScreenContext& context) : screens_(screens), context_(context) {}

  ControlTexts texts;

  // Fills controlText from the screens, and auxRunText for each spillway whose integrity or stability is analysed.
  // `fileName` is the path that the runs name as their control file; where the dam's output is missing beside it, a
  // file that says so is left in its place. -1 on success; anything else: write nothing.
  int BuildControlText(const std::string& fileName);
  void BuildHydrographText();  // fills hydrographText
  // Empties auxRunText of a spillway, from 0, and writes its run; WriteSpillwayRun appends. Outside 0 to 2: a fault.
  void BuildAuxRunText(int spillway, const std::string& fileName);
  void WriteSpillwayRun(int spillway, const std::string& fileName);

  // Writes the texts as last built: the control file, and beside it a file .AS1 to .AS3 for each analysed spillway.
  // Each is written whole or not at all. A control file in the open project's directory gets its companion,
  // .kestra/<stem>.json, with what was entered and has no place in the file. A file .AS1 to .AS3 of a spillway that is
  // not analysed any more goes. False after a box.
  bool WriteControlFiles(const std::string& fileName);

  // What the file does not hold because its columns are too few; told in one box, or none where nothing is lost.
  std::vector<CutField> cutFields();
  void tellCutFields();

  // Whether two control files are the same for the user's purposes: the date of the run aside.
  bool SameControlFiles(const std::string& a, const std::string& b);
  // Whether the screens would write what stands in the open file, the date of the dam's output aside. Writes nothing.
  bool ControlFileUnchanged();

  // Whether a file can be taken in: notFound, tooLarge (above 64 MiB, or a line above 64 KiB), and what else keeps a
  // file from being read. To be asked before anything is cleared.
  Status checkLoadable(const std::string& fileName);
  // The failure in words for a box.
  static std::string refusal(const Failure& failure);

  // Fills controlText and auxRunText from a file, and the screens from these. What the file does not mention stays as
  // it is. A file that cannot be taken in is told in a box and changes nothing. A fault on the way (a table with more
  // rows than its screen has) is told in a box with file, line and record; the screens stay as far as they were filled.
  void ReadControlFile(const std::string& fileName);
  // The control file that a save under this name would write; nothing where it would fail. No file is touched.
  std::optional<std::string> builtText(const std::string& fileName);
  // The same with its companion; nothing where it would fail.
  std::optional<ControlSnapshot> snapshot(const std::string& fileName);
  // What is saved under this name; nothing where the control file is not there.
  std::optional<ControlSnapshot> savedSnapshot(const std::string& fileName);
  // Fills texts and screens as ReadControlFile does, `fileName` being for boxes.
  void giveBack(const std::string& fileName, const ControlSnapshot& saved);
  void ParseControlText();  // the screens from the texts; a fault is told likewise
  // Fills the stores of a spillway, from 0, from its run. A fault is told likewise.
  void ReadSpillwayRun(const std::string& runText, int spillway);

 private:
  // Of the spillways' runs in a file: how many lines stand before each.
  using FirstLines = std::array<std::size_t, kAuxSpillways>;

  Result<std::string> readLoadable(const std::string& fileName);
  int buildTexts(const std::string& fileName);
  void appendRun(int spillway, const std::string& fileName);
  std::vector<int> builtRuns() const;
  std::string wholeText() const;
  bool writeSpillwayFiles(const std::string& fileName);
  bool isInProject(const std::string& fileName);
  Status writeCompanion(const std::string& fileName, const std::string& whole);
  std::string readCompanion(const std::string& fileName);
  bool parse(const std::string& fileName, const FirstLines& before);
  void showLoaded();
  void tellFault(const std::string& file, std::size_t line, std::string_view record, const std::string& what);

  InputScreenSet& screens_;
  ScreenContext& context_;
};

}  // namespace kestra
