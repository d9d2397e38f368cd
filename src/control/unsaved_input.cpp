#include "control/unsaved_input.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/paths.h"
#include "control/companion_values.h"
#include "platform/files.h"

namespace kestra {
namespace {

constexpr const char* kFolder = ".kestra";
constexpr std::string_view kStart = "unsaved-";
constexpr std::string_view kEnd = ".json";
constexpr const char* kName = "of";
constexpr const char* kFile = "file";
constexpr const char* kCompanion = "companion";

std::string folderOf(std::string_view projectDir) {
  return joinPath(projectDir, kFolder);
}

bool takeMember(const Json& json, const char* key, std::string& text) {
  const auto found = json.find(key);
  return found != json.end() && takeText(*found, text);
}

// The number in the name of such a file; 0 for every other.
std::uint64_t numberIn(std::string_view name) {
  if (!name.starts_with(kStart) || !name.ends_with(kEnd) || name.size() < kStart.size() + kEnd.size()) return 0;
  const auto number = wholeNumber(name.substr(kStart.size(), name.size() - kStart.size() - kEnd.size()));
  return number && *number > 0 ? static_cast<std::uint64_t>(*number) : 0;
}

}  // namespace

std::string composeUnsavedInput(const UnsavedInput& kept) {
  const Json json = {
      {kName, textJson(kept.name)}, {kFile, textJson(kept.input.file)}, {kCompanion, textJson(kept.input.companion)}};
  return json.dump(1) + "\n";
}

std::optional<UnsavedInput> parseUnsavedInput(std::string_view text) {
  const Json json = Json::parse(text, nullptr, false);
  UnsavedInput kept;
  const bool whole = json.is_object() && takeMember(json, kName, kept.name) &&
                     takeMember(json, kFile, kept.input.file) && takeMember(json, kCompanion, kept.input.companion);
  // A name with a directory in it would lead out of the project.
  if (!whole || ParsePathName(kept.name) != kept.name) return std::nullopt;
  return kept;
}

std::string unsavedInputFile(std::string_view projectDir, std::uint64_t number) {
  return joinPath(folderOf(projectDir), std::string(kStart) + std::to_string(number) + std::string(kEnd));
}

std::vector<std::uint64_t> unsavedInputNumbers(FileSystem& files, std::string_view projectDir) {
  std::vector<std::uint64_t> numbers;
  const auto entries = files.list(folderOf(projectDir));
  if (!entries) return numbers;
  for (const DirectoryEntry& entry : entries.value()) {
    if (const std::uint64_t number = numberIn(entry.name); number > 0) numbers.push_back(number);
  }
  std::sort(numbers.rbegin(), numbers.rend());
  return numbers;
}

std::optional<UnsavedInput> readUnsavedInput(FileSystem& files, std::string_view projectDir, std::uint64_t number) {
  const auto text = files.read(unsavedInputFile(projectDir, number), kReadLimit);
  return text ? parseUnsavedInput(text.value()) : std::nullopt;
}

Status writeUnsavedInput(FileSystem& files, std::string_view projectDir, std::uint64_t number,
                         const UnsavedInput& kept) {
  if (const Status made = makeDirectories(files, folderOf(projectDir)); !made) return made;
  return writeWholeFile(files, unsavedInputFile(projectDir, number), composeUnsavedInput(kept));
}

}  // namespace kestra
