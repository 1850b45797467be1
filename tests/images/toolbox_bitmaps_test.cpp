#include "images/toolbox_bitmaps.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace qrn {
namespace {

using Bytes = std::span<const std::uint8_t>;

/// A number of so many bytes, the lowest first.
std::uint32_t numberAt(Bytes bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) number = number << 8 | bytes[at + i];
  return number;
}

/// The colors of all pixels, rows top down.
std::vector<std::uint32_t> pixelsOf(Bytes bitmap) {
  std::vector<std::uint32_t> pixels;
  for (std::size_t y = 0; y < 15; ++y) {
    for (std::size_t x = 0; x < 16; ++x) {
      const std::uint8_t pair = bitmap[40 + 64 + (14 - y) * 8 + x / 2];
      pixels.push_back(numberAt(bitmap, 40 + 4 * (x % 2 == 0 ? pair >> 4 : pair & 0xFU), 4));
    }
  }
  return pixels;
}

std::vector<std::int32_t> identifiers() { return {30000, 30001, 30002, 30003, 30004, 30005, 30006}; }

TEST(ToolboxBitmaps, HaveAHeaderOfSixteenByFifteenPixelsInSixteenColors) {
  for (const std::int32_t id : identifiers()) {
    SCOPED_TRACE(id);
    const Bytes bitmap = toolboxBitmap(id);
    ASSERT_EQ(bitmap.size(), 224u);
    EXPECT_EQ(numberAt(bitmap, 0, 4), 40u) << "size of the header";
    EXPECT_EQ(numberAt(bitmap, 4, 4), 16u) << "width";
    EXPECT_EQ(numberAt(bitmap, 8, 4), 15u) << "height, rows bottom up";
    EXPECT_EQ(numberAt(bitmap, 12, 2), 1u) << "planes";
    EXPECT_EQ(numberAt(bitmap, 14, 2), 4u) << "bits of a pixel";
    EXPECT_EQ(numberAt(bitmap, 16, 4), 0u) << "compression";
    EXPECT_EQ(numberAt(bitmap, 20, 4), 120u) << "bytes of the pixels";
    EXPECT_EQ(numberAt(bitmap, 32, 4), 16u) << "colors";
  }
}

TEST(ToolboxBitmaps, HaveAPaletteOfSixteenDifferentColors) {
  for (const std::int32_t id : identifiers()) {
    std::set<std::uint32_t> colors;
    for (std::size_t i = 0; i < 16; ++i) colors.insert(numberAt(toolboxBitmap(id), 40 + 4 * i, 4));
    EXPECT_EQ(colors.size(), 16u) << id;
    EXPECT_LE(*colors.rbegin(), 0xFFFFFFu) << id << " has a fourth byte that is not nothing";
  }
}

TEST(ToolboxBitmaps, ShowSomethingInSeveralColors) {
  for (const std::int32_t id : identifiers()) {
    const std::vector<std::uint32_t> pixels = pixelsOf(toolboxBitmap(id));
    EXPECT_GE(std::set<std::uint32_t>(pixels.begin(), pixels.end()).size(), 3u) << id;
  }
}

TEST(ToolboxBitmaps, DifferClearlyFromEachOther) {
  for (const std::int32_t a : identifiers()) {
    for (const std::int32_t b : identifiers()) {
      if (a >= b) continue;
      const auto one = pixelsOf(toolboxBitmap(a)), other = pixelsOf(toolboxBitmap(b));
      int different = 0;
      for (std::size_t i = 0; i < one.size(); ++i) different += one[i] != other[i] ? 1 : 0;
      EXPECT_GE(different, 40) << a << " and " << b;
    }
  }
}

TEST(ToolboxBitmaps, OfThePanelHasItsTitleAboveAndItsFooterBelow) {
  const std::vector<std::uint32_t> pixels = pixelsOf(toolboxBitmap(30000));
  EXPECT_EQ(pixels[1 * 16 + 1], 0x000080u);
  EXPECT_EQ(pixels[13 * 16 + 1], 0xC0C0C0u);
}

TEST(ToolboxBitmaps, OtherIdentifiersHaveNone) {
  for (const std::int32_t id : {0, 1, 29999, 30007, -30000}) EXPECT_TRUE(toolboxBitmap(id).empty()) << id;
}

}  // namespace
}  // namespace qrn
