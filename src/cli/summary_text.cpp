#include "cli/summary_text.h"

#include <algorithm>

#include "base/paths.h"
#include "cli/terminal_session.h"

namespace kestra {
namespace {

bool hasInstanceValues(const EntryValues& values) {
  return std::any_of(values.begin() + kInstanceOffset, values.end(), [](const std::string& v) { return !v.empty(); });
}

void appendFields(std::string& text, const SummaryStore& store, const EntryValues& values, SummaryLevel level) {
  const auto index = static_cast<std::size_t>(level);
  const std::size_t offset = level == SummaryLevel::dam ? 0 : kInstanceOffset;
  const std::vector<std::string>& titles = store.catalogues().fieldTitles[index];
  for (const int field : store.selection().selectedFields[index]) {
    const auto place = static_cast<std::size_t>(field - 1);
    if (place < titles.size()) text += "  " + titles[place] + ": " + values[offset + place] + "\n";
  }
}

}  // namespace

std::string summaryText(const SummaryStore& store) {
  std::string text;
  for (const SummaryEntry& entry : store.entries()) {
    text += entry.name + "\n";
    appendFields(text, store, entry.values, SummaryLevel::dam);
    // A dam has fields at those places too.
    const bool isInstance = entry.name.find_first_of(std::string("_") + kSeparator) != std::string::npos;
    if (isInstance && hasInstanceValues(entry.values)) appendFields(text, store, entry.values, SummaryLevel::instance);
  }
  return text;
}

int printSummary(const CliOptions& options) {
  TerminalSession session(options);
  Shell& shell = session.application.shell;
  const std::string project = absolutePath(options.project, session.desk.files().currentDirectory());
  shell.startUp("");
  const bool opened = shell.projects.open(project) == Opening::opened;
  if (opened) std::cout << summaryText(session.application.summary);
  shell.end();
  return opened ? 0 : kFailed;
}

}  // namespace kestra
