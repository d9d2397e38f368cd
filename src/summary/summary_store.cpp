#include "summary/summary_store.h"

#include <algorithm>

#include "base/paths.h"
#include "base/runtime_fault.h"
#include "base/text.h"
#include "platform/files.h"
#include "results/result_files.h"
#include "summary/digest_values.h"

namespace kestra {
namespace {

constexpr const char* kSettings = "SummaryFields";
constexpr const char* kOrderKey = "summaryOrder";
constexpr std::size_t kMostDamLines = 42;

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

// Whether a digest goes by the name of the entry itself, as that of a dam's run does.
bool isDigestOf(std::string_view entryName, std::string_view digestPath) {
  const std::string_view name = ParsePathName(digestPath);
  return equalIgnoringCase(name.substr(0, name.rfind('.')), entryName);
}

}  // namespace

std::string readSummaryOrder(SettingsStore& settings) {
  return settings.get(kSettings, kOrderKey, kByColumn) == kByRow ? kByRow : kByColumn;
}

void tellUnsaved(MessageBoxes& boxes, const Status& written) {
  if (written) return;
  const Failure& failure = written.failure();
  boxes.tell("Error Message", "Unable to save Summary File. " + failure.path + ": " + failure.reason, BoxIcon::warning);
}

void SummaryStore::LoadSummaryStore() {
  clear();
  summaryOrder_ = readSummaryOrder(ports_.settings);
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
  entries_.reserve(file.entryNames.size());
  for (const std::string& name : file.entryNames) loadEntry(places, name);
  damPath_.clear();
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
  std::size_t place = 0;
  SummaryEntry& entry = entries_.named(entryName, &place);
  const auto offset = static_cast<std::size_t>(fieldOffset);
  const bool belowInstance = offset < kInstanceOffset && entry.ofInstance && !isDigestOf(entryName, digestPath);
  entry.ofInstance = belowInstance || offset >= kInstanceOffset;
  const std::size_t most = belowInstance ? std::min(damFields(), kInstanceOffset - offset) : damFields();
  takeDigest(ports_.files, entry.values, presentPath(ports_.files, digestPath), offset, most);
  return place + 1;
}

std::vector<std::string> SummaryStore::entryNames() const {
  std::vector<std::string> names;
  for (const SummaryEntry& entry : entries_.all()) names.push_back(entry.name);
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
  SummaryEntry& entry = entries_.named(name);
  const EntryDigests digests = places.find(name);
  entry.ofInstance = digests.ofInstance || digests.instance;
  if (digests.instance) {
    takeDigest(ports_.files, entry.values, *digests.instance, kInstanceOffset, damFields());
  } else if (digests.ofInstance || !digests.dam) {
    fillValues(entry.values, 0, damFields(), kNotAvailable);
  }
  if (digests.dam) takeDamDigest(entry.values, *digests.dam, entry.ofInstance ? kInstanceOffset : kMostDamLines);
}

// The instances of a run stand together and share the digest of their dam: it is read once.
void SummaryStore::takeDamDigest(EntryValues& values, const std::string& path, std::size_t most) {
  if (path != damPath_) {
    damValues_ = {};
    takeDigest(ports_.files, damValues_, path, 0, kMostDamLines);
    damPath_ = path;
  }
  std::copy_n(damValues_.begin(), most, values.begin());
}

}  // namespace kestra
