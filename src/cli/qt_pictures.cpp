#include "render/qt_pictures.h"

#include "cli/pictures.h"

namespace kestra {

std::unique_ptr<PictureMaker> makePictures() {
  return std::make_unique<QtPictures>();
}

}  // namespace kestra
