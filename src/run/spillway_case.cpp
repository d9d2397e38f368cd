#include "run/spillway_case.h"

#include <algorithm>

#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "platform/date_text.h"
#include "platform/files.h"
#include "results/false_structure.h"
#include "results/result_files.h"
#include "results/spillway_digest.h"
#include "run/checked_directory.h"
#include "run/dam_solver.h"
#include "run/file_steps.h"
#include "run/instance_records.h"
#include "run/old_run_files.h"
#include "run/spillway_inflow.h"
#include "run/summary_updates.h"

namespace kestra {
namespace {

constexpr int kInstanceFields = 25;  // positions of the summary before those of an instance
constexpr const char* kCompanion = "ASFILE";

bool liesBelow(const std::string& path, const std::string& directory) {
  const std::string start = joinPath(directory, "");
  return !directory.empty() && equalIgnoringCase(path.substr(0, start.size()), start);
}

// One after the other, the values that stand in for several; a missing value for a record that names no more than one.
std::vector<std::optional<std::string>> choices(const std::vector<std::string>& values) {
  if (values.size() < 2) return {std::nullopt};
  return {values.begin(), values.end()};
}

class SpillwayRun {
 public:
  SpillwayRun(RunContext& context, std::string instanceFile, int number)
      : context_(context), file_(std::move(instanceFile)), base_(withoutExtension(file_)), number_(number) {}

  void run() {
    records_ = readInstanceRecords(readText(files(), file_));
    records_.damFile = absolutePath(records_.damFile, context_.state.projectDir);
    prepare();
    const bool several = records_.widths.size() > 1 || records_.crests.size() > 1;
    several ? runAlternatives() : runAlone();
  }

 private:
  FileSystem& files() { return context_.ports.files; }
  const RunTables& tables() const { return context_.tables; }
  std::size_t index() const {
    if (number_ < 1 || number_ > static_cast<int>(kSpillways)) {
      throw RuntimeFault("There is no auxiliary spillway " + std::to_string(number_) + ".");
    }
    return static_cast<std::size_t>(number_ - 1);
  }

  void prepare() {
    const std::string text = readText(files(), file_);
    writeText(files(), file_, withoutLink(records_.spillwayNumber >= 1 ? refreshed(text) : text));
  }

  // With the discharge of the dam's last run, where that is another than the one that was recorded or the table is the
  // one that a run is written with. Where the dam's output cannot be read the table stands.
  std::string refreshed(const std::string& text) try {
    if (!hasPlaceholderHydrograph(text) && !damHasRunSince()) return text;
    return withHydrograph(text, ExtractSpillwayInflow(files(), records_.damFile, records_.spillwayNumber));
  } catch (const RuntimeFault&) {
    return text;
  }

  bool damHasRunSince() {
    const auto output = files().status(presentPath(files(), damOutputOf(records_.damFile)));
    if (!output || records_.recordedDate.empty()) return false;
    return dateText(context_.ports.clock.localTime(output.value().modifiedNs)) != records_.recordedDate;
  }

  void runAlone() {
    const std::string workDir = checkedDirectory(context_.ports, file_);
    if (workDir.empty()) return;
    (void)context_.programs.run(kSpillwaySolver, file_);
    filter(base_);
    if (!digest(base_, workDir)) tellMissing(base_);
  }

  void runAlternatives() {
    require(files().makeDirectory(base_));
    DeleteOldRunFiles(files(), context_.state.projectDir, std::string(ParsePathName(base_)));
    copyFile(files(), joinPath(context_.programs.applicationDirectory(), kCompanion), joinPath(base_, kCompanion));
    const std::string text = readText(files(), file_);
    const std::string workDir = checkedDirectory(context_.ports, file_);
    char letter = 'a';
    for (const auto& crest : choices(records_.crests)) {
      for (const auto& width : choices(records_.widths)) {
        const std::string base = joinPath(base_, std::string(1, letter++));
        writeText(files(), base + ".v2c", withAlternative(text, width, crest));
        if (!runAlternative(base, workDir)) return tellMissing(base);
      }
    }
  }

  bool runAlternative(const std::string& base, const std::string& workDir) {
    constexpr bool kShowProgress = true;
    RunDamSolver(context_, base + ".v2c", kShowProgress);
    filter(base);
    if (!digest(base, workDir)) return false;
    // The store is read anew after each run, and then knows what was saved.
    SummaryUpdates& summary = context_.summary;
    const std::string name = joinPath(ParsePathName(base_), ParsePathName(base));
    const int entry = summary.LoadDigestEntry(kInstanceFields, presentPath(files(), base + ".DIS"), name);
    summary.SaveSummaryStore(joinPath(context_.state.projectDir, "SUMMARY.IDE"));
    if (context_.state.window(static_cast<int>(WindowSlot::summaryTable))) {
      summary.ModifyTable(entry);
      summary.refreshOpenFiles();
    }
    if (context_.state.window(static_cast<int>(WindowSlot::outputGraph))) summary.refreshGraphs();
    return true;
  }

  void filter(const std::string& base) {
    if (records_.stripFalseStructure) (void)StripFalseStructure(files(), base + ".V2D");
    if (records_.blankFalseFields) (void)BlankFalseFields(files(), base + ".V2D");
  }

  // Puts the digest of a run into its final form; false where the run has left none.
  bool digest(const std::string& base, const std::string& workDir) {
    const auto path = findFile(files(), base + ".DIS");
    if (!path) return false;
    const std::size_t i = index();
    const std::string& name = tables().spillwayName[i];
    if (tables().spillwayAnalysisFlag[i]) {
      require(BuildSpillwayDigest(files(), {name, workDir, *path, number_, tables().spillwayRatingFlag[i]}));
    } else {
      require(InsertDigestPlaceholder(files(), *path, name));
    }
    return true;
  }

  void tellMissing(const std::string& base) {
    const std::string text = "Unable to build the summary file for " + std::string(ParsePathName(base)) + ".";
    context_.ports.boxes.tell("Error Message", text, BoxIcon::warning);
  }

  RunContext& context_;
  std::string file_;
  std::string base_;
  int number_;
  InstanceRecords records_;
};

void RunSpillwayCase(RunContext& context, const std::string& instanceFile, int spillwayNumber) try {
  SpillwayRun(context, instanceFile, spillwayNumber).run();
} catch (const RuntimeFault& fault) {
  context.ports.boxes.tell("Error Message", std::string("Parse Output File Error: ") + fault.what(), BoxIcon::warning);
}

// The path as the disk spells it; as it is given where there is no such file.
std::string spelledPath(FileSystem& files, const std::string& path) {
  const auto directory = spelledDirectory(files, std::string(directoryOf(path)));
  return directory ? presentPath(files, joinPath(*directory, ParsePathName(path))) : path;
}

// That of the run whose results directory holds the instance; its own for one in the project itself.
std::string logOf(const RunContext& context, const std::string& path, const std::string& base) {
  const std::string directory(directoryOf(path));
  return (directory == context.state.projectDir ? base : directory) + ".log";
}

}  // namespace

void RunSpillwayInstance(RunContext& context, const std::string& instanceFile, int spillwayNumber) {
  FileSystem& files = context.ports.files;
  const std::string path = spelledPath(files, absolutePath(trim(instanceFile), files.currentDirectory()));
  const std::string base = withoutExtension(path);
  const bool named = hasExtension(path) && !isOnlyDots(ParsePathName(base));
  if (!named || !liesBelow(path, context.state.projectDir)) return;
  if (isDirectory(files, base)) require(removeTree(files, base));
  removeFound(files, base + ".DIS");
  const RunLog log(context.programs, logOf(context, path, base));
  RunSpillwayCase(context, path, spillwayNumber);
  context.summary.LoadSummaryStore();
  if (context.state.window(static_cast<int>(WindowSlot::summaryTable))) context.summary.refreshTable();
}

}  // namespace kestra
