#include "golden/comparison.h"

#include <gtest/gtest.h>

namespace qrn::golden {
namespace {

QImage plain(int width = 400, int height = 300) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(qRgb(100, 100, 100));
  return image;
}

TEST(Comparison, TakesEqualPicturesAsEqual) { EXPECT_EQ(compare(plain(), plain()).complaint, ""); }

TEST(Comparison, TakesSlightlyDifferentShadesAsEqual) {
  QImage other = plain();
  other.fill(qRgb(100 + kSlight, 100, 100 - kSlight));
  EXPECT_EQ(compare(other, plain()).complaint, "");
  other.fill(qRgb(100, 100 + kSlight + 1, 100));
  EXPECT_EQ(compare(other, plain()).complaint, "120000 pixels differ, the first at 0,0");
}

TEST(Comparison, SeesAShortLineThatIsLost) {
  QImage other = plain();
  for (int x = 10; x < 18; ++x) other.setPixel(x, 20, qRgb(160, 160, 160));
  const Comparison result = compare(other, plain());
  EXPECT_EQ(result.complaint, "8 pixels differ, the first at 10,20");
  EXPECT_EQ(result.difference.pixel(17, 20), qRgb(255, 0, 0));
  EXPECT_EQ(result.difference.pixel(18, 20), qRgb(100, 100, 100));
}

TEST(Comparison, NeedsTheSameSize) {
  EXPECT_EQ(compare(plain(400, 301), plain()).complaint, "the size is 400x301 instead of 400x300");
}

TEST(Comparison, ComplainsOfAPictureThatIsNotKept) {
  if (qEnvironmentVariableIsSet("QRN_REFRESH_GOLDEN")) GTEST_SKIP() << "would keep one";
  EXPECT_NE(compareWithKept(plain(), "none").find("none.png (missing"), std::string::npos);
}

}  // namespace
}  // namespace qrn::golden
