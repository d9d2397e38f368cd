#pragma once

#include <memory>

#include "graphics/picture_maker.h"

namespace kestra {

// Draws what canvases show with Qt's painter, without a window and without a display. Sizes of letters and pens follow
// the picture's size, so that a graph looks the same at any. Where the program has no Qt application yet one is made at
// the first use, which lives as long as this.
class QtPictures : public PictureMaker {
 public:
  QtPictures();
  ~QtPictures() override;
  QtPictures(const QtPictures&) = delete;
  QtPictures& operator=(const QtPictures&) = delete;

  Result<std::string> make(const std::vector<const CanvasLog*>& drawings, PictureForm form, PictureSize size) override;
  const TextMetrics& metrics(PictureSize size) override;

 private:
  struct Toolkit;
  void start();

  std::unique_ptr<Toolkit> toolkit_;
  std::unique_ptr<TextMetrics> metrics_;
};

}  // namespace kestra
