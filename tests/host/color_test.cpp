#include "host/color.h"

#include "test_control.h"

namespace qrn::host {
namespace {

TEST(Colors, AreMadeOfRedGreenAndBlue) {
  const Color color = rgb(1, 2, 3);
  EXPECT_EQ(color, 0x030201u);
  EXPECT_EQ(redOf(color), 1);
  EXPECT_EQ(greenOf(color), 2);
  EXPECT_EQ(blueOf(color), 3);
  EXPECT_FALSE(isSystemColor(rgb(255, 255, 255)));
}

TEST(Colors, OfTheSystemAreResolvedByThePlatform) {
  const headless::HeadlessPlatform platform;
  EXPECT_TRUE(isSystemColor(kButtonFace));
  EXPECT_EQ(kButtonFace, 0x8000000Fu);
  EXPECT_EQ(systemColorOf(kGrayText), SystemColor::GrayText);
  EXPECT_EQ(platform.resolve(kButtonFace), platform.system(SystemColor::ButtonFace));
  EXPECT_EQ(platform.resolve(rgb(9, 8, 7)), rgb(9, 8, 7));
  for (std::uint32_t number = 0; number < 32; ++number)
    EXPECT_FALSE(isSystemColor(platform.resolve(0x80000000u | number)));
}

TEST(Contrast, GoesFromOneToTwentyOneAndBothWays) {
  EXPECT_NEAR(contrast(rgb(0, 0, 0), rgb(255, 255, 255)), 21, 1e-9);
  EXPECT_NEAR(contrast(rgb(255, 255, 255), rgb(0, 0, 0)), 21, 1e-9);
  EXPECT_NEAR(contrast(rgb(12, 34, 56), rgb(12, 34, 56)), 1, 1e-9);
  // The published example of the guideline: #777777 on white is 4.48 to 1.
  EXPECT_NEAR(contrast(rgb(0x77, 0x77, 0x77), rgb(255, 255, 255)), 4.48, 0.005);
}

TEST(ReadableText, StaysAsItIsWhereItCanBeRead) {
  EXPECT_EQ(readableOn(rgb(200, 0, 0), rgb(255, 255, 255)), rgb(200, 0, 0));
  EXPECT_EQ(readableOn(rgb(0, 0, 0), rgb(255, 255, 255)), rgb(0, 0, 0));
}

TEST(ReadableText, TurnsWhiteFromBlackOnADarkGround) {
  EXPECT_EQ(readableOn(rgb(0, 0, 0), rgb(30, 30, 30)), rgb(255, 255, 255));
}

TEST(ReadableText, CanBeReadOnEveryGround) {
  for (int text = 0; text < 512; ++text) {
    for (int ground = 0; ground < 512; ground += 3) {
      const auto mixed = [](int n) { return rgb((n & 7) * 36, (n >> 3 & 7) * 36, (n >> 6) * 36); };
      const Color shown = readableOn(mixed(text), mixed(ground));
      ASSERT_GE(contrast(shown, mixed(ground)), 3) << text << " on " << ground;
    }
  }
}

// The colours of values that are wrong, live and changed, on the fields of dark and high-contrast palettes.
TEST(ReadableText, HasAContrastOfFourAndAHalfInTheColoursOfStatesOnDarkFields) {
  for (const Color state : {rgb(255, 0, 0), rgb(0, 127, 0), rgb(0, 0, 255), rgb(0, 0, 0)}) {
    for (const Color field :
         {rgb(0x23, 0x23, 0x23), rgb(0x35, 0x35, 0x35), rgb(0, 0, 0), rgb(0x31, 0x36, 0x3b)}) {
      const Color shown = readableOn(state, field);
      EXPECT_GE(contrast(shown, field), 4.5) << state << " on " << field;
    }
  }
  EXPECT_GT(redOf(readableOn(rgb(255, 0, 0), rgb(0x35, 0x35, 0x35))), 200);
  EXPECT_GT(greenOf(readableOn(rgb(0, 127, 0), rgb(0, 0, 0))), greenOf(rgb(0, 127, 0)));
}

TEST(ReadableText, StaysPureOnTheLightFieldsItIsMadeFor) {
  for (const Color state : {rgb(255, 0, 0), rgb(0, 127, 0), rgb(0, 0, 255)})
    for (const Color field : {rgb(255, 255, 255), rgb(0xef, 0xef, 0xef)})
      EXPECT_EQ(readableOn(state, field), state);
}

TEST(ReadableText, KeepsTheLeadingColourOfItsHueWhenItIsLightened) {
  const Color shown = readableOn(rgb(0, 0, 160), rgb(30, 30, 30));
  EXPECT_GT(blueOf(shown), redOf(shown));
  EXPECT_GT(blueOf(shown), 160);
}

}  // namespace
}  // namespace qrn::host
