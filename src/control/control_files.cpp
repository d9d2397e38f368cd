#include "control/control_files.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/lines.h"
#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "control/companion.h"
#include "control/dam_output.h"
#include "control/file_names.h"
#include "control/load_texts.h"
#include "control/main_run_writer.h"
#include "control/spillway_run_reader.h"
#include "control/spillway_run_writer.h"
#include "controls/undo_history.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr int kBuilt = -1;
constexpr std::string_view kDate = "MODIFIED";    // of the dam's output, in the run of a spillway
constexpr std::size_t kLongestLine = 64U << 10U;  // bytes

// What a load sets is nobody's edit, and what was done before it cannot be undone any more.
class LoadOfScreens {
 public:
  explicit LoadOfScreens(ScreenHost& host) : host_(host), history_(host.history()) { host_.setHistory(nullptr); }
  ~LoadOfScreens() {
    host_.setHistory(history_);
    if (history_ != nullptr) history_->clear();
  }
  LoadOfScreens(const LoadOfScreens&) = delete;
  LoadOfScreens& operator=(const LoadOfScreens&) = delete;

 private:
  ScreenHost& host_;
  UndoHistory* history_;
};

// The lines of a text that are not empty, each with its line end.
void appendLines(std::string& out, std::string_view text) {
  while (!text.empty()) {
    const std::string line = PopLine(text);
    if (!line.empty()) out.append(line).append(kCrLf);
  }
}

// Takes lines up to and with the first that is ENDRUN but for blanks, with their line ends made alike.
std::string takeRun(LineReader& lines) {
  std::string text;
  std::string_view line;
  while (lines.next(line)) {
    text.append(line).append(kCrLf);
    if (trim(line) == kRunEnd) break;
  }
  return text;
}

bool sameLines(std::string_view a, std::string_view b) {
  constexpr std::size_t kBand = 20;  // bytes by which the lengths may differ: a date in one and not in the other
  if (a.empty() || a.size() + kBand < b.size() || a.size() > b.size() + kBand) return false;
  LineReader linesA(a);
  LineReader linesB(b);
  std::string_view lineA;
  std::string_view lineB;
  while (linesA.next(lineA) && linesB.next(lineB)) {
    if (lineA != lineB && !lineA.starts_with(kDate)) return false;
  }
  return true;
}

// Without the lines that date the dam's output: a build makes that anew, and nobody has changed anything.
std::string undated(std::string_view text) {
  std::string kept;
  LineReader lines(text);
  std::string_view line;
  while (lines.next(line)) {
    if (!line.starts_with(kDate)) kept.append(line).append(kCrLf);
  }
  return kept;
}

std::size_t longestLine(std::string_view text) {
  LineReader lines(text);
  std::string_view line;
  std::size_t longest = 0;
  while (lines.next(line)) longest = std::max(longest, line.size());
  return longest;
}

void checkSpillway(int spillway) {
  if (spillway < 0 || spillway >= kAuxSpillways) throw RuntimeFault("subscript out of range");
}

}  // namespace

int ControlFiles::BuildControlText(const std::string& fileName) {
  const int result = buildTexts(fileName);
  if (result == kBuilt && !builtRuns().empty()) noteMissingOutput(context_.ports, fileName);
  return result;
}

int ControlFiles::buildTexts(const std::string& fileName) {
  try {
    screens_.auxSpillwayProfile.storeShown();
    BuildHydrographText();
    ScreenFields fields(screens_.context);
    texts.controlText = composeMainRun(screens_.context, fields, texts.hydrographText, nullptr);
    texts.auxRunText.fill({});
    for (int i = 0; i < context_.state.numAuxSpillways; ++i) {
      if (screens_.auxSpillways.analysed(i)) appendRun(i, fileName);
    }
    return kBuilt;
  } catch (const std::exception&) {
    return 0;
  }
}

void ControlFiles::BuildHydrographText() {
  try {
    ScreenFields fields(screens_.context);
    texts.hydrographText = composeHydrograph(screens_.context, fields, nullptr);
  } catch (const std::exception&) {
    context_.ports.boxes.tell("Error Message", "Unable to store hydrograph", BoxIcon::warning);
  }
}

void ControlFiles::BuildAuxRunText(int spillway, const std::string& fileName) {
  checkSpillway(spillway);
  texts.auxRunText[static_cast<std::size_t>(spillway)].clear();
  WriteSpillwayRun(spillway, fileName);
}

void ControlFiles::WriteSpillwayRun(int spillway, const std::string& fileName) {
  checkSpillway(spillway);
  screens_.auxSpillwayProfile.storeShown();
  appendRun(spillway, fileName);
  noteMissingOutput(context_.ports, fileName);
}

void ControlFiles::appendRun(int spillway, const std::string& fileName) {
  ScreenFields fields(screens_.context);
  const DamLink link = {fileName, dateOfOutput(context_.ports, fileName)};
  texts.auxRunText[static_cast<std::size_t>(spillway)] +=
      composeSpillwayRun(screens_.context, fields, spillway, link, nullptr);
}

// The texts of the spillways that get a file of their own.
std::vector<int> ControlFiles::builtRuns() const {
  std::vector<int> runs;
  for (int i = 0; i < kAuxSpillways; ++i) {
    const bool built = !texts.auxRunText[static_cast<std::size_t>(i)].empty();
    if (built && screens_.auxSpillways.analysed(i)) runs.push_back(i);
  }
  return runs;
}

std::string ControlFiles::wholeText() const {
  std::string whole;
  appendLines(whole, texts.controlText);
  for (const int run : builtRuns()) appendLines(whole, texts.auxRunText[static_cast<std::size_t>(run)]);
  return whole;
}

bool ControlFiles::WriteControlFiles(const std::string& fileName) {
  const std::string whole = wholeText();
  if (!writeWholeFile(context_.ports.files, fileName, whole) || !writeSpillwayFiles(fileName)) {
    context_.ports.boxes.tell("File Error", "Unable to generate spillway analysis input file", BoxIcon::critical);
    return false;
  }
  if (isInProject(fileName)) {
    const Status kept = writeCompanion(fileName, whole);
    if (!kept) {
      context_.ports.boxes.tell("Warning",
                                fmt::format("{} was saved. What was entered and has no place in it could not be kept "
                                            "beside it: {}.",
                                            fileName, kept.failure().reason),
                                BoxIcon::warning);
    }
  }
  return true;
}

// One for each run. That of a spillway without one is of an older state, and would be checked as if it still stood.
bool ControlFiles::writeSpillwayFiles(const std::string& fileName) {
  FileSystem& files = context_.ports.files;
  const std::vector<int> runs = builtRuns();
  for (int i = 0; i < kAuxSpillways; ++i) {
    const std::string path = spillwayFileOf(fileName, i);
    if (std::ranges::find(runs, i) == runs.end()) {
      if (exists(files, path)) (void)files.removeFile(path);
      continue;
    }
    std::string lines;
    appendLines(lines, texts.auxRunText[static_cast<std::size_t>(i)]);
    if (!writeWholeFile(files, path, lines)) return false;
  }
  return true;
}

bool ControlFiles::isInProject(const std::string& fileName) {
  FileSystem& files = context_.ports.files;
  const std::string& project = context_.state.projectDir;
  if (project.empty()) return false;
  const std::string directory(directoryOf(absolutePath(fileName, files.currentDirectory())));
  if (directory == project) return true;
  const auto here = files.canonical(directory);
  const auto there = files.canonical(project);
  return here && there && here.value() == there.value();
}

// What has no place in the file is kept beside it; where there is nothing to keep, nothing stands there.
Status ControlFiles::writeCompanion(const std::string& fileName, const std::string& whole) {
  FileSystem& files = context_.ports.files;
  const std::string path = companionFileOf(fileName);
  const auto companion = composeCompanion(screens_, context_, texts, whole, ParsePathName(fileName));
  if (!companion) return exists(files, path) ? files.removeFile(path) : Status(Done{});
  if (const Status made = makeDirectories(files, std::string(directoryOf(path))); !made) return made;
  return writeWholeFile(files, path, *companion);
}

// Empty where there is none.
std::string ControlFiles::readCompanion(const std::string& fileName) {
  if (!isInProject(fileName)) return {};
  const auto companion = context_.ports.files.read(companionFileOf(fileName), kReadLimit);
  return companion ? companion.value() : std::string();
}

std::optional<std::string> ControlFiles::builtText(const std::string& fileName) {
  if (BuildControlText(fileName) != -1) return std::nullopt;
  return wholeText();
}

std::optional<ControlSnapshot> ControlFiles::snapshot(const std::string& fileName) {
  const auto whole = builtText(fileName);
  if (!whole) return std::nullopt;
  auto companion = composeCompanion(screens_, context_, texts, *whole, ParsePathName(fileName));
  return ControlSnapshot{*whole, std::move(companion).value_or("")};
}

std::optional<ControlSnapshot> ControlFiles::savedSnapshot(const std::string& fileName) {
  const auto text = context_.ports.files.read(fileName, kReadLimit);
  if (!text) return std::nullopt;
  return ControlSnapshot{text.value(), readCompanion(fileName)};
}

std::vector<CutField> ControlFiles::cutFields() {
  std::vector<CutField> cuts;
  screens_.auxSpillwayProfile.storeShown();
  ScreenFields fields(screens_.context);
  const std::string hydrograph = composeHydrograph(screens_.context, fields, &cuts);
  composeMainRun(screens_.context, fields, hydrograph, &cuts);
  for (int i = 0; i < context_.state.numAuxSpillways; ++i) {
    if (screens_.auxSpillways.analysed(i)) composeSpillwayRun(screens_.context, fields, i, {}, &cuts);
  }
  return cuts;
}

void ControlFiles::tellCutFields() {
  constexpr std::size_t kMostTold = 20;
  const std::vector<CutField> cuts = cutFields();
  if (cuts.empty()) return;
  std::string text =
      "These texts are longer than their fields in the control file, which does not hold their ends:\r\n";
  for (std::size_t i = 0; i < std::min(cuts.size(), kMostTold); ++i) {
    text += fmt::format("\r\n{}: \"{}\" loses \"{}\"", cuts[i].field, cuts[i].value, cuts[i].lost);
  }
  if (cuts.size() > kMostTold) text += fmt::format("\r\nand {} more", cuts.size() - kMostTold);
  context_.ports.boxes.tell("Warning", text, BoxIcon::warning);
}

bool ControlFiles::SameControlFiles(const std::string& a, const std::string& b) {
  const auto textA = context_.ports.files.read(a, kReadLimit);
  const auto textB = context_.ports.files.read(b, kReadLimit);
  return textA && textB && sameLines(textA.value(), textB.value());
}

bool ControlFiles::ControlFileUnchanged() {
  const std::string& current = context_.state.currentFile;
  if (buildTexts(current) != kBuilt) return false;
  const auto text = context_.ports.files.read(current, kReadLimit);
  return text && sameLines(undated(wholeText()), undated(text.value()));
}

// The bytes of a file that can be taken in.
Result<std::string> ControlFiles::readLoadable(const std::string& fileName) {
  auto text = context_.ports.files.read(fileName, kReadLimit);
  if (text && longestLine(text.value()) > kLongestLine) {
    return Failure{FailureKind::tooLarge, fileName, "A line is longer than 64 KiB"};
  }
  return text;
}

Status ControlFiles::checkLoadable(const std::string& fileName) {
  const auto text = readLoadable(fileName);
  return text ? Status(Done{}) : Status(text.failure());
}

std::string ControlFiles::refusal(const Failure& failure) {
  return failure.path + " cannot be opened as a control file: " + failure.reason + ".";
}

void ControlFiles::ReadControlFile(const std::string& fileName) {
  const auto text = readLoadable(fileName);
  if (!text) return context_.ports.boxes.tell("File Error", refusal(text.failure()), BoxIcon::critical);
  giveBack(fileName, {text.value(), readCompanion(fileName)});
}

void ControlFiles::giveBack(const std::string& fileName, const ControlSnapshot& saved) {
  LineReader lines(saved.file);
  texts.controlText = takeRun(lines);
  FirstLines first{};
  for (std::size_t i = 0; i < first.size(); ++i) {
    first[i] = lines.lineNumber();
    texts.auxRunText[i] = takeRun(lines);
  }
  const LoadOfScreens load(context_.host);
  if (parse(fileName, first)) giveBackCompanion(screens_, context_, saved.companion, saved.file);
  showLoaded();
}

void ControlFiles::ParseControlText() {
  const LoadOfScreens load(context_.host);
  parse(context_.state.currentFile, {});
  showLoaded();
}

// False after a box that tells of a fault.
bool ControlFiles::parse(const std::string& fileName, const FirstLines& before) {
  texts.workText.clear();
  LoadPlace at;
  bool whole = true;
  try {
    ScreenFields fields(screens_.context);
    loadTexts(screens_.context, fields, texts, at);
  } catch (const RuntimeFault& fault) {
    const std::size_t above = at.run < 0 ? 0 : before[static_cast<std::size_t>(at.run)];
    tellFault(fileName, above + at.place.line, at.place.record, fault.what());
    whole = false;
  }
  screens_.auxSpillways.setCount(context_.state.numAuxSpillways);
  return whole;
}

void ControlFiles::ReadSpillwayRun(const std::string& runText, int spillway) {
  checkSpillway(spillway);
  const LoadOfScreens load(context_.host);
  ReadPlace place;
  try {
    ScreenFields fields(screens_.context);
    readSpillwayRun(screens_.context, fields, spillway, runText, place);
  } catch (const RuntimeFault& fault) {
    tellFault("Run of auxiliary spillway " + std::to_string(spillway + 1), place.line, place.record, fault.what());
  }
  screens_.auxSpillwayProfile.refill();
}

void ControlFiles::tellFault(const std::string& file, std::size_t line, std::string_view record,
                             const std::string& what) {
  context_.ports.boxes.tell("File Error", fmt::format("{}, line {}, record {}: {}.", file, line, record, what),
                            BoxIcon::critical);
}

// The screens that are on show derive anew what depends on the values; the front one stays in front.
void ControlFiles::showLoaded() {
  context_.state.curAuxSpillway = 0;
  screens_.auxSpillwayProfile.refill();
  const std::vector<Screen*> shown = context_.host.shown();
  for (auto screen = shown.rbegin(); screen != shown.rend(); ++screen) {
    if ((*screen)->holdsInput()) context_.host.show(**screen);
  }
}

}  // namespace kestra
