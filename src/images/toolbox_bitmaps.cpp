#include "images/toolbox_bitmaps.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "images/toolbox_bitmaps_data.h"

namespace qrn {
namespace {

using namespace toolbox_bitmaps;

constexpr std::size_t kWidth = 16, kHeight = 15, kBitsPerPixel = 4;
constexpr std::size_t kHeaderBytes = 40, kColorBytes = 4;
constexpr std::size_t kRowBytes = kWidth * kBitsPerPixel / 8;
constexpr std::size_t kPaletteBytes = std::size(kColors) * kColorBytes;
constexpr std::size_t kPixelBytes = kHeight * kRowBytes;
constexpr std::size_t kBytes = kHeaderBytes + kPaletteBytes + kPixelBytes;

static_assert(kBytes == 224);
static_assert(std::size(kBitmaps) == kLastToolboxBitmap - kFirstToolboxBitmap + 1);

/// Writes a bitmap from its start, numbers with their lowest byte first.
class Writer {
 public:
  constexpr void put(std::size_t number, int bytes) {
    for (; bytes > 0; --bytes, number >>= 8) bytes_[at_++] = static_cast<std::uint8_t>(number & 0xFF);
  }
  constexpr std::array<std::uint8_t, kBytes> bytes() const { return bytes_; }

 private:
  std::array<std::uint8_t, kBytes> bytes_{};
  std::size_t at_ = 0;
};

constexpr void putHeader(Writer& writer) {
  writer.put(kHeaderBytes, 4);
  writer.put(kWidth, 4);
  writer.put(kHeight, 4);
  writer.put(1, 2);  // planes
  writer.put(kBitsPerPixel, 2);
  writer.put(0, 4);  // not compressed
  writer.put(kPixelBytes, 4);
  writer.put(0, 4);  // pixels per metre, which nobody asks for
  writer.put(0, 4);
  writer.put(std::size(kColors), 4);
  writer.put(0, 4);  // all of them matter
}

constexpr std::size_t colorOf(char digit) {
  return static_cast<std::size_t>(digit <= '9' ? digit - '0' : digit - 'A' + 10);
}

// The lowest row comes first, and of two pixels in a byte the left one is the upper half.
constexpr void putPixels(Writer& writer, std::string_view digits) {
  for (std::size_t row = kHeight; row-- > 0;) {
    for (std::size_t x = 0; x < kWidth; x += 2) {
      const std::size_t at = row * kWidth + x;
      writer.put(colorOf(digits[at]) << 4 | colorOf(digits[at + 1]), 1);
    }
  }
}

constexpr auto made() {
  std::array<std::array<std::uint8_t, kBytes>, std::size(kBitmaps)> bitmaps{};
  for (std::size_t i = 0; i < bitmaps.size(); ++i) {
    Writer writer;
    putHeader(writer);
    for (const std::uint32_t color : kColors) writer.put(color, kColorBytes);  // blue, green, red, nothing
    putPixels(writer, kBitmaps[i]);
    bitmaps[i] = writer.bytes();
  }
  return bitmaps;
}

constexpr auto kMade = made();

}  // namespace

std::span<const std::uint8_t> toolboxBitmap(std::int32_t id) {
  if (id < kFirstToolboxBitmap || id > kLastToolboxBitmap) return {};
  return kMade[static_cast<std::size_t>(id - kFirstToolboxBitmap)];
}

}  // namespace qrn
