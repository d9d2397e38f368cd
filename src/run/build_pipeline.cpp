#include "run/build_pipeline.h"

#include <array>
#include <cmath>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "platform/files.h"
#include "results/input_digest.h"
#include "run/dam_solver.h"
#include "run/file_steps.h"
#include "run/old_run_files.h"
#include "run/spillway_case.h"
#include "run/split_control_file.h"
#include "run/summary_updates.h"

namespace kestra {
namespace {

constexpr int kSteps = 8;
constexpr double kFewInstances = 9;  // from so many on the gauge shows shares of them
constexpr std::array<const char*, 5> kGraphData = {".DG1", ".DG2", ".DG4", ".DG5", ".DG6"};
constexpr const char* kTitle = "Kestra B";

// The end of a build before its last step. Its text is why; empty when the user did not want it.
class BuildEnded : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace

bool BuildPipeline::BuildMyFiles(bool showProgress) {
  whyNot_.clear();
  context_.silent = !showProgress;
  bool built = false;
  try {
    build();
    built = true;
  } catch (const std::exception& fault) {
    whyNot_ = fault.what();
    if (!whyNot_.empty()) context_.programs.tell(whyNot_);
  }
  if (showProgress && !built) context_.progress.rest();
  context_.silent = false;
  return built;
}

void BuildPipeline::build() {
  ApplicationState& state = context_.state;
  if (state.currentFile.empty() && !chooseFile()) throw BuildEnded("");
  if (state.projectReadOnly) throw BuildEnded("The project is open in another program.");
  const std::string controlFile = state.currentFile;
  const std::string name(ParsePathName(controlFile));
  if (!context_.silent) context_.progress.begin(kSteps);
  if (!hasExtension(controlFile)) tellOff("Illegal FileName. File Name must end with .KSC extension");
  const Names names = namesOf(controlFile);
  const RunLog log(context_.programs, names.base + ".log");

  FileSystem& files = context_.ports.files;
  DeleteOldRunFiles(files, state.projectDir, names.run, joinPath(state.projectDir, name));
  deleteFilesOfStems(files, {names.base}, controlFile);
  (void)keepInputDigest(files, controlFile);  // without one nobody is told of a change
  SplitControlFile(files, context_.tables, controlFile, names.base);
  showStep(context_, 1, name);
  RunDamSolver(context_, controlFile, !context_.silent);
  showStep(context_, 3, name);
  condenseOutput(names.base);
  showStep(context_, 4, name);
  makeResultsDirectory(names);
  for (int number = 1; number <= static_cast<int>(kSpillways); ++number) {
    runSpillway(names, number);
    showStep(context_, number + 4, name);
  }
  showStep(context_, kSteps, name);
  if (!context_.silent) context_.progress.finish();
  enterInSummary(names);
}

bool BuildPipeline::chooseFile() {
  using enum BoxButton;
  const MessageBox question = {
      "Build", "No file is opened or created, choose a file to build?", BoxIcon::question, {yes, no, cancel}};
  if (context_.ports.boxes.show(question) != yes) return false;
  FileDialog dialog;
  dialog.title = "Build File";
  dialog.filter = "All Files(*.*)|*.*|Kestra KSC Files Only|*.KSC";
  dialog.filterIndex = 2;
  const auto chosen = context_.ports.dialogs.chooseFiles(dialog);
  if (!chosen || chosen->empty() || chosen->front().empty()) return false;
  context_.state.currentFile = chosen->front();
  return true;
}

BuildPipeline::Names BuildPipeline::namesOf(const std::string& controlFile) {
  Names names;
  names.base = withoutExtension(controlFile);
  names.run = ParsePathName(names.base);
  names.stem = firstStem(controlFile);
  const std::string& project = context_.state.projectDir;
  if (isOnlyDots(names.run) || project.empty() || !standsIn(context_.ports.files, controlFile, project)) {
    throw BuildEnded(controlFile + " stands outside the project " + project + ".");
  }
  for (std::size_t n = 1; n <= kSpillways; ++n) {
    if (!equalIgnoringCase(controlFile, splitFileOf(names.base, n))) continue;
    throw BuildEnded(controlFile + " is a split file, which a build would write anew.");
  }
  return names;
}

// An output that is not there is known from the solver's end.
void BuildPipeline::condenseOutput(const std::string& base) {
  const Status written = ParseDamOutput(context_.ports.files, base + ".KSC", context_.tables.digestFields);
  if (written || written.failedAs(FailureKind::notFound)) return;
  context_.programs.tell(written.failure().path + ": " + written.failure().reason);
}

void BuildPipeline::makeResultsDirectory(const Names& names) {
  FileSystem& files = context_.ports.files;
  if (isDirectory(files, names.base)) return emptyDirectory(files, names.base);
  require(files.makeDirectory(names.base));
}

void BuildPipeline::runSpillway(const Names& names, int number) {
  const auto split = findFile(context_.ports.files, splitFileOf(names.base, static_cast<std::size_t>(number)));
  if (!split) return;
  std::string& records = context_.tables.spillwayControlText;
  records = readText(context_.ports.files, *split);
  writeInstances(names, records, number);
  runInstances(names, number);
}

void BuildPipeline::writeInstances(const Names& names, const std::string& records, int number) {
  const std::string stem = names.stem + std::to_string(number);
  const std::string base = joinPath(names.base, stem);
  const bool sampled = holdsSamplingBlock(records);
  if (sampled && sampling_ == nullptr) throw BuildEnded(stem + ": There is nothing here that draws samples.");
  if (sampled && !sampling_->readBlock(records)) throw BuildEnded(stem + ": Its sampling block cannot be used.");
  const HydrographCheck hydrograph = sampling_ != nullptr ? sampling_->checkHydrograph(records) : HydrographCheck();
  if (!hydrograph.valid) {
    context_.ports.boxes.tell(kTitle, "Invalid Data for the HydroGraph Probability Distribution", BoxIcon::none);
  }
  if (!sampled) {
    for (const char* extension : {".LSP", ".LHI"}) {
      removeFound(context_.ports.files, names.base + "_" + std::to_string(number) + extension);
    }
    return writeText(context_.ports.files, base + "_0.V2D", singleInstance(records));
  }
  const bool drawn = sampling_->drawSamples(stem, hydrograph.valid, number) && sampling_->readSamples(stem, number);
  if (!drawn || !sampling_->writeInstances(base, records, hydrograph.valid, hydrograph, number)) {
    throw BuildEnded(stem + ": Its samples could not be drawn.");
  }
}

void BuildPipeline::runInstances(const Names& names, int number) {
  const double total = lenientNumber(context_.state.totalInstances);
  for (long long k = 0; static_cast<double>(k) < total; ++k) {
    const std::string instance = names.stem + std::to_string(number) + "_" + std::to_string(k);
    const std::string file = joinPath(names.base, instance + ".V2D");
    if (exists(context_.ports.files, file)) RunSpillwayInstance(context_, file, number);
    moveGraphData(instance, names.base);
    showInstances(static_cast<double>(k + 1), total, instance);
    if (context_.progress.visible() && context_.progress.stopRequested()) throw RunStopped("Stopped.");
  }
}

// The spillway solver leaves them in the project directory, where it runs.
void BuildPipeline::moveGraphData(const std::string& instance, const std::string& directory) {
  FileSystem& files = context_.ports.files;
  const std::vector<DirectoryEntry> entries = entriesOf(files, context_.state.projectDir);
  for (const char* extension : kGraphData) {
    for (const DirectoryEntry& entry : entries) {
      if (!equalIgnoringCase(entry.name, instance + extension)) continue;
      const std::string target = joinPath(directory, entry.name);
      if (exists(files, target)) throw RuntimeFault(target + ": File exists");
      require(files.rename(joinPath(context_.state.projectDir, entry.name), target));
    }
  }
}

void BuildPipeline::showInstances(double done, double total, const std::string& what) {
  const double value = total >= kFewInstances ? std::nearbyint(done * kSteps / total) : done;
  showStep(context_, static_cast<int>(value), what);
}

void BuildPipeline::enterInSummary(const Names& names) {
  SummaryUpdates& summary = context_.summary;
  const std::string digest = names.base + ".DIS";
  const int entry = summary.LoadDigestEntry(0, findFile(context_.ports.files, digest).value_or(digest), names.run);
  summary.SaveSummaryStore(joinPath(context_.state.projectDir, "SUMMARY.IDE"));
  if (context_.state.window(static_cast<int>(WindowSlot::summaryTable))) {
    summary.ModifyTable(entry);
    summary.refreshOpenFiles();
  }
  if (context_.state.window(static_cast<int>(WindowSlot::outputGraph))) summary.refreshGraphs();
}

void BuildPipeline::tellOff(const std::string& text) {
  context_.ports.boxes.tell("Error", text, BoxIcon::critical);
  throw BuildEnded(text);
}

}  // namespace kestra
