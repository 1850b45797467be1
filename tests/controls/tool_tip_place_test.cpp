#include "tooltip/tool_tip_place.h"

#include <gtest/gtest.h>

#include <limits>

namespace qrn::test {
namespace {

constexpr Rect kArea{10, 20, 300, 200};
constexpr ToolTipMeasures kUsual{250, 60, 20};

Rect row(double top, double left = 15) { return {left, top, 100, 20}; }

TEST(ToolTipPlaces, AreBelowWhatTheyBelongTo) {
  EXPECT_EQ(toolTipPlace(row(40), kArea, kUsual), (Rect{15, 60, 250, 60}));
}

TEST(ToolTipPlaces, AreAboveWhereThereIsNoRoomBelow) {
  EXPECT_EQ(toolTipPlace(row(180), kArea, kUsual), (Rect{15, 120, 250, 60}));
}

TEST(ToolTipPlaces, StillAreBelowWhereTheyJustFit) {
  EXPECT_EQ(toolTipPlace(row(140), kArea, kUsual), (Rect{15, 160, 250, 60}));
  EXPECT_EQ(toolTipPlace(row(141), kArea, kUsual), (Rect{15, 81, 250, 60}));
}

TEST(ToolTipPlaces, AreNoTallerThanTheLargerRoom) {
  EXPECT_EQ(toolTipPlace(row(60), kArea, {250, 500, 20}), (Rect{15, 80, 250, 140}));
  EXPECT_EQ(toolTipPlace(row(160), kArea, {250, 500, 20}), (Rect{15, 20, 250, 140}));
}

TEST(ToolTipPlaces, AreNoWiderThanTheArea) {
  EXPECT_EQ(toolTipPlace(row(40), kArea, {500, 60, 20}), (Rect{10, 60, 300, 60}));
}

TEST(ToolTipPlaces, AreMovedIntoTheArea) {
  EXPECT_EQ(toolTipPlace(row(40, 200), kArea, kUsual), (Rect{60, 60, 250, 60}));
  EXPECT_EQ(toolTipPlace(row(40, -50), kArea, kUsual), (Rect{10, 60, 250, 60}));
}

TEST(ToolTipPlaces, OfWhatIsScrolledAwayAreAtTheEdge) {
  EXPECT_EQ(toolTipPlace(row(-500), kArea, kUsual), (Rect{15, 20, 250, 60}));
  EXPECT_EQ(toolTipPlace(row(900), kArea, kUsual), (Rect{15, 160, 250, 60}));
}

TEST(ToolTipPlaces, CoverWhatFillsTheArea) {
  EXPECT_EQ(toolTipPlace({15, 25, 100, 190}, kArea, kUsual), (Rect{15, 160, 250, 60}));
  EXPECT_EQ(toolTipPlace({15, -25, 100, 900}, kArea, {250, 500, 20}), (Rect{15, 20, 250, 200}));
}

TEST(ToolTipPlaces, StayInsideWhateverIsWished) {
  constexpr double kEndless = std::numeric_limits<double>::infinity();
  for (double top = -300; top < 500; top += 7) {
    for (double height : {1.0, 20.0, 150.0, 400.0}) {
      for (double wished : {20.0, 90.0, kEndless}) {
        const Rect place = toolTipPlace({50, top, 100, height}, kArea, {250, wished, 20});
        EXPECT_EQ(place.intersected(kArea), place) << top << ' ' << height << ' ' << wished;
        EXPECT_GE(place.height, 20);
      }
    }
  }
}

}  // namespace
}  // namespace qrn::test
