#pragma once

#include <string>

#include "run/run_context.h"
#include "run/sampling.h"
#include "screens/file_runs.h"

namespace kestra {

// The way from a saved control file to results. One after the other: what an earlier build has left is deleted, the
// control file is split, the dam is run and its output condensed, the results directory is made or emptied, each
// instance of each auxiliary spillway is written and run, and the run is entered in the project's summary.
// A program that fails does not end a build; what is missing then is told by the reader that misses it.
class BuildPipeline : public FileRuns {
 public:
  // Without `sampling` a spillway that asks for samples ends the build.
  BuildPipeline(RunContext& context, Sampling* sampling) : context_(context), sampling_(sampling) {}

  bool BuildMyFiles(bool showProgress) override;
  std::string whyNot() const override { return whyNot_; }

 private:
  // The names of a run. For /p/dam.KSC in project /p: /p/dam, dam, dam.
  struct Names {
    std::string base;
    std::string run;
    std::string stem;  // up to the first dot
  };

  void build();
  bool chooseFile();
  Names namesOf(const std::string& controlFile);
  void makeResultsDirectory(const Names& names);
  void runSpillway(const Names& names, int number);
  void writeInstances(const Names& names, const std::string& records, int number);
  void runInstances(const Names& names, int number);
  void moveGraphData(const std::string& instance, const std::string& directory);
  void showInstances(double done, double total, const std::string& what);
  void enterInSummary(const Names& names);
  void tellOff(const std::string& text);

  RunContext& context_;
  Sampling* sampling_;
  std::string whyNot_;
};

}  // namespace kestra
