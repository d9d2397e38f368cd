#include "run/programs.h"

#include <fmt/format.h>

#include <utility>

#include "base/fields.h"
#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr std::int64_t kNsPerSecond = 1'000'000'000;
const std::string kEnding = "\r\n-- ";  // what a program printed need not end a line
constexpr int kSignalled = 128;         // as a shell tells it

bool isFile(FileSystem& files, const std::string& path) {
  const auto status = files.status(path);
  return status && status.value().type == FileStatus::Type::file;
}

std::vector<std::string> wordsOf(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  bool quoted = false;
  bool begun = false;
  const auto finish = [&] {
    if (begun) words.push_back(std::exchange(word, {}));
    begun = false;
  };
  for (const char c : text) {
    if (c == '"') {
      quoted = !quoted;
      begun = true;
    } else if (c == ' ' && !quoted) {
      finish();
    } else {
      word += c;
      begun = true;
    }
  }
  finish();
  return words;
}

std::string minutesAndSeconds(std::int64_t ns) {
  return fmt::format("{}:{:02}", ns / kNsPerSecond / 60, ns / kNsPerSecond % 60);
}

std::string nameOf(const ProcessRequest& request) {
  return std::string(ParsePathName(request.program));
}

bool append(FileSystem& files, const std::string& path, std::string_view text) {
  auto opened = files.append(path);
  if (!opened) return false;
  const std::unique_ptr<OutputFile> file = std::move(opened).value();
  const Status written = file->write(text);
  return file->close() && written;
}

}  // namespace

CommandLine splitCommandLine(FileSystem& files, std::string_view line) {
  line = trim(line);
  if (line.starts_with('"')) {
    std::vector<std::string> words = wordsOf(line);
    std::string program = words.front();
    words.erase(words.begin());
    return {std::move(program), std::move(words)};
  }
  const std::size_t quote = line.find('"');
  const std::string_view head = trim(line.substr(0, quote));
  std::string program(head);
  while (!isFile(files, program)) {
    const std::size_t blank = program.rfind(' ');
    if (blank == std::string::npos) {
      program = head.substr(0, quote == std::string_view::npos ? head.find(' ') : head.size());
      break;
    }
    program = trim(std::string_view(program).substr(0, blank));
  }
  return {program, wordsOf(line.substr(program.size()))};
}

Programs::Programs(Ports& ports, ApplicationState& state, frmProgress& progress, std::string applicationDirectory)
    : ports_(ports), state_(state), progress_(progress), applicationDirectory_(std::move(applicationDirectory)) {}

int Programs::RunAndWait(std::string_view commandLine) {
  CommandLine command = splitCommandLine(ports_.files, commandLine);
  if (command.program.empty()) return 0;
  if (command.program.find(kSeparator) == std::string::npos) {
    command.program = joinPath(applicationDirectory_, command.program);
  }
  const std::string subject = command.arguments.empty() ? "" : command.arguments.back();
  return start({command.program, command.arguments, "", "", false}, subject);
}

int Programs::run(const std::string& name, const std::string& file) {
  return start({joinPath(applicationDirectory_, name), {file}, "", "", false}, file);
}

int Programs::start(const ProcessRequest& request, const std::string& subject) {
  if (state_.projectReadOnly) throw RuntimeFault("The project is open in another program.");
  const std::string what = nameOf(request) + " " + std::string(ParsePathName(subject));
  log(fmt::format("-- {} {}", nameOf(request), subject));
  if (onStarted) onStarted(what);
  ProcessRequest logged = request;
  logged.outputFile = logFile_;
  logged.appendsOutput = true;
  progress_.attend();
  const std::int64_t begun = ports_.clock.steadyNs();
  if (!keepGoing(what, begun)) throw RunStopped(fmt::format("Stopped before {} ran.", nameOf(request)));
  const ProcessOutcome outcome = ports_.processes.run(logged, [this, &what, begun] { return keepGoing(what, begun); });
  return settle(outcome, request);
}

bool Programs::keepGoing(const std::string& what, std::int64_t begunNs) {
  if (!progress_.visible()) {
    ports_.events.pump();
    return true;
  }
  progress_.lblWhat.setCaption(what + "  " + minutesAndSeconds(ports_.clock.steadyNs() - begunNs));
  progress_.refresh();
  return !progress_.stopRequested();
}

int Programs::settle(const ProcessOutcome& outcome, const ProcessRequest& request) {
  const std::string name = nameOf(request);
  if (const auto* exited = std::get_if<Exited>(&outcome)) {
    const std::string line = fmt::format("{} ended with exit code {}", name, exited->code);
    log(kEnding + line);
    if (exited->code != 0) tell(line + ".");
    return exited->code;
  }
  std::string message;
  int code = 0;
  if (const auto* signalled = std::get_if<Signalled>(&outcome)) {
    message = fmt::format("{} was ended by {}.", name, signalled->name);
    code = kSignalled + signalled->number;
  } else if (const auto* failed = std::get_if<StartFailed>(&outcome)) {
    message = fmt::format("{} could not be started from {}: {}.", name, directoryOf(request.program), failed->reason);
  } else {
    message = fmt::format("Stopped while {} ran.", name);
  }
  log(kEnding + message);
  if (std::holds_alternative<Stopped>(outcome)) throw RunStopped(message);
  tell(message);
  return code;
}

void Programs::tell(const std::string& message) {
  if (progress_.visible()) {
    progress_.lblTold.setCaption(message);
    progress_.refresh();
  }
  if (onTold) onTold(message);
}

// A log that cannot be written ends the keeping, not the run.
void Programs::log(const std::string& line) {
  if (!logFile_.empty() && !append(ports_.files, logFile_, line + std::string(kCrLf))) logFile_.clear();
}

RunLog::RunLog(Programs& programs, std::string path) : programs_(programs), before_(programs.logFile_) {
  if (before_.empty()) programs_.logFile_ = std::move(path);
}

RunLog::~RunLog() {
  programs_.logFile_ = before_;
}

}  // namespace kestra
