#pragma once

#include <QString>
#include <cstdint>
#include <string>
#include <string_view>

namespace qrn::qt {

inline QString toQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string toUtf8(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

// Qt counts positions in UTF-16 units, controls count them in code points.

inline std::int32_t codePointsBefore(const QString& text, int units) {
  std::int32_t count = 0;
  for (int i = 0; i < units && i < text.size(); ++i) count += text.at(i).isLowSurrogate() ? 0 : 1;
  return count;
}

inline int unitsBefore(const QString& text, std::int32_t codePoints) {
  int units = 0;
  while (units < text.size() && codePoints > 0) {
    units += text.at(units).isHighSurrogate() && units + 1 < text.size() ? 2 : 1;
    --codePoints;
  }
  return units;
}

}  // namespace qrn::qt
