#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/geometry.h"
#include "runtime/object.h"

namespace qrn::host {

/// An immutable picture: pixels at one or more scales of the same logical size.
class Picture final : public Object {
 public:
  /// Rows top down, pixels 0xAARRGGBB, not premultiplied.
  struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> argb;
    friend bool operator==(const Bitmap&, const Bitmap&) = default;
  };

  /// The first bitmap is the one at scale 1, every further one is larger and of the same shape; none make the
  /// empty picture. Raises kInvalidPropertyValue, naming the bitmap, when sizes and pixels do not fit.
  explicit Picture(std::vector<Bitmap> scales);

  std::string_view typeName() const override { return "Picture"; }

  /// Logical pixels.
  double width() const { return empty() ? 0 : scales_.front().width; }
  double height() const { return empty() ? 0 : scales_.front().height; }
  Size size() const { return {width(), height()}; }

  /// Has no pixels at all; a picture of transparent pixels is not empty.
  bool empty() const { return scales_.empty(); }

  const std::vector<Bitmap>& scales() const { return scales_; }

  /// The smallest bitmap at least that sharp, else the largest; of the empty picture one without pixels.
  const Bitmap& bitmap(double scale) const;

  /// The same pixels at the same scales.
  friend bool operator==(const Picture& a, const Picture& b) { return a.scales_ == b.scales_; }

 private:
  std::vector<Bitmap> scales_;
};

using PicturePtr = std::shared_ptr<const Picture>;

/// The picture as a Variant holds it. Picture has nothing that changes it, so no caller can tell.
ObjectPtr asObject(const PicturePtr& picture);

/// The picture in an object reference: nothing for nothing; any other object raises kTypeMismatch.
PicturePtr asPicture(const ObjectPtr& object);

/// One line for property bags: the sizes, a colon and the pixels as runs in base64,
/// for instance "16x15,32x30:7wAAAAA…"; ":" is the empty picture.
std::string toText(const Picture& picture);

/// Reads what toText wrote. Raises kInvalidPropertyValue that says what is wrong with the text.
PicturePtr pictureFromText(std::string_view text);

}  // namespace qrn::host
