// A control file with a hydrograph of 5,000 values, read and written: by the catalogue, and by the loop over
// std::getline and substr that one would write for this one table.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <string>
#include <vector>

#include "base/fields.h"
#include "base/lines.h"
#include "control/record_reader.h"
#include "control/record_writer.h"

namespace kestra {
namespace {

constexpr std::size_t kValues = 5000;

struct Hydrograph {
  std::vector<std::string> times;
  std::vector<std::string> flows;
};

Hydrograph makeHydrograph() {
  Hydrograph hydrograph;
  for (std::size_t i = 0; i < kValues; ++i) {
    hydrograph.times.push_back(std::to_string(i / 100) + "." + std::to_string(10 + i % 90));
    hydrograph.flows.push_back(std::to_string(i * 7919 % 100000) + "." + std::to_string(i % 1000));
  }
  return hydrograph;
}

// ---- the catalogue

std::string joinVariable(const Hydrograph& hydrograph) {
  const RecordLayout& layout = *findRecord("HYD V");
  std::string text = composeRecord(layout, std::array<std::string_view, 4>{"storm", "0.1", "0", "0"});
  text += kCrLf;
  for (std::size_t i = 0; i < kValues; ++i) {
    appendRow(text, layout, std::array<std::string_view, 2>{hydrograph.times[i], hydrograph.flows[i]});
    text += kCrLf;
  }
  return text.append(kTableEnd).append(kCrLf).append(kRunEnd).append(kCrLf);
}

std::string joinConstant(const Hydrograph& hydrograph) {
  const RecordLayout& layout = *findRecord("HYD C");
  const auto& flows = hydrograph.flows;
  std::string text = composeRecord(layout, std::array<std::string_view, 4>{"storm", "0.1", "0", "0"});
  text += kCrLf;
  for (std::size_t i = 0; i < kValues; i += 5) {
    appendRow(text, layout,
              std::array<std::string_view, 5>{flows[i], flows[i + 1], flows[i + 2], flows[i + 3], flows[i + 4]});
    text += kCrLf;
  }
  return text.append(kTableEnd).append(kCrLf).append(kRunEnd).append(kCrLf);
}

std::size_t takeAll(const std::string& text) {
  std::size_t bytes = 0;
  for (const ControlRun& run : readControlRecords(text)) {
    for (const ControlRecord& record : run.records) {
      LineReader rows(record.rows);
      std::string_view row;
      while (rows.next(row)) {
        const FieldTexts texts = takeApartRow(*record.layout, row);
        for (std::size_t i = 0; i < texts.size(); ++i) bytes += texts[i].text().size();
      }
    }
  }
  return bytes;
}

// ---- the plain loop

std::string plainTrim(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string plainPad(const std::string& text) {
  std::string field = text.substr(0, 10);
  field.resize(10, ' ');
  return field;
}

std::string plainValue(const std::string& text) {
  std::string field = text.substr(0, 10);
  if (field.find('.') != std::string::npos)
    field.resize(field.size() > 7 && field[7] == '.' ? 7 : std::min<std::size_t>(field.size(), 9));
  field.resize(10, ' ');
  return field;
}

std::string plainJoinVariable(const Hydrograph& hydrograph) {
  std::string text = "HYD       storm     0.1       0         0V        \r\n";
  for (std::size_t i = 0; i < kValues; ++i) {
    text += "          " + plainPad(hydrograph.times[i]) + plainPad(hydrograph.flows[i]) + "\r\n";
  }
  return text + "ENDTABLE\r\nENDRUN\r\n";
}

std::string plainJoinConstant(const Hydrograph& hydrograph) {
  std::string text = "HYD       storm     0.1       0         0C        \r\n";
  for (std::size_t i = 0; i < kValues; i += 5) {
    text += "                    ";
    for (std::size_t j = i; j < i + 5; ++j) text += plainValue(hydrograph.flows[j]);
    text += "\r\n";
  }
  return text + "ENDTABLE\r\nENDRUN\r\n";
}

// `columns` are the first columns, from 0, of the fields of a row.
std::size_t plainTakeAll(const std::string& text, const std::vector<std::size_t>& columns) {
  std::size_t bytes = 0;
  std::istringstream file(text);
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.substr(0, 8) == "ENDTABLE") break;
    for (const std::size_t column : columns) {
      if (line.size() > column) bytes += plainTrim(line.substr(column, 10)).size();
    }
  }
  return bytes;
}

// ---- the runs

template <class Join>
void runJoin(benchmark::State& state, Join join, Join other) {
  const Hydrograph hydrograph = makeHydrograph();
  if (join(hydrograph) != other(hydrograph)) state.SkipWithError("the two texts differ");
  for (auto unused : state) benchmark::DoNotOptimize(join(hydrograph));
}

void runTake(benchmark::State& state, const std::string& text, const std::vector<std::size_t>& columns, bool plain) {
  if (takeAll(text) != plainTakeAll(text, columns)) state.SkipWithError("the two readings differ");
  for (auto unused : state) benchmark::DoNotOptimize(plain ? plainTakeAll(text, columns) : takeAll(text));
}

void takeVariable(benchmark::State& state, bool plain) {
  runTake(state, joinVariable(makeHydrograph()), {10, 20}, plain);
}

void takeConstant(benchmark::State& state, bool plain) {
  runTake(state, joinConstant(makeHydrograph()), {20, 30, 40, 50, 60}, plain);
}

BENCHMARK_CAPTURE(takeVariable, catalogue, false);
BENCHMARK_CAPTURE(takeVariable, plain, true);
BENCHMARK_CAPTURE(takeConstant, catalogue, false);
BENCHMARK_CAPTURE(takeConstant, plain, true);
BENCHMARK_CAPTURE(runJoin, variable_catalogue, joinVariable, plainJoinVariable);
BENCHMARK_CAPTURE(runJoin, variable_plain, plainJoinVariable, joinVariable);
BENCHMARK_CAPTURE(runJoin, constant_catalogue, joinConstant, plainJoinConstant);
BENCHMARK_CAPTURE(runJoin, constant_plain, plainJoinConstant, joinConstant);

}  // namespace
}  // namespace kestra
