#include "render/qt_pictures.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QGuiApplication>
#include <QImage>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "graphics/draw_frame.h"
#include "graphics/draw_series.h"
#include "render/painter_brush.h"

namespace kestra {
namespace {

constexpr std::uint32_t kRed = 0x0000FF;
constexpr std::uint32_t kBlue = 0xFF0000;

struct Pictures : testing::Test {
  Pictures() { canvas.Scale(0, 0, 100, 50); }

  QImage image(PictureSize size = {200, 100}) {
    const Result<std::string> bytes = pictures.make({&canvas.log()}, PictureForm::png, size);
    EXPECT_TRUE(bytes);
    return QImage::fromData(QByteArray(bytes.value().data(), static_cast<qsizetype>(bytes.value().size())));
  }
  std::string bytes(PictureForm form, PictureSize size = {200, 100}) {
    return pictures.make({&canvas.log()}, form, size).value();
  }

  QtPictures pictures;
  RecordingCanvas canvas;
};

TEST_F(Pictures, beginAsTheirFormDoes) {
  canvas.Print("text");
  EXPECT_EQ(bytes(PictureForm::png).substr(1, 3), "PNG");
  EXPECT_EQ(bytes(PictureForm::bmp).substr(0, 2), "BM");
  EXPECT_EQ(bytes(PictureForm::pdf).substr(0, 5), "%PDF-");
  const std::string svg = bytes(PictureForm::svg);
  EXPECT_EQ(svg.substr(0, 5), "<?xml");
  EXPECT_NE(svg.find("viewBox=\"0 0 200 100\""), std::string::npos);
  EXPECT_NE(svg.find(">text<"), std::string::npos);
}

TEST_F(Pictures, areTheSameAsPngAndAsBitmap) {
  canvas.ForeColor(kRed);
  canvas.Line(0, 0, 100, 50);
  canvas.Print("text");
  for (const PictureSize size : {PictureSize{1, 1}, {3, 2}, {200, 100}, {641, 333}}) {
    const std::string bitmap = bytes(PictureForm::bmp, size);
    const QByteArray raw(bitmap.data(), static_cast<qsizetype>(bitmap.size()));
    EXPECT_EQ(image(size).convertToFormat(QImage::Format_RGB32),
              QImage::fromData(raw).convertToFormat(QImage::Format_RGB32));
  }
}

TEST_F(Pictures, haveTheSizeThatIsAskedFor) {
  const QImage small = image({31, 17});
  EXPECT_EQ(small.width(), 31);
  EXPECT_EQ(small.height(), 17);
}

TEST_F(Pictures, refuseSizesThatNoPictureHas) {
  for (const PictureSize size : {PictureSize{0, 10}, {10, -1}, {20001, 10}, {10, 20001}}) {
    const auto made = pictures.make({&canvas.log()}, PictureForm::png, size);
    ASSERT_FALSE(made);
    EXPECT_EQ(made.failure().reason, "The size of a picture is from 1 to 20000 pixels");
  }
}

TEST_F(Pictures, holdSeveralDrawingsAsPagesOfAPdf) {
  const std::vector<const CanvasLog*> two = {&canvas.log(), &canvas.log()};
  EXPECT_NE(pictures.make(two, PictureForm::pdf, {200, 100}).value().find("/Count 2"), std::string::npos);
  EXPECT_EQ(pictures.make(two, PictureForm::png, {200, 100}).failure().reason, "Only a PDF holds several drawings");
  EXPECT_EQ(pictures.make({}, PictureForm::pdf, {200, 100}).failure().reason, "There is nothing to draw");
}

TEST_F(Pictures, embedTheirFontsInAPdf) {
  canvas.Print("text");
  EXPECT_NE(bytes(PictureForm::pdf).find("/FontFile2"), std::string::npos);
}

TEST_F(Pictures, haveColoursWithRedInTheLowByte) {
  canvas.BackColor(kBlue);
  canvas.Cls();
  canvas.ForeColor(kRed);
  canvas.FilledBox(50, 25, 100, 50);
  const QImage shown = image();
  EXPECT_EQ(shown.pixelColor(10, 10), QColor(0, 0, 255));
  EXPECT_EQ(shown.pixelColor(150, 75), QColor(255, 0, 0));
}

TEST_F(Pictures, haveABandThatWipesItselfOut) {
  canvas.FilledBox(20, 10, 60, 40);
  const QImage before = image();
  canvas.DrawMode(kInvertMode);
  canvas.Box(10, 5, 80, 45);
  EXPECT_NE(image(), before);
  canvas.Box(10, 5, 80, 45);
  EXPECT_EQ(image(), before);
}

TEST_F(Pictures, showLinesBoxesPointsCirclesAndTexts) {
  const QImage empty = image();
  const std::function<void()> drawings[] = {[this] { canvas.Line(0, 0, 100, 50); },
                                            [this] { canvas.Box(10, 10, 20, 20); },
                                            [this] { canvas.PSet(50, 25); },
                                            [this] { canvas.Circle(50, 25, 10, kRed); },
                                            [this] { canvas.Circle(50, 25, 0, kRed); },
                                            [this] { canvas.Print("x"); }};
  for (const auto& draw : drawings) {
    canvas.Cls();
    draw();
    EXPECT_NE(image(), empty);
  }
}

TEST_F(Pictures, followTheWindowOfTheCanvas) {
  canvas.Scale(0, 100, 10, 200);
  canvas.FilledBox(0, 100, 5, 150);
  const QImage shown = image();
  EXPECT_EQ(shown.pixelColor(50, 25), QColor(0, 0, 0));
  EXPECT_EQ(shown.pixelColor(150, 25), QColor(255, 255, 255));
  EXPECT_EQ(shown.pixelColor(50, 75), QColor(255, 255, 255));
}

TEST_F(Pictures, measureTextsAsTheyComeOut) {
  const TextMetrics& metrics = pictures.metrics({688, 440});
  const TextSize one = metrics.measure("m", 8.25, false);
  EXPECT_GT(one.width, metrics.measure("i", 8.25, false).width);
  EXPECT_NEAR(metrics.measure("mm", 8.25, false).width, 2 * one.width, 1e-3);
  EXPECT_GT(metrics.measure("m", 16, false).height, 1.5 * one.height);
  // Letters grow with the picture, so that their share of it stays.
  const double share = one.width;
  EXPECT_NEAR(pictures.metrics({2 * 688, 2 * 440}).measure("m", 8.25, false).width, share, 0.1 * share);
}

TEST_F(Pictures, needNoDisplay) {
  canvas.Print("text");
  (void)image();
  EXPECT_EQ(QGuiApplication::platformName(), "offscreen");
}

// Whether all pixels round a place have one colour: it lies in the middle of ink or of ground, not at an edge.
bool isPlain(const QImage& shown, int x, int y) {
  for (int dx = -1; dx <= 1; ++dx) {
    for (int dy = -1; dy <= 1; ++dy) {
      if (shown.valid(x + dx, y + dy) && shown.pixel(x + dx, y + dy) != shown.pixel(x, y)) return false;
    }
  }
  return true;
}

QImage painted(const CanvasLog& log, PictureSize size, int columns) {
  QImage image(size.width, size.height, QImage::Format_RGB32);
  QPainter painter(&image);
  PainterBrush brush(painter, true);
  replay(log, size, columns, brush);
  painter.end();
  return image;
}

TEST_F(Pictures, lookTheSameToTheEyeWhenLinesAreThinned) {
  View window = {0, 200, 0, 1000};
  ScaleMemo memo;
  SeriesStore series;
  LineSettings lines;
  lines.ColorList.fill(kRed);
  lines.WidthList.fill(1);
  series.begin(2);
  std::mt19937 random(5);
  std::normal_distribution<double> noise(0, 30);
  for (int i = 0; i < 20000; ++i) {
    series.add(0, i / 100.0, 500 + 400 * std::sin(i / 900.0));
    series.add(1, i / 100.0, 500 + noise(random));  // many peaks to a column
  }
  const GraphSheet sheet = {window, memo, series, lines};
  DrawSeriesLines(sheet, canvas);
  const PictureSize size = {1200, 800};
  const QImage full = painted(canvas.log(), size, std::numeric_limits<int>::max());
  const QImage thin = painted(canvas.log(), size, size.width);
  int differing = 0;
  int plain = 0;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      if (full.pixel(x, y) == thin.pixel(x, y)) continue;
      ++differing;
      if (isPlain(full, x, y) && isPlain(thin, x, y)) ++plain;
    }
  }
  EXPECT_EQ(plain, 0);
  EXPECT_LT(differing, size.width * size.height / 50);
}

}  // namespace
}  // namespace kestra
