#pragma once

#include <string>

namespace kestra {

// The runs that the commands of the input window start on the open control file.
class FileRuns {
 public:
  virtual ~FileRuns() = default;

  // Builds the open control file, asking for one where none is open. True when the last step was reached. What the
  // user has to know is told in boxes meanwhile. With `showProgress` frmProgress shows how far it is.
  virtual bool BuildMyFiles(bool showProgress) = 0;
  // Why the last build reached no end, in a sentence; empty when it did, or when the user ended it.
  virtual std::string whyNot() const = 0;
};

}  // namespace kestra
