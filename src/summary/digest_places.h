#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/file_system.h"

namespace kestra {

// The digests of an entry: full paths of those that are there.
struct EntryDigests {
  std::optional<std::string> dam;
  std::optional<std::string> instance;
  bool ofInstance = false;  // the entry is an instance, whether or not its digest is there
};

// Where the files of an entry stand, and those of the dam's run that it belongs to: full paths without extension. Both
// are empty for a name that leads out of the project.
struct EntryPlace {
  std::string stem;
  std::string run;
  bool ofInstance = false;
};

// Finds digests by the names of entries, whatever the letter case of the files; each directory is listed once at most,
// so that one object serves one reading.
//
// "run" is a dam's run with the digest run.DIS; one of run/run.DIS counts as an instance's. A name with "_" behind its
// first character is an instance: "run1_0" has the digest run1/run1_0.DIS, or run/run1_0.DIS (1 to 3 at the end being
// the number of the spillway), and the dam's is run1.DIS or run.DIS. Where an instance's digest is missing and
// run1_0.DIS stands in the project, it is a dam's run of that name. A name with a separator is the path of an
// instance's digest in the project, "run/run1_0/a", of the dam run. A name that leads out of the project has no digest.
class DigestPlaces {
 public:
  DigestPlaces(FileSystem& files, std::string projectDirectory);

  EntryDigests find(std::string_view name);

  // The place by the digest that is found; without one by the name alone, the number of the spillway being dropped
  // where the directory with it does not exist.
  EntryPlace place(std::string_view name);

 private:
  using Names = std::unordered_multimap<std::string, std::string>;  // of a directory, by their letters in lower case

  std::optional<std::string> digestAt(const std::string& pathInProject);
  bool leadsOut(std::string_view name) const;
  const Names& listing(const std::string& directory);

  FileSystem& files_;
  std::string project_;
  std::string absolute_;  // the same from the root on, with a separator at its end
  std::map<std::string, Names> listings_;
};

}  // namespace kestra
