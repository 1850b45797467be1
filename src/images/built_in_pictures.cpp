#include "images/built_in_pictures.h"

#include <array>
#include <iterator>

#include "images/built_in_pictures_data.h"

namespace qrn {
namespace {

using host::Picture;
using namespace built_in_pictures;

static_assert(std::size(kPictureTables) == kBuiltInPictureCount);

Picture::Bitmap decode(const PictureTable& table, int scale) {
  Picture::Bitmap bitmap{kWidth * scale, kHeight * scale, {}};
  const std::string_view pixels = table.scales[static_cast<std::size_t>(scale) - 1];
  bitmap.argb.reserve(pixels.size());
  for (const char digit : pixels) bitmap.argb.push_back(table.colors[kDigits.find(digit)]);
  return bitmap;
}

std::array<host::PicturePtr, kBuiltInPictureCount> decodeAll() {
  std::array<host::PicturePtr, kBuiltInPictureCount> pictures;
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    const PictureTable& table = kPictureTables[i];
    pictures[i] =
        std::make_shared<const Picture>(std::vector{decode(table, 1), decode(table, 2), decode(table, 3)});
  }
  return pictures;
}

}  // namespace

host::PicturePtr builtInPicture(qrnImageId id) {
  static const auto pictures = decodeAll();
  const auto index = static_cast<std::int32_t>(id);
  if (index < 0 || index >= kBuiltInPictureCount) return nullptr;
  return pictures[static_cast<std::size_t>(index)];
}

}  // namespace qrn
