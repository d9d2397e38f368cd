#include "platform/ini_settings.h"

#include "base/paths.h"
#include "platform/files.h"

namespace kestra {

std::string IniSettings::get(const std::string& section, const std::string& key, const std::string& otherwise) {
  load();
  const auto found = values_.find(iniName(section, key));
  return found == values_.end() ? otherwise : found->second;
}

Status IniSettings::set(const std::string& section, const Entries& entries) {
  load();
  for (const auto& [key, value] : entries) values_[iniName(section, key)] = value;
  return store(section, entries);
}

void IniSettings::load() {
  if (loaded_) return;
  loaded_ = true;
  if (const Result<std::string> text = readText()) values_ = readIni(text.value());
}

Result<std::string> IniSettings::readText() {
  Result<std::string> text = files_.read(path_, kReadLimit);
  if (text.failedAs(FailureKind::notFound)) return std::string();
  return text;
}

Status IniSettings::store(const std::string& section, const Entries& entries) {
  const Result<std::string> old = readText();
  if (!old) return old.failure();
  std::string text = old.value();
  for (const auto& [key, value] : entries) text = setIniValue(text, section, key, value);
  if (text == old.value()) return Done();
  const std::string directory(directoryOf(path_));
  if (!directory.empty()) {
    if (Status made = makeDirectories(files_, directory); !made) return made;
  }
  return writeWholeFile(files_, path_, text);
}

}  // namespace kestra
