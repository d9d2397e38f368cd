#include "kestrasim/program.h"

#include <optional>
#include <ostream>
#include <string_view>

#include "base/paths.h"
#include "kestrasim/dam_engine.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

constexpr std::string_view kUsage =
    "usage: KestraSim.exe [--check-steps] FILE\n"
    "Routes the flood of a control file through its reservoir and over its dam. Writes the stem of FILE with .OUT, "
    "and\n"
    "with .BRE and .HCT when a breach is asked for.\n"
    "  --check-steps  routes once more by half steps and tells what that changes\n";

// The path without its extension; a name that is nothing but an extension is kept whole.
std::string stemOf(const std::string& path) {
  const std::string_view name = ParsePathName(path);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || dot == 0) return path;
  return path.substr(0, path.size() - (name.size() - dot));
}

void tell(const Failure& failure, std::ostream& errors) {
  errors << "KestraSim: " << failure.path << ": " << failure.reason << '\n';
}

bool write(FileSystem& files, const std::string& path, const std::optional<std::string>& text, std::ostream& errors) {
  const Status status = text ? writeWholeFile(files, path, *text) : files.removeFile(path);
  if (status || (!text && status.failedAs(FailureKind::notFound))) return true;
  tell(status.failure(), errors);
  return false;
}

}  // namespace

int runProgram(const std::vector<std::string>& arguments, FileSystem& files, std::ostream& output,
               std::ostream& errors) {
  const bool check = arguments.size() == 2 && arguments.front() == "--check-steps";
  if (arguments.size() != 1 && !check) {
    errors << kUsage;
    return kWrongUsage;
  }
  const std::string& path = arguments.back();
  if (path == "--help") {
    output << kUsage;
    return kDone;
  }
  if (path == "--version") {
    output << "KestraSim " KESTRA_VERSION "\n";
    return kDone;
  }
  const Result<std::string> text = files.read(path, kReadLimit);
  if (!text) {
    tell(text.failure(), errors);
    return kFailed;
  }
  const DamFiles results = runDam(text.value(), check ? StepCheck::halved : StepCheck::none);
  const std::string stem = stemOf(path);
  bool written = write(files, stem + ".OUT", results.report, errors);
  written = write(files, stem + ".BRE", results.breach, errors) && written;
  written = write(files, stem + ".HCT", results.headcut, errors) && written;
  return written ? kDone : kFailed;
}

}  // namespace kestra
