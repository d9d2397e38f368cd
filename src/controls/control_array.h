#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <string>
#include <utility>

#include "base/runtime_fault.h"
#include "controls/screen.h"

namespace kestra {

// Name of a member of a control array: "optNone(0)".
inline std::string memberName(const std::string& name, int index) {
  return name + "(" + std::to_string(index) + ")";
}

// Controls under one name with an index, counted from the array's first index.
template <class C>
class ControlArray {
 public:
  // Members first to first + count - 1, each made with the arguments behind its name, such as the group of an option.
  template <class... Args>
  ControlArray(Screen& screen, const std::string& name, int first, int count, Args&&... args) : first_(first) {
    for (int i = 0; i < count; ++i) members_.emplace_back(screen, memberName(name, first + i), args...);
  }

  // A member for each of `own`, which is its first argument behind the name: its option group, its caption.
  template <class Own, std::size_t count, class... Args>
  ControlArray(Screen& screen, const std::string& name, int first, std::array<Own, count>& own, const Args&... args)
      : first_(first) {
    for (Own& each : own) {
      const int index = first + static_cast<int>(members_.size());
      members_.emplace_back(screen, memberName(name, index), each, args...);
    }
  }

  C& operator()(int index) { return members_[at(index)]; }
  const C& operator()(int index) const { return members_[at(index)]; }
  int first() const { return first_; }
  int last() const { return first_ + static_cast<int>(members_.size()) - 1; }
  auto begin() { return members_.begin(); }
  auto end() { return members_.end(); }

 private:
  std::size_t at(int index) const {
    if (index < first_ || index > last()) throw RuntimeFault("subscript out of range");
    return static_cast<std::size_t>(index - first_);
  }

  int first_;
  std::deque<C> members_;
};

}  // namespace kestra
