#pragma once

#include <string>
#include <utility>
#include <variant>

// What an operation on the world (files, processes) comes back with: a value, or the failure with its place.
namespace kestra {

enum class FailureKind {
  notFound,     // there is no such file or directory: a finding, often not a fault
  exists,       // something of that name stands there already
  denied,       // no permission, or a read-only file system
  full,         // no room on the disk, or a quota is used up
  wrongType,    // a directory where a file was meant, or a file where a directory was meant
  invalidName,  // empty, too long, or with a character that no name may have
  tooLarge,     // above the limit that the caller set
  busy,         // held by another program
  other
};

struct Failure {
  FailureKind kind = FailureKind::other;
  std::string path;    // what the operation was about
  std::string reason;  // the system's own words, such as "No space left on device"
};

template <class T>
class [[nodiscard]] Result {
 public:
  Result(T value) : held_(std::move(value)) {}
  Result(Failure failure) : held_(std::move(failure)) {}

  explicit operator bool() const { return std::holds_alternative<T>(held_); }
  const T& value() const& { return std::get<T>(held_); }
  T&& value() && { return std::get<T>(std::move(held_)); }
  const Failure& failure() const { return std::get<Failure>(held_); }
  bool failedAs(FailureKind kind) const { return !*this && failure().kind == kind; }

 private:
  std::variant<T, Failure> held_;
};

struct Done {};
using Status = Result<Done>;

}  // namespace kestra
