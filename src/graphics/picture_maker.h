#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "base/text.h"
#include "graphics/canvas_replay.h"

namespace kestra {

enum class PictureForm { png, svg, pdf, bmp };

// The form that a name's extension, or the extension alone, stands for; nothing for any other.
inline std::optional<PictureForm> pictureForm(std::string_view name) {
  constexpr std::string_view kNames[] = {"png", "svg", "pdf", "bmp"};
  const std::string_view extension = name.substr(name.rfind('.') + 1);
  for (int i = 0; i < 4; ++i) {
    if (equalIgnoringCase(extension, kNames[i])) return static_cast<PictureForm>(i);
  }
  return std::nullopt;
}

inline constexpr int kMostPixels = 20000;  // in width and in height

// Makes pictures of what canvases show, without a window.
class PictureMaker {
 public:
  virtual ~PictureMaker() = default;

  // The bytes of a picture file: a page a drawing where there are several, which is for PDF alone. Fails for a size
  // outside 1 to kMostPixels and for one that the memory does not hold.
  virtual Result<std::string> make(const std::vector<const CanvasLog*>& drawings, PictureForm form,
                                   PictureSize size) = 0;
  // Measures texts as they come out on a picture of that size; lives as long as the maker, until the next call.
  virtual const TextMetrics& metrics(PictureSize size) = 0;
};

}  // namespace kestra
