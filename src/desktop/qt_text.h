#pragma once

#include <QColor>
#include <QString>
#include <cstdint>
#include <string>
#include <string_view>

namespace kestra {

inline QString shown(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string told(const QString& text) {
  return text.toStdString();
}

// A colour with red in its low byte.
inline QColor colorOf(std::uint32_t number) {
  return {static_cast<int>(number & 255U), static_cast<int>(number >> 8U & 255U),
          static_cast<int>(number >> 16U & 255U)};
}

}  // namespace kestra
