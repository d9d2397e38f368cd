// Requests of scripts: in this process, and through pipes to the real program, against programs that do nothing but
// parse and write JSON; and how long a start takes.
#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

#include "automation/driver.h"
#include "child_program.h"
#include "support/scripted_desk.h"
#include "support/temp_directory.h"

namespace kestra {
namespace {

constexpr const char* kGet = R"({"do":"get","screen":"frmNewProject","control":"txtEnterName"})";
constexpr const char* kSet = R"({"do":"set","screen":"frmNewProject","control":"txtEnterName","value":"dam"})";
constexpr const char* kState = R"({"do":"state"})";
constexpr const char* kCall = R"({"do":"call","name":"PadField","args":["123456.789",10]})";

struct BenchDesk : ScriptedDesk {
  std::ostringstream outside;
  Conversation conversation{outside};
  Application app{
      {conversation, conversation, settings, clipboard, processes, files, events, conversation, entropy, clock, help},
      "/app"};
  Driver driver{app, conversation};
};

void inProcess(benchmark::State& state, const std::string& request) {
  BenchDesk desk;
  desk.app.shell.startUp("");
  if (!desk.driver.answerTo(request).starts_with(R"({"ok":true)")) state.SkipWithError("the request is refused");
  for (auto unused : state) benchmark::DoNotOptimize(desk.driver.answerTo(request));
  state.SetItemsProcessed(state.iterations());
}

// What parsing the request and writing it back takes, and no more.
void plainInProcess(benchmark::State& state, const std::string& request) {
  for (auto unused : state) benchmark::DoNotOptimize(nlohmann::ordered_json::parse(request).dump());
  state.SetItemsProcessed(state.iterations());
}

void throughPipes(benchmark::State& state, const std::vector<std::string>& words, const std::string& request) {
  const TempDirectory settings;
  ::setenv("XDG_CONFIG_HOME", settings.path().c_str(), 1);
  ChildProgram program(words);
  const std::string line = request + "\n";
  if (program.ask(line) <= 0) state.SkipWithError("the program does not answer");
  for (auto unused : state) benchmark::DoNotOptimize(program.ask(line));
  state.SetItemsProcessed(state.iterations());
}

void start(benchmark::State& state, const std::vector<std::string>& words) {
  if (ChildProgram::run(words) != 0) state.SkipWithError("the program fails");
  for (auto unused : state) ChildProgram::run(words);
}

const std::vector<std::string> kDrive = {KESTRA_PROGRAM, "drive"};
const std::vector<std::string> kEcho = {KESTRA_JSON_ECHO};
const std::vector<std::string> kPython = {
    "python3", "-c", "import json, sys\nfor line in sys.stdin:\n  print(json.dumps(json.loads(line)), flush=True)"};

BENCHMARK_CAPTURE(inProcess, get, kGet);
BENCHMARK_CAPTURE(plainInProcess, get, kGet);
BENCHMARK_CAPTURE(inProcess, set, kSet);
BENCHMARK_CAPTURE(plainInProcess, set, kSet);
BENCHMARK_CAPTURE(inProcess, state, kState);
BENCHMARK_CAPTURE(inProcess, call, kCall);
BENCHMARK_CAPTURE(plainInProcess, call, kCall);
BENCHMARK_CAPTURE(throughPipes, kestra_get, kDrive, kGet)->UseRealTime();
BENCHMARK_CAPTURE(throughPipes, echo_get, kEcho, kGet)->UseRealTime();
BENCHMARK_CAPTURE(throughPipes, python_get, kPython, kGet)->UseRealTime();
BENCHMARK_CAPTURE(throughPipes, kestra_state, kDrive, kState)->UseRealTime();
BENCHMARK_CAPTURE(throughPipes, kestra_call, kDrive, kCall)->UseRealTime();
BENCHMARK_CAPTURE(throughPipes, echo_call, kEcho, kCall)->UseRealTime();
BENCHMARK_CAPTURE(throughPipes, python_call, kPython, kCall)->UseRealTime();
BENCHMARK_CAPTURE(start, kestra, {KESTRA_PROGRAM, "--version"})->UseRealTime();
BENCHMARK_CAPTURE(start, true, {"/bin/true"})->UseRealTime();
BENCHMARK_CAPTURE(start, python, {"python3", "-c", "pass"})->UseRealTime();

}  // namespace
}  // namespace kestra
