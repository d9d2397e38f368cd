#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace kestra {

// Where in the control file something was found: the record and its line, or the row's; no record for the run itself.
struct Place {
  std::string record;
  std::size_t line = 0;
};

// What the engine has to tell the engineer, in the order in which it was found: lines "***** ERROR - what (RECORD, line
// N): what was done" and "***** WARNING - ...". No more than `kMostOfARecord` of each record are kept; how many were
// passed over is told instead.
class RunMessages {
 public:
  static constexpr int kMostOfARecord = 25;

  void warning(const Place& place, const std::string& what, const std::string& done) {
    add("WARNING", place, what, done);
  }
  void error(const Place& place, const std::string& what, const std::string& done);

  bool hasErrors() const { return errors_ > 0; }
  std::vector<std::string> lines() const;

 private:
  void add(const std::string& severity, const Place& place, const std::string& what, const std::string& done);

  std::vector<std::string> lines_;
  std::map<std::string, int> ofRecord_;
  int errors_ = 0;
};

}  // namespace kestra
