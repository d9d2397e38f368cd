#include "render/png_file.h"

#include <QtEndian>
#include <array>
#include <cstdint>
#include <vector>

namespace kestra {
namespace {

constexpr std::array<std::uint32_t, 256> checksumTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t i = 0; i < table.size(); ++i) {
    std::uint32_t value = i;
    for (int bit = 0; bit < 8; ++bit) value = (value & 1U) != 0 ? 0xEDB88320U ^ (value >> 1U) : value >> 1U;
    table[i] = value;
  }
  return table;
}

std::uint32_t checksum(const QByteArray& bytes) {
  static constexpr std::array<std::uint32_t, 256> kTable = checksumTable();
  std::uint32_t value = 0xFFFFFFFFU;
  for (const char c : bytes) value = kTable[(value ^ static_cast<unsigned char>(c)) & 0xFFU] ^ (value >> 8U);
  return ~value;
}

void appendNumber(QByteArray& bytes, std::uint32_t number) {
  const quint32 ordered = qToBigEndian(number);
  bytes.append(reinterpret_cast<const char*>(&ordered), sizeof ordered);
}

void appendChunk(QByteArray& file, const char* type, const QByteArray& content) {
  appendNumber(file, static_cast<std::uint32_t>(content.size()));
  const QByteArray sealed = type + content;
  file += sealed;
  appendNumber(file, checksum(sealed));
}

QByteArray header(const QImage& image) {
  constexpr char kEightBitRgb[] = {8, 2, 0, 0, 0};  // depth, colour, compression, filter, interlace
  QByteArray content;
  appendNumber(content, static_cast<std::uint32_t>(image.width()));
  appendNumber(content, static_cast<std::uint32_t>(image.height()));
  return content.append(kEightBitRgb, sizeof kEightBitRgb);
}

// The rows of the image, three bytes a pixel, each less the row above and behind the mark of that.
QByteArray differences(const QImage& image) {
  constexpr char kUp = 2;
  const qsizetype width = image.width();
  QByteArray rows((3 * width + 1) * image.height(), Qt::Uninitialized);
  const std::vector<QRgb> none(static_cast<std::size_t>(width), 0);
  const QRgb* above = none.data();
  char* out = rows.data();
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    *out++ = kUp;
    for (qsizetype x = 0; x < width; ++x) {
      *out++ = static_cast<char>(qRed(row[x]) - qRed(above[x]));
      *out++ = static_cast<char>(qGreen(row[x]) - qGreen(above[x]));
      *out++ = static_cast<char>(qBlue(row[x]) - qBlue(above[x]));
    }
    above = row;
  }
  return rows;
}

}  // namespace

QByteArray pngFile(const QImage& image) {
  constexpr int kLight = 1;
  constexpr int kLengthField = 4;  // that qCompress puts before its stream
  QByteArray file("\x89PNG\r\n\x1a\n");
  appendChunk(file, "IHDR", header(image));
  appendChunk(file, "IDAT", qCompress(differences(image), kLight).mid(kLengthField));
  appendChunk(file, "IEND", {});
  return file;
}

}  // namespace kestra
