#pragma once

#include <string>

#include "base/result.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/process_host.h"

namespace kestra {

// Port: prints a document. Fails when the printer cannot be reached or refuses it.
class Printer {
 public:
  virtual ~Printer() = default;
  virtual Status print(const std::string& pdf, const PrintChoice& choice) = 0;
};

// Hands the document to the print spooler of the system, the program `lp`, in a file of its own in `directory`, which
// is removed again.
class SpoolPrinter : public Printer {
 public:
  SpoolPrinter(FileSystem& files, ProcessHost& processes, std::string directory)
      : files_(files), processes_(processes), directory_(std::move(directory)) {}

  Status print(const std::string& pdf, const PrintChoice& choice) override;

 private:
  FileSystem& files_;
  ProcessHost& processes_;
  std::string directory_;
};

}  // namespace kestra
