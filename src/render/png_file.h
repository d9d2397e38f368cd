#pragma once

#include <QByteArray>
#include <QImage>

namespace kestra {

// The bytes of a PNG file of an image of Format_RGB32. Rows are told by their difference from the row above and packed
// lightly: graphs are few lines on one colour, which become hardly larger by that and are written several times as
// fast.
QByteArray pngFile(const QImage& image);

}  // namespace kestra
