#pragma once

#include <string_view>

#include "base/text.h"

namespace kestra {

// Size of a text as fractions of the canvas's width and height.
struct TextSize {
  double width = 0;
  double height = 0;
};

// Measures texts in the font of a canvas.
class TextMetrics {
 public:
  virtual ~TextMetrics() = default;
  virtual TextSize measure(std::string_view text, double fontSize, bool bold) const = 0;
};

// The same on every machine, whatever the font: a hundredth of the width a character, a fortieth of the height.
inline TextSize fixedTextSize(std::string_view text) {
  constexpr double kCharacter = 100;
  constexpr double kLines = 40;
  return {static_cast<double>(charCount(text)) / kCharacter, 1 / kLines};
}

}  // namespace kestra
