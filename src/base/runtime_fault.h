#pragma once

#include <stdexcept>

namespace kestra {

// A run-time fault of an operation: an index outside its table, a value that cannot be converted. It travels to the
// trap that stands over the operation (a command's handler, the automation loop) and no further.
class RuntimeFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace kestra
