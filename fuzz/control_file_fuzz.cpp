// Any bytes as a control file of a project: opening it never fails, tells at most a few boxes, and what the screens
// then hold is written, and opened again, to the same text.
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "control/control_files.h"
#include "control/record_reader.h"
#include "control/record_writer.h"
#include "fuzz_target.h"
#include "support/input_desk.h"

namespace kestra {
namespace {

constexpr const char* kFile = "/p/dam.KSC";

struct ProjectDesk : InputDesk {
  InputScreenSet screens{base, *this};
  ControlFiles control{screens, base};

  ProjectDesk() {
    screens.enterAll(host);
    state.projectDir = "/p";
  }
  void unload() {
    for (Screen* screen : host.screens()) host.unload(*screen);
    screens.context.aux.ClearAuxData();
    state.forgetInput();
  }
  std::string save() {
    fuzzRequire(control.BuildControlText(kFile) == -1, "what was opened can be built");
    fuzzRequire(control.WriteControlFiles(kFile), "what was opened can be saved");
    std::string text = control.texts.controlText;
    for (const std::string& run : control.texts.auxRunText) text += run;
    return text;
  }
};

// A drawdown says that the dam does not breach, whatever else was chosen: only then the text may change once.
bool speaksForItself(const InputScreenSet& screens) {
  return !(screens.hydrographData.chk10daydrawdown.checked() &&
           screens.projectInformation.optBreachAnalysis.selected());
}

// Every record of a kind of run with a value in each field, and two rows where it has a table.
std::string everyRecord(RunKind run) {
  constexpr std::array<std::string_view, 8> kValues = {"1", "2.5", "3", "1234567.89", "a b", "6", "7", "S"};
  std::string text;
  const auto append = [&](std::string_view line) { text.append(line).append("\r\n"); };
  for (const RecordLayout& record : recordsOf(run)) {
    std::size_t takers = 0;
    for (const FieldLayout& field : record.fields) takers += field.literal ? 0 : 1;
    append(composeRecord(record, Values(kValues).first(takers)));
    if (!record.table) continue;
    takers = 0;
    for (const FieldLayout& field : record.table->fields) takers += field.literal ? 0 : 1;
    for (int row = 0; row < 2; ++row) append(composeRow(record, Values(kValues).first(takers)));
    append(kTableEnd);
  }
  return text;
}

std::string manyRows(std::string_view head, std::string_view row, int rows) {
  std::string text(head);
  for (int i = 0; i < rows; ++i) text.append(row);
  return text;
}

}  // namespace

std::vector<std::string> fuzzSeeds() {
  const std::string spillway = everyRecord(RunKind::spillway);
  return {everyRecord(RunKind::main) + spillway + spillway + spillway + spillway,
          "ASSURFACE 1Way      3         50       1\r\nENDRUN\r\n" + spillway,
          "ASRATING  2Way      2\nENDRUN\n" + spillway,
          "OPTION    COEFF     BARESOIL  NOPS      DRAWDOWN  1e999     FEET      -\nHCMODEL   2\n",
          "PSpHOOD   1\nPSpDATA   1\nHYD       t         1         0         1V\n          0         1e999\n",
          manyRows("STRUCTURE\n", "                    1         2         3         4\n", 52),
          manyRows("ENDRUN\nQUIL      02/09/20021\nASCOORD   1\n", "          1         2\n", 40),
          "*         " + std::string(60, 'x') + "\n*\n*         \nCOMMENT   h\xF6he \xE2\x82\xAC\n"};
}

}  // namespace kestra

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kestra;
  ProjectDesk desk;
  desk.files.put(kFile, std::string_view(reinterpret_cast<const char*>(data), size));
  desk.control.ReadControlFile(kFile);
  // A fault, or of each spillway what is said of its samples.
  fuzzRequire(desk.boxes.shown.size() <= 13, "a file is told of in a few boxes");
  (void)desk.control.cutFields();
  const bool stands = speaksForItself(desk.screens);
  const std::string written = desk.save();
  desk.unload();
  desk.control.ReadControlFile(kFile);
  const std::string again = desk.save();
  fuzzRequire(!stands || again == written, "what was saved is saved again as it was");
  return 0;
}
