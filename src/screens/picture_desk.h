#pragma once

#include <string>
#include <vector>

#include "graphics/picture_maker.h"
#include "platform/printer.h"
#include "screens/screen_context.h"

namespace kestra {

// What a screen works with that shows drawings: what every screen is given, and who makes and prints pictures.
struct PictureDesk {
  ScreenContext& base;
  PictureMaker* pictures = nullptr;  // null: a program that makes none
  Printer* printer = nullptr;        // likewise
};

// The commands on what canvases show. What goes wrong is told in a box.

// Asks how to print, and prints the drawings, a page each. `refusal` is told when it cannot be done.
void printPictures(PictureDesk& desk, const std::vector<const CanvasLog*>& pages, PictureSize size,
                   const char* refusal);
void copyPicture(PictureDesk& desk, const CanvasLog& drawing, PictureSize size);
// Writes a picture file, whole or not at all; true when it was.
bool savePicture(PictureDesk& desk, const std::string& path, PictureForm form, const CanvasLog& drawing,
                 PictureSize size);

PictureSize pictureSizeOf(const Screen& screen);  // of its canvases: as many pixels as it takes up

void tellFailure(PictureDesk& desk, const Failure& failure);

}  // namespace kestra
