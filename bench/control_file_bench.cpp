// A control file of 5,000 hydrograph points and three spillways of 100 materials: opened and built by the system, cut
// and padded field by field by the plain loops that one would write, and counted by `wc -l` as the floor.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "child_program.h"
#include "control/control_files.h"
#include "support/input_desk.h"

namespace kestra {
namespace {

constexpr const char* kFile = "/p/dam.KSC";

struct Desk : InputDesk {
  InputScreenSet screens{base, *this};
  ControlFiles control{screens, base};

  Desk() {
    files.putDirectory("/p");
    screens.enterAll(host);
  }
  std::string build() {
    control.BuildControlText(kFile);
    std::string text = control.texts.controlText;
    for (const std::string& run : control.texts.auxRunText) text += run;
    return text;
  }
};

void fillSpillway(AuxProfile& profile, AuxMaterials& materials) {
  for (std::size_t i = 0; i < profile.points.size(); ++i) profile.points[i] = {std::to_string(i * 10), "1010.25"};
  for (AuxReach& reach : profile.reaches) reach = {"0", "100", "5.6", "0.8", "1", "1.5"};
  for (int number = 1; number <= kMostMaterials; ++number) {
    materials.add();
    AuxMaterial& material = materials.material(number);
    material.description = "layer " + std::to_string(number);
    material.values = {"10", "0.002", "30", "", "120.5", "0.05"};
    material.points.assign(kAuxPoints, {"1234.5", "1002.75"});
  }
}

std::string makeFile() {
  Desk desk;
  for (int row = 1; row <= 5000; ++row) {
    desk.screens.hydrographData.grdTable.setCell(row, 1, std::to_string(row * 7919 % 100000) + ".5");
  }
  desk.state.numAuxSpillways = kAuxSpillways;
  for (int i = 0; i < kAuxSpillways; ++i) {
    desk.screens.auxSpillways.optQUIL(i).setSelected(true);
    const auto place = static_cast<std::size_t>(i);
    fillSpillway(desk.screens.context.aux.auxProfile[place], desk.screens.context.aux.auxMaterials[place]);
  }
  return desk.build();
}

// ---- the plain loops

using Fields = std::vector<std::vector<std::string>>;  // by line

std::string plainTrim(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

Fields plainRead(const std::string& text) {
  Fields lines;
  std::istringstream file(text);
  std::string line;
  while (std::getline(file, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    std::vector<std::string>& fields = lines.emplace_back();
    for (std::size_t column = 0; column < line.size(); column += 10)
      fields.push_back(plainTrim(line.substr(column, 10)));
  }
  return lines;
}

std::string plainWrite(const Fields& lines) {
  std::string text;
  for (const auto& fields : lines) {
    for (const std::string& field : fields) {
      std::string padded = field.substr(0, 10);
      padded.resize(10, ' ');
      text += padded;
    }
    text += "\r\n";
  }
  return text;
}

// ---- the runs

// Reads the file and fills the screens; they are empty before each time.
void openFile(benchmark::State& state) {
  const std::string text = makeFile();
  Desk desk;
  desk.files.put(kFile, text);
  desk.control.ReadControlFile(kFile);
  if (desk.build() != text) state.SkipWithError("the file was not opened as it stands");
  for (auto unused : state) desk.control.ReadControlFile(kFile);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void buildTexts(benchmark::State& state) {
  const std::string text = makeFile();
  Desk desk;
  desk.files.put(kFile, text);
  desk.control.ReadControlFile(kFile);
  for (auto unused : state) benchmark::DoNotOptimize(desk.control.BuildControlText(kFile));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

// With the companion that a project has: what is saved is read back and compared.
void saveInProject(benchmark::State& state) {
  Desk desk;
  desk.files.put(kFile, makeFile());
  desk.control.ReadControlFile(kFile);
  desk.state.projectDir = "/p";
  for (auto unused : state) {
    desk.control.BuildControlText(kFile);
    benchmark::DoNotOptimize(desk.control.WriteControlFiles(kFile));
  }
}

void plainCut(benchmark::State& state) {
  const std::string text = makeFile();
  for (auto unused : state) benchmark::DoNotOptimize(plainRead(text));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void plainPad(benchmark::State& state) {
  const std::string text = makeFile();
  const Fields fields = plainRead(text);
  for (auto unused : state) benchmark::DoNotOptimize(plainWrite(fields));
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void countLines(benchmark::State& state) {
  const std::string path = std::filesystem::temp_directory_path() / "kestra-control-file-bench.KSC";
  std::ofstream(path, std::ios::binary) << makeFile();
  for (auto unused : state) benchmark::DoNotOptimize(ChildProgram::run({"wc", "-l", path}));
  std::filesystem::remove(path);
}

BENCHMARK(openFile)->Unit(benchmark::kMillisecond);
BENCHMARK(plainCut)->Unit(benchmark::kMillisecond);
BENCHMARK(buildTexts)->Unit(benchmark::kMillisecond);
BENCHMARK(plainPad)->Unit(benchmark::kMillisecond);
BENCHMARK(saveInProject)->Unit(benchmark::kMillisecond);
BENCHMARK(countLines)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kestra
