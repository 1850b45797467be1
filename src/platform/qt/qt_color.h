#pragma once

#include <QColor>

#include "host/color.h"

namespace qrn::qt {

/// Both for plain colours.
inline QColor toQColor(host::Color color) {
  return QColor(host::redOf(color), host::greenOf(color), host::blueOf(color));
}

inline host::Color fromQt(const QColor& color) { return host::rgb(color.red(), color.green(), color.blue()); }

}  // namespace qrn::qt
