// Draws the program's icon in one size: draw_icon SVG SIZE PNG. For the build.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication toolkit(argc, argv);
  const QStringList words = QGuiApplication::arguments();
  if (words.size() != 4) return 2;
  const int size = words[2].toInt();
  QSvgRenderer drawing(words[1]);
  if (!drawing.isValid() || size <= 0) return 1;
  QImage picture(size, size, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing.render(&painter);
  painter.end();
  return picture.save(words[3], "PNG") ? 0 : 1;
}
