#include "results/input_digest.h"

#include "base/fnv1a.h"
#include "base/lines.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/files.h"
#include "results/result_files.h"

namespace kestra {
namespace {

constexpr std::size_t kDigits = 16;

std::string hexadecimal(std::uint64_t value) {
  constexpr std::string_view kNames = "0123456789abcdef";
  std::string text;
  for (int shift = 60; shift >= 0; shift -= 4) text += kNames[value >> shift & 0xFU];
  return text;
}

}  // namespace

std::uint64_t inputDigest(std::string_view controlFileText) {
  constexpr std::string_view kDate = "MODIFIED";
  std::uint64_t hash = fnv1a64({});
  LineReader lines(controlFileText);
  std::string_view line;
  while (lines.next(line)) {
    if (!line.starts_with(kDate)) hash = fnv1a64("\n", fnv1a64(line, hash));
  }
  return hash;
}

std::string inputDigestFile(std::string_view controlFile) {
  const std::string_view name = ParsePathName(controlFile);
  const std::string stem(name.substr(0, name.rfind('.')));
  return joinPath(joinPath(directoryOf(controlFile), ".kestra"), stem + ".input");
}

Status keepInputDigest(FileSystem& files, const std::string& controlFile) {
  if (!toLower(controlFile).ends_with(".ksc")) {
    dropInputDigest(files, controlFile);
    return Done{};
  }
  const std::string path = inputDigestFile(controlFile);
  const auto text = readResultFile(files, controlFile);
  Status kept = text ? makeDirectories(files, std::string(directoryOf(path))) : Status(text.failure());
  if (kept) kept = writeWholeFile(files, path, hexadecimal(inputDigest(text.value())) + "\r\n");
  if (!kept) dropInputDigest(files, controlFile);
  return kept;
}

void dropInputDigest(FileSystem& files, const std::string& controlFile) {
  (void)files.removeFile(inputDigestFile(controlFile));
}

bool differsFromRun(FileSystem& files, const std::string& controlFile, std::uint64_t digest) {
  const auto kept = files.read(inputDigestFile(controlFile), kReadLimit);
  return kept && std::string_view(kept.value()).substr(0, kDigits) != hexadecimal(digest);
}

bool inputHasChanged(FileSystem& files, const std::string& controlFile) {
  const auto kept = files.read(inputDigestFile(controlFile), kReadLimit);
  if (!kept) return false;
  const auto text = readResultFile(files, controlFile);
  return !text || std::string_view(kept.value()).substr(0, kDigits) != hexadecimal(inputDigest(text.value()));
}

}  // namespace kestra
