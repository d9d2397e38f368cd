#pragma once

#include <cerrno>
#include <string>
#include <utility>

namespace kestra {

// An open file of the system; closed when this goes. Negative: none.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept;
  ~Descriptor() { close(); }

  int number() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }
  bool close();  // false, with errno, when what was written could not be kept
  int release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

// Calls again as long as a signal interrupts.
template <class Call>
auto untilDone(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

// Opens a file that no program started from here inherits; none, with errno, on failure. `mode` as for a new file.
Descriptor openFile(const std::string& path, int flags, unsigned mode = 0666);

// The same file under a number above 2, so that it can become a standard input or output of another program whatever
// this program has closed; none, with errno, on failure.
Descriptor aboveStandard(Descriptor file);

}  // namespace kestra
