#include "graphics/canvas_log.h"

namespace kestra {

void CanvasLog::add(CanvasOp op, const std::array<double, 4>& numbers, std::string_view text) {
  std::uint32_t place = 0;
  if (op == CanvasOp::Print) {
    place = static_cast<std::uint32_t>(texts_.size());
    texts_.emplace_back(text);
  }
  calls_.push_back({op, place, numbers});
}

void CanvasLog::clear(const CanvasState& start) {
  start_ = start;
  ++wipes_;
  calls_.clear();
  texts_.clear();
}

void CanvasLog::replaceBy(const CanvasLog& other) {
  const unsigned wipes = wipes_ + 1;
  *this = other;
  wipes_ = wipes;
}

const CallForm& formOf(CanvasOp op) {
  constexpr CallForm kNumber = {1, 4, false, false};
  constexpr CallForm kWhole = {1, 0, false, false};
  constexpr CallForm kFlag = {1, 4, false, true};
  constexpr CallForm kPoint = {2, 4, false, false};
  constexpr CallForm kCorners = {4, 4, false, false};
  constexpr CallForm kCircle = {4, 3, false, false};
  constexpr CallForm kText = {2, 4, true, false};
  static constexpr std::array<CallForm, 16> kForms = {kCorners, kCorners, kCorners, kCorners, kPoint, kCircle,
                                                      kText,    kWhole,   kWhole,   kWhole,   kWhole, kWhole,
                                                      kNumber,  kFlag,    kFlag,    kFlag};
  return kForms[static_cast<std::size_t>(op)];
}

void RecordingCanvas::show(const CanvasLog& log) {
  log_.replaceBy(log);
}

void RecordingCanvas::take(CanvasOp op, const Numbers& numbers, std::string_view text) {
  log_.add(op, numbers, text);
}

void RecordingCanvas::wiped() {
  log_.clear(state());
}

}  // namespace kestra
