#pragma once

#include "platform/file_system.h"
#include "platform/ini_text.h"
#include "platform/settings_store.h"

namespace kestra {

// Settings in one file, whose form ini_text.h tells. The file is read at the first use; a missing one is empty. A file
// that cannot be read (no permission, a directory of that name, over kReadLimit) gives no values, and set fails without
// touching it.
//
// set reads the file again, so that what another program has put there meanwhile stays, changes its own keys only, and
// writes the file through writeWholeFile, with the directories that are missing. When nothing changes it writes
// nothing. On failure the values hold for this run.
class IniSettings : public SettingsStore {
 public:
  IniSettings(FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}

  std::string get(const std::string& section, const std::string& key, const std::string& otherwise) override;
  Status set(const std::string& section, const Entries& entries) override;

 private:
  void load();
  Result<std::string> readText();
  Status store(const std::string& section, const Entries& entries);

  FileSystem& files_;
  std::string path_;
  bool loaded_ = false;
  IniValues values_;
};

}  // namespace kestra
