#include "stack/page_place.h"

#include <gtest/gtest.h>

#include <ostream>

namespace qrn {
// NOLINTNEXTLINE(readability-identifier-naming): found by the test library under this name
void PrintTo(const Rect& r, std::ostream* out) {
  *out << r.left << ", " << r.top << "; " << r.width << " x " << r.height;
}

namespace {

constexpr Size kStack{400, 300};

TEST(APage, FillsTheStackFromItsIndentsOn) {
  EXPECT_EQ(placePage({.leftIndent = 20, .topIndent = 40, .menuItemHeight = 20}, kStack),
            (Rect{20, 40, 380, 260}));
}

TEST(APage, FillsAllOfTheStackWhenMaximized) {
  EXPECT_EQ(placePage({.leftIndent = 20, .topIndent = 40, .maximized = true}, kStack),
            (Rect{0, 0, 400, 300}));
}

TEST(APage, HasARoundedSizeAtLeastOnePixelLarge) {
  EXPECT_EQ(placePage({.leftIndent = 20, .topIndent = 40}, {30.5, 99.6}), (Rect{20, 40, 10, 60}));
  EXPECT_EQ(placePage({.leftIndent = 500, .topIndent = 500}, kStack), (Rect{500, 500, 1, 1}));
}

Rect dialog(double leftIndent, double topIndent, std::int32_t menuItemHeight, Size stack = kStack) {
  return placePage(
      {.leftIndent = leftIndent, .topIndent = topIndent, .dialog = true, .menuItemHeight = menuItemHeight},
      stack);
}

TEST(ADialog, IsIndentedOnAllSides) { EXPECT_EQ(dialog(20, 40, 20), (Rect{20, 40, 360, 220})); }

TEST(ADialog, FillsAllOfTheStackWhenMaximized) {
  EXPECT_EQ(
      placePage({.leftIndent = 20, .topIndent = 40, .maximized = true, .dialog = true, .menuItemHeight = 20},
                kStack),
      (Rect{0, 0, 400, 300}));
}

// 380 wide from its indent on, 260 high; ten menu items wide and seven high is what it needs.
TEST(ADialog, GivesUpRoomOnTheRightBeforeItGetsTooSmall) {
  EXPECT_EQ(dialog(20, 40, 37), (Rect{20, 40, 370, 259}));
}

TEST(ADialog, FillsTheRestOfTheStackWhenThatIsJustEnough) {
  EXPECT_EQ(dialog(20, 20, 38).width, 380);
  EXPECT_EQ(dialog(20, 20, 40).height, 280);
}

TEST(ADialog, GivesUpItsIndentWhereTheRestIsTooSmall) {
  EXPECT_EQ(dialog(20, 0, 39), (Rect{10, 0, 390, 300}));
  EXPECT_EQ(dialog(0, 40, 39).top, 27) << "273 high: 13 more than the 260 below its indent";
  EXPECT_EQ(dialog(0, 40, 39).height, 273);
}

TEST(ADialog, HasAllOfAStackThatIsTooSmallForIt) {
  EXPECT_EQ(dialog(20, 40, 100), (Rect{0, 0, 400, 300}));
  EXPECT_EQ(dialog(20, 0, 40).width, 400) << "what it lacks is all of its indent";
}

}  // namespace
}  // namespace qrn
