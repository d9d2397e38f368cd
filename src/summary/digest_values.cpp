#include "summary/digest_values.h"

#include <algorithm>

#include "base/lines.h"
#include "base/text.h"
#include "results/result_files.h"

namespace kestra {
namespace {

std::string_view valueIn(std::string_view line) {
  line = trim(line);
  const bool quoted = line.size() > 1 && line.starts_with('"') && line.ends_with('"');
  return quoted ? line.substr(1, line.size() - 2) : line;
}

}  // namespace

void fillValues(EntryValues& values, std::size_t offset, std::size_t count, std::string_view text) {
  const std::size_t end = std::min(offset + count, values.size());
  for (std::size_t i = offset; i < end; ++i) values[i] = text;
}

void takeDigest(FileSystem& files, EntryValues& values, const std::string& path, std::size_t offset, std::size_t most) {
  const auto text = readResultFile(files, path);
  fillValues(values, offset, most, text ? std::string_view() : kNotAvailable);
  if (!text) return;
  LineReader lines(text.value());
  std::string_view line;
  for (std::size_t at = offset; at < std::min(offset + most, values.size()) && lines.next(line); ++at) {
    values[at] = valueIn(line);
  }
}

}  // namespace kestra
