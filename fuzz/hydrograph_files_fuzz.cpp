// Any bytes as a hydrograph of any form: reading never fails, no reader gives more points than asked for, times that
// come from a clock never fall, and a written .THY file is read back as it was. What was read can be resampled.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/numbers.h"
#include "base/runtime_fault.h"
#include "fuzz_target.h"
#include "screens/hydrograph_block.h"
#include "screens/qt40_file.h"
#include "screens/resample_hydrograph.h"
#include "screens/tab_hydrographs.h"
#include "screens/thy_file.h"
#include "screens/vhy_file.h"

namespace kestra {
namespace {

constexpr std::size_t kMost = 50;

void checkClocked(const std::optional<TabHydrograph>& hydrograph) {
  if (!hydrograph) return;
  fuzzRequire(hydrograph->rows.size() <= kMost, "no more rows than asked for");
  double before = 0;
  for (const HydrographRow& row : hydrograph->rows) {
    const double time = lenientNumber(row.time);
    fuzzRequire(time >= before, "times of a clock never fall");
    before = time;
  }
}

void checkTabs(std::string_view text) {
  std::vector<HydrographRow> rows = readTabRows(text, kMost);
  fuzzRequire(rows.size() <= kMost, "no more rows than asked for");
  const std::vector<HydrographRow> again = readTabRows(tabRowsText(rows), kMost);
  std::erase_if(rows, [](const HydrographRow& row) { return row.time.empty() && row.flow.empty(); });
  fuzzRequire(again == rows, "the rows of a text are read back");
}

void checkThy(std::string_view text) {
  const auto hydrograph = readThy(text);
  if (!hydrograph) return;
  fuzzRequire(hydrograph->flows.size() <= 5000, "a hydrograph has 5000 points at most");
  const auto again = readThy(thyText(*hydrograph));
  fuzzRequire(again.has_value(), "a written hydrograph can be read");
  fuzzRequire(again->flows.size() <= hydrograph->flows.size(), "a written hydrograph gains no points");
  const bool ascii = std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (ascii) fuzzRequire(thyText(*again) == thyText(*hydrograph), "a written hydrograph stands");
}

void checkQt40(std::string_view text) {
  const std::size_t count = qt40Headers(text).size();
  for (std::size_t i = 0; i < std::min<std::size_t>(count, 3); ++i) {
    fuzzRequire(readQt40(text, i, kMost).flows.size() <= kMost, "no more discharges than asked for");
  }
  fuzzRequire(readQt40(text, count, kMost).flows.empty(), "a hydrograph that is not listed is not there");
}

void checkVhy(std::string_view text) {
  const VhyContent content = scanVhy(text);
  for (std::size_t i = 0; i < std::min<std::size_t>(content.codes.size(), 3); ++i) {
    for (int column = 1; column <= 3; ++column) {
      fuzzRequire(readVhy(text, content.codes[i], column, kMost).rows.size() <= kMost, "no more rows than asked for");
    }
  }
}

void checkBlock(std::string_view text) {
  const HydrographPoints points = ParseHydrographText(text);
  fuzzRequire(points.times.size() == points.flows.size(), "each time has a discharge");
  fuzzRequire(points.times.size() <= 5000, "a block has 5000 points at most");
  try {
    const ResampledHydrograph resampled = resampleHydrograph(0.5, points);
    fuzzRequire(resampled.flows.size() <= 17000, "a resampled hydrograph has 17000 points at most");
    for (const double flow : resampled.flows) fuzzRequire(!(flow < 0), "no discharge is negative");
  } catch (const RuntimeFault&) {
    return;  // too many points, or a number beyond a double
  }
}

}  // namespace

std::vector<std::string> fuzzSeeds() {
  const std::string blanks(20, ' ');
  return {thyText({"Storm", "0.5", {"1", "2.5", "3", "4", "5", "6"}}),
          "Storm\nTime\n----------\n06/01/2001 23:30\t1\n06/02/2001 00:15\t2\n",
          "Storm\n1\t01Jan2001, 2350\t-\t10\n2\t02Jan2001, 0010\t-\t20\n",
          "INPUT HYDROGRAPH:\n\nHYD       STORM A                       1.5       0.25                10\n" + blanks +
              "1         2         3\nPEAK\n",
          "31\n            1.5\n 1.5        10         20         31\n 1.8        11\n5\nENDTABLE\n33\n",
          "HYD       storm     0.5       1,0       0C\n" + blanks + "1         2\nENDTABLE\n",
          "HYD       storm     0.5       0         0V\n          0         1\n          2.5       7\nENDTABLE\n"};
}

}  // namespace kestra

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kestra;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  checkClocked(readBasix(text, kMost));
  checkClocked(readRivex(text, kMost));
  checkTabs(text);
  checkThy(text);
  checkQt40(text);
  checkVhy(text);
  checkBlock(text);
  return 0;
}
