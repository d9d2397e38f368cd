#pragma once

#include <string>
#include <vector>

#include "base/numbers.h"
#include "graphics/canvas_log.h"

namespace kestra {

// A call as a line: "Line 0 0 10 5", "Print 1 2 a text", "FontBold 1".
inline std::string describeCall(const CanvasLog& log, const CanvasCall& call) {
  std::string line(nameOf(call.op));
  for (int i = 0; i < formOf(call.op).numbers; ++i) {
    line += " " + generalNumber(call.numbers[static_cast<std::size_t>(i)]);
  }
  if (formOf(call.op).text) line += " " + log.textOf(call);
  return line;
}

// The calls on a canvas; of one kind alone where `name` is given.
inline std::vector<std::string> callsOf(const RecordingCanvas& canvas, const std::string& name = {}) {
  std::vector<std::string> lines;
  for (const CanvasCall& call : canvas.log().calls()) {
    if (name.empty() || nameOf(call.op) == name) lines.push_back(describeCall(canvas.log(), call));
  }
  return lines;
}

// The texts that are printed on a canvas, in their order.
inline std::vector<std::string> textsOn(const RecordingCanvas& canvas) {
  std::vector<std::string> texts;
  for (const CanvasCall& call : canvas.log().calls()) {
    if (call.op == CanvasOp::Print) texts.push_back(canvas.log().textOf(call));
  }
  return texts;
}

}  // namespace kestra
