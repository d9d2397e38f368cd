#include "summary/summary_store.h"

#include <algorithm>

#include "base/lines.h"
#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "platform/files.h"
#include "results/result_files.h"

namespace kestra {
namespace {

constexpr const char* kSettings = "SummaryFields";
constexpr const char* kOrderKey = "summaryOrder";
constexpr std::size_t kMostDamLines = 42;

// A value of a digest, a line; double quotes around it are not part of it.
std::string_view valueOf(std::string_view line) {
  line = trim(line);
  const bool quoted = line.size() > 1 && line.starts_with('"') && line.ends_with('"');
  return quoted ? line.substr(1, line.size() - 2) : line;
}

void fill(EntryValues& values, std::size_t offset, std::size_t count, std::string_view text) {
  const std::size_t end = std::min(offset + count, values.size());
  for (std::size_t i = offset; i < end; ++i) values[i] = text;
}

bool isEmpty(const SummarySelection& selection) {
  return std::all_of(selection.selectedFields.begin(), selection.selectedFields.end(),
                     [](const auto& fields) { return fields.empty(); });
}

// What a file holds, with the names behind it that it does not hold yet.
SummaryFile joined(SummaryFile file, const SummarySelection& selection, const std::vector<std::string>& names) {
  if (!isEmpty(selection)) file.selection = selection;
  for (const std::string& name : names) {
    const bool known = std::any_of(file.entryNames.begin(), file.entryNames.end(),
                                   [&name](const std::string& other) { return equalIgnoringCase(name, other); });
    if (!known) file.entryNames.push_back(name);
  }
  return file;
}

}  // namespace

void SummaryStore::LoadSummaryStore() {
  clear();
  const std::string order = ports_.settings.get(kSettings, kOrderKey, kByColumn);
  summaryOrder_ = order == kByRow ? kByRow : kByColumn;
  if (state_.projectDir.empty()) return;
  fileUnread_ = true;
  if (damFields() == 0) return;
  const auto text = readResultFile(ports_.files, projectFile());
  if (!text && !text.failedAs(FailureKind::notFound)) return tellUnreadable();
  fileUnread_ = false;
  if (!text) return;
  SummaryFile file = readSummaryFile(text.value());
  selection_ = std::move(file.selection);
  DigestPlaces places(ports_.files, state_.projectDir);
  for (const std::string& name : file.entryNames) loadEntry(places, name);
  if (!file.understood) tellUnreadable();
}

Status SummaryStore::SaveSummaryStore(const std::string& path) {
  if (Status written = writeFile(path, selection_); !written) return written;
  return ports_.settings.set(kSettings, {{kOrderKey, summaryOrder_}});
}

Status SummaryStore::writeFile(const std::string& path, const SummarySelection& selection) {
  const std::string target = presentPath(ports_.files, path);
  SummaryFile file = {selection, entryNames()};
  if (fileUnread_ && target == projectFile()) {
    const auto text = readResultFile(ports_.files, target);
    if (!text && !text.failedAs(FailureKind::notFound)) return text.failure();
    if (text) file = joined(readSummaryFile(text.value()), selection, file.entryNames);
  }
  return writeWholeFile(ports_.files, target, summaryFileText(file.selection, file.entryNames));
}

std::size_t SummaryStore::LoadDigestEntry(int fieldOffset, const std::string& digestPath,
                                          const std::string& entryName) {
  if (fieldOffset < 0 || fieldOffset >= static_cast<int>(kEntryPositions)) {
    throw RuntimeFault("field offset " + std::to_string(fieldOffset) + " is outside 0 to " +
                       std::to_string(kEntryPositions - 1));
  }
  SummaryEntry& entry = entryNamed(entryName);
  takeDigest(entry.values, digestPath, static_cast<std::size_t>(fieldOffset), damFields());
  return static_cast<std::size_t>(&entry - entries_.data()) + 1;
}

std::vector<std::string> SummaryStore::entryNames() const {
  std::vector<std::string> names;
  for (const SummaryEntry& entry : entries_) names.push_back(entry.name);
  return names;
}

std::string SummaryStore::projectFile() const {
  return presentPath(ports_.files, joinPath(state_.projectDir, kSummaryFileName));
}

void SummaryStore::clear() {
  entries_.clear();
  selection_ = {};
  fileUnread_ = false;
}

void SummaryStore::tellUnreadable() {
  ports_.boxes.tell("Error Message", "Unable to load Summary File", BoxIcon::warning);
}

void SummaryStore::loadEntry(DigestPlaces& places, const std::string& name) {
  EntryValues& values = entryNamed(name).values;
  const EntryDigests digests = places.find(name);
  if (digests.instance) {
    takeDigest(values, *digests.instance, kInstanceOffset, damFields());
  } else if (digests.ofInstance || !digests.dam) {
    fill(values, 0, damFields(), kNotAvailable);
  }
  const bool besideInstance = digests.ofInstance || digests.instance;
  if (digests.dam) takeDigest(values, *digests.dam, 0, besideInstance ? kInstanceOffset : kMostDamLines);
}

// Puts the lines of a digest, at most so many, into the positions behind `offset`; "N/A" when it cannot be read.
void SummaryStore::takeDigest(EntryValues& values, const std::string& path, std::size_t offset, std::size_t most) {
  const auto text = readResultFile(ports_.files, path);
  fill(values, offset, most, text ? std::string_view() : kNotAvailable);
  if (!text) return;
  LineReader lines(text.value());
  std::string_view line;
  for (std::size_t at = offset; at < std::min(offset + most, values.size()) && lines.next(line); ++at) {
    values[at] = valueOf(line);
  }
}

// The entry of that name, whatever its letter case; a new one at the end when there is none.
SummaryEntry& SummaryStore::entryNamed(const std::string& name) {
  const auto at = std::find_if(entries_.begin(), entries_.end(),
                               [&name](const SummaryEntry& entry) { return equalIgnoringCase(entry.name, name); });
  if (at != entries_.end()) return *at;
  return entries_.emplace_back(SummaryEntry{name, {}});
}

}  // namespace kestra
