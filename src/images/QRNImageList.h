#pragma once

#include <cstdint>
#include <vector>

#include "enums/enumerations.h"
#include "host/picture.h"
#include "host/user_control.h"

namespace qrn {

/// Pictures by number. A new list holds the library's own, 0 to 18; a host may add pictures at any free
/// number.
class QRNImageList final : public host::UserControl {
 public:
  QRNImageList();
  std::string_view typeName() const override { return "QRNImageList"; }
  const host::ClassTable& classTable() const override;

  /// A picture by its number. Errors: 340 for a number that has none.
  host::PicturePtr Image(qrnImageId ImageId) const;
  /// Setting one takes a picture's place or adds it; setting none gives the number free again.
  void SetImage(qrnImageId ImageId, host::PicturePtr picture);
  /// One more than the highest number in use. Errors: 6 when that is the highest there can be.
  qrnImageId GetNextFreeImageIndex() const;

  void paint(host::Surface& surface, Size size) override;

 private:
  struct Numbered {
    std::int32_t id;
    host::PicturePtr picture;
  };
  /// The first of this number or a higher one, or the end.
  std::vector<Numbered>::const_iterator from(std::int32_t id) const;

  std::vector<Numbered> images_;  // sorted; as long as none is missing, each lies at the index of its number
};

}  // namespace qrn
