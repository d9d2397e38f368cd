// A dam's output with a routing table of 17,000 and of 1,000,000 rows, condensed into its digest: the text in memory,
// and beside it the loop over std::getline and substr that one would write for the peaks alone. The whole operation on
// files, beside pandas, awk and wc, is in digest_peer.py.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <string>

#include "base/numbers.h"
#include "results/dam_output_reader.h"
#include "results/false_structure.h"
#include "support/dam_output.h"

namespace kestra {
namespace {

constexpr int kRowFields = 11;

std::string twoDecimals(int hundredths) {
  const std::string cents = std::to_string(hundredths % 100);
  return std::to_string(hundredths / 100) + (cents.size() < 2 ? ".0" : ".") + cents;
}

std::string makeOutput(int rows) {
  std::string text = joinLines({"Solver", echo({"KESTRA", "01/01/2009"}) + "Larkmoor", echo({"ASSURFACE", "1EAST"}),
                                echo({"", "0", "1008"}), echo({"ENDTABLE"}), echo({"ENDRUN"})});
  std::string table = joinLines(routingTable({}));
  text += table.substr(0, table.size() - 2);
  for (int row = 0; row < rows; ++row) {
    for (int field = 0; field < kRowFields; ++field)
      text += rightIn(10, twoDecimals((row * 7919 + field * 977) % 100000));
    text += "\r\n";
  }
  return text + "\r\nFinal breach width was   41.50 ft\r\n";
}

// The peaks of columns 21 to 70, and the counts of errors and warnings.
struct Plain {
  std::array<double, 5> peaks{};
  int errors = 0;
  int warnings = 0;
};

Plain plainLoop(const std::string& text) {
  Plain found;
  std::istringstream file(text);
  std::string line;
  int skip = -1;
  while (std::getline(file, line)) {
    if (line.find("ERROR") != std::string::npos || line.find("Error") != std::string::npos) ++found.errors;
    if (line.find("WARNING") != std::string::npos || line.find("Warning") != std::string::npos) ++found.warnings;
    if (line.find("Hydrograph Routing") != std::string::npos) {
      skip = 5;
    } else if (skip > 0) {
      --skip;
    } else if (skip == 0 && line.size() < 70) {
      skip = -1;
    } else if (skip == 0) {
      for (std::size_t i = 0; i < found.peaks.size(); ++i) {
        found.peaks[i] = std::max(found.peaks[i], lenientNumber(line.substr(20 + i * 10, 10)));
      }
    }
  }
  return found;
}

void countBytes(benchmark::State& state, const std::string& text) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(text.size()));
}

void digest(benchmark::State& state) {
  const std::string text = makeOutput(static_cast<int>(state.range(0)));
  const DigestFields fields = readDamOutput(text);
  const Plain plain = plainLoop(text);
  const bool agree = lenientNumber(fields[13]) == plain.peaks[1] && fields[38] == std::to_string(plain.errors);
  if (!agree) state.SkipWithError("the two readings differ");
  for (auto unused : state) benchmark::DoNotOptimize(readDamOutput(text));
  countBytes(state, text);
}

void plain(benchmark::State& state) {
  const std::string text = makeOutput(static_cast<int>(state.range(0)));
  for (auto unused : state) benchmark::DoNotOptimize(plainLoop(text));
  countBytes(state, text);
}

void stripFalse(benchmark::State& state) {
  const std::string text =
      "80-80 LIST OF INPUT\r\nSTRUCTURE FALSE     ZERO\r\nENDJOB\r\n" + makeOutput(static_cast<int>(state.range(0)));
  if (!stripFalseStructure(text)) state.SkipWithError("nothing was stripped");
  for (auto unused : state) benchmark::DoNotOptimize(stripFalseStructure(text));
  countBytes(state, text);
}

BENCHMARK(digest)->Arg(17000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(plain)->Arg(17000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(stripFalse)->Arg(17000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kestra
