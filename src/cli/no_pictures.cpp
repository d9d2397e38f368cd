#include "cli/pictures.h"

namespace kestra {

std::unique_ptr<PictureMaker> makePictures() {
  return nullptr;
}

}  // namespace kestra
