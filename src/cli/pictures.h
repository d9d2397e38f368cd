#pragma once

#include <memory>

#include "graphics/picture_maker.h"

namespace kestra {

// What this program makes pictures with; null when it was built without.
std::unique_ptr<PictureMaker> makePictures();

}  // namespace kestra
