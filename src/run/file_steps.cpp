#include "run/file_steps.h"

#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "platform/files.h"
#include "results/result_files.h"

namespace kestra {
namespace {

[[noreturn]] void fail(const Failure& failure) {
  throw RuntimeFault(failure.path + ": " + failure.reason);
}

bool isInputExtension(std::string_view extension) {
  const std::string lower = toLower(extension);
  return lower == "v2c" || lower == "ksc" || lower == "ksm" || lower.starts_with("as");
}

}  // namespace

void require(const Status& status) {
  if (!status) fail(status.failure());
}

std::string withoutExtension(std::string_view path) {
  const std::string_view name = ParsePathName(path);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return std::string(path);
  return std::string(path.substr(0, path.size() - name.size() + dot));
}

bool hasExtension(std::string_view path) {
  return ParsePathName(path).find('.') != std::string_view::npos;
}

bool isOnlyDots(std::string_view name) {
  return name.find_first_not_of('.') == std::string_view::npos;
}

std::string_view firstStem(std::string_view path) {
  const std::string_view name = ParsePathName(path);
  return name.substr(0, name.find('.'));
}

bool isInputOfRuns(std::string_view name) {
  const std::size_t first = name.find('.');
  if (first == std::string_view::npos) return false;
  return isInputExtension(name.substr(first + 1)) || isInputExtension(name.substr(name.rfind('.') + 1));
}

std::optional<std::string> findFile(FileSystem& files, const std::string& path) {
  auto found = findIgnoringCase(files, std::string(directoryOf(path)), ParsePathName(path));
  if (!found) return std::nullopt;
  return std::move(found).value();
}

std::string readText(FileSystem& files, const std::string& path, std::uint64_t limit) {
  Result<std::string> text = files.read(path, limit);
  if (!text) fail(text.failure());
  return std::move(text).value();
}

void writeText(FileSystem& files, const std::string& path, std::string_view text) {
  require(writeWholeFile(files, path, text, Durable::no));
}

void copyFile(FileSystem& files, const std::string& from, const std::string& to) {
  writeText(files, to, readText(files, from, kResultLimit));
}

void removeFound(FileSystem& files, const std::string& path) {
  if (const auto found = findFile(files, path)) require(files.removeFile(*found));
}

std::vector<DirectoryEntry> entriesOf(FileSystem& files, const std::string& directory) {
  const auto place = files.canonical(directory);
  if (!place) fail(place.failure());
  auto entries = files.list(place.value());
  if (!entries) fail(entries.failure());
  return std::move(entries).value();
}

void emptyDirectory(FileSystem& files, const std::string& directory) {
  auto entries = files.list(directory);
  if (!entries) fail(entries.failure());
  std::optional<Failure> first;
  for (const DirectoryEntry& entry : entries.value()) {
    if (entry.type == FileStatus::Type::directory || isInputOfRuns(entry.name)) continue;
    const Status removed = files.removeFile(joinPath(directory, entry.name));
    if (!removed && !removed.failedAs(FailureKind::notFound) && !first) first = removed.failure();
  }
  if (first) fail(*first);
}

bool standsIn(FileSystem& files, const std::string& path, const std::string& directory) {
  const std::string above(directoryOf(path));
  if (above == directory) return true;
  const auto here = files.canonical(above);
  const auto there = files.canonical(directory);
  return here && there && here.value() == there.value();
}

}  // namespace kestra
