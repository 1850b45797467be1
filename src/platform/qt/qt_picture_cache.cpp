#include "platform/qt/qt_picture_cache.h"

#include <QImage>
#include <cmath>

namespace qrn::qt {
namespace {

constexpr std::size_t kMostEntries = 512;

QPixmap made(const host::Picture& picture, const host::Picture::Bitmap& bitmap, double scale) {
  const QImage image(reinterpret_cast<const uchar*>(bitmap.argb.data()), bitmap.width, bitmap.height,
                     QImage::Format_ARGB32);
  const QSize device(static_cast<int>(std::lround(picture.width() * scale)),
                     static_cast<int>(std::lround(picture.height() * scale)));
  QPixmap pixmap = QPixmap::fromImage(
      image.size() == device ? image.copy()
                             : image.scaled(device, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  pixmap.setDevicePixelRatio(scale);
  return pixmap;
}

}  // namespace

const QPixmap& QtPictureCache::pixmap(const host::Picture& picture, double scale) {
  const host::Picture::Bitmap& bitmap = picture.bitmap(scale);
  const auto known = entries_.find(&picture);
  if (known != entries_.end() && known->second.scale == scale && known->second.source == bitmap)
    return known->second.pixmap;
  if (entries_.size() >= kMostEntries) entries_.clear();
  Entry& entry = entries_[&picture];
  entry = {scale, bitmap, made(picture, bitmap, scale)};
  return entry.pixmap;
}

}  // namespace qrn::qt
