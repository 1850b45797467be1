#include "images/QRNImageList.h"

#include <algorithm>
#include <limits>

#include "host/class_table.h"
#include "images/built_in_pictures.h"
#include "runtime/errors.h"

namespace qrn {

QRNImageList::QRNImageList() {
  images_.reserve(kBuiltInPictureCount);
  for (std::int32_t id = 0; id < kBuiltInPictureCount; ++id)
    images_.push_back({id, builtInPicture(static_cast<qrnImageId>(id))});
}

std::vector<QRNImageList::Numbered>::const_iterator QRNImageList::from(std::int32_t id) const {
  if (const auto place = static_cast<std::uint32_t>(id); place < images_.size() && images_[place].id == id)
    return images_.begin() + id;
  const auto isBefore = [](const Numbered& one, std::int32_t wanted) { return one.id < wanted; };
  return std::lower_bound(images_.begin(), images_.end(), id, isBefore);
}

host::PicturePtr QRNImageList::Image(qrnImageId ImageId) const {
  const auto found = from(ImageId);
  if (found == images_.end() || found->id != ImageId)
    raiseRunTimeError(kControlArrayElementMissing, typeName());
  return found->picture;
}

void QRNImageList::SetImage(qrnImageId ImageId, host::PicturePtr picture) {
  auto at = from(ImageId);
  if (at != images_.end() && at->id == ImageId) at = images_.erase(at);
  if (picture) images_.insert(at, {ImageId, std::move(picture)});
}

qrnImageId QRNImageList::GetNextFreeImageIndex() const {
  if (images_.empty()) return qrnImageBlank;
  const std::int32_t highest = images_.back().id;
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
