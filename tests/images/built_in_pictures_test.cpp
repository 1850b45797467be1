#include "images/built_in_pictures.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "runtime/errors.h"
#include "runtime/variant.h"

namespace qrn {
namespace {

using host::Picture;
using host::PicturePtr;
using Bitmap = Picture::Bitmap;

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kHalfBlue = 0x800000FF;

Bitmap filled(int width, int height, std::uint32_t pixel) {
  return {width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width * height), pixel)};
}

PicturePtr picture(int id) { return builtInPicture(static_cast<qrnImageId>(id)); }

unsigned alpha(std::uint32_t pixel) { return pixel >> 24; }

/// The brightness, 0 to 255, of a pixel on a grey background, as somebody who sees no colors has it.
int grey(std::uint32_t pixel, int background) {
  const double luma = 0.299 * (pixel >> 16 & 0xFF) + 0.587 * (pixel >> 8 & 0xFF) + 0.114 * (pixel & 0xFF);
  const double cover = alpha(pixel) / 255.0;
  return static_cast<int>(luma * cover + background * (1 - cover));
}

/// Pixels of the small bitmaps that differ clearly in grey on a background.
int greyDifference(const Picture& a, const Picture& b, int background) {
  int count = 0;
  for (std::size_t i = 0; i < a.bitmap(1).argb.size(); ++i)
    if (std::abs(grey(a.bitmap(1).argb[i], background) - grey(b.bitmap(1).argb[i], background)) > 48) ++count;
  return count;
}

int visiblePixels(const Picture& shown, int background) {
  const std::vector<std::uint32_t>& pixels = shown.bitmap(1).argb;
  return static_cast<int>(std::count_if(pixels.begin(), pixels.end(), [&](std::uint32_t pixel) {
    return std::abs(grey(pixel, background) - background) > 48;
  }));
}

template <class Action>
std::string errorOf(Action&& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), kInvalidPropertyValue);
    EXPECT_EQ(error.source(), "Picture");
    return error.description();
  }
  return "no error";
}

TEST(BuiltInPictures, AreSixteenByFifteenAtThreeScales) {
  for (int id = 0; id < kBuiltInPictureCount; ++id) {
    SCOPED_TRACE(id);
    ASSERT_FALSE(picture(id)->empty());
    EXPECT_EQ(picture(id)->width(), 16);
    EXPECT_EQ(picture(id)->height(), 15);
    ASSERT_EQ(picture(id)->scales().size(), 3u);
    for (int scale = 1; scale <= 3; ++scale) {
      EXPECT_EQ(picture(id)->bitmap(scale).width, 16 * scale);
      EXPECT_EQ(picture(id)->bitmap(scale).height, 15 * scale);
    }
  }
}

TEST(BuiltInPictures, TheBlankOneIsTransparentThroughout) {
  for (const Bitmap& bitmap : picture(qrnImageBlank)->scales())
    EXPECT_TRUE(std::ranges::all_of(bitmap.argb, [](std::uint32_t pixel) { return alpha(pixel) == 0; }));
}

TEST(BuiltInPictures, AllOthersShowWithoutColorOnLightAndOnDark) {
  for (int id = 1; id < kBuiltInPictureCount; ++id)
    for (const int background : {0xF0, 0x2B}) EXPECT_GE(visiblePixels(*picture(id), background), 24) << id;
}

TEST(BuiltInPictures, NoTwoLookAlikeInGrey) {
  for (int a = 0; a < kBuiltInPictureCount; ++a)
    for (int b = a + 1; b < kBuiltInPictureCount; ++b)
      for (const int background : {0xF0, 0x2B})
        EXPECT_GE(greyDifference(*picture(a), *picture(b), background), 6) << a << " and " << b;
}

TEST(BuiltInPictures, TheTwoPhasesOfALiveValueTickVisibly) {
  EXPECT_GE(greyDifference(*picture(qrnImageDynamic1), *picture(qrnImageDynamic2), 0xF0), 30);
}

TEST(BuiltInPictures, AreTheSameObjectEveryTime) {
  EXPECT_EQ(picture(qrnImageLocked), picture(qrnImageLocked));
}

TEST(BuiltInPictures, OtherNumbersHaveNone) {
  EXPECT_EQ(picture(-1), nullptr);
  EXPECT_EQ(picture(kBuiltInPictureCount), nullptr);
}

TEST(BuiltInPictures, ComeBackFromTheirTextAndKeepItShort) {
  for (int id = 0; id < kBuiltInPictureCount; ++id) {
    SCOPED_TRACE(id);
    const std::string text = toText(*picture(id));
    EXPECT_EQ(*host::pictureFromText(text), *picture(id));
    EXPECT_LT(text.size(), 12'000u);
  }
}

TEST(Picture, HasTheSizeOfItsFirstBitmap) {
  const Picture twoScales({filled(3, 2, kRed), filled(6, 4, kRed)});
  EXPECT_EQ(twoScales.width(), 3);
  EXPECT_EQ(twoScales.height(), 2);
  EXPECT_EQ(twoScales.typeName(), "Picture");
}

TEST(Picture, WithoutBitmapsIsEmpty) {
  const Picture none({});
  EXPECT_TRUE(none.empty());
  EXPECT_EQ(none.width(), 0);
  EXPECT_EQ(none.height(), 0);
  EXPECT_TRUE(none.bitmap(2).argb.empty());
}

TEST(Picture, AnswersTheSmallestBitmapThatIsSharpEnough) {
  const PicturePtr shown = picture(qrnImageError);
  EXPECT_EQ(shown->bitmap(0.5).width, 16);
  EXPECT_EQ(shown->bitmap(1).width, 16);
  EXPECT_EQ(shown->bitmap(1.25).width, 32);
  EXPECT_EQ(shown->bitmap(1.5).width, 32);
  EXPECT_EQ(shown->bitmap(2).width, 32);
  EXPECT_EQ(shown->bitmap(3).width, 48);
}

TEST(Picture, AnswersItsLargestBitmapWhenNoneIsSharpEnough) {
  EXPECT_EQ(picture(qrnImageError)->bitmap(4).width, 48);
}

TEST(Picture, TakesAScaleThatIsNoWholeNumber) {
  EXPECT_EQ(Picture({filled(16, 15, kRed), filled(24, 23, kRed)}).bitmap(1.5).width, 24);
}

TEST(Picture, RefusesABitmapWithoutPixels) {
  EXPECT_EQ(errorOf([] { Picture({Bitmap{}}); }), "A bitmap of 0x0 has no pixels");
  EXPECT_EQ(errorOf([] { Picture({Bitmap{-2, -2, {1, 2, 3, 4}}}); }), "A bitmap of -2x-2 has no pixels");
}

TEST(Picture, RefusesPixelsThatDoNotFillTheirBitmap) {
  EXPECT_EQ(errorOf([] { Picture({Bitmap{2, 2, {kRed}}}); }), "The bitmap of 2x2 has 1 pixels");
}

TEST(Picture, RefusesAScaleThatIsNotLarger) {
  EXPECT_EQ(errorOf([] {
              Picture({filled(4, 4, kRed), filled(4, 4, kRed)});
            }),
            "The bitmap of 4x4 is not larger than the one before it");
}

TEST(Picture, RefusesAScaleOfAnotherShape) {
  EXPECT_EQ(errorOf([] {
              Picture({filled(4, 4, kRed), filled(8, 9, kRed)});
            }),
            "The bitmap of 8x9 is no enlargement of 4x4");
}

TEST(Picture, EqualsAnotherWithTheSamePixels) {
  EXPECT_EQ(Picture({filled(2, 2, kRed)}), Picture({filled(2, 2, kRed)}));
  EXPECT_NE(Picture({filled(2, 2, kRed)}), Picture({filled(2, 2, kHalfBlue)}));
  EXPECT_NE(Picture({filled(2, 2, kRed)}), Picture({filled(2, 2, kRed), filled(4, 4, kRed)}));
}

TEST(Picture, TravelsInAVariantAsTheSameObject) {
  const PicturePtr shown = picture(qrnImageFolder);
  const Variant value(asObject(shown));
  EXPECT_EQ(host::asPicture(*value.get<ObjectPtr>()), shown);
  EXPECT_EQ(host::asPicture(nullptr), nullptr);
}

TEST(Picture, IsNotReadFromAnotherKindOfObject) {
  struct Stranger : Object {
    std::string_view typeName() const override { return "Stranger"; }
  };
  try {
    host::asPicture(std::make_shared<Stranger>());
    ADD_FAILURE() << "a stranger passed for a picture";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), kTypeMismatch);
  }
}

TEST(PictureText, IsSizesAndRunsInBase64) {
  EXPECT_EQ(toText(Picture({filled(2, 2, kRed)})), "2x2:A///AAA=");
  EXPECT_EQ(toText(Picture({filled(1, 1, kRed), filled(2, 2, kRed)})), "1x1,2x2:AP//AAAD//8AAA==");
  EXPECT_EQ(toText(Picture({})), ":");
}

TEST(PictureText, KeepsRunsThatAreLongerThanAByteCounts) {
  const Picture large({filled(40, 40, kHalfBlue)});
  EXPECT_EQ(*host::pictureFromText(toText(large)), large);
  EXPECT_TRUE(host::pictureFromText(":")->empty());
}

TEST(PictureText, ThatCannotBeReadSaysWhy) {
  const auto reading = [](std::string_view text) { return errorOf([&] { host::pictureFromText(text); }); };
  EXPECT_EQ(reading(""), "A picture text has no colon after its sizes");
  EXPECT_EQ(reading("2x:A///AAA="), "A picture text names the size \"2x\"");
  EXPECT_EQ(reading("2:A///AAA="), "A picture text names the size \"2\"");
  EXPECT_EQ(reading("2x2 :A///AAA="), "A picture text names the size \"2x2 \"");
  EXPECT_EQ(reading("99999999999x2:"), "A picture text names the size \"99999999999x2\"");
  EXPECT_EQ(reading("1x1,,2x2:"), "A picture text names the size \"\"");
  EXPECT_EQ(reading("0x0:"), "A bitmap of 0x0 has no pixels");
  EXPECT_EQ(reading("2x2:A///AAA"), "The pixels of a picture text are cut off");
  EXPECT_EQ(reading("2x2:A=//AAA="), "The pixels of a picture text are not in base64");
  EXPECT_EQ(reading("2x2:===="), "The pixels of a picture text are not in base64");
  EXPECT_EQ(reading("2x2:"), "A picture text has too few pixels for its sizes");
  EXPECT_EQ(reading("2147483647x2147483647:A///AAA="), "A picture text has too few pixels for its sizes");
  EXPECT_EQ(reading("1x1:A///AAA="), "A picture text has a run that leaves its bitmap");
  EXPECT_EQ(reading("1x1:AP//AAAD//8AAA=="), "A picture text has more pixels than its sizes say");
}

}  // namespace
}  // namespace qrn
