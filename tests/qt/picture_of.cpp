#include "picture_of.h"

#include <QPainter>
#include <cmath>

#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_surface.h"

namespace qrn::qt {
namespace {}  // namespace

QImage painted(QtPlatform& platform, host::UserControl& control) {
  const double scale = qApp->devicePixelRatio();
  const Rect area = control.onSurface();
  QImage image(toPixels(area).size() * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::magenta);
  QPainter painter(&image);
  QtSurface surface(platform, painter, area);
  control.paintTree(surface);
  return image;
}

QImage grabbed(QWidget& canvas) { return canvas.grab().toImage().convertToFormat(QImage::Format_RGB32); }

QImage partOf(const QImage& picture, const host::Control& control) {
  const double scale = picture.devicePixelRatio();
  const Rect at = control.onSurface();
  return picture.copy(toPixels({at.left * scale, at.top * scale, at.width * scale, at.height * scale}));
}

std::string difference(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return "the sizes differ";
  int count = 0;
  std::string first;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (a.pixel(x, y) == b.pixel(x, y)) continue;
      if (count++ == 0)
        first = QString("first at %1,%2: %3 against %4")
                    .arg(x)
                    .arg(y)
                    .arg(a.pixel(x, y), 8, 16, QChar('0'))
                    .arg(b.pixel(x, y), 8, 16, QChar('0'))
                    .toStdString();
    }
  }
  return count == 0 ? std::string() : std::to_string(count) + " pixels differ, " + first;
}

}  // namespace qrn::qt
