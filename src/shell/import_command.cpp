#include "shell/import_command.h"

#include <algorithm>
#include <array>

#include "base/fields.h"
#include "base/lines.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/files.h"
#include "shell/run_files.h"

namespace kestra {
namespace {

constexpr std::array<std::string_view, 4> kFirstRecords = {"TORVE", "VERN2", "QUIL", "KESTRA"};
constexpr int kField = 10;             // columns of a field
constexpr std::size_t kLinkFrom = 20;  // characters before the name of the dam's results

std::string_view keywordOf(std::string_view line) {
  return trim(columns(line, 1, kField));
}

std::string stated(const Failure& failure) {
  return failure.path + ": " + failure.reason;
}

}  // namespace

bool beginsLikeControlFile(std::string_view text) {
  std::string_view line;
  LineReader(text).next(line);
  return std::find(kFirstRecords.begin(), kFirstRecords.end(), keywordOf(line)) != kFirstRecords.end();
}

std::string importedText(std::string_view source, const std::string& target) {
  const std::string results = joinPath(directoryOf(target), stemOf(ParsePathName(target))) + ".OUT";
  std::string text;
  LineReader reader(source);
  std::string_view line;
  while (reader.next(line)) {
    const bool links = reader.lineNumber() > 1 && keywordOf(line) == "KESTRA" && charCount(line) > kLinkFrom;
    text.append(links ? charsFrom(line, 0, kLinkFrom) : line);
    if (links) text.append(results);
    text.append(kCrLf);
  }
  return text;
}

ImportCommand::ImportCommand(FileDesk& desk) : desk_(desk) {
  setAction(desk.window.mnuImport, desk, [this] { import(); });
}

void ImportCommand::import() {
  if (desk_.state().projectDir.empty()) return;
  FileDialog dialog;
  dialog.title = "Import File";
  dialog.filter = kOpenFilter;
  dialog.filterIndex = kControlFilesOnly;
  dialog.several = true;
  const auto chosen = desk_.context.ports.dialogs.chooseFiles(dialog);
  if (!chosen) return;
  if (chosen->empty() || chosen->front().empty()) {
    fail("File Import Error");
    return;
  }
  for (const std::string& source : *chosen) {
    if (!importFile(absolutePath(source, desk_.files().currentDirectory()))) return;
  }
}

bool ImportCommand::importFile(const std::string& source) {
  FileSystem& files = desk_.files();
  const std::string target = joinPath(desk_.state().projectDir, ParsePathName(source));
  const auto from = files.canonical(source);
  const auto to = files.canonical(target);
  if (source == target || (from && to && from.value() == to.value())) {
    desk_.boxes().tell("Import Error",
                       "The selected file cannot be imported. The source file is the same as the destination file.",
                       BoxIcon::warning);
    return true;
  }
  const bool replaces = exists(files, target);
  if (replaces && !mayReplace(target)) return true;
  const auto text = files.read(source, kReadLimit);
  if (!text) return fail("File Import Error\r\n" + stated(text.failure()));
  if (!beginsLikeControlFile(text.value())) return fail("Invalid Import File");
  const Status written = writeWholeFile(files, target, importedText(text.value(), target));
  if (!written) return fail("File Import Error\r\n" + stated(written.failure()));
  if (replaces) removeResults(target);
  return true;
}

bool ImportCommand::mayReplace(const std::string& target) {
  return desk_.boxes().confirm(
      "Import Files", "The file " + std::string(ParsePathName(target)) + " already exists. Do you want to replace it?");
}

// What cannot be removed stays; the next build of the file clears it away.
void ImportCommand::removeResults(const std::string& target) {
  const auto entries = desk_.files().list(desk_.state().projectDir);
  if (!entries) return;
  for (const std::string& name : filesOfRun(entries.value(), ParsePathName(target))) {
    (void)removeTree(desk_.files(), joinPath(desk_.state().projectDir, name));
  }
}

bool ImportCommand::fail(const std::string& text) {
  desk_.boxes().tell(kErrorTitle, text, BoxIcon::warning);
  return false;
}

}  // namespace kestra
