#include "base/geometry.h"

#include <gtest/gtest.h>

namespace qrn {
namespace {

constexpr Rect kArea{10, 20, 30, 40};

TEST(Rectangles, ContainTheirFirstPixelAndNotTheOneBehindTheLast) {
  EXPECT_TRUE(kArea.contains({10, 20}));
  EXPECT_TRUE(kArea.contains({39.5, 59.5}));
  EXPECT_FALSE(kArea.contains({40, 30}));
  EXPECT_FALSE(kArea.contains({30, 60}));
  EXPECT_FALSE(kArea.contains({9.5, 30}));
}

TEST(Rectangles, ThatOnlyTouchDoNotIntersect) {
  EXPECT_TRUE(kArea.intersects({39, 59, 5, 5}));
  EXPECT_FALSE(kArea.intersects({40, 20, 5, 5}));
  EXPECT_FALSE(kArea.intersects({10, 10, 5, 10}));
  EXPECT_EQ(kArea.intersected({30, 50, 100, 100}), (Rect{30, 50, 10, 10}));
}

TEST(Rectangles, ApartIntersectInNothingAndNeverInLessThanNothing) {
  const Rect none = kArea.intersected({100, 100, 5, 5});
  EXPECT_TRUE(none.empty());
  EXPECT_EQ(none.size(), (Size{0, 0}));
  EXPECT_TRUE((Rect{0, 0, 5, 0}).empty());
}

TEST(Rectangles, AreMovedWithTheirSize) {
  EXPECT_EQ(kArea.translated({-10, 5}), (Rect{0, 25, 30, 40}));
  EXPECT_EQ(kArea.translated(Point{} - kArea.topLeft()).topLeft(), (Point{0, 0}));
}

}  // namespace
}  // namespace qrn
