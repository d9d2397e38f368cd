#include "platform/printer.h"

#include "base/paths.h"

namespace kestra {
namespace {

constexpr const char* kSpooler = "/usr/bin/lp";

// A new file under the first name that is free.
Result<std::string> keepDocument(FileSystem& files, const std::string& directory, const std::string& bytes) {
  constexpr int kTries = 10000;
  for (int n = 0;; ++n) {
    const std::string path = joinPath(directory, "kestra-print-" + std::to_string(n) + ".pdf");
    Result<std::unique_ptr<OutputFile>> created = files.createNew(path);
    if (!created && created.failedAs(FailureKind::exists) && n < kTries) continue;
    if (!created) return created.failure();
    const std::unique_ptr<OutputFile> file = std::move(created).value();
    Status written = file->write(bytes);
    if (written) written = file->close();
    if (written) return path;
    (void)files.removeFile(path);
    return written.failure();
  }
}

std::vector<std::string> argumentsFor(const std::string& path, const PrintChoice& choice) {
  std::vector<std::string> words = {"-n", std::to_string(choice.copies)};
  if (!choice.device.empty()) words.insert(words.end(), {"-d", choice.device});
  if (choice.firstPage > 0) {
    words.insert(words.end(), {"-P", std::to_string(choice.firstPage) + "-" + std::to_string(choice.lastPage)});
  }
  words.insert(words.end(), {"-o", "fit-to-page", "--", path});
  return words;
}

Status spooled(const ProcessOutcome& outcome) {
  const auto refused = [](const std::string& reason) { return Failure{FailureKind::other, kSpooler, reason}; };
  if (const auto* exited = std::get_if<Exited>(&outcome)) {
    if (exited->code == 0) return Done();
    return refused("ended with " + std::to_string(exited->code));
  }
  if (const auto* failed = std::get_if<StartFailed>(&outcome)) return refused(failed->reason);
  return refused("was stopped");
}

}  // namespace

Status SpoolPrinter::print(const std::string& pdf, const PrintChoice& choice) {
  const Result<std::string> document = keepDocument(files_, directory_, pdf);
  if (!document) return document.failure();
  const ProcessOutcome outcome = processes_.run({kSpooler, argumentsFor(document.value(), choice), {}, {}}, {});
  (void)files_.removeFile(document.value());
  return spooled(outcome);
}

}  // namespace kestra
