#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/result.h"

namespace kestra {

// Port: the settings of the user, by section and key. Names are compared without regard to the case of ASCII letters.
class SettingsStore {
 public:
  using Entries = std::vector<std::pair<std::string, std::string>>;  // key, value

  virtual ~SettingsStore() = default;
  // The value, or `otherwise` where the key is not set or the settings cannot be read.
  virtual std::string get(const std::string& section, const std::string& key, const std::string& otherwise) = 0;
  // Sets all entries at once and durably. On failure nothing on disk has changed; the values hold for this run.
  virtual Status set(const std::string& section, const Entries& entries) = 0;
};

}  // namespace kestra
