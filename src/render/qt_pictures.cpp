#include "render/qt_pictures.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QMarginsF>
#include <QPageSize>
#include <QPdfWriter>

#include "graphics/svg_file.h"
#include "render/painter_brush.h"
#include "render/png_file.h"

namespace kestra {
namespace {

constexpr int kPixelsPerInch = 96;

Failure failure(const char* reason) {
  return {FailureKind::other, {}, reason};
}

std::string bytesOf(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

Result<std::string> paintImage(const CanvasLog& drawing, PictureForm form, PictureSize size) {
  QImage image(size.width, size.height, QImage::Format_RGB32);
  if (image.isNull()) return failure("The picture is too large for the memory");
  constexpr int kDotsPerMeter = 3780;
  image.setDotsPerMeterX(kDotsPerMeter);
  image.setDotsPerMeterY(kDotsPerMeter);
  QPainter painter(&image);
  PainterBrush brush(painter, true);
  replay(drawing, size, size.width, brush);
  painter.end();
  if (form == PictureForm::png) return bytesOf(pngFile(image));
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "BMP")) return failure("The picture could not be encoded");
  return bytesOf(buffer.data());
}

Result<std::string> paintPdf(const std::vector<const CanvasLog*>& drawings, PictureSize size) {
  constexpr int kDotsPerInch = 1200;
  constexpr int kFiner = 4;  // columns a pixel: a page is looked at closely
  constexpr double kPointsPerPixel = 72.0 / kPixelsPerInch;
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kDotsPerInch);
  writer.setPageSize(
      QPageSize(QSizeF(size.width, size.height) * kPointsPerPixel, QPageSize::Point, {}, QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF());
  writer.setCreator(QStringLiteral("Kestra B"));
  QPainter painter(&writer);
  painter.scale(static_cast<double>(kDotsPerInch) / kPixelsPerInch, static_cast<double>(kDotsPerInch) / kPixelsPerInch);
  PainterBrush brush(painter, false);
  for (std::size_t i = 0; i < drawings.size(); ++i) {
    if (i > 0) writer.newPage();
    replay(*drawings[i], size, kFiner * size.width, brush);
  }
  painter.end();
  return bytesOf(buffer.data());
}

// While it lives Qt keeps its warnings to itself: starting without a desktop session brings some.
class QtSilence {
 public:
  QtSilence() : before_(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {})) {}
  ~QtSilence() { qInstallMessageHandler(before_); }
  QtSilence(const QtSilence&) = delete;
  QtSilence& operator=(const QtSilence&) = delete;

 private:
  QtMessageHandler before_;
};

}  // namespace

// The Qt application that painting texts needs, on a platform without a display.
struct QtPictures::Toolkit {
  QtSilence silence;
  std::string name = "kestra";
  std::string option = "-platform";
  std::string platform = "offscreen";
  std::array<char*, 4> words = {name.data(), option.data(), platform.data(), nullptr};
  int count = 3;
  QGuiApplication application{count, words.data()};
};

QtPictures::QtPictures() = default;
QtPictures::~QtPictures() = default;

void QtPictures::start() {
  if (QCoreApplication::instance() == nullptr) toolkit_ = std::make_unique<Toolkit>();
}

Result<std::string> QtPictures::make(const std::vector<const CanvasLog*>& drawings, PictureForm form,
                                     PictureSize size) {
  const auto fits = [](int pixels) { return pixels >= 1 && pixels <= kMostPixels; };
  if (!fits(size.width) || !fits(size.height)) return failure("The size of a picture is from 1 to 20000 pixels");
  if (drawings.empty()) return failure("There is nothing to draw");
  if (drawings.size() > 1 && form != PictureForm::pdf) return failure("Only a PDF holds several drawings");
  start();
  switch (form) {
    case PictureForm::png:
    case PictureForm::bmp:
      return paintImage(*drawings.front(), form, size);
    case PictureForm::svg:
      return svgFile(*drawings.front(), size);
    case PictureForm::pdf:
      return paintPdf(drawings, size);
  }
  return failure("There is no such form of picture");
}

const TextMetrics& QtPictures::metrics(PictureSize size) {
  start();
  metrics_ = std::make_unique<PainterMetrics>(size, pictureScale(size));
  return *metrics_;
}

}  // namespace kestra
