#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kestra {

inline QString shown(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string told(const QString& text) {
  return text.toStdString();
}

}  // namespace kestra
