// Any bytes as a solver's output, a digest or a summary file: reading never fails, a digest has forty lines of at most
// ten characters whatever ends the lines of the output, fast and lenient numbers are the same, and a written summary
// file is read back as it was.
#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "base/lines.h"
#include "base/numbers.h"
#include "base/text.h"
#include "fuzz_target.h"
#include "results/breach_history.h"
#include "results/dam_output_reader.h"
#include "results/false_structure.h"
#include "results/field_number.h"
#include "results/spillway_digest.h"
#include "summary/summary_file.h"
#include "support/dam_output.h"

namespace kestra {
namespace {

void checkDigest(const std::string& text) {
  const DigestFields fields = readDamOutput(text);
  const std::string digest = damDigestText(fields);
  fuzzRequire(std::count(digest.begin(), digest.end(), '\n') == static_cast<std::ptrdiff_t>(kDigestLines),
              "a digest has forty lines");
  for (const std::string& field : fields) {
    const std::string line = digestLine(field);
    fuzzRequire(!line.empty() && charCount(line) <= kDigestWidth, "a line has one to ten characters");
  }
  if (text.find('\r') != std::string::npos) return;
  std::string withReturns;
  for (const char c : text) withReturns += c == '\n' ? std::string("\r\n") : std::string(1, c);
  fuzzRequire(readDamOutput(withReturns) == fields, "it does not matter what ends the lines");
}

void checkNumbers(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); at += 10) {
    const std::string_view field = text.substr(at, 10);
    const auto number = fieldNumber(field);
    const double lenient = lenientNumber(field);
    fuzzRequire(number ? *number == lenient : lenient == 0, "a number is the one that the lenient conversion reads");
  }
}

void checkFalseStructure(std::string_view text) {
  const auto stripped = stripFalseStructure(text);
  if (!stripped) return;
  fuzzRequire(stripped->removedWarnings >= 0, "no negative count");
  fuzzRequire(stripped->text.find("***** ERROR") == std::string::npos, "an output with an error is left alone");
}

void checkSpillway(std::string_view text) {
  for (int number = 0; number <= 4; ++number) {
    for (const std::string& value : readSpillwayOutput(text, number)) {
      fuzzRequire(!trim(value).empty() && value.find('\n') == std::string::npos, "a value fills one line");
    }
  }
}

void checkSummary(std::string_view text) {
  const SummaryFile file = readSummaryFile(text);
  const SummaryFile again = readSummaryFile(summaryFileText(file.selection, file.entryNames));
  fuzzRequire(again.understood, "a written file is understood");
  fuzzRequire(again.selection.selectedFields == file.selection.selectedFields, "the selection is read back");
  fuzzRequire(again.entryNames == file.entryNames, "the names are read back");
}

}  // namespace

std::vector<std::string> fuzzSeeds() {
  const std::string routing =
      joinLines(routingTable({routingRow({"0.00", "1.0", "2.0", "3.0", "0.0", "5.0", "6.0", "7.0", "1000.0"}),
                              routingRow({"0.25", "1.0", "2.5", "0.0", "4.0", "5.5", "6.5", "7.5", "1000.5"})}));
  return {
      joinLines({echo({"KESTRA", "01/01/2009"}) + "Title", echo({"OPTION", "SIMPLE", "RIPRAP"}),
                 echo({"HCMODEL", "1", "", "0.4", "", "0.02", "7"}), echo({"HYD", "STORM", "0.25"}),
                 echo({"", "", "0", "12", "3"}), echo({"ENDTABLE"}), echo({"STROUTE", "1003"})}),
      joinLines({echo({"STRUCTURE", "POND"}), echo({"", "", "1000", "", "12", "4"}), echo({"ENDTABLE"}),
                 echo({"DWNSTREAM", "3", "5.6", "0.87", "1"}), echo({"CRESTPRFL"}), echo({"", "0", "1010"}),
                 echo({"", "90", "1010.5"}), echo({"ENDTABLE"}), echo({"PSpINLET", "0.5", "12", "1004"}),
                 echo({"ASSURFACE", "1EAST"}), echo({"", "0", "1008"}), echo({"ENDTABLE"}), echo({"ASRATING", "2W"}),
                 echo({"", "1007", "0"}), echo({"ENDTABLE"}), echo({"ENDRUN"})}),
      routing,
      joinLines({std::string(19, ' ') + "Stress on Vegetated Embankment Slope", "1", "2", "3", "4",
                 fieldsOf({"1", "0.5", "1.1", "40", "0.5", "7"}, 12, 12), "", "Flow on Riprapped Embankment Slope", "1",
                 "2", "3", "4", rightIn(12, "1") + rightIn(18, "7.25") + rightIn(20, "88.1"), ""}),
      joinLines({"Outflow peaked at   12.50 hr with  1234.5 cfs at elevation   1005.50 feet.",
                 "Maximum pool elevation was   1005.75 feet", "Total duration of flow over top of dam:     3.25 hr",
                 "Embankment breach initiated at     12.00 hr", "Final breach width was   41.50 ft",
                 "***** WARNING - a", "***** ERROR - b"}),
      joinLines({"Erosionally Effective Stress for Stability Analysis  of Aux. Exit Channel", "1", "2",
                 std::string(44, ' ') + rightIn(8, "0.52") + std::string(23, ' ') + rightIn(6, "1.75"), "3", "4",
                 std::string(82, ' ') + rightIn(8, "9.75") + " max.", ""}) +
          routing,
      joinLines({"80-80 LIST OF INPUT", "STRUCTURE FALSE     ZERO", "ENDJOB", "*WARNING - A STRUCTURE TABLE E", "x",
                 "BASIC DATA", "***** WARNING", "SUMMARY OF AUXIL", "***********", "x", "SPILLWAY --", "1TORVE....JOB",
                 "***********************", "x"}),
      summaryFileText(defaultSummarySelection(), {"run", "a\"b", "two words"}),
      "2, 3, 1\n1,6\ndam\n\"\"\n",
  };
}

}  // namespace kestra

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kestra;
  const std::string text(reinterpret_cast<const char*>(data), size);
  checkDigest(text);
  checkNumbers(text);
  checkFalseStructure(text);
  checkSpillway(text);
  checkSummary(text);
  fuzzRequire(std::isfinite(highestUnitDischarge(text)), "a breach history has a highest discharge");
  return 0;
}
