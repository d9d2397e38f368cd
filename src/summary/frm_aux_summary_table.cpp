#include "summary/frm_aux_summary_table.h"

#include <algorithm>
#include <limits>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "summary/digest_values.h"

namespace kestra {
namespace {

constexpr const char* kHeader = "Summary Table - Aux. Spillway, One Run - All Instances";
constexpr std::string_view kDigest = ".dis";
constexpr std::size_t kMostLines = 35;

std::string_view stemOf(std::string_view digest) {
  return digest.substr(0, digest.size() - kDigest.size());
}

long long instanceOf(std::string_view digest) {
  const std::string_view stem = stemOf(digest);
  return wholeNumber(stem.substr(stem.rfind('_') + 1)).value_or(std::numeric_limits<long long>::max());
}

// Names of the digests in a directory that begin with `start`, by instance.
std::vector<std::string> digestsIn(FileSystem& files, const std::string& directory, const std::string& start) {
  std::vector<std::string> names;
  const auto listed = files.list(directory);
  if (!listed) return names;
  for (const DirectoryEntry& entry : listed.value()) {
    const std::string_view name = entry.name;
    if (entry.type == FileStatus::Type::directory || name.size() < start.size() + kDigest.size()) continue;
    const bool fits = equalIgnoringCase(name.substr(0, start.size()), start) &&
                      equalIgnoringCase(name.substr(stemOf(name).size()), kDigest);
    if (fits) names.emplace_back(name);
  }
  std::stable_sort(names.begin(), names.end(),
                   [](const std::string& a, const std::string& b) { return instanceOf(a) < instanceOf(b); });
  return names;
}

}  // namespace

frmAuxSummaryTable::frmAuxSummaryTable(SummaryContext& context)
    : SummaryTableScreen(context, "frmAuxSummaryTable", "Auxiliary Summary Table", kHeader) {}

void frmAuxSummaryTable::unload() {
  SummaryTableScreen::unload();
  entries_.clear();
  folder_.clear();
}

void frmAuxSummaryTable::followRun() {
  if (folder_.empty()) return;
  readDigests();
  BuildTable();
}

bool frmAuxSummaryTable::LoadAuxSumDISFiles(const std::string& folder, int spillway) {
  entries_.clear();
  const std::string whole = absolutePath(folder, context_.ports().files.currentDirectory());
  const std::string_view run = ParsePathName(whole);
  start_ = std::string(run.substr(0, run.find('.'))) + std::to_string(spillway) + "_";
  folder_ = context_.runs.checkedDirectory(joinPath(whole, start_));
  if (folder_.empty()) return false;
  readDigests();
  return true;
}

void frmAuxSummaryTable::readDigests() {
  entries_.clear();
  FileSystem& files = context_.ports().files;
  for (const std::string& digest : digestsIn(files, folder_, start_)) {
    SummaryEntry& entry = entries_.named(std::string(stemOf(digest)));
    entry.ofInstance = true;
    takeDigest(files, entry.values, joinPath(folder_, digest), kInstanceOffset, kMostLines);
  }
}

EntryPlace frmAuxSummaryTable::placeOf(DigestPlaces&, const std::string& name) {
  return {joinPath(folder_, name), folder_, true};
}

void frmAuxSummaryTable::viewAll() {
  if (entries_.size() > 0) showAll(rowsOfAll(entries_), kHeader);
}

}  // namespace kestra
