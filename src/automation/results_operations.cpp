#include "automation/operations.h"
#include "results/false_structure.h"
#include "results/round_to.h"
#include "results/spillway_digest.h"

namespace kestra {
namespace {

SpillwayCase spillwayCase(const Application& application, const Arguments& arguments) {
  const int number = arguments.integer(3);
  const auto& ratings = application.runTables.spillwayRatingFlag;
  const bool known = number >= 1 && number <= static_cast<int>(ratings.size());
  return {arguments.text(0), arguments.text(1), arguments.text(2), number,
          known && ratings[static_cast<std::size_t>(number - 1)]};
}

// An operation whose failure ends the request.
Operation reporting(const std::string& name, std::vector<std::string> arguments,
                    const std::function<Status(Application&, const Arguments&)>& run) {
  return {name, std::move(arguments), [run](Application& application, const Arguments& given) -> Json {
            requireDone(run(application, given));
            return nullptr;
          }};
}

// One that is passed over when it fails.
Operation quiet(const std::string& name, Status (*filter)(FileSystem&, const std::string&)) {
  return {name, {"filePath"}, [filter](Application& application, const Arguments& given) -> Json {
            (void)filter(application.ports.files, given.text(0));
            return nullptr;
          }};
}

}  // namespace

std::vector<Operation> resultsOperations() {
  using Given = Arguments;
  return {
      reporting("ParseDamOutput", {"filePath"},
                [](Application& application, const Given& a) {
                  return ParseDamOutput(application.ports.files, a.text(0), application.runTables.digestFields);
                }),
      quiet("StripFalseStructure", StripFalseStructure),
      quiet("BlankFalseFields", BlankFalseFields),
      reporting("BuildSpillwayDigest", {"spillwayName", "workDir", "digestPath", "spillwayNumber"},
                [](Application& application, const Given& a) {
                  return BuildSpillwayDigest(application.ports.files, spillwayCase(application, a));
                }),
      reporting("InsertDigestPlaceholder", {"digestPath", "spillwayName"},
                [](Application& application, const Given& a) {
                  return InsertDigestPlaceholder(application.ports.files, a.text(0), a.text(1));
                }),
      {"RoundTo",
       {"value", "digits"},
       [](Application&, const Given& a) -> Json { return RoundTo(a.number(0), a.integer(1)); }},
  };
}

}  // namespace kestra
