#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace kestra {

// The digests of an entry: full paths of those that are there.
struct EntryDigests {
  std::optional<std::string> dam;
  std::optional<std::string> instance;
  bool ofInstance = false;  // the entry is an instance, whether or not its digest is there
};

// Finds digests by the names of entries, whatever the letter case of the files; each directory is listed once at most,
// so that one object serves one reading.
//
// "run" is a dam's run with the digest run.DIS; one of run/run.DIS counts as an instance's. A name with "_" behind its
// first character is an instance: "run1_0" has the digest run1/run1_0.DIS, or run/run1_0.DIS (1 to 3 at the end being
// the number of the spillway), and the dam's is run1.DIS or run.DIS. Where an instance's digest is missing and
// run1_0.DIS stands in the project, it is a dam's run of that name. A name that leads out of the project has no digest.
class DigestPlaces {
 public:
  DigestPlaces(FileSystem& files, std::string projectDirectory);

  EntryDigests find(std::string_view name);

 private:
  std::optional<std::string> digestAt(const std::string& pathInProject);
  bool leadsOut(std::string_view name) const;
  const std::vector<DirectoryEntry>& listing(const std::string& directory);

  FileSystem& files_;
  std::string project_;
  std::map<std::string, std::vector<DirectoryEntry>> listings_;
};

}  // namespace kestra
