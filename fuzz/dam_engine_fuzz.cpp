// Any bytes as the control file of a dam: the engine comes to an end, tells what it did, and writes no figure that is
// no number and no line that is wider than its columns.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/lines.h"
#include "fuzz_target.h"
#include "kestrasim/dam_engine.h"

namespace kestra {
namespace {

bool isWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool holdsWord(std::string_view text, std::string_view word) {
  for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
    const bool begins = at == 0 || !isWord(text[at - 1]);
    const bool ends = at + word.size() == text.size() || !isWord(text[at + word.size()]);
    if (begins && ends) return true;
  }
  return false;
}

void requireFigures(std::string_view text, std::string_view given) {
  for (const char* word : {"nan", "inf"}) {
    fuzzRequire(!holdsWord(text, word) || given.find(word) != std::string_view::npos, "every figure is a number");
  }
}

void requireRows(const std::string& history, std::size_t width) {
  LineReader lines(history);
  std::string_view line;
  while (lines.next(line)) fuzzRequire(line.size() == width, "a row has its columns");
}

}  // namespace

std::vector<std::string> fuzzSeeds() {
  const std::string tail =
      "STROUTE   118       100       FEET\n"
      "STRUCTURE Test\n                    100                 0         0\n"
      "                    120                 80        8\n                    130                 190       14\n"
      "ENDTABLE\nUPSTREAM  3         5.6\nDAMCREST  12        5.6       2.8       \n"
      "CRESTPRFL\n          0         127\n          50        125\n          250       125\n          300       127\n"
      "ENDTABLE\nTAILWATER\n          100       0\n          103       500\n          108       5000\nENDTABLE\n";
  const std::string flood =
      "HYD       Flood     0.5       0         0C\n                    0         1000      2500      4000      3500\n"
      "                    2000      500       0\nENDTABLE\n";
  return {
      "KESTRA    01/01/2009Dam\nOPTION    COEFF     EARTH     \n"
      "HCMODEL   1                   8                   0         16\n" +
          flood + tail +
          "DWNSTREAM 2.5       5.6       0.75      3         0         0.01\nPSpINLET  0.8       10        118\n"
          "PSpDATA   1    150  24                  0.013     104       101       SC\n"
          "PSpCOEFFS 0.6       3.1416                        3.1       0\n"
          "ASRATING  1Bywash   0\n          122       0\n          124       200\nENDTABLE\nENDRUN\n",
      "OPTION    SIMPLE    RIPRAP    NOPS      DRAWDOWN  85        PERCENT   240\n"
      "HYD       Flood     0.5       0         0V\n          0         0\n          1         3000\n"
      "          4         0\nENDTABLE\n" +
          tail + "DWNSTREAM 3         1.75      1.2       2.4       0.4\nENDRUN\n",
      "OPTION    SIMPLE    BARESOIL            NOBREACH\n" + flood + tail +
          "DWNSTREAM 3         0.02\nPSpINLET  0.8                 118\n"
          "PSpDATA   2         24                  0.013                         HD\n"
          "PSpHOOD   130                           101       0.6       0.8       S\nPSpCOEFFS\n"
          "ASSURFACE 2Earth    3         60       110        900\n          0         400       5.6\nENDTABLE\nENDRUN\n"
          "QUIL      02/09/20022         Earth\nASSPRFL   41\n"
          "          0         118       50        122       100       122\n          300       "
          "110\nENDTABLE\nENDRUN\n",
      "OPTION    COEFF     EARTH     \nHCMODEL   2         120       4         600       0\n" + flood + tail +
          "DWNSTREAM 2.5       5.6       0.75      2         0         0.01\nENDRUN\n",
      "",
  };
}

}  // namespace kestra

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kestra;
  constexpr std::size_t kLongest = 6000;  // bytes; long hydrographs have their own test
  const std::string text(reinterpret_cast<const char*>(data), std::min(size, kLongest));
  const DamFiles files = runDam(text);
  fuzzRequire(files.report.ends_with("End of run\r\n"), "the report comes to its end");
  requireFigures(files.report, text);
  if (files.breach) {
    requireRows(*files.breach, 72);
    requireFigures(*files.breach, "");
  }
  if (files.headcut) {
    requireRows(*files.headcut, 72);
    requireFigures(*files.headcut, "");
  }
  return 0;
}
