#pragma once

#include <QPixmap>
#include <unordered_map>

#include "host/picture.h"

namespace qrn::qt {

/// The pictures that were drawn, as pixmaps of the device's scale.
class QtPictureCache {
 public:
  /// Valid until the next call.
  const QPixmap& pixmap(const host::Picture& picture, double scale);

 private:
  struct Entry {
    double scale = 0;
    host::Picture::Bitmap source;
    QPixmap pixmap;
  };

  // A picture's address may be that of an earlier one, so an entry counts only while its pixels are the same.
  std::unordered_map<const host::Picture*, Entry> entries_;
};

}  // namespace qrn::qt
