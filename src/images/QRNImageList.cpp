#include "images/QRNImageList.h"

#include <limits>

#include "host/class_table.h"
#include "images/built_in_pictures.h"
#include "runtime/errors.h"

namespace qrn {

QRNImageList::QRNImageList() {
  for (std::int32_t id = 0; id < kBuiltInPictureCount; ++id) {
    images_[id] = builtInPicture(static_cast<qrnImageId>(id));
  }
}

host::PicturePtr QRNImageList::Image(qrnImageId ImageId) const {
  const auto found = images_.find(ImageId);
  if (found == images_.end()) raiseRunTimeError(kControlArrayElementMissing, typeName());
  return found->second;
}

void QRNImageList::SetImage(qrnImageId ImageId, host::PicturePtr picture) {
  if (picture)
    images_[ImageId] = std::move(picture);
  else
    images_.erase(ImageId);
}

qrnImageId QRNImageList::GetNextFreeImageIndex() const {
  if (images_.empty()) return qrnImageBlank;
  const std::int32_t highest = images_.rbegin()->first;
  if (highest == std::numeric_limits<std::int32_t>::max()) raiseRunTimeError(kOverflow, typeName());
  return static_cast<qrnImageId>(highest + 1);
}

void QRNImageList::paint(host::Surface& surface, Size size) {
  const Rect box{0, 0, size.width, size.height};
  surface.fill(box, host::rgb(255, 255, 255));
  surface.frame(box, host::rgb(0, 0, 0));
  constexpr double kSide = 6, kGap = 3;
  for (int i = 0; i < 3; ++i)
    surface.frame({kGap + i * (kSide + kGap), kGap, kSide, kSide}, host::rgb(0, 0, 0));
}

const host::ClassTable& QRNImageList::classTable() const {
  static const host::ClassTable table{.name = "QRNImageList",
                                      .progId = "QRNV16Controls2.QRNImageList",
                                      .properties = {},
                                      .readingOrder = {},
                                      .writingOrder = {},
                                      .methods = {"Image", "GetNextFreeImageIndex"},
                                      .events = {}};
  return table;
}

}  // namespace qrn
