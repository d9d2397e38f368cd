#include "cli/pictures.h"

#ifdef KESTRA_PICTURES
#include "render/qt_pictures.h"
#endif

namespace kestra {

std::unique_ptr<PictureMaker> makePictures() {
#ifdef KESTRA_PICTURES
  return std::make_unique<QtPictures>();
#else
  return nullptr;
#endif
}

}  // namespace kestra
