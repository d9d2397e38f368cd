#include "screens/picture_desk.h"

#include "platform/files.h"

namespace kestra {
namespace {

Result<std::string> makePicture(const PictureDesk& desk, const std::vector<const CanvasLog*>& drawings,
                                PictureForm form, PictureSize size) {
  if (desk.pictures != nullptr) return desk.pictures->make(drawings, form, size);
  return Failure{FailureKind::other, {}, "This program was built without the picture renderer"};
}

}  // namespace

void printPictures(PictureDesk& desk, const std::vector<const CanvasLog*>& pages, PictureSize size,
                   const char* refusal) {
  Ports& ports = desk.base.ports;
  const auto choice = ports.dialogs.choosePrint({});
  if (!choice) return;
  const Result<std::string> document = makePicture(desk, pages, PictureForm::pdf, size);
  const bool printed = document && desk.printer != nullptr && desk.printer->print(document.value(), *choice);
  if (!printed) ports.boxes.tell("Printer Error", refusal, BoxIcon::warning);
}

void copyPicture(PictureDesk& desk, const CanvasLog& drawing, PictureSize size) {
  const Result<std::string> bitmap = makePicture(desk, {&drawing}, PictureForm::bmp, size);
  if (!bitmap) return tellFailure(desk, bitmap.failure());
  desk.base.ports.clipboard.setPicture(bitmap.value());
}

bool savePicture(PictureDesk& desk, const std::string& path, PictureForm form, const CanvasLog& drawing,
                 PictureSize size) {
  const Result<std::string> picture = makePicture(desk, {&drawing}, form, size);
  const Status written =
      picture ? writeWholeFile(desk.base.ports.files, path, picture.value()) : Status(picture.failure());
  if (!written) tellFailure(desk, written.failure());
  return static_cast<bool>(written);
}

PictureSize pictureSizeOf(const Screen& screen) {
  constexpr int kTwipsPerPixel = 15;
  return {screen.width() / kTwipsPerPixel, screen.height() / kTwipsPerPixel};
}

void tellFailure(PictureDesk& desk, const Failure& failure) {
  const std::string place = failure.path.empty() ? "" : failure.path + ": ";
  desk.base.ports.boxes.tell("Error Message", place + failure.reason, BoxIcon::critical);
}

}  // namespace kestra
