#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "graphics/canvas.h"

namespace kestra {

// One call on a canvas. How many of the numbers count, and what they are, is told by the operation: the arguments of
// AbstractCanvas in their order; place for Print, 0 or 1 for a flag.
struct CanvasCall {
  CanvasOp op = CanvasOp::Scale;
  std::uint32_t text = 0;  // Print: which of the log's texts
  std::array<double, 4> numbers{};
};

// The calls on a canvas since it was wiped, with the state in which it was then: all that is needed to draw it again.
class CanvasLog {
 public:
  void add(CanvasOp op, const std::array<double, 4>& numbers, std::string_view text);
  void clear(const CanvasState& start);
  void replaceBy(const CanvasLog& other);  // as if wiped and drawn anew

  const CanvasState& start() const { return start_; }
  unsigned wipes() const { return wipes_; }  // how often it was wiped
  const std::vector<CanvasCall>& calls() const { return calls_; }
  const std::string& textOf(const CanvasCall& call) const { return texts_[call.text]; }

 private:
  CanvasState start_;
  unsigned wipes_ = 0;
  std::vector<CanvasCall> calls_;
  std::vector<std::string> texts_;
};

// How a call's arguments look: numbers, from `wholeFrom` on whole ones (colours, styles, widths, modes), then a text or
// not; or a flag alone.
struct CallForm {
  int numbers = 0;
  int wholeFrom = 4;
  bool text = false;
  bool flag = false;
};
const CallForm& formOf(CanvasOp op);

// A canvas that remembers its calls.
class RecordingCanvas : public AbstractCanvas {
 public:
  const CanvasLog& log() const { return log_; }
  // Takes over what another canvas shows.
  void show(const CanvasLog& log);

 protected:
  void take(CanvasOp op, const Numbers& numbers, std::string_view text) override;
  void wiped() override;

 private:
  CanvasLog log_;
};

}  // namespace kestra
